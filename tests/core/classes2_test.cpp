// Pieces of texts, centred controls and the drawing helpers.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/handles.h"
#include "tests/support/texts.h"
#include "vcl/vcl.h"

using namespace qel;

namespace {

TEST(StringIntoPieces, SplitsAtTheSeparator) {
  const std::tuple<const char*, const char*, std::vector<std::string>> cases[] = {
      {"a,b,c", ",", {"a", "b", "c"}},
      {"", ",", {""}},
      {"abc", ",", {"abc"}},
      {",", ",", {"", ""}},
      {"a,,b,", ",", {"a", "", "b", ""}},
      {"a--b-c", "--", {"a", "b-c"}},
      {"aaa", "aa", {"", "a"}},
      {"a,b", "", {"a,b"}},
      {"a,b", "a,b,", {"a,b"}},
  };
  for (const auto& [text, separator, pieces] : cases) {
    vcl::TStringList list;
    EXPECT_EQ(QELStringIntoPieces(text, separator, &list), &list);
    EXPECT_EQ(Lines(list), pieces) << text;
  }
}

TEST(StringIntoPieces, KeepsPositionsInAByte) {
  const auto pieces = [](std::size_t before) {
    vcl::TStringList list;
    list.Add("first");
    QELStringIntoPieces(std::string(before, 'x') + ",yz", ",", &list);
    EXPECT_EQ(list.Strings(0), "first");
    std::vector<std::size_t> sizes;
    for (int i = 1; i < list.Count(); ++i) sizes.push_back(list.Strings(i).size());
    return sizes;
  };
  using testing::ElementsAre;
  EXPECT_THAT(pieces(254), ElementsAre(254, 2));
  EXPECT_THAT(pieces(255), ElementsAre(258)) << "position 256 is found nowhere";
  // Position 257 counts as 1: an empty piece, a byte is lost, and the search goes on at 256.
  EXPECT_THAT(pieces(256), ElementsAre(0, 258));
  EXPECT_THAT(pieces(299), ElementsAre(43, 258));
  EXPECT_THAT(pieces(511), ElementsAre(514));
}

class CenterControl : public testing::Test {
 protected:
  CenterControl()
      : Form(nullptr), Panel(new vcl::TWinControl(&Form)), Child(new vcl::TWinControl(Panel)) {
    Form.SetBounds(-20, 7, 301, 200);
    Panel->SetParent(&Form);
    Panel->SetBounds(3, 4, 101, 50);
    Child->SetBounds(-5, -6, 20, 11);
  }
  vcl::TForm Form;
  vcl::TWinControl* Panel;
  vcl::TControl* Child;
};

TEST_F(CenterControl, CentersAFormOnTheScreen) {
  QELCenterControl(&Form);
  EXPECT_EQ(Form.BoundsRect(), vcl::Bounds((vcl::Screen()->Width() - 301) / 2,
                                           (vcl::Screen()->Height() - 200) / 2, 301, 200));
}

TEST_F(CenterControl, CentersAFormInsideTheMainFormInIt) {
  auto* main = vcl::Application()->CreateForm<vcl::TForm>();
  main->SetFormStyle(vcl::fsMDIForm);
  main->SetBounds(0, 0, 700, 500);
  Form.SetFormStyle(vcl::fsMDIChild);
  QELCenterControl(&Form);
  EXPECT_EQ(Form.BoundsRect(), vcl::Bounds((main->ClientWidth() - 301) / 2,
                                           (main->ClientHeight() - 200) / 2, 301, 200));
  delete main;
}

TEST_F(CenterControl, CentersAControlInItsParent) {
  QELCenterControl(Child);
  EXPECT_EQ(Child->BoundsRect(), vcl::Bounds(0, 0, 20, 11)) << "without a parent";
  Child->SetParent(Panel);
  QELCenterControl(Child);
  EXPECT_TRUE(Panel->HandleAllocated());
  EXPECT_EQ(Child->BoundsRect(), vcl::Bounds(40, 19, 20, 11));
  Child->SetBounds(9, 9, 300, 11);
  QELCenterControl(Child);
  EXPECT_EQ(Child->BoundsRect(), vcl::Bounds(0, 19, 300, 11)) << "larger than its parent";
}

constexpr vcl::TColor Ground = vcl::TColor(0x123456);

/// A picture in one colour, of which a test says what it has become, a letter for each colour.
class DrawingHelpers : public testing::Test {
 protected:
  DrawingHelpers() : Bitmap(16, 16) {
    Bitmap.Canvas()->Brush()->SetColor(Ground);
    Bitmap.Canvas()->FillRect({0, 0, 16, 16});
  }
  vcl::TColor At(int x, int y) { return Bitmap.Canvas()->Pixels(x, y); }
  static vcl::TColor System(int index) { return vcl::TColor(::GetSysColor(index)); }
  vcl::TBitmap Bitmap;
};

TEST_F(DrawingHelpers, ALedIsRoundAndSunken) {
  Bitmap.Canvas()->Pen()->SetColor(vcl::clYellow);
  QELDrawLed(Bitmap.Canvas(), 2, 1, vcl::clLime);
  EXPECT_EQ(At(2, 1), Ground) << "the corner";
  EXPECT_EQ(At(13, 12), Ground);
  EXPECT_EQ(At(2 + 5, 1), System(COLOR_BTNSHADOW));
  EXPECT_EQ(At(2 + 5, 12), System(COLOR_BTNHIGHLIGHT));
  EXPECT_EQ(At(2, 1 + 6), System(COLOR_BTNSHADOW));
  EXPECT_EQ(At(13, 1 + 6), System(COLOR_BTNHIGHLIGHT));
  EXPECT_EQ(At(2 + 6, 1 + 6), vcl::clLime);
  EXPECT_EQ(At(2 + 4, 1 + 3), vcl::clWhite) << "the gleam";
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(At(i, 0), Ground);
    EXPECT_EQ(At(i, 13), Ground);
    EXPECT_EQ(At(1, i), Ground);
    EXPECT_EQ(At(14, i), Ground);
  }
  EXPECT_EQ(Bitmap.Canvas()->Pen()->Color(), vcl::clYellow);
}

TEST_F(DrawingHelpers, ADisabledBitmapShowsItsDarkPixelsEngraved) {
  vcl::TBitmap glyph(4, 4);
  glyph.Canvas()->Brush()->SetColor(vcl::clBlack);
  glyph.Canvas()->FillRect({1, 1, 3, 2});
  glyph.Canvas()->SetPixel(1, 2, vcl::clSilver);
  QELDrawDisabledBitmap(Bitmap.Canvas(), 5, 6, &glyph);
  EXPECT_EQ(At(6, 7), System(COLOR_BTNSHADOW));
  EXPECT_EQ(At(7, 7), System(COLOR_BTNSHADOW));
  EXPECT_EQ(At(7, 8), System(COLOR_BTNHIGHLIGHT));
  EXPECT_EQ(At(8, 8), System(COLOR_BTNHIGHLIGHT));
  for (const auto& [x, y] : {vcl::TPoint(6, 8), {5, 6}, {8, 7}, {9, 9}})
    EXPECT_EQ(At(x, y), Ground);
  vcl::TBitmap nothing;
  QELDrawDisabledBitmap(Bitmap.Canvas(), 0, 0, &nothing);
  QELDrawDisabledBitmap(Bitmap.Canvas(), 0, 0, nullptr);
  QELDrawTransparentBitmap(Bitmap.Canvas(), nullptr, 0, 0, vcl::clBlack);
  EXPECT_EQ(At(0, 0), Ground);
}

TEST_F(DrawingHelpers, AButtonFrameIsLitFromTheUpperLeft) {
  for (bool down : {false, true}) {
    vcl::TRect rect(2, 3, 12, 11);
    QELDrawButtonFrame(Bitmap.Canvas(), rect, down);
    EXPECT_EQ(rect, vcl::Rect(4, 5, 10, 9));
    const auto brightness = [&](int x, int y) {
      const auto color = static_cast<COLORREF>(At(x, y));
      return GetRValue(color) + GetGValue(color) + GetBValue(color);
    };
    EXPECT_EQ(brightness(2, 6) > brightness(11, 6), !down);
    EXPECT_EQ(brightness(6, 3) > brightness(6, 10), !down);
    EXPECT_EQ(At(4, 5), Ground);
    EXPECT_EQ(At(12, 6), Ground);
  }
}

/// Paints more than it is asked to.
struct TSpill : TQELCustomBackground {
  using TQELCustomBackground::TQELCustomBackground;
  ~TSpill() override { AnnounceEnd(); }
  void AddItem(vcl::TControl*) override {}
  void RemoveItem(vcl::TControl*) override {}
  void Draw(HDC dc, int width, int height, bool forward) override {
    Size = {width, height};
    Forward = forward;
    const vcl::TOwnedBrush brush(::CreateSolidBrush(vcl::clRed));
    const RECT all{-100, -100, 100, 100};
    ::FillRect(dc, &all, brush.Get());
    ::SetPixel(dc, 0, 0, vcl::clBlue);
  }
  vcl::TSize Size;
  bool Forward = true;
};

TEST_F(DrawingHelpers, AnEffectIsPaintedInItsRectangleOnly) {
  TSpill background(nullptr);
  Bitmap.Canvas()->Handle();  // Makes the handles that the canvas keeps.
  const int before = handles::GdiObjects();
  QELPaintEffect(Bitmap.Canvas(), {3, 4, 9, 8}, &background, false);
  EXPECT_EQ(handles::GdiObjects(), before);
  EXPECT_EQ(background.Size, (vcl::TSize{6, 4}));
  EXPECT_FALSE(background.Forward);
  EXPECT_EQ(At(3, 4), vcl::clBlue);
  EXPECT_EQ(At(8, 7), vcl::clRed);
  for (const auto& [x, y] : {vcl::TPoint(2, 4), {3, 3}, {9, 7}, {8, 8}})
    EXPECT_EQ(At(x, y), Ground);
  Bitmap.Canvas()->SetPixel(0, 0, vcl::clLime);
  EXPECT_EQ(At(0, 0), vcl::clLime) << "the context is as it was";
  QELPaintEffect(Bitmap.Canvas(), {0, 0, 9, 8}, nullptr);
  QELPaintEffect(Bitmap.Canvas(), {5, 5, 5, 9}, &background);
  EXPECT_EQ(At(0, 0), vcl::clLime);
}

}  // namespace
