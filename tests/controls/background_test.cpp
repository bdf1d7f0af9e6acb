// The background component: its clients, and its fills save the gradients' pixels.
#include <limits>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/kepthandles.h"
#include "tests/support/plainfill.h"

namespace {

using qel::TQELBackground;
using testing::ElementsAre;
using testing::IsEmpty;
using vcl::TColor;

constexpr COLORREF Ground = RGB(1, 2, 3);
constexpr std::uint32_t GroundPixel = 0x010203;

std::uint32_t PixelOf(TColor color) { return plain::PixelOf(vcl::ColorToRGB(color)); }

/// A client that notes when it is to be painted again, by its name.
struct TClient : vcl::TGraphicControl {
  TClient(std::vector<std::string>& log, std::string name)
      : TGraphicControl(nullptr), Log(log), Id(std::move(name)) {}
  void Invalidate() override {
    Log.push_back(Id);
    if (OnInvalidate) OnInvalidate();
  }
  std::vector<std::string>& Log;
  std::string Id;
  std::function<void()> OnInvalidate;
};

class Background : public testing::Test {
 protected:
  Background() {
    Back.OnChanged = [this](vcl::TObject* sender) {
      EXPECT_EQ(sender, &Back);
      Log.push_back("changed");
    };
  }
  std::unique_ptr<TClient> Make(const std::string& name) {
    return std::make_unique<TClient>(Log, name);
  }

  TQELBackground Back{nullptr};
  std::vector<std::string> Log;
};

TEST_F(Background, TellsItsClientsInTheirOrderOfEveryChange) {
  const auto a = Make("a"), b = Make("b");
  Back.AddItem(a.get());
  Back.AddItem(b.get());
  vcl::TBitmap picture(4, 4);
  const qel::TQELGradient gradient;
  const qel::TQELTexture texture;
  const qel::TQELBrushFill brush;
  vcl::TStringList lines;
  const std::function<void()> changes[] = {
      [&] { Back.SetSolidColor(vcl::clRed); },
      [&] { Back.SetSolidColor(vcl::clRed); },
      [&] { Back.SetBackgroundStyle(qel::bTexture); },
      [&] { Back.Gradient()->SetBeginColor(vcl::clRed); },
      [&] { Back.Gradient()->SetEndColor(vcl::clRed); },
      [&] { Back.Gradient()->SetFillStyle(qel::Circle); },
      [&] { Back.Gradient()->SetColorCount(7); },
      [&] { Back.Gradient()->ColorsInBetween()->Add("clBlue"); },
      [&] { Back.Gradient()->SetColorsInBetween(&lines); },
      [&] { Back.Texture()->SetImage(&picture); },
      [&] { Back.Texture()->Image()->SetWidth(9); },
      [&] { Back.Texture()->SetImageStyle(qel::isCenter); },
      [&] { Back.Texture()->SetTransparentColor(vcl::clRed); },
      [&] { Back.Texture()->SetTransparentBackground(vcl::clRed); },
      [&] { Back.BrushFill()->SetBrushStyle(vcl::bsCross); },
      [&] { Back.BrushFill()->SetBrushColor(vcl::clRed); },
      [&] { Back.SetGradient(&gradient); },
      [&] { Back.SetTexture(&texture); },
      [&] { Back.SetBrushFill(&brush); },
  };
  for (std::size_t i = 0; i < std::size(changes); ++i) {
    Log.clear();
    changes[i]();
    EXPECT_THAT(Log, ElementsAre("a", "b", "changed")) << i;
  }
  EXPECT_EQ(Back.Gradient()->FillStyle(), qel::Horizontal);
  EXPECT_TRUE(Back.Texture()->Image()->Empty());
}

TEST_F(Background, ClientsLeaveWhenTheyEnd) {
  auto a = Make("a"), b = Make("b");
  Back.AddItem(a.get());
  Back.AddItem(b.get());
  Back.AddItem(a.get());
  Back.RemoveItem(a.get());
  EXPECT_EQ(Back.ClientCount(), 2);
  EXPECT_EQ(Back.Clients(0), b.get());
  EXPECT_THROW(Back.Clients(2), vcl::EListError);
  EXPECT_THROW(Back.AddItem(nullptr), vcl::EInvalidOperation);
  a.reset();
  Back.RemoveItem(nullptr);
  Back.SetSolidColor(vcl::clRed);
  EXPECT_THAT(Log, ElementsAre("b", "changed"));
  // One may also end while they are told.
  auto c = Make("c"), d = Make("d");
  Back.AddItem(c.get());
  Back.AddItem(d.get());
  b->OnInvalidate = [&] { c.reset(); };
  Log.clear();
  Back.SetSolidColor(vcl::clRed);
  EXPECT_THAT(Log, ElementsAre("b", "d", "changed"));
}

TEST(BackgroundEvents, AHandlerMayFreeTheBackground) {
  auto* background = new TQELBackground(nullptr);
  background->OnChanged = [&](vcl::TObject*) { delete background; };
  background->Gradient()->SetColorCount(3);
}

/// An area of the ground's colour.
struct TArea : plain::TDib {
  TArea(int width, int height) : TDib(width, height) { Fill(Ground); }
};

TEST_F(Background, PaintsNothingOutsideItsSize) {
  vcl::TBitmap picture(4, 4);
  Back.Texture()->SetImage(&picture);
  Back.Texture()->SetImageStyle(qel::isStretched);
  const TArea untouched(20, 20);
  for (int style = qel::bGradient; style <= qel::bBrushFillSolidColor; ++style) {
    Back.SetBackgroundStyle(qel::TQELBackStyle(style));
    const TArea area(20, 20);
    for (const auto& [width, height] :
         {std::pair(0, 9), std::pair(9, 0), std::pair(-5, 9), std::pair(9, -1)}) {
      Back.Draw(area.DC(), width, height, true);
    }
    EXPECT_EQ("", area.Difference(untouched)) << style;
    Back.Draw(area.DC(), 8, 12, true);
    EXPECT_NE(area.Pixel(7, 11), GroundPixel) << style;
    EXPECT_EQ(area.Pixel(8, 11), GroundPixel) << style;
    EXPECT_EQ(area.Pixel(7, 12), GroundPixel) << style;
  }
}

TEST_F(Background, ASizeThatNobodyHasIsAnError) {
  Back.Gradient()->SetColorCount(1);
  const TArea area(4, 4);
  EXPECT_THAT([&] { Back.Draw(area.DC(), 200000, 200001, true); },
              testing::ThrowsMessage<vcl::EOutOfResources>(
                  testing::HasSubstr("a bitmap of 200000 by 200001 pixels")));
  Back.Draw(area.DC(), 4, 4, true);
  EXPECT_EQ(area.Pixel(0, 0), 0xC0C0C0u);
}

TEST_F(Background, LinesThatAreNoColorsCountAsItsColor) {
  Back.SetSolidColor(vcl::clBlue);
  Back.Gradient()->SetColorCount(1);
  Back.Gradient()->ColorsInBetween()->SetText("clRed\nno colour\n65280\n$00FFFF");
  const TArea area(5, 100);
  Back.Draw(area.DC(), 5, 100, true);
  // Five pairs of 21 rows, each in its first colour without pure zeros.
  EXPECT_EQ(area.Pixel(2, 10), 0xC0C0C0u);
  EXPECT_EQ(area.Pixel(2, 30), 0xFF0101u);
  EXPECT_EQ(area.Pixel(2, 50), 0x0101FFu);
  EXPECT_EQ(area.Pixel(2, 70), 0x01FF01u);
  EXPECT_EQ(area.Pixel(2, 90), 0xFFFF01u);
}

TEST_F(Background, FollowsTheSystemsColors) {
  const int index = COLOR_BTNFACE;
  const COLORREF former = ::GetSysColor(index);
  const COLORREF other = RGB(10, 200, 30);
  Back.Gradient()->SetBeginColor(vcl::clBtnFace);
  Back.Gradient()->SetColorCount(1);
  const TArea area(8, 8);
  Back.Draw(area.DC(), 8, 8, true);
  EXPECT_EQ(area.Pixel(4, 4), PixelOf(vcl::clBtnFace));
  ::SetSysColors(1, &index, &other);
  Back.Draw(area.DC(), 8, 8, true);
  EXPECT_EQ(area.Pixel(4, 4), 0x0AC81Eu);
  ::SetSysColors(1, &index, &former);
}

TEST_F(Background, KeepsThePicturesOfItsClientsSizesApart) {
  Back.Gradient()->SetColorCount(200);
  for (int round = 0; round < 3; ++round) {
    for (int size = 10; size < 60; ++size) {
      const TArea area(size, size), expected(size, size);
      Back.Draw(area.DC(), size, size, size % 2 == 0);
      const COLORREF begin = vcl::ColorToRGB(Back.Gradient()->BeginColor());
      const COLORREF end = RGB(128, 128, 128);
      plain::Gradient(expected.DC(), size, size, plain::sHorizontal, 200,
                      size % 2 == 0 ? std::vector{begin, end} : std::vector{end, begin});
      ASSERT_EQ("", area.Difference(expected)) << size;
    }
    Back.Gradient()->SetBeginColor(TColor(0x0000FF << round * 8));
  }
}

/// A picture whose pixels are all different.
std::unique_ptr<vcl::TBitmap> Picture(int width, int height) {
  auto picture = std::make_unique<vcl::TBitmap>(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      picture->Canvas()->SetPixel(x, y, TColor(RGB(20 + x, 30 + y, 40)));
    }
  }
  return picture;
}
std::uint32_t PicturePixel(int x, int y) {
  return static_cast<std::uint32_t>((20 + x) << 16 | (30 + y) << 8 | 40);
}

class Texture : public Background {
 protected:
  Texture() { Back.SetBackgroundStyle(qel::bTexture); }
};

TEST_F(Texture, WithoutAPicturePaintsNothing) {
  const TArea area(9, 9), untouched(9, 9);
  for (int style = qel::isTile; style <= qel::isStretched; ++style) {
    Back.Texture()->SetImageStyle(qel::TQELImageStyle(style));
    Back.Draw(area.DC(), 9, 9, true);
    EXPECT_EQ("", area.Difference(untouched));
  }
}

TEST_F(Texture, TilesCoverTheAreaWhole) {
  const std::tuple<int, int, int, int> cases[] = {
      // The last tiles are painted whole, and one more where the picture fits exactly.
      {20, 17, 21, 20},
      {14, 10, 21, 15},
      {3, 2, 7, 5},
      {7, 4, 14, 5}};
  Back.Texture()->SetImage(Picture(7, 5).get());
  for (const auto& [width, height, coveredWidth, coveredHeight] : cases) {
    const TArea area(40, 30);
    Back.Draw(area.DC(), width, height, true);
    for (int y = 0; y < 30; ++y) {
      for (int x = 0; x < 40; ++x) {
        const bool covered = x < coveredWidth && y < coveredHeight;
        ASSERT_EQ(area.Pixel(x, y), covered ? PicturePixel(x % 7, y % 5) : GroundPixel)
            << width << " x " << height << " at " << x << ", " << y;
      }
    }
  }
}

/// No picture of such an area could be kept; what is seen of it is painted all the same.
TEST_F(Texture, TilesOfAnEndlessAreaAreThoseThatAreSeen) {
  Back.Texture()->SetImage(Picture(7, 5).get());
  for (const int size : {100'000, std::numeric_limits<int>::max()}) {
    for (const auto& [left, top] : {std::pair(0, 0), std::pair(40'001, 30'002)}) {
      const TArea area(40, 30);
      ::SetViewportOrgEx(area.DC(), -left, -top, nullptr);
      ::IntersectClipRect(area.DC(), left, top, left + 33, top + 30);
      Back.Draw(area.DC(), size, size, true);
      for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
          ASSERT_EQ(area.Pixel(x, y),
                    x < 33 ? PicturePixel((left + x) % 7, (top + y) % 5) : GroundPixel)
              << size << " from " << left << " at " << x << ", " << y;
        }
      }
      ::IntersectClipRect(area.DC(), left - 9, top - 9, left - 8, top - 8);
      Back.Draw(area.DC(), size, size, true);  // Nothing of it is seen.
    }
  }
}

TEST_F(Texture, ACentredPictureLeavesTheRest) {
  const std::tuple<int, int, int, int> cases[] = {
      {20, 16, 6, 5}, {7, 5, 0, 0}, {3, 14, 0, 4}, {8, 6, 0, 0}, {9, 7, 1, 1}};
  Back.Texture()->SetImage(Picture(7, 5).get());
  Back.Texture()->SetImageStyle(qel::isCenter);
  Back.SetSolidColor(vcl::clLime);
  for (const auto& [width, height, x, y] : cases) {
    const TArea area(30, 20);
    ::SetBkMode(area.DC(), TRANSPARENT);
    Back.Draw(area.DC(), width, height, true);
    EXPECT_EQ(area.Pixel(x, y), PicturePixel(0, 0)) << width;
    EXPECT_EQ(area.Pixel(x + 6, y + 4), PicturePixel(6, 4)) << width;
    EXPECT_EQ(area.Pixel(x + 7, y), GroundPixel);
    EXPECT_EQ(area.Pixel(x, y + 5), GroundPixel);
    EXPECT_EQ(::GetBkColor(area.DC()), RGB(0, 255, 0));
    EXPECT_EQ(::GetBkMode(area.DC()), OPAQUE);
  }
}

TEST_F(Texture, AStretchedPictureFillsTheArea) {
  Back.Texture()->SetImage(Picture(2, 2).get());
  Back.Texture()->SetImageStyle(qel::isStretched);
  const TArea area(12, 12);
  Back.Draw(area.DC(), 10, 8, true);
  EXPECT_EQ(area.Pixel(0, 0), PicturePixel(0, 0));
  EXPECT_EQ(area.Pixel(9, 7), PicturePixel(1, 1));
  EXPECT_EQ(area.Pixel(9, 0), PicturePixel(1, 0));
  EXPECT_EQ(area.Pixel(10, 0), GroundPixel);
}

TEST_F(Texture, SeeThroughPixelsTakeTheirBackground) {
  Back.Texture()->SetImage(Picture(4, 4).get());
  Back.Texture()->SetTransparentColor(TColor(RGB(21, 31, 40)));
  Back.Texture()->SetTransparentBackground(vcl::clRed);
  for (int style = qel::isTile; style <= qel::isCenter; ++style) {
    Back.Texture()->SetImageStyle(qel::TQELImageStyle(style));
    const TArea area(4, 4);
    Back.Draw(area.DC(), 4, 4, true);
    EXPECT_EQ(area.Pixel(1, 1), 0xFF0000u) << style;
    EXPECT_EQ(area.Pixel(2, 1), PicturePixel(2, 1)) << style;
  }
  EXPECT_EQ(Back.Texture()->Image()->Canvas()->Pixels(1, 1), TColor(RGB(21, 31, 40)));
}

TEST_F(Texture, ShowsThePictureAsItBecomes) {
  Back.Texture()->SetImage(Picture(4, 4).get());
  const TArea area(9, 9);
  Back.Draw(area.DC(), 9, 9, true);
  Back.Texture()->Image()->Canvas()->SetPixel(0, 0, vcl::clYellow);
  Back.Draw(area.DC(), 9, 9, true);
  EXPECT_EQ(area.Pixel(4, 4), 0xFFFF00u);
  Back.Texture()->Image()->SetPixelFormat(vcl::pf4bit);
  Back.Draw(area.DC(), 9, 9, true);
  EXPECT_EQ(area.Pixel(8, 0), 0xFFFF00u);
}

/// How many pixels are of the brush's colour, white, and of the solid colour, in an area of 16
/// by 16.
using TCounts = std::array<int, 3>;

TEST_F(Background, BrushPatternsStandOnWhiteOrOnTheColor) {
  const struct {
    vcl::TBrushStyle Style;
    TColor Color;
    TCounts OnWhite, OnColor;
  } cases[] = {
      // The hatches have a period of 8 pixels: lines of 16 pixels, 2 of them in the area.

      {vcl::bsSolid, vcl::clBlue, {256, 0, 0}, {256, 0, 0}},
      {vcl::bsSolid, vcl::clWhite, {0, 256, 0}, {0, 0, 256}},
      {vcl::bsClear, vcl::clBlue, {0, 256, 0}, {0, 0, 256}},
      {vcl::bsHorizontal, vcl::clBlue, {32, 224, 0}, {32, 0, 224}},
      {vcl::bsVertical, vcl::clBlack, {32, 224, 0}, {32, 0, 224}},
      {vcl::bsCross, vcl::clBlue, {60, 196, 0}, {60, 0, 196}},
      {vcl::bsFDiagonal, vcl::clBlue, {32, 224, 0}, {32, 0, 224}},
  };
  Back.SetSolidColor(vcl::clYellow);
  for (const auto& each : cases) {
    Back.BrushFill()->SetBrushColor(each.Color);
    Back.BrushFill()->SetBrushStyle(each.Style);
    for (const bool onColor : {false, true}) {
      Back.SetBackgroundStyle(onColor ? qel::bBrushFillSolidColor : qel::bBrushFillUseCurrent);
      const TArea area(16, 16);
      Back.Draw(area.DC(), 16, 16, true);
      TCounts counts{};
      for (int i = 0; i < 256; ++i) {
        const std::uint32_t pixel = area.Pixel(i % 16, i / 16);
        ++counts.at(pixel == 0xFFFFFF ? 1 : pixel == 0xFFFF00 ? 2 : 0);
      }
      EXPECT_EQ(counts, onColor ? each.OnColor : each.OnWhite) << each.Style << onColor;
    }
  }
}

TEST_F(Background, ShowsWhereTheCanvasHasTheColor) {
  Back.Gradient()->SetFillStyle(qel::Vertical);
  const TArea area(40, 20), expected(40, 20);
  const auto rectangle = [](const plain::TDib& dib, const RECT& rect, COLORREF color) {
    const vcl::TOwnedBrush brush(::CreateSolidBrush(color));
    ::FillRect(dib.DC(), &rect, brush.Get());
  };
  rectangle(area, {5, 5, 35, 15}, RGB(255, 0, 255));
  vcl::TCanvas canvas;
  canvas.SetHandle(area.DC());
  Back.DrawTrans(&canvas, 30, 12, true, vcl::clFuchsia);
  canvas.SetHandle(nullptr);
  plain::Gradient(expected.DC(), 30, 12, plain::sVertical, 32,
                  {RGB(192, 192, 192), RGB(128, 128, 128)});
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 40; ++x) {
      const bool key = x >= 5 && x < 35 && y >= 5 && y < 15;
      const bool inside = x < 30 && y < 12;
      ASSERT_EQ(area.Pixel(x, y), !key     ? GroundPixel
                                  : inside ? expected.Pixel(x, y)
                                           : 0xFF00FFu)
          << x << ", " << y;
    }
  }
}

class LettersOfBackground : public Background {
 protected:
  /// Draws one letter that is all face in its middle, with the settings' copies.
  void Write(const plain::TDib& dib, const vcl::TRect& rect) {
    Font.SetName("Arial");
    Font.SetStyle({vcl::fsBold});
    Font.SetHeight(-60);
    vcl::TCanvas canvas;
    canvas.SetHandle(dib.DC());
    Back.Write(&Font3D, &Font, &canvas, rect, "I", DT_CENTER);
    canvas.SetHandle(nullptr);
  }
  vcl::TFont Font;
  qel::TQELFont3D Font3D;
};

TEST_F(LettersOfBackground, AreFilledWithIt) {
  Back.Gradient()->SetBeginColor(vcl::clRed);
  Back.Gradient()->SetEndColor(vcl::clBlue);
  Back.Gradient()->SetColorCount(2);
  Font3D.SetStyle3D(qel::fontRaised);
  Font3D.SetOffset(30);
  Font3D.SetShadow(vcl::clLime);
  Font3D.SetHighlight(vcl::clYellow);
  const TArea area(120, 120);
  Write(area, {10, 20, 110, 100});
  EXPECT_EQ(area.Pixel(60, 40), 0xFF0101u);               // In the upper half of the rectangle.
  EXPECT_EQ(area.Pixel(60, 68), 0x0101FFu);               // In the lower half.
  EXPECT_EQ(area.Pixel(90, 70), PixelOf(vcl::clLime));    // The shadow has its own colour,
  EXPECT_EQ(area.Pixel(30, 30), PixelOf(vcl::clYellow));  // the highlight, too.
  EXPECT_EQ(area.Pixel(2, 100), GroundPixel);
  EXPECT_EQ(area.Pixel(60, 15), GroundPixel);
}

TEST_F(LettersOfBackground, AreOfItsColorWhereItPaintsNothing) {
  Back.SetBackgroundStyle(qel::bTexture);
  Back.SetSolidColor(vcl::clAqua);
  const TArea area(120, 120);
  Write(area, {10, 20, 110, 100});
  EXPECT_EQ(area.Pixel(60, 40), PixelOf(vcl::clAqua));
  Write(area, {50, 50, 50, 90});  // An empty rectangle has no letters.
}

int stretched = 0;

TEST(BackgroundPictures, AreKeptForFiftySizesAndNotForAnyNumber) {
  const TImportPatch patch(
      "qel.dll", "StretchBlt",
      +[](HDC, int, int, int, int, HDC, int, int, int, int, DWORD)
           WINAPI -> BOOL { return ++stretched, TRUE; });
  qel::TQELTexture texture;
  texture.SetImage(Picture(5, 5).get());
  texture.SetImageStyle(qel::isStretched);
  const TArea area(1, 1);
  const auto draw = [&](int sizes) {
    stretched = 0;
    for (int i = 0; i < sizes; ++i) texture.Draw(area.DC(), 60 + i, 20, vcl::clBtnFace);
    return stretched;
  };
  EXPECT_EQ(draw(50), 50);
  EXPECT_EQ(draw(50), 0);
  texture.SetTransparentBackground(vcl::clRed);
  EXPECT_EQ(draw(50), 50);
  EXPECT_EQ(draw(50), 0);
  // Small pictures take little memory, but each a bitmap and a context of the system's.
  const int before = handles::GdiObjects();
  draw(3000);
  EXPECT_LT(handles::GdiObjects() - before, 1000);
}

TEST(BackgroundHandles, AreAsManyAfterManyRepaints) {
  TQELBackground background(nullptr);
  background.Texture()->SetImage(Picture(5, 5).get());
  const TArea area(50, 50);
  // Until all settings have met again.
  handles::ExpectNoneKept(11 * 910, 910, [&](int i) {
    background.Gradient()->SetFillStyle(qel::TQELFillStyle(i % 13));
    background.BrushFill()->SetBrushStyle(vcl::TBrushStyle(i % 8));
    background.SetBackgroundStyle(qel::TQELBackStyle(i % 5));
    background.Draw(area.DC(), 30 + i % 7, 40, i % 2 == 0);
  });
}

}  // namespace
