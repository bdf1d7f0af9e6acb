// Glyph strips: which image is drawn, greyed or see-through.
#include <gmock/gmock.h>

#include "qel/qel.h"

namespace {

using qel::TQELGlyph;
using qel::TQELNumGlyphs;
using vcl::TColor;

constexpr int Side = 8;
constexpr TColor Images[] = {vcl::clRed, vcl::clLime, vcl::clBlue, vcl::clYellow};
constexpr TColor Key = vcl::clFuchsia, Ground = TColor(0x123456);

/// A strip of images in one colour each; the left half of each is of the key's colour.
void MakeStrip(TQELGlyph& glyph, int count) {
  vcl::TBitmap strip(count * Side, Side);
  for (int i = 0; i < count; ++i) {
    strip.Canvas()->Brush()->SetColor(Images[i]);
    strip.Canvas()->FillRect(vcl::Bounds(i * Side, 0, Side, Side));
    strip.Canvas()->Brush()->SetColor(Key);
    strip.Canvas()->FillRect(vcl::Bounds(i * Side, 0, Side / 2, Side));
  }
  glyph.SetBitmap(&strip);
  glyph.SetNumGlyphs(TQELNumGlyphs(count));
  glyph.SetTransparentColor(Key);
}

struct TDrawn {
  TColor Left;
  TColor Right;
};

TDrawn Draw(const TQELGlyph& glyph, bool enabled, bool down, bool grayed) {
  vcl::TBitmap screen(30, 20);
  screen.Canvas()->Brush()->SetColor(Ground);
  screen.Canvas()->FillRect({0, 0, 30, 20});
  glyph.Draw(screen.Canvas(), 5, 6, enabled, down, grayed);
  EXPECT_EQ(screen.Canvas()->Pixels(4, 6), Ground);
  EXPECT_EQ(screen.Canvas()->Pixels(5 + Side, 6), Ground);
  return {screen.Canvas()->Pixels(6, 7), screen.Canvas()->Pixels(5 + Side - 1, 6 + Side - 1)};
}

TEST(Glyph, FollowsTheDotsPerInchOfItsOwner) {
  vcl::TForm form(nullptr);
  qel::TQELLabel label(&form);
  label.SetParent(&form);
  TQELGlyph glyph(&label);
  MakeStrip(glyph, 1);
  EXPECT_EQ(glyph.GetWidth(), Side);
  form.ScaleForPPI(192);
  EXPECT_EQ(glyph.GetWidth(), 2 * Side);
  EXPECT_EQ(glyph.GetHeight(), 2 * Side);
  for (const bool transparent : {true, false}) {
    glyph.SetTransparent(transparent);
    vcl::TBitmap screen(30, 30);
    screen.Canvas()->Brush()->SetColor(Ground);
    screen.Canvas()->FillRect({0, 0, 30, 30});
    glyph.Draw(screen.Canvas(), 5, 6, true, false, false);
    const auto at = [&](int x, int y) { return screen.Canvas()->Pixels(5 + x, 6 + y); };
    EXPECT_EQ(at(-1, 3), Ground);
    EXPECT_EQ(at(2 * Side, 3), Ground);
    EXPECT_EQ(at(1, 1), transparent ? Ground : Key);
    EXPECT_EQ(at(2 * Side - 1, 2 * Side - 1), vcl::clRed);
    EXPECT_EQ(at(Side + 3, 2), vcl::clRed);
  }
}

TColor Resolved(TColor color) { return TColor(vcl::ColorToRGB(color)); }

TEST(Glyph, DrawsTheImageForTheState) {
  struct TCase {
    int Count;
    bool Down;
    TColor Image;
  };
  const TCase cases[] = {{1, false, vcl::clRed}, {1, true, vcl::clRed},  {2, true, vcl::clRed},
                         {3, false, vcl::clRed}, {3, true, vcl::clLime}, {4, true, vcl::clLime}};
  for (const TCase& each : cases) {
    TQELGlyph glyph;
    MakeStrip(glyph, each.Count);
    EXPECT_EQ(glyph.GetWidth(), Side);
    EXPECT_EQ(glyph.GetHeight(), Side);
    const TDrawn seeThrough = Draw(glyph, true, each.Down, false);
    EXPECT_EQ(seeThrough.Left, Ground);
    EXPECT_EQ(seeThrough.Right, each.Image) << each.Count << each.Down;
    glyph.SetTransparent(false);
    const TDrawn whole = Draw(glyph, true, each.Down, false);
    EXPECT_EQ(whole.Left, Key);
    EXPECT_EQ(whole.Right, each.Image) << each.Count << each.Down;
  }
}

TEST(Glyph, ADisabledOneIsTheLastImageInGreysAndAGreyedOneTheFirst) {
  for (int count = 1; count <= 4; ++count) {
    TQELGlyph glyph;
    MakeStrip(glyph, count);
    for (const bool enabled : {false, true}) {
      // All four images' colours have the sum of their channels between the two limits.
      const TDrawn drawn = Draw(glyph, enabled, true, enabled);
      EXPECT_EQ(drawn.Right, Resolved(vcl::clBtnShadow)) << count << enabled;
      EXPECT_EQ(drawn.Left, Ground) << count << enabled;
    }
  }
}

TEST(Glyph, GreysByTheSumOfTheChannels) {
  const std::tuple<TColor, int, TColor> cases[] = {
      {vcl::clWhite, 1, vcl::clBtnFace},          {TColor(0x16FFFF), 1, vcl::clBtnHighlight},
      {TColor(0x1AFFFF), 1, vcl::clBtnFace},      {TColor(0x13FF00), 1, vcl::clBtnShadow},
      {TColor(0x14FF00), 1, vcl::clBtnHighlight}, {TColor(0x370000), 1, vcl::clBlack},
      {TColor(0x380000), 1, vcl::clBtnShadow},    {vcl::clWhite, 2, vcl::clBtnHighlight},
      {TColor(0x26FFFF), 2, vcl::clBtnShadow},    {TColor(0x27FFFF), 2, vcl::clBtnHighlight},
      {TColor(0x6E0000), 2, vcl::clBlack},        {TColor(0x6F0000), 2, vcl::clBtnShadow},
  };
  TQELGlyph glyph;
  glyph.SetTransparentColor(Key);
  for (const auto& [color, level, gray] : cases) {
    vcl::TBitmap bitmap(3, 2);
    bitmap.Canvas()->Brush()->SetColor(color);
    bitmap.Canvas()->FillRect({0, 0, 3, 2});
    bitmap.Canvas()->SetPixel(1, 1, Key);
    glyph.DrawGrayed(bitmap, vcl::clNone, level);
    EXPECT_EQ(bitmap.Canvas()->Pixels(2, 1), Resolved(gray)) << std::hex << color;
    EXPECT_EQ(bitmap.Canvas()->Pixels(1, 1), Key);
  }
}

TEST(Glyph, DrawsNothingWithoutImages) {
  TQELGlyph glyph;
  EXPECT_EQ(Draw(glyph, true, false, false).Right, Ground);
  MakeStrip(glyph, 2);
  glyph.SetNumGlyphs(TQELNumGlyphs(0));
  EXPECT_EQ(glyph.GetWidth(), 0);
  EXPECT_EQ(Draw(glyph, false, true, true).Right, Ground);
  glyph.SetNumGlyphs(TQELNumGlyphs(2));
  glyph.SetVisible(false);
  EXPECT_EQ(Draw(glyph, true, false, false).Right, Ground);
  EXPECT_THROW(glyph.SetNumGlyphs(TQELNumGlyphs(5)), vcl::EArgumentOutOfRangeException);
  EXPECT_EQ(glyph.NumGlyphs(), 2);
}

TEST(Glyph, InTheDesignerTheStripSaysHowManyThereAre) {
  const std::pair<int, int> cases[] = {{64, 4}, {80, 1}, {40, 3}, {16, 1}, {8, 3}};
  for (const bool designing : {true, false}) {
    for (const auto& [width, count] : cases) {
      vcl::TComponent owner(nullptr);
      owner.SetDesigning(designing);
      TQELGlyph glyph(&owner);
      glyph.SetNumGlyphs(TQELNumGlyphs(3));
      glyph.SetTransparentColor(vcl::clOlive);
      vcl::TBitmap bitmap(width, 16);
      bitmap.Canvas()->SetPixel(0, 15, Key);
      int changes = 0;
      glyph.OnChange = [&](vcl::TObject*) { ++changes; };
      glyph.SetBitmap(&bitmap);
      EXPECT_EQ(glyph.NumGlyphs(), designing ? count : 3) << width;
      EXPECT_EQ(glyph.TransparentColor(), designing ? Key : vcl::clOlive);
      EXPECT_EQ(changes, 1);
      glyph.SetBitmap(glyph.Bitmap());
      EXPECT_EQ(changes, 1);
    }
  }
}

TEST(Glyph, TellsOnlyOfChanges) {
  TQELGlyph glyph;
  int changes = 0;
  glyph.OnChange = [&](vcl::TObject*) { ++changes; };
  glyph.SetVisible(true);
  glyph.SetTransparent(true);
  glyph.SetNumGlyphs(TQELNumGlyphs(0));
  glyph.SetTransparentColor(glyph.TransparentColor());
  EXPECT_EQ(changes, 0);
  glyph.SetVisible(false);
  glyph.SetTransparent(false);
  glyph.SetNumGlyphs(TQELNumGlyphs(1));
  glyph.SetTransparentColor(Key);
  EXPECT_EQ(changes, 4);
  MakeStrip(glyph, 2);
  TQELGlyph copy;
  copy.Assign(&glyph);
  EXPECT_EQ(copy.GetWidth(), Side);
  EXPECT_NE(copy.Bitmap(), glyph.Bitmap());
}

}  // namespace
