// The painted check box and radio button.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"

namespace qel {
namespace {

using testinput::PumpUntil;

class Checks : public vcl::TStandardForm {
 protected:
  Checks() {
    for (int i = 0; i < 3; ++i) {
      Radios[i] = Make<TQELRadiobutton>(200, 20 + 30 * i);
      Radios[i]->OnClick = [this](vcl::TObject*) { ++Clicks; };
    }
    Box = Make<TQELCheckbox>(20, 20);
    Box->OnClick = [this](vcl::TObject*) { ++Clicks; };
  }
  ~Checks() override { testinput::MoveMouse({0, 0}); }

  TQELCheckbox* Box;
  TQELRadiobutton* Radios[3];
  int Clicks = 0;
};

TEST_F(Checks, ABoxIsCheckedByMouseSpaceAndMnemonic) {
  Box->SetCaption("&Check");
  ShowForm();
  testinput::Click(Box);
  EXPECT_TRUE(PumpUntil([&] { return Box->State() == vcl::cbChecked; }));
  EXPECT_TRUE(Box->Focused());
  testinput::TypeKey(VK_SPACE);
  EXPECT_TRUE(PumpUntil([&] { return Box->State() == vcl::cbUnchecked; }));
  Box->SetAllowGrayed(true);
  testinput::TypeKey(VK_SPACE);
  EXPECT_TRUE(PumpUntil([&] { return Box->State() == vcl::cbGrayed; }));
  Radios[0]->SetFocus();
  testinput::TypeKey('C', {VK_MENU});
  EXPECT_TRUE(PumpUntil([&] { return Box->State() == vcl::cbChecked; }));
  EXPECT_TRUE(Box->Focused());
  EXPECT_EQ(Clicks, 4);
  Box->SetEnabled(false);
  testinput::Click(Box);
  testinput::PumpFor(50);
  EXPECT_EQ(Clicks, 4);
}

TEST_F(Checks, AStateSetByCodeIsAClickWhenItChanges) {
  Box->SetState(vcl::cbGrayed);
  Box->SetState(vcl::cbGrayed);
  EXPECT_EQ(Clicks, 1);
  Box->SetChecked(true);
  EXPECT_EQ(Box->State(), vcl::cbChecked);
  EXPECT_EQ(Clicks, 2);
}

TEST_F(Checks, ReadingAFormClicksNothingAndHoldsTheStateOnly) {
  RegisterAll();
  vcl::TForm form(nullptr);
  auto* box = new TQELCheckbox(&form);
  box->SetParent(&form);
  box->SetName("Box");
  box->SetState(vcl::cbGrayed);
  const std::string text = FormText(&form);
  EXPECT_EQ(text.find("Checked ="), std::string::npos) << text;
  EXPECT_NE(text.find("State = cbGrayed"), std::string::npos) << text;
  vcl::TForm read(nullptr);
  ReadForm(text, &read);
  EXPECT_EQ(dynamic_cast<TQELCheckbox*>(read.FindComponent("Box"))->State(), vcl::cbGrayed);
}

TEST_F(Checks, OneRadioButtonOfAGroupIsChecked) {
  auto* apart = Make<TQELRadiobutton>(200, 120);
  apart->SetGroupIndex(1);
  apart->SetChecked(true);
  Radios[0]->SetChecked(true);
  Radios[2]->SetChecked(true);
  EXPECT_FALSE(Radios[0]->Checked());
  EXPECT_TRUE(Radios[2]->Checked());
  EXPECT_TRUE(apart->Checked());
  EXPECT_EQ(Clicks, 2);
  apart->SetGroupIndex(0);
  EXPECT_FALSE(Radios[2]->Checked()) << "the one that comes in is the one";
  EXPECT_TRUE(apart->Checked());
  apart->SetChecked(false);
  ShowForm();
  testinput::Click(Radios[1]);
  EXPECT_TRUE(PumpUntil([&] { return Radios[1]->Checked(); }));
  testinput::Click(Radios[1]);
  testinput::PumpFor(50);
  EXPECT_TRUE(Radios[1]->Checked());
  EXPECT_EQ(Clicks, 3) << "a second click changes nothing";
}

TEST_F(Checks, ArrowKeysMoveAndCheckAndTabReachesTheCheckedOne) {
  auto* apart = Make<TQELRadiobutton>(200, 120);
  apart->SetGroupIndex(1);
  ShowForm();
  Radios[1]->SetEnabled(false);
  Radios[0]->SetChecked(true);
  Radios[0]->SetFocus();
  testinput::TypeKey(VK_DOWN);
  EXPECT_TRUE(PumpUntil([&] { return Radios[2]->Checked(); })) << "past the disabled one";
  EXPECT_TRUE(Radios[2]->Focused());
  testinput::TypeKey(VK_RIGHT);
  EXPECT_TRUE(PumpUntil([&] { return Radios[0]->Checked(); })) << "round the group's end";
  testinput::TypeKey(VK_UP);
  EXPECT_TRUE(PumpUntil([&] { return Radios[2]->Checked(); }));
  EXPECT_FALSE(apart->Checked());
  Box->SetFocus();
  testinput::TypeKey(VK_TAB);
  EXPECT_TRUE(PumpUntil([&] { return apart->Focused() || Radios[2]->Focused(); }));
  testinput::TypeKey(VK_TAB);
  testinput::TypeKey(VK_TAB);
  EXPECT_TRUE(PumpUntil([&] { return Box->Focused(); })) << "two stops: one a group";
  auto* late = Make<TQELRadiobutton>(200, 150);
  EXPECT_FALSE(late->TabStop()) << "the group has its checked one";
}

TEST_F(Checks, ImagesTakeTheBoxsPlace) {
  static constexpr vcl::TColor colors[] = {vcl::clRed, vcl::clLime, vcl::clBlue, vcl::clYellow};
  vcl::TBitmap strip(32, 8);
  for (int i = 0; i < 4; ++i) {
    strip.Canvas()->Brush()->SetColor(colors[i]);
    strip.Canvas()->FillRect(vcl::Bounds(8 * i, 0, 8, 8));
  }
  Box->Glyph()->SetBitmap(&strip);
  Box->Glyph()->SetNumGlyphs(TQELNumGlyphs(4));
  ShowForm();
  const auto shows = [&](int image) {
    return PumpUntil([&] { return !Find(colors[image]).Empty(); });
  };
  EXPECT_TRUE(shows(0));
  const int left = Find(vcl::clRed).Left;
  Box->SetState(vcl::cbChecked);
  EXPECT_TRUE(shows(2));
  Box->SetState(vcl::cbGrayed);
  EXPECT_TRUE(shows(3));
  Box->SetEnabled(false);
  EXPECT_TRUE(shows(1));
  Box->SetEnabled(true);
  Box->SetState(vcl::cbUnchecked);
  Box->SetAlignment(vcl::taLeftJustify);
  EXPECT_TRUE(PumpUntil([&] { return Find(vcl::clRed).Left > left + 50; }));
  Box->SetAlignment(vcl::taCenter);
  EXPECT_EQ(Box->Alignment(), vcl::taLeftJustify) << "refused";
  Box->Glyph()->SetNumGlyphs(TQELNumGlyphs(1));
  Box->Glyph()->SetTransparent(false);
  Box->SetState(vcl::cbChecked);
  EXPECT_TRUE(shows(0)) << "the first stands in";
}

/// Has the system say whether the focus is to be seen in its window.
struct TTold : TQELCheckbox {
  using TQELCheckbox::TQELCheckbox;
  void Dispatch(vcl::TMessage& message) override {
    if (message.Msg != WM_QUERYUISTATE) return TQELCheckbox::Dispatch(message);
    message.Result = State;
  }
  LRESULT State = 0;
};

TEST_F(Checks, TheFocusIsShownToTheKeyboardOnly) {
  delete Box;
  auto* told = new TTold(&Form);
  told->SetParent(&Form);
  told->SetBounds(20, 20, 120, 20);
  told->SetCaption("Caption");
  ShowForm();
  const auto picture = [&] {
    const auto shot = Form.GetFormImage();
    int ink = 0;
    for (int x = 15; x < 140; ++x) {
      for (int y = 15; y < 45; ++y) {
        ink += shot->Canvas()->Pixels(x, y) != shot->Canvas()->Pixels(16, 16);
      }
    }
    return ink;
  };
  Radios[0]->SetFocus();
  testinput::Pump();
  const int without = picture();
  told->SetFocus();
  EXPECT_GT(picture(), without);
  told->State = UISF_HIDEFOCUS;
  EXPECT_EQ(picture(), without);
}

}  // namespace
}  // namespace qel
