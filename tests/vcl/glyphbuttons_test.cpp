// The buttons with a glyph: how they look, their kinds, their groups.
#include "tests/support/kepthandles.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/stdctrls/buttons.h"

namespace vcl {
namespace {

class GlyphButtons : public TStandardForm {
 protected:
  /// A row of ten by ten squares, in the colours, on a line that is see-through.
  static std::unique_ptr<TBitmap> Strip(std::initializer_list<TColor> colors) {
    auto strip = std::make_unique<TBitmap>(static_cast<int>(colors.size()) * 10, 10);
    TCanvas* canvas = strip->Canvas();
    canvas->Brush()->SetColor(clFuchsia);
    canvas->FillRect({0, 0, strip->Width(), 10});
    int left = 0;
    for (TColor color : colors) {
      canvas->Brush()->SetColor(color);
      canvas->FillRect({left, 0, left + 10, 9});
      left += 10;
    }
    return strip;
  }
};

TEST_F(GlyphButtons, LayoutMarginAndSpacingPlaceTheGlyph) {
  auto* button = Make<TSpeedButton>(0, 0);
  button->SetFlat(true);  // An edge one pixel wide all around.
  button->SetBounds(0, 0, 102, 62);
  button->SetGlyph(Strip({clRed}).get());
  ShowForm();
  testinput::MoveMouse({1, 1});
  EXPECT_EQ(Find(clRed), (TRect{46, 26, 56, 35}));  // The tenth row is see-through.
  button->SetMargin(5);
  const std::pair<TButtonLayout, TRect> cases[] = {
      {blGlyphLeft, {6, 26, 16, 35}},
      {blGlyphRight, {86, 26, 96, 35}},
      {blGlyphTop, {46, 6, 56, 15}},
      {blGlyphBottom, {46, 46, 56, 55}},
  };
  for (const auto& [layout, glyph] : cases) {
    button->SetLayout(layout);
    EXPECT_EQ(Find(clRed), glyph) << layout;
  }
  // A caption takes the glyph's side apart: the two stay together, with the spacing between them.
  button->SetLayout(blGlyphLeft);
  button->Font()->SetColor(clBlue);
  button->SetCaption("\xE2\x96\x88\xE2\x96\x88");  // Two full blocks.
  const int near = Find(clBlue).Left - Find(clRed).Right;
  button->SetSpacing(14);
  EXPECT_EQ(Find(clBlue).Left - Find(clRed).Right, near + 10);
  button->SetMargin(-1);
  const TRect glyph = Find(clRed);
  const TRect text = Find(clBlue);
  EXPECT_NEAR(glyph.Left, 102 - text.Right, 4);
  button->SetSpacing(-1);
  EXPECT_NEAR(Find(clRed).Left, 102 - Find(clBlue).Right, 4);
  EXPECT_NEAR(Find(clRed).Left, Find(clBlue).Left - Find(clRed).Right, 4);
  EXPECT_THROW(button->SetMargin(-2), EArgumentOutOfRangeException);
  EXPECT_THROW(button->SetSpacing(-2), EArgumentOutOfRangeException);
}

template <class T>
class EachGlyphButton : public GlyphButtons {};
using TGlyphButtons = ::testing::Types<TBitBtn, TSpeedButton>;
TYPED_TEST_SUITE(EachGlyphButton, TGlyphButtons);

TYPED_TEST(EachGlyphButton, ShowsTheImageOfItsState) {
  auto* button = this->template Make<TypeParam>(20, 20);
  button->SetBounds(20, 20, 60, 40);
  button->SetGlyph(this->Strip({clRed, clLime, clBlue}).get());
  EXPECT_EQ(button->NumGlyphs(), 3);
  this->ShowForm();
  EXPECT_FALSE(this->Find(clRed).Empty());
  EXPECT_TRUE(this->Find(clLime).Empty());
  button->SetEnabled(false);
  EXPECT_FALSE(this->Find(clLime).Empty());
  button->SetEnabled(true);
  testinput::MoveMouse(testinput::MiddleOf(button));
  testinput::LeftDown();
  EXPECT_TRUE(testinput::PumpUntil([&] { return !this->Find(clBlue).Empty(); }));
  testinput::LeftUp();
  EXPECT_TRUE(testinput::PumpUntil([&] { return this->Find(clBlue).Empty(); }));
  button->SetNumGlyphs(TNumGlyphs(1));
  button->SetEnabled(false);  // Embossed, in the system's colours.
  EXPECT_TRUE(this->Find(clRed).Empty());
  EXPECT_TRUE(this->Find(clLime).Empty());
  EXPECT_THROW(button->SetNumGlyphs(TNumGlyphs(5)), EArgumentOutOfRangeException);
  EXPECT_THROW(button->SetNumGlyphs(TNumGlyphs(0)), EArgumentOutOfRangeException);
}

TYPED_TEST(EachGlyphButton, PaintsWithoutKeepingHandles) {
  auto* button = this->template Make<TypeParam>(20, 20);
  button->SetCaption("text");
  button->SetGlyph(this->Strip({clRed}).get());
  this->ShowForm();
  TBitmap shot(200, 200);
  handles::ExpectNoneKept(200, 4, [&](int i) {
    button->SetEnabled(i % 2);
    this->Form.PaintTo(shot.Canvas()->Handle(), 0, 0);
  });
}

template <class T>
class EachButton : public TStandardForm {};
using TButtons = ::testing::Types<TButton, TCheckBox, TBitBtn, TSpeedButton>;
TYPED_TEST_SUITE(EachButton, TButtons);

TYPED_TEST(EachButton, IsClickedByMouseAndAcceleratorAndMayBeFreedThen) {
  auto* button = this->template Make<TypeParam>(20, 20);
  button->SetCaption("&Go");
  int clicks = 0;
  button->OnClick = [&](TObject*) { ++clicks; };
  this->ShowForm();
  this->Click(*button);
  EXPECT_EQ(clicks, 1);
  this->KeyWith(VK_MENU, 'G');
  EXPECT_EQ(clicks, 2);
  if constexpr (std::is_base_of_v<TWinControl, TypeParam>) {
    this->Key(VK_SPACE);
    EXPECT_EQ(std::exchange(clicks, 2), 3);
  }
  this->Click(*button);
  this->Click(*button);  // Also as a double click.
  EXPECT_EQ(clicks, 4);
  button->SetEnabled(false);
  this->KeyWith(VK_MENU, 'G');
  this->Click(*button);
  EXPECT_EQ(clicks, 4);
  button->SetEnabled(true);
  testinput::MoveMouse(testinput::MiddleOf(button));
  testinput::LeftDown();
  testinput::MoveMouse({5, 5});
  testinput::LeftUp();
  EXPECT_EQ(clicks, 4);
  button->OnClick = [&](TObject* sender) {
    delete sender;
    clicks = -1;
  };
  this->Click(*button);
  EXPECT_EQ(clicks, -1);
}

TEST_F(GlyphButtons, KindsSetAnswerKeysCaptionAndGlyph) {
  const struct {
    TBitBtnKind Kind;
    const char* Caption;
    TModalResult Result;
    bool Default, Cancel;
  } cases[] = {
      {bkOK, "OK", mrOk, true, false},
      {bkCancel, "Cancel", mrCancel, false, true},
      {bkHelp, "&Help", mrNone, false, false},
      {bkYes, "&Yes", mrYes, true, false},
      {bkNo, "&No", mrNo, false, true},
      {bkClose, "&Close", mrNone, false, false},
      {bkAbort, "Abort", mrAbort, false, false},
      {bkRetry, "&Retry", mrRetry, false, false},
      {bkIgnore, "&Ignore", mrIgnore, false, false},
      {bkAll, "&All", mrAll, false, false},
  };
  for (const auto& each : cases) {
    auto* button = Make<TBitBtn>(0, 0);
    button->SetKind(each.Kind);
    EXPECT_EQ(button->Caption(), each.Caption);
    EXPECT_EQ(button->ModalResult(), each.Result) << each.Caption;
    EXPECT_EQ(button->Default(), each.Default) << each.Caption;
    EXPECT_EQ(button->Cancel(), each.Cancel) << each.Caption;
    EXPECT_FALSE(button->Glyph()->Empty()) << each.Caption;
    EXPECT_EQ(button->Kind(), each.Kind);
    const std::function<void()> changes[] = {
        [&] { button->SetModalResult(TModalResult(100)); },
        [&] { button->SetDefault(!each.Default); },
        [&] { button->SetCancel(!each.Cancel); },
        [&] { button->SetGlyph(nullptr); },
    };
    for (const auto& change : changes) {
      change();
      EXPECT_EQ(button->Kind(), bkCustom) << each.Caption;
      button->SetKind(each.Kind);
    }
    button->SetCaption("Another");
    EXPECT_EQ(button->Kind(), each.Kind);
    delete button;
  }
}

TEST_F(GlyphButtons, AClosingOneClosesItsForm) {
  auto* button = Make<TBitBtn>(0, 0);
  button->SetKind(bkClose);
  ShowForm();
  Click(*button);
  EXPECT_TRUE(testinput::PumpUntil([&] { return !Form.Visible(); }));
}

TEST_F(GlyphButtons, FormFilesKeepWhatAKindDoesNotSay) {
  RegisterStandardClasses();
  auto* button = new TBitBtn(&Form);
  button->SetName("Ok");
  button->SetParent(&Form);
  button->SetKind(bkOK);
  const std::string plain = FormText(&Form);
  for (const char* word : {"Caption = 'OK'", "Default", "ModalResult", "Glyph", "NumGlyphs"}) {
    EXPECT_EQ(plain.find(word), std::string::npos) << word;
  }
  EXPECT_NE(plain.find("Kind = bkOK"), std::string::npos);
  button->SetCaption("Go on");
  TForm copy(nullptr);
  ReadForm(FormText(&Form), &copy);
  const auto* read = dynamic_cast<TBitBtn*>(copy.FindComponent("Ok"));
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->Caption(), "Go on");
  EXPECT_EQ(read->Kind(), bkOK);
  EXPECT_EQ(read->ModalResult(), mrOk);
}

TEST_F(GlyphButtons, OneOfAGroupIsDown) {
  TSpeedButton* group[3];
  for (int i = 0; i < 3; ++i) {
    group[i] = Make<TSpeedButton>(10 + 40 * i, 10);
    group[i]->SetGroupIndex(1);
  }
  auto* other = Make<TSpeedButton>(10, 60);
  other->SetGroupIndex(2);
  other->SetDown(true);
  auto* alone = Make<TSpeedButton>(60, 60);
  alone->SetDown(true);
  EXPECT_FALSE(alone->Down());
  const auto down = [&] {
    std::string text;
    for (const TSpeedButton* each : group) text += each->Down() ? '1' : '0';
    return text;
  };
  ShowForm();
  Click(*group[0]);
  EXPECT_EQ(down(), "100");
  Click(*group[2]);
  EXPECT_EQ(down(), "001");
  Click(*group[2]);
  EXPECT_EQ(down(), "001");
  group[0]->SetAllowAllUp(true);
  EXPECT_TRUE(group[2]->AllowAllUp());
  Click(*group[2]);
  EXPECT_EQ(down(), "000");
  group[1]->SetDown(true);
  EXPECT_EQ(down(), "010");
  group[1]->SetGroupIndex(0);
  EXPECT_EQ(down(), "000");
  EXPECT_TRUE(other->Down());
}

TEST_F(GlyphButtons, AFlatOneHasAnEdgeUnderTheMouseOnly) {
  auto* button = Make<TSpeedButton>(20, 20);
  button->SetFlat(true);
  ShowForm();
  const auto edge = [&] { return Form.GetFormImage()->Canvas()->Pixels(20, 30); };
  testinput::MoveMouse(Form.ClientToScreen({200, 200}));
  const TColor plain = edge();
  testinput::MoveMouse(testinput::MiddleOf(button));
  EXPECT_TRUE(testinput::PumpUntil([&] { return edge() != plain; }));
  testinput::MoveMouse(Form.ClientToScreen({200, 200}));
  EXPECT_TRUE(testinput::PumpUntil([&] { return edge() == plain; }));
}

}  // namespace
}  // namespace vcl
