// What presses the painted buttons: mouse, keys, mnemonics, and what ends a press; and how they are
// grouped.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/vcl/standardform.h"

namespace qel {
namespace {

using testinput::PumpUntil;

class Presses : public vcl::TStandardForm {
 protected:
  ~Presses() override { testinput::MoveMouse({0, 0}); }

  template <class T>
  auto* MakeButton(int left, int top, int width = 90, int height = 40) {
    auto* button = Make<T>(left, top);
    button->SetBounds(left, top, width, height);
    button->OnClick = [this](vcl::TObject*) { ++Clicks; };
    return button;
  }
  void PressOn(vcl::TControl* control) {
    testinput::MoveMouse(testinput::MiddleOf(control));
    testinput::LeftDown();
  }
  bool Clicked(int times) {
    return PumpUntil([&] { return Clicks == times; }) && (testinput::Pump(), Clicks == times);
  }
  vcl::TPoint Beside() const { return Form.ClientToScreen({480, 380}); }

  int Clicks = 0;
};

/// The rules of a press by the mouse, which all share.
TEST_F(Presses, AClickIsAPressAndAReleaseOverTheButton) {
  auto* round = MakeButton<TQELRoundButton>(10, 10);
  auto* office = MakeButton<TQELOfficeButton>(110, 10);
  auto* flat = MakeButton<TQELIEButton>(210, 10);
  ShowForm();
  const std::pair<vcl::TControl*, std::function<bool()>> buttons[] = {
      {round, [&] { return round->Down(); }},
      {office, [&] { return office->Pressed(); }},
      {flat, [&] { return flat->Pressed(); }}};
  for (const auto& [button, down] : buttons) {
    SCOPED_TRACE(button->ClassName());
    Clicks = 0;
    PressOn(button);
    EXPECT_TRUE(PumpUntil(down));
    testinput::MoveMouse(Beside());
    EXPECT_TRUE(PumpUntil([&] { return !down(); })) << "it goes up beside the mouse";
    testinput::MoveMouse(testinput::MiddleOf(button));
    EXPECT_TRUE(PumpUntil(down));
    testinput::RightDown();
    testinput::RightUp();
    EXPECT_TRUE(down()) << "the other button is not its own";
    testinput::LeftUp();
    EXPECT_TRUE(Clicked(1));
    EXPECT_FALSE(down());
    PressOn(button);
    testinput::MoveMouse(Beside());
    testinput::LeftUp();
    EXPECT_TRUE(Clicked(1)) << "released beside it";
    PressOn(button);
    EXPECT_TRUE(PumpUntil(down));
    auto* window = dynamic_cast<vcl::TWinControl*>(button);
    ::SendMessageW(window ? window->Handle() : Form.Handle(), WM_CANCELMODE, 0, 0);
    EXPECT_FALSE(down());
    testinput::LeftUp();
    EXPECT_TRUE(Clicked(1)) << "cancelled";
    PressOn(button);
    EXPECT_TRUE(PumpUntil(down));
    button->SetEnabled(false);
    EXPECT_FALSE(down());
    testinput::LeftUp();
    testinput::Click(button);
    EXPECT_TRUE(Clicked(1)) << "disabled";
    button->SetEnabled(true);
    testinput::Click(button);
    EXPECT_TRUE(Clicked(2));
    button->SetCaption("Some &where");
    testinput::TypeKey('W', {VK_MENU});
    EXPECT_TRUE(Clicked(3));
    button->SetCaption("");
  }
}

TEST_F(Presses, AHandlerThatShowsABoxEndsThePressOfAWindowlessButton) {
  auto* flat = MakeButton<TQELIEButton>(210, 10);
  flat->OnMouseDown = [&](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
    const testinput::TBoxAnswer answer(IDOK);
    ::MessageBoxW(Form.Handle(), L"text", L"caption", MB_OK);
  };
  ShowForm();
  PressOn(flat);
  EXPECT_FALSE(flat->Pressed());
  testinput::LeftUp();
  EXPECT_TRUE(Clicked(0));
}

TEST_F(Presses, SpaceAndEnterClickTheFocusedOne) {
  auto* office = MakeButton<TQELOfficeButton>(10, 10);
  auto* other = Make<vcl::TEdit>(10, 80);
  auto* standard = Make<vcl::TButton>(10, 120);
  standard->SetDefault(true);
  ShowForm();
  office->SetFocus();
  testinput::SendKey(VK_SPACE, true);
  EXPECT_TRUE(PumpUntil([&] { return office->Pressed(); }));
  testinput::SendKey(VK_SPACE, false);
  EXPECT_TRUE(Clicked(1));
  testinput::TypeKey(VK_RETURN);
  EXPECT_TRUE(Clicked(2)) << "not the form's default button";
  standard->SetDefault(false);
  other->SetFocus();
  testinput::TypeKey(VK_RETURN);
  EXPECT_TRUE(Clicked(2));
  office->SetDefault(true);
  office->SetCancel(true);
  testinput::TypeKey(VK_RETURN);
  EXPECT_TRUE(Clicked(3));
  testinput::TypeKey(VK_ESCAPE);
  EXPECT_TRUE(Clicked(4));
  standard->SetFocus();
  testinput::TypeKey(VK_RETURN);
  EXPECT_TRUE(Clicked(4)) << "Enter is for the button that has the focus";
}

TEST_F(Presses, GiveAFormItsModalResult) {
  auto* office = MakeButton<TQELOfficeButton>(10, 10);
  auto* round = MakeButton<TQELRoundButton>(110, 10);
  ShowForm();
  office->SetModalResult(vcl::mrYes);
  testinput::Click(office);
  EXPECT_TRUE(PumpUntil([&] { return Form.ModalResult() == vcl::mrYes; }));
  Form.SetModalResult(vcl::mrNone);
  round->SetModalResult(vcl::mrNo);
  testinput::Click(round);
  EXPECT_TRUE(PumpUntil([&] { return Form.ModalResult() == vcl::mrNo; }));
}

TEST_F(Presses, AnArrowButtonRepeatsWhileTheMouseIsOverIt) {
  auto* arrow = MakeButton<TQELArrowButton>(10, 10);
  arrow->SetDelay(300);
  arrow->SetInterval(20);
  ShowForm();
  PressOn(arrow);
  EXPECT_TRUE(PumpUntil([&] { return Clicks == 1; })) << "at once";
  EXPECT_TRUE(PumpUntil([&] { return Clicks >= 4; }));
  testinput::MoveMouse(Beside());
  EXPECT_TRUE(PumpUntil([&] { return !arrow->Down(); }));
  const int beside = Clicks;
  testinput::PumpFor(100);
  EXPECT_EQ(Clicks, beside);
  testinput::MoveMouse(testinput::MiddleOf(arrow));
  EXPECT_TRUE(PumpUntil([&] { return Clicks > beside; }));
  testinput::LeftUp();
  const int released = Clicks;
  testinput::PumpFor(100);
  EXPECT_EQ(Clicks, released) << "the release is no click";
  arrow->SetRepeating(false);
  PressOn(arrow);
  testinput::PumpFor(100);
  EXPECT_EQ(Clicks, released);
  testinput::LeftUp();
  EXPECT_TRUE(Clicked(released + 1));
}

TEST_F(Presses, ARepeatedClickMayFreeItsButton) {
  auto* arrow = MakeButton<TQELArrowButton>(10, 10);
  arrow->SetDelay(10);
  arrow->OnClick = [&](vcl::TObject*) {
    if (++Clicks < 3) return;
    delete arrow;
    arrow = nullptr;
  };
  ShowForm();
  PressOn(arrow);
  EXPECT_TRUE(PumpUntil([&] { return arrow == nullptr; }));
  testinput::LeftUp();
}

TEST_F(Presses, RefuseBadValuesSilently) {
  TQELArrowButton arrow(nullptr);
  for (const int size : {1, 16, -3}) arrow.SetArrowSize(size);
  arrow.SetDelay(0);
  arrow.SetInterval(-1);
  EXPECT_EQ(arrow.ArrowSize(), 7);
  EXPECT_EQ(arrow.Delay(), 400);
  EXPECT_EQ(arrow.Interval(), 100);
  TQELIEButton flat(nullptr);
  flat.SetSpacing(-1);
  flat.SetMargin(-2);
  flat.SetDown(true);
  EXPECT_EQ(flat.Spacing(), 4);
  EXPECT_EQ(flat.Margin(), -1);
  EXPECT_FALSE(flat.Down()) << "it is of no group";
}

/// Buttons with and without a window, in one group.
TEST_F(Presses, OneButtonOfAGroupStaysDown) {
  auto* flat = MakeButton<TQELIEButton>(10, 10);
  auto* office = MakeButton<TQELOfficeButton>(110, 10);
  auto* apart = MakeButton<TQELIEButton>(210, 10);
  flat->SetGroupIndex(1);
  office->SetGroupIndex(1);
  apart->SetGroupIndex(2);
  ShowForm();
  apart->SetDown(true);
  testinput::Click(flat);
  EXPECT_TRUE(PumpUntil([&] { return flat->Down(); }));
  testinput::Click(office);
  EXPECT_TRUE(PumpUntil([&] { return office->Down() && !flat->Down(); }));
  EXPECT_TRUE(apart->Down());
  testinput::Click(office);
  EXPECT_TRUE(Clicked(3));
  EXPECT_TRUE(office->Down());
  flat->SetAllowAllUp(true);
  testinput::Click(office);
  EXPECT_TRUE(PumpUntil([&] { return !office->Down(); })) << "the group has it from the other";
}

TEST_F(Presses, AMenuDropsDownBehindTheClickOrFromItsArrow) {
  auto* office = MakeButton<TQELOfficeButton>(10, 10);
  auto* menu = new vcl::TPopupMenu(&Form);
  int popups = 0;
  menu->OnPopup = [&](vcl::TObject*) {
    ++popups;
    ::PostMessageW(Form.Handle(), WM_CANCELMODE, 0, 0);
    ::EndMenu();
  };
  office->SetDropDownMenu(menu);
  ShowForm();
  testinput::Click(office);
  EXPECT_TRUE(PumpUntil([&] { return popups == 1; }));
  EXPECT_EQ(Clicks, 1);
  office->SetSplitDropDown(true);
  testinput::Click(office);
  EXPECT_TRUE(Clicked(2));
  EXPECT_EQ(popups, 1);
  testinput::Click(office->ClientToScreen({office->Width() - 5, 20}));
  EXPECT_TRUE(PumpUntil([&] { return popups == 2; }));
  EXPECT_EQ(Clicks, 2);
  delete menu;
  EXPECT_EQ(office->DropDownMenu(), nullptr);
}

TEST_F(Presses, ARoundButtonIsMissedBesideItsEllipse) {
  auto* round = MakeButton<TQELRoundButton>(10, 10, 100, 60);
  int behind = 0;
  Form.OnClick = [&](vcl::TObject*) { ++behind; };
  ShowForm();
  testinput::Click(round->ClientToScreen({3, 3}));
  EXPECT_TRUE(PumpUntil([&] { return behind == 1; }));
  testinput::Click(round->ClientToScreen({50, 3}));
  EXPECT_TRUE(Clicked(1));
  PressOn(round);
  EXPECT_TRUE(PumpUntil([&] { return round->Down(); }));
  testinput::MoveMouse(round->ClientToScreen({3, 3}));
  EXPECT_TRUE(PumpUntil([&] { return !round->Down(); })) << "in its rectangle, but beside it";
  testinput::LeftUp();
  EXPECT_TRUE(Clicked(1));
  round->SetWidth(300);
  testinput::Click(round->ClientToScreen({280, 30}));
  EXPECT_TRUE(Clicked(2)) << "the shape follows the size";
}

/// The tint: three parts in ten.
TEST_F(Presses, AnOfficeButtonIsTintedUnderTheMouse) {
  auto* office = MakeButton<TQELOfficeButton>(10, 10);
  office->SetHotColor(vcl::clRed);
  office->SetFrameOnHot(false);
  int entered = 0, left = 0;
  office->OnMouseEnter = [&](vcl::TObject*) { ++entered; };
  office->OnMouseLeave = [&](vcl::TObject*) { ++left; };
  ShowForm();
  EXPECT_TRUE(Find(vcl::clRed).Empty());
  testinput::MoveMouse(testinput::MiddleOf(office));
  EXPECT_TRUE(PumpUntil([&] { return entered == 1; }));
  const auto shot = Form.GetFormImage();
  const COLORREF ground = vcl::ColorToRGB(vcl::clBtnFace);
  const auto mixed = static_cast<COLORREF>(shot->Canvas()->Pixels(15, 15));
  EXPECT_NEAR(GetRValue(mixed), (GetRValue(ground) * 7 + 255 * 3) / 10, 3);
  EXPECT_NEAR(GetGValue(mixed), GetGValue(ground) * 7 / 10, 3);
  office->SetFrameOnHot(true);
  EXPECT_FALSE(Find(vcl::clRed).Empty());
  testinput::MoveMouse(Beside());
  EXPECT_TRUE(PumpUntil([&] { return left == 1; }));
}

/// The images stand for normal, disabled, pressed and hot.
TEST_F(Presses, TheGlyphHasAnImageForEachState) {
  auto* flat = MakeButton<TQELIEButton>(10, 10);
  static constexpr vcl::TColor colors[] = {vcl::clRed, vcl::clLime, vcl::clBlue, vcl::clYellow};
  vcl::TBitmap strip(32, 8);
  for (int i = 0; i < 4; ++i) {
    strip.Canvas()->Brush()->SetColor(colors[i]);
    strip.Canvas()->FillRect(vcl::Bounds(8 * i, 0, 8, 8));
  }
  flat->Glyph()->SetBitmap(&strip);
  flat->Glyph()->SetNumGlyphs(TQELNumGlyphs(4));
  ShowForm();
  const auto shows = [&](int image) {
    return PumpUntil([&] { return !Find(colors[image]).Empty(); });
  };
  EXPECT_TRUE(shows(0));
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(10 + 41, 10 + 16, 8, 8)) << "in the middle";
  testinput::MoveMouse(testinput::MiddleOf(flat));
  EXPECT_TRUE(shows(3));
  testinput::LeftDown();
  EXPECT_TRUE(shows(2));
  testinput::LeftUp();
  flat->SetEnabled(false);
  EXPECT_TRUE(shows(1));
  flat->SetEnabled(true);
  testinput::MoveMouse(Beside());
  flat->SetCaption("Text");
  flat->SetLayout(pLeft);
  flat->SetMargin(5);
  EXPECT_TRUE(PumpUntil([&] { return Find(vcl::clRed) == vcl::Bounds(10 + 7, 10 + 16, 8, 8); }));
}

}  // namespace
}  // namespace qel
