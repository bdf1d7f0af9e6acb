// Layout: anchors, limits of size, margins and padding, containers that fit their contents, and the
// wheel.
#include <gmock/gmock.h>

#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

class Layout : public ::testing::Test {
 protected:
  Layout() : Form(nullptr) {
    Form.SetClientWidth(300);
    Form.SetClientHeight(200);
  }
  template <class T>
  T* Make(int left, int top, int width, int height, TWinControl* parent = nullptr) {
    auto* control = new T(&Form);
    control->SetParent(parent ? parent : &Form);
    control->SetBounds(left, top, width, height);
    return control;
  }
  TForm Form;
};

TEST_F(Layout, AnchorsKeepTheDistanceFromTheirEdges) {
  const std::pair<TAnchors, TRect> cases[] = {
      {{akLeft, akTop}, {30, 20, 130, 60}},
      {{akRight, akBottom}, {130, 120, 230, 160}},
      {{akLeft, akTop, akRight, akBottom}, {30, 20, 230, 160}},
      {{akLeft, akRight}, {30, 40, 230, 80}},  // The middle, at 40 of 200, is at 60 of 300.
      {{}, {57, 40, 157, 80}},                 // And at 106.7 of 400 instead of 80 of 300.
  };
  for (const bool window : {false, true}) {
    for (const auto& [anchors, expected] : cases) {
      Form.SetClientWidth(300);
      Form.SetClientHeight(200);
      std::unique_ptr<TControl> control(window ? static_cast<TControl*>(new TPanel(&Form))
                                               : new TBevel(&Form));
      control->SetParent(&Form);
      control->SetBounds(30, 20, 100, 40);
      control->SetAnchors(anchors);
      // By way of sizes that round differently, and back and forth.
      for (const int width : {301, 37, 999, 300, 403}) Form.SetClientWidth(width);
      Form.SetClientWidth(400);
      Form.SetClientHeight(300);
      EXPECT_EQ(control->BoundsRect(), expected) << window << anchors.Bits();
      Form.SetClientWidth(300);
      Form.SetClientHeight(200);
      EXPECT_EQ(control->BoundsRect(), Rect(30, 20, 130, 60)) << window << anchors.Bits();
    }
  }
}

TEST_F(Layout, AFormFileKeepsAnchorsAndLimits) {
  const std::string text =
      "object Form: TForm\n"
      "  Left = 0\n"
      "  Top = 0\n"
      "  ClientHeight = 100\n"
      "  ClientWidth = 200\n"
      "  object Panel: TPanel\n"
      "    Left = 150\n"
      "    Top = 10\n"
      "    Width = 40\n"
      "    Height = 20\n"
      "    Anchors = [akTop, akRight]\n"
      "    AlignWithMargins = True\n"
      "    Constraints.MinWidth = 30\n"
      "    Margins.Left = 5\n"
      "    Caption = ''\n"
      "    Padding.Top = 2\n"
      "    TabOrder = 0\n"
      "  end\n"
      "end\n";
  RegisterStandardClasses();
  ReadForm(text, &Form);
  auto* panel = dynamic_cast<TPanel*>(Form.FindComponent("Panel"));
  Form.Show();
  EXPECT_EQ(panel->BoundsRect(), Rect(150, 10, 190, 30));
  Form.SetClientWidth(260);
  EXPECT_EQ(panel->Left(), 210);
  panel->SetWidth(10);
  EXPECT_EQ(panel->Width(), 30);
  Form.SetClientWidth(200);
  panel->SetBounds(150, 10, 40, 20);
  EXPECT_THAT(FormText(&Form), ::testing::HasSubstr(text.substr(text.find("    Left = 150"))));
}

TEST_F(Layout, AnchorsOnAPageCountFromItsPageControl) {
  RegisterStandardClasses();
  TForm written(nullptr);
  written.SetName("Written");
  written.SetBounds(0, 0, 400, 300);
  auto* pages = new TPageControl(&written);
  pages->SetName("Pages");
  pages->SetParent(&written);
  pages->SetBounds(10, 10, 300, 200);
  pages->SetAnchors({akLeft, akTop, akRight, akBottom});
  auto* page = new TTabSheet(&written);
  page->SetName("Page");
  page->SetPageControl(pages);
  auto* edit = new TMemo(&written);
  edit->SetName("Memo");
  edit->SetParent(page);
  edit->SetBounds(5, 5, 200, 100);
  edit->SetAnchors({akLeft, akTop, akRight, akBottom});
  const std::string text = FormText(&written);
  for (const bool resizedFirst : {false, true}) {
    TForm read(nullptr);
    ReadForm(text, &read);
    auto* memo = dynamic_cast<TMemo*>(read.FindComponent("Memo"));
    ASSERT_NE(memo, nullptr);
    EXPECT_EQ(memo->BoundsRect(), TRect(5, 5, 205, 105));
    if (resizedFirst) read.SetWidth(read.Width() + 50);
    read.Show();
    if (!resizedFirst) read.SetWidth(read.Width() + 50);
    EXPECT_EQ(memo->BoundsRect(), TRect(5, 5, 255, 105));
    read.SetWidth(read.Width() - 50);
    EXPECT_EQ(memo->BoundsRect(), TRect(5, 5, 205, 105));
  }
}

TEST_F(Layout, LimitsHoldWhoeverSizesTheControl) {
  auto* panel = Make<TPanel>(0, 0, 100, 50);
  panel->Constraints()->SetMinWidth(80);
  panel->Constraints()->SetMaxHeight(60);
  for (const bool shown : {false, true}) {
    if (shown) Form.Show();
    panel->SetBounds(0, 0, 10, 500);
    EXPECT_EQ(panel->BoundsRect(), Rect(0, 0, 80, 60)) << shown;
  }
  ::SetWindowPos(panel->Handle(), nullptr, 0, 0, 20, 20, SWP_NOZORDER);
  EXPECT_EQ(panel->Width(), 80);
  panel->Constraints()->SetMinWidth(90);
  EXPECT_EQ(panel->Width(), 90) << "at once";
  int told = 0;
  panel->OnConstrainedResize = [&](TObject*, int& minWidth, int&, int& maxWidth, int&) {
    told = minWidth;
    minWidth = 0;
    maxWidth = 70;
  };
  panel->SetWidth(100);
  EXPECT_EQ(panel->Width(), 70);
  EXPECT_EQ(told, 90);
  panel->Constraints()->SetMaxWidth(50);
  EXPECT_EQ(panel->Constraints()->MinWidth(), 50);
  EXPECT_THROW(panel->Constraints()->SetMinHeight(-1), EArgumentOutOfRangeException);
  Form.Constraints()->SetMinWidth(250);
  ::SetWindowPos(Form.Handle(), nullptr, 0, 0, 100, 300, SWP_NOZORDER | SWP_NOMOVE);
  EXPECT_EQ(Form.Width(), 250);
}

TEST_F(Layout, MarginsAndPaddingStayFree) {
  auto* panel = Make<TPanel>(0, 0, 200, 100);
  panel->SetBevelOuter(bvNone);
  panel->Padding()->SetEdges(1, 2, 3, 4);
  auto* top = Make<TPanel>(0, 0, 50, 20, panel);
  top->SetAlignWithMargins(true);
  top->SetAlign(alTop);
  auto* right = Make<TPanel>(0, 0, 30, 20, panel);
  right->SetAlign(alRight);
  auto* rest = Make<TPanel>(0, 0, 1, 1, panel);
  rest->SetAlignWithMargins(true);
  rest->Margins()->SetEdges(10, 0, 0, 5);
  rest->SetAlign(alClient);
  EXPECT_EQ(top->BoundsRect(), Rect(4, 5, 194, 25));
  EXPECT_EQ(right->BoundsRect(), Rect(167, 28, 197, 96));
  EXPECT_EQ(rest->BoundsRect(), Rect(11, 28, 167, 91));
  panel->Padding()->SetTop(0);
  EXPECT_EQ(top->Top(), 3);
}

TEST_F(Layout, AContainerFitsWhatStandsInside) {
  auto* panel = Make<TPanel>(10, 10, 200, 100);
  panel->Padding()->SetEdges(4, 4, 4, 4);
  auto* inside = Make<TPanel>(20, 10, 50, 30, panel);
  panel->SetAutoSize(true);
  // The bevel takes one pixel at each edge.
  EXPECT_EQ(panel->BoundsRect(), Rect(10, 10, 10 + 70 + 5, 10 + 40 + 5));
  inside->SetWidth(100);
  EXPECT_EQ(panel->Width(), 125);
  auto* top = Make<TPanel>(0, 0, 10, 60, panel);
  top->SetAlign(alTop);
  EXPECT_EQ(panel->Height(), 70) << "the aligned one needs 60, the bevel and the padding the rest";
  top->Hide();
  panel->Realign();
  EXPECT_EQ(panel->Height(), 45);
}

TEST_F(Layout, FormsComeUpInTheMiddleOfWhatTheirPositionNames) {
  const TRect work = Screen()->WorkAreaRect();
  const TRect desktop(0, 0, ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
                      ::GetSystemMetrics(SM_CYVIRTUALSCREEN));
  Form.SetBounds(200, 100, 300, 300);
  Form.Show();
  const std::tuple<TPosition, TComponent*, TRect> cases[] = {
      {poScreenCenter, nullptr, work},
      {poDesktopCenter, nullptr, desktop},
      {poOwnerFormCenter, &Form, Form.BoundsRect()},
      {poOwnerFormCenter, nullptr, work},  // There is no main form either.
      {poMainFormCenter, &Form, work},
  };
  for (const auto& [position, owner, around] : cases) {
    TForm form(owner);
    form.SetBounds(1, 2, 200, 80);
    form.SetPosition(position);
    form.Show();
    EXPECT_EQ(form.Left(), around.Left + (around.Width() - 200) / 2) << position;
    EXPECT_EQ(form.Top(), around.Top + (around.Height() - 80) / 2) << position;
  }
}

TEST_F(Layout, TheWheelTurnsByNotches) {
  auto* panel = Make<TPanel>(0, 0, 100, 50);
  std::string log;
  panel->OnMouseWheel = [&](TObject*, TShiftState shift, int delta, TPoint, bool& handled) {
    log += Concat("wheel ", std::to_string(delta), shift.Has(ssCtrl) ? " ctrl;" : ";");
    handled = delta == 240;
  };
  panel->OnMouseWheelDown = [&](TObject*, TShiftState, TPoint, bool&) { log += "down;"; };
  panel->OnMouseWheelUp = [&](TObject*, TShiftState, TPoint, bool& handled) {
    log += "up;";
    handled = true;
  };
  int outer = 0;
  Form.OnMouseWheel = [&](TObject*, TShiftState, int, TPoint, bool&) { ++outer; };
  Form.Show();
  const auto turn = [&](int delta, WORD keys = 0) {
    ::SendMessageW(panel->Handle(), WM_MOUSEWHEEL, MAKEWPARAM(keys, delta), 0);
  };
  turn(60);
  turn(60, MK_CONTROL);
  turn(-120);
  turn(240);
  EXPECT_EQ(log, "wheel 60;wheel 60 ctrl;up;wheel -120;down;wheel 240;");
  EXPECT_EQ(outer, 2) << "what nobody inside used up goes to the form";
}

}  // namespace
}  // namespace vcl
