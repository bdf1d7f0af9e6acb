// Scrolling controls: ranges, bars, the wheel and keys, the focus brought into view, form files.
#include <gmock/gmock.h>

#include <atomic>
#include <thread>

#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

class Scrolling : public ::testing::Test {
 protected:
  Scrolling() : Form(nullptr) {
    Form.SetBounds(20, 20, 400, 300);
    Box = new TScrollBox(&Form);
    Box->SetBorderStyle(bsNone);
    Box->SetParent(&Form);
    Box->SetBounds(10, 10, 200, 100);
  }
  TButton* Button(int left, int top, int width = 50, int height = 20) {
    auto* button = new TButton(&Form);
    button->SetParent(Box);
    button->SetBounds(left, top, width, height);
    return button;
  }
  TControlScrollBar& Horz() { return *Box->HorzScrollBar(); }
  TControlScrollBar& Vert() { return *Box->VertScrollBar(); }

  /// Presses at one point, goes to the other and lets go, from a thread of its own: the system
  /// keeps this one in a loop while a bar is pressed. Returns where the box was before the button
  /// came up.
  int DragFromElsewhere(TPoint from, TPoint to) {
    testinput::MoveMouse(from);
    std::atomic<int> before = 0;
    std::atomic<bool> done = false;
    std::thread mouse([&] {
      const auto send = [](DWORD flags) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        ::SendInput(1, &input, sizeof input);
        ::Sleep(100);
      };
      send(MOUSEEVENTF_LEFTDOWN);
      ::SetCursorPos(to.X, to.Y);
      ::Sleep(100);
      before = Vert().Position();
      send(MOUSEEVENTF_LEFTUP);
      done = true;
    });
    testinput::PumpUntil([&] { return done.load(); });
    mouse.join();
    testinput::Pump();
    return before;
  }

  TForm Form;
  TScrollBox* Box;
};

const int Thickness = ::GetSystemMetrics(SM_CXVSCROLL);

TEST_F(Scrolling, TheBarsComeWithWhatNeedsThem) {
  Form.Show();
  TButton* far = Button(0, 0);
  EXPECT_EQ(Box->ClientRect(), Rect(0, 0, 200, 100));
  far->SetTop(200);
  EXPECT_EQ(Vert().Range(), 220);
  EXPECT_EQ(Box->ClientRect(), Rect(0, 0, 200 - Thickness, 100));
  EXPECT_FALSE(Horz().IsScrollBarVisible());
  far->SetLeft(200 - Thickness - 49);
  EXPECT_TRUE(Horz().IsScrollBarVisible()) << "the one takes the other's room";
  Vert().SetPosition(1000);
  EXPECT_EQ(Vert().Position(), 220 - Box->ClientHeight());
  EXPECT_EQ(far->Top(), Box->ClientHeight() - 20);
  Vert().SetVisible(false);
  EXPECT_FALSE(Vert().IsScrollBarVisible());
  Vert().SetVisible(true);
  Vert().SetMargin(7);
  EXPECT_EQ(Vert().Range(), 227);
  Box->DisableAutoRange();
  far->SetTop(2000);
  EXPECT_EQ(Vert().Range(), 227);
  Box->EnableAutoRange();
  EXPECT_GT(Vert().Range(), 2000);
  far->SetBounds(0, -Vert().Position(), 50, 20);
  EXPECT_EQ(far->Top(), 0) << "nothing is left to scroll to";
  EXPECT_EQ(Vert().Position(), 0);
  EXPECT_EQ(Box->ClientRect(), Rect(0, 0, 200, 100));
  Vert().SetRange(500);
  EXPECT_FALSE(Box->AutoScroll());
  EXPECT_TRUE(Vert().IsScrollBarVisible());
  EXPECT_THROW(Vert().SetRange(-1), EArgumentOutOfRangeException);
  EXPECT_THROW(Vert().SetIncrement(0), EArgumentOutOfRangeException);
}

TEST_F(Scrolling, AlignedAndAnchoredControlsStandInTheWholeRange) {
  Form.Show();
  Button(0, 200);
  auto* top = new TPanel(&Form);
  top->SetParent(Box);
  top->SetHeight(30);
  top->SetAlign(alTop);
  EXPECT_EQ(top->BoundsRect(), Rect(0, 0, 200 - Thickness, 30));
  TButton* anchored = Button(100, 40);
  anchored->SetAnchors({akTop, akRight});
  Vert().SetPosition(50);
  EXPECT_EQ(top->Top(), -50);
  Box->SetWidth(260);
  EXPECT_EQ(anchored->BoundsRect(), Rect(160, -10, 210, 10));
  EXPECT_EQ(top->BoundsRect(), Rect(0, -50, 260 - Thickness, -20));
}

TEST_F(Scrolling, TheUserScrollsWithBarWheelAndKeys) {
  Button(0, 1000);
  Box->SetTabStop(true);
  Form.Show();
  ASSERT_TRUE(testinput::PumpUntil([&] { return ::GetForegroundWindow() == Form.Handle(); }));
  const auto arrow = [&] {
    return Box->ClientToScreen({200 - Thickness / 2, Box->ClientHeight() - Thickness / 2});
  };
  const TPoint lineDown = arrow();
  DragFromElsewhere(lineDown, lineDown);
  EXPECT_GT(Vert().Position(), 0);
  EXPECT_EQ(Vert().Position() % 8, 0) << "by lines";
  // The thumb, which is at the upper end.
  Vert().SetPosition(0);
  const TPoint thumb = Box->ClientToScreen({200 - Thickness / 2, Thickness + 3});
  EXPECT_EQ(DragFromElsewhere(thumb, {thumb.X, thumb.Y + 20}), 0) << "not while it moves";
  EXPECT_GT(Vert().Position(), 100);
  Vert().SetPosition(0);
  Vert().SetTracking(true);
  EXPECT_GT(DragFromElsewhere(thumb, {thumb.X, thumb.Y + 20}), 100);
  Vert().SetPosition(0);
  Box->SetFocus();
  const std::pair<WORD, int> keys[] = {
      {VK_DOWN, 8}, {VK_UP, 0}, {VK_NEXT, 100}, {VK_END, 920}, {VK_HOME, 0}};
  for (const auto& [key, position] : keys) {
    testinput::TypeKey(key);
    EXPECT_TRUE(testinput::PumpUntil([&, at = position] { return Vert().Position() == at; }, 500))
        << key << " led to " << Vert().Position();
  }
  UINT lines = 3;
  ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const auto turn = [&](int delta) {
    ::SendMessageW(Box->Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0);
  };
  turn(-60);
  turn(-60);
  EXPECT_EQ(Vert().Position(), static_cast<int>(lines) * 8);
  Box->OnMouseWheel = [](TObject*, TShiftState, int, TPoint, bool& handled) { handled = true; };
  turn(120);
  EXPECT_EQ(Vert().Position(), static_cast<int>(lines) * 8) << "a handler has used it";
}

TEST_F(Scrolling, TheFocusIsBroughtIntoView) {
  Button(0, 0);
  TButton* below = Button(300, 400);
  Vert().SetMargin(5);
  Form.Show();
  ASSERT_TRUE(testinput::PumpUntil([&] { return ::GetForegroundWindow() == Form.Handle(); }));
  testinput::TypeKey(VK_TAB);
  ASSERT_TRUE(testinput::PumpUntil([&] { return below->Focused(); }));
  EXPECT_EQ(below->Top() + below->Height() + 5, Box->ClientHeight());
  EXPECT_EQ(below->Left() + below->Width(), Box->ClientWidth());
  testinput::TypeKey(VK_TAB);
  EXPECT_TRUE(testinput::PumpUntil([&] { return Vert().Position() == 0; }));
  auto* inner = new TPanel(&Form);
  inner->SetParent(Box);
  inner->SetBounds(0, 600, 100, 500);
  auto* edit = new TEdit(&Form);
  edit->SetParent(inner);
  edit->SetBounds(5, 450, 50, 20);
  Box->ScrollInView(edit);
  EXPECT_EQ(inner->Top() + edit->Top() + edit->Height() + 5, Box->ClientHeight());
  EXPECT_NO_THROW(Box->ScrollInView(Box));
}

TEST_F(Scrolling, AFormFileHoldsPlacesOfPositionZero) {
  RegisterStandardClasses();
  const std::string text =
      "object Form: TForm\n"
      "  Left = 20\n"
      "  Top = 20\n"
      "  AutoScroll = True\n"
      "  Caption = 'Form'\n"
      "  ClientHeight = 200\n"
      "  ClientWidth = 300\n"
      "  VertScrollBar.Position = 40\n"
      "  VertScrollBar.Tracking = True\n"
      "  Visible = True\n"
      "  object Panel: TPanel\n"
      "    Left = 10\n"
      "    Top = 500\n"
      "    Width = 75\n"
      "    Height = 25\n"
      "    Caption = 'Panel'\n"
      "    TabOrder = 0\n"
      "  end\n"
      "end\n";
  for (const bool designed : {false, true}) {
    TForm form(nullptr);
    form.SetName("Form");
    if (!designed) form.Show();
    ReadForm(text, &form);
    auto* panel = dynamic_cast<TPanel*>(form.FindComponent("Panel"));
    ASSERT_NE(panel, nullptr);
    form.HandleNeeded();
    form.Realign();
    EXPECT_EQ(form.VertScrollBar()->Range(), 525);
    EXPECT_EQ(form.VertScrollBar()->Position(), 40);
    EXPECT_EQ(panel->Top(), 460);
    EXPECT_EQ(form.ClientWidth(), 300 - Thickness);
    EXPECT_EQ(FormText(&form), text);
  }
}

TEST_F(Scrolling, AHandlerMayFreeTheBox) {
  for (const bool byMove : {false, true}) {
    auto* box = new TScrollBox(&Form);
    box->SetParent(&Form);
    box->SetBounds(0, 0, 100, 100);
    auto* panel = new TPanel(&Form);
    panel->SetParent(box);
    panel->SetBounds(0, 0, 50, 500);
    Form.Show();
    const TWatch watch(box);
    if (byMove) {
      auto* aligned = new TPanel(&Form);
      aligned->SetParent(box);
      aligned->SetAlign(alTop);
      aligned->OnResize = [box](TObject*) { delete box; };
      box->SetWidth(80);
    } else {
      box->OnMouseWheel = [box](TObject*, TShiftState, int, TPoint, bool&) { delete box; };
      ::SendMessageW(box->Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
    }
    EXPECT_TRUE(watch.Gone()) << byMove;
  }
}

}  // namespace
}  // namespace vcl
