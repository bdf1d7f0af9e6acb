// Fonts, pens, brushes and canvases.
#include <array>
#include <cstring>

#include "tests/support/kepthandles.h"
#include "tests/vcl/graphics_pixels.h"

namespace vcl::test {
namespace {

TEST(Colors, SystemColorsAreThePresentOnesAndOthersTheirLower24Bits) {
  const std::pair<TColor, COLORREF> cases[] = {
      {clRed, 0x0000FF},
      {static_cast<TColor>(0x02123456), 0x123456},
      {clNone, 0xFFFFFF},
      {clDefault, 0},
      {clScrollBar, ::GetSysColor(COLOR_SCROLLBAR)},
      {clInfoBk, ::GetSysColor(COLOR_INFOBK)},
  };
  for (const auto& [color, rgb] : cases) EXPECT_EQ(ColorToRGB(color), rgb) << std::hex << color;
}

// ---- The objects ----

/// What the system says of a font, a brush or a pen.
template <class T>
T Described(HGDIOBJ handle) {
  T result{};
  ::GetObjectA(handle, sizeof result, &result);
  return result;
}

TEST(Font, HandleHasWhatTheFontSays) {
  TFont font;
  EXPECT_EQ(font.Height(), -11);
  EXPECT_EQ(font.Size(), 8);
  EXPECT_STREQ(Described<LOGFONTA>(font.Handle()).lfFaceName, "Tahoma");

  font.SetName("Arial");
  font.SetSize(18);
  font.SetStyle({fsBold, fsStrikeOut});
  font.SetPitch(fpFixed);
  font.SetCharset(TFontCharset(SYMBOL_CHARSET));
  const auto described = Described<LOGFONTA>(font.Handle());
  EXPECT_STREQ(described.lfFaceName, "Arial");
  EXPECT_EQ(described.lfHeight, -24);
  EXPECT_EQ(described.lfWeight, FW_BOLD);
  EXPECT_FALSE(described.lfItalic);
  EXPECT_TRUE(described.lfStrikeOut);
  EXPECT_EQ(described.lfPitchAndFamily & 3, FIXED_PITCH);
  EXPECT_EQ(described.lfCharSet, SYMBOL_CHARSET);

  TFont other;
  other.SetHandle(font.Handle());
  other.SetColor(font.Color());
  EXPECT_TRUE(other == font);
  EXPECT_THROW(font.SetName(std::string(32, 'x')), EArgumentOutOfRangeException);
  EXPECT_EQ(font.Name(), "Arial");
  const char* japanese = "日本語の長い名前の書体";  // More bytes than the system has characters.
  font.SetName(japanese);
  other.SetHandle(font.Handle());
  EXPECT_EQ(other.Name(), japanese);
}

TEST(Font, EqualOnesShareAHandle) {
  TFont a;
  TFont b;
  a.SetSize(23);
  b.SetSize(23);
  EXPECT_EQ(a.Handle(), b.Handle());
  b.SetStyle({fsItalic});
  EXPECT_NE(a.Handle(), b.Handle());
  EXPECT_EQ(Described<LOGFONTA>(a.Handle()).lfItalic, 0);
}

TEST(Font, CopiesShareTheHandleUntilOneChanges) {
  TFont a;
  a.SetSize(20);
  const HFONT handle = a.Handle();
  TFont b;
  int changes = 0;
  b.OnChange = [&](TObject* sender) { changes += sender == &b; };
  b.Assign(&a);
  b.Assign(&a);
  EXPECT_EQ(changes, 1) << "the second copy changes nothing";
  EXPECT_EQ(b.Handle(), handle);
  b.SetColor(clRed);
  EXPECT_EQ(b.Handle(), handle) << "the handle knows no colour";
  b.SetStyle({fsItalic});
  EXPECT_NE(b.Handle(), handle);
  EXPECT_EQ(a.Handle(), handle);
  EXPECT_EQ(changes, 3);

  TFont dense;
  dense.SetPixelsPerInch(192);
  dense.Assign(&a);
  EXPECT_EQ(dense.Size(), 20);
  EXPECT_EQ(dense.Height(), 2 * a.Height());
  const TPen pen;
  EXPECT_THROW(b.Assign(&pen), EConvertError);
}

TEST(Brush, ColorMakesAClearBrushSolidAndHatchesTakeTheComplementBehindThem) {
  TBrush brush;
  brush.SetStyle(bsClear);
  EXPECT_EQ(brush.Handle(), ::GetStockObject(NULL_BRUSH));
  brush.SetColor(clWhite);
  EXPECT_EQ(brush.Style(), bsSolid);

  const TMemoryDC dc;
  brush.SetColor(static_cast<TColor>(0x123456));
  brush.ApplyBackground(dc.Get());
  EXPECT_EQ(::GetBkColor(dc.Get()), 0x123456U);
  EXPECT_EQ(::GetBkMode(dc.Get()), OPAQUE);
  brush.SetStyle(bsCross);
  brush.ApplyBackground(dc.Get());
  EXPECT_EQ(::GetBkColor(dc.Get()), 0xEDCBA9U);
  EXPECT_EQ(::GetBkMode(dc.Get()), TRANSPARENT);
}

TEST(Brush, StylesAreTheSystemsHatchesInTheirOrder) {
  TBrush brush;
  brush.SetColor(clRed);
  for (int hatch = HS_HORIZONTAL; hatch <= HS_DIAGCROSS; ++hatch) {
    brush.SetStyle(static_cast<TBrushStyle>(bsHorizontal + hatch));
    const auto described = Described<LOGBRUSH>(brush.Handle());
    EXPECT_EQ(described.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(described.lbHatch, static_cast<ULONG_PTR>(hatch));
    EXPECT_EQ(described.lbColor, 0xFFU);
  }
}

TEST(Pen, HandleHasWhatThePenSays) {
  TPen pen;
  pen.SetStyle(psDashDot);
  pen.SetColor(clBlue);
  pen.SetWidth(-3);
  const auto described = Described<LOGPEN>(pen.Handle());
  EXPECT_EQ(described.lopnStyle, static_cast<UINT>(PS_DASHDOT));
  EXPECT_EQ(described.lopnColor, 0xFF0000U);
  EXPECT_EQ(described.lopnWidth.x, 1) << "a negative width is not taken";
}

// ---- Shapes ----

TEST(Canvas, DrawsShapes) {
  const struct {
    const char* What;
    void (*Draw)(TCanvas&);
    Rows Expected;
  } cases[] = {
      {"a filled rectangle has no outline",
       [](TCanvas& c) { c.FillRect(Rect(1, 0, 3, 2)); },
       {".RR..", ".RR..", ".....", "....."}},
      {"a rectangle has the pen around the brush",
       [](TCanvas& c) { c.Rectangle(0, 0, 4, 4); },
       {"BBBB.", "BRRB.", "BRRB.", "BBBB."}},
      {"a frame is in the brush",
       [](TCanvas& c) { c.FrameRect(Rect(0, 1, 5, 4)); },
       {".....", "RRRRR", "R...R", "RRRRR"}},
      {"a line leaves its last point out",
       [](TCanvas& c) {
         c.MoveTo(0, 2);
         c.LineTo(4, 2);
         c.LineTo(4, 0);
       },
       {".....", "....B", "BBBBB", "....."}},
      {"lines through points",
       [](TCanvas& c) {
         const TPoint points[] = {{0, 3}, {0, 0}, {4, 0}};
         c.Polyline(points);
       },
       {"BBBB.", "B....", "B....", "B...."}},
      {"a polygon is closed and filled",
       [](TCanvas& c) {
         const TPoint points[] = {{0, 0}, {4, 0}, {4, 3}, {0, 3}};
         c.Polygon(points);
       },
       {"BBBBB", "BRRRB", "BRRRB", "BBBBB"}},
      {"a clear brush fills nothing",
       [](TCanvas& c) {
         c.Brush()->SetStyle(bsClear);
         c.FillRect(Rect(0, 0, 5, 4));
         c.Rectangle(1, 1, 4, 4);
       },
       {".....", ".BBB.", ".B.B.", ".BBB."}},
      {"a clear pen draws no outline",
       [](TCanvas& c) {
         c.Pen()->SetStyle(psClear);
         c.Rectangle(0, 0, 4, 3);
       },
       {"RRR..", "RRR..", ".....", "....."}},
      {"not and xor",
       [](TCanvas& c) {
         c.FillRect(Rect(0, 0, 5, 1));
         c.Pen()->SetMode(pmXor);
         c.MoveTo(0, 0);
         c.LineTo(2, 0);
         c.Pen()->SetMode(pmNot);
         c.MoveTo(0, 1);
         c.LineTo(2, 1);
       },
       {"FFRRR", "KK...", ".....", "....."}},
      {"a flood up to a border",
       [](TCanvas& c) {
         c.Brush()->SetStyle(bsClear);
         c.Rectangle(0, 0, 4, 4);
         c.Brush()->SetColor(clLime);
         c.FloodFill(1, 1, clBlue, fsBorder);
         c.FloodFill(4, 0, clWhite, fsSurface);
       },
       {"BBBBG", "BGGBG", "BGGBG", "BBBBG"}},
      {"clipping",
       [](TCanvas& c) {
         c.IntersectClipRect(Rect(1, 0, 5, 4));
         c.ExcludeClipRect(Rect(2, 1, 3, 3));
         c.FillRect(Rect(0, 0, 4, 4));
       },
       {".RRR.", ".R.R.", ".R.R.", ".RRR."}},
  };
  for (const auto& test : cases) {
    TBitmap bitmap(5, 4);
    bitmap.Canvas()->Brush()->SetColor(clRed);
    bitmap.Canvas()->Pen()->SetColor(clBlue);
    test.Draw(*bitmap.Canvas());
    EXPECT_EQ(Letters(bitmap), test.Expected) << test.What;
  }
}

TEST(Canvas, FocusRectangleVanishesWhenDrawnTwice) {
  TBitmap bitmap(8, 8);
  const Rows empty = Letters(bitmap);
  bitmap.Canvas()->DrawFocusRect(Rect(1, 1, 7, 7));
  EXPECT_NE(Letters(bitmap), empty);
  bitmap.Canvas()->DrawFocusRect(Rect(1, 1, 7, 7));
  EXPECT_EQ(Letters(bitmap), empty);
}

TEST(Canvas, WithoutAContextRefusesToDraw) {
  TCanvas canvas;
  EXPECT_THROW(canvas.LineTo(1, 1), EInvalidOperation);
  EXPECT_THROW(canvas.Handle(), EInvalidOperation);
}

TEST(Canvas, GivesTheContextBackAsItWas) {
  const TMemoryDC dc;
  const auto selected = [&] {
    return std::array{::GetCurrentObject(dc.Get(), OBJ_FONT), ::GetCurrentObject(dc.Get(), OBJ_PEN),
                      ::GetCurrentObject(dc.Get(), OBJ_BRUSH)};
  };
  const auto before = selected();
  TCanvas canvas;
  canvas.SetHandle(dc.Get());
  canvas.Font()->SetSize(30);
  canvas.Pen()->SetColor(clRed);
  canvas.Brush()->SetColor(clRed);
  ASSERT_EQ(canvas.Handle(), dc.Get());
  EXPECT_EQ(selected()[0], canvas.Font()->Handle());
  canvas.Pen()->SetColor(clLime);
  canvas.LineTo(3, 3);
  EXPECT_EQ(selected()[1], canvas.Pen()->Handle());
  canvas.SetHandle(nullptr);
  EXPECT_EQ(selected(), before);
}

TEST(Canvas, WhatIsSetThroughTheHandleStaysUntilTheBrushChanges) {
  TBitmap bitmap(4, 4);
  TCanvas& canvas = *bitmap.Canvas();
  ::SetBkMode(canvas.Handle(), TRANSPARENT);
  canvas.TextOut(0, 0, "x");
  canvas.FillRect(Rect(0, 0, 1, 1));
  EXPECT_EQ(::GetBkMode(canvas.Handle()), TRANSPARENT);
  canvas.Brush()->SetColor(clRed);
  EXPECT_EQ(::GetBkMode(canvas.Handle()), OPAQUE);
}

// ---- Text ----

TEST(Canvas, TextIsWhatTheSystemDraws) {
  constexpr int width = 120;
  constexpr int height = 30;
  const std::string text = "Größe \xE2\x82\xAC 5 & more";
  TBitmap drawn(width, height);
  drawn.Canvas()->Font()->SetName("Tahoma");
  drawn.Canvas()->Font()->SetHeight(-16);
  drawn.Canvas()->Font()->SetColor(clBlue);
  drawn.Canvas()->Brush()->SetColor(clYellow);
  drawn.Canvas()->TextOut(3, 4, text);

  TBitmap expected(width, height);
  const HBITMAP surface = expected.Handle();
  SIZE size{};
  {
    const TMemoryDC dc;
    const TSelection bitmapIn(dc.Get(), surface);
    const TOwnedFont font(::CreateFontW(-16, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0,
                                        DEFAULT_PITCH, L"Tahoma"));
    const TSelection fontIn(dc.Get(), font.Get());
    const std::wstring wide = L"Größe \u20AC 5 & more";
    ::SetTextColor(dc.Get(), 0xFF0000);
    ::SetBkColor(dc.Get(), 0x00FFFF);
    ::TextOutW(dc.Get(), 3, 4, wide.c_str(), static_cast<int>(wide.size()));
    ::GetTextExtentPoint32W(dc.Get(), wide.c_str(), static_cast<int>(wide.size()), &size);
  }
  ASSERT_GT(size.cx, 60);
  EXPECT_EQ(drawn.Canvas()->TextExtent(text),
            (TSize{static_cast<int>(size.cx), static_cast<int>(size.cy)}));
  EXPECT_EQ(drawn.Canvas()->PenPos(), Point(3 + static_cast<int>(size.cx), 4));
  for (int y = 0; y < height; ++y) {
    ASSERT_EQ(std::memcmp(drawn.ScanLine(y), expected.ScanLine(y), width * 4), 0) << "row " << y;
  }
}

TEST(Canvas, TextStaysInsideItsRectangle) {
  TBitmap bitmap(30, 20);
  bitmap.Canvas()->Brush()->SetColor(clRed);
  bitmap.Canvas()->Font()->SetColor(clBlack);
  bitmap.Canvas()->TextRect(Rect(10, 5, 20, 15), 4, 0, "WWWWWW");
  int inside = 0;
  int ink = 0;
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 30; ++x) {
      const bool in = x >= 10 && x < 20 && y >= 5 && y < 15;
      const bool white = bitmap.Canvas()->Pixels(x, y) == clWhite;
      ASSERT_EQ(white, !in) << x << ", " << y;
      inside += in;
      ink += in && bitmap.Canvas()->Pixels(x, y) != clRed;
    }
  }
  EXPECT_EQ(inside, 100);
  EXPECT_GT(ink, 5);
}

// ---- Copying ----

TEST(Canvas, BrushCopyReplacesAColorByTheBrush) {
  TBitmap pattern;
  Paint(pattern, {"RB", "BR"});
  TBitmap source;
  Paint(source, {"GKG", "KKK", "GKG"});
  const struct {
    const char* What;
    void (*Set)(TBrush&, TBitmap&);
    TRect Dest;
    Rows Expected;
  } cases[] = {
      {"solid",
       [](TBrush& b, TBitmap&) { b.SetColor(clRed); },
       Rect(1, 1, 4, 4),
       {"YYYYY", "YGRGY", "YRRRY", "YGRGY", "YYYYY"}},
      {"clear: what was there stays",
       [](TBrush& b, TBitmap&) { b.SetStyle(bsClear); },
       Rect(1, 1, 4, 4),
       {"YYYYY", "YGYGY", "YYYYY", "YGYGY", "YYYYY"}},
      {"a pattern, lined up with the canvas",
       [](TBrush& b, TBitmap& p) { b.SetBitmap(&p); },
       Rect(1, 1, 4, 4),
       {"YYYYY", "YGBGY", "YBRBY", "YGBGY", "YYYYY"}},
      {"a part outside is cut off",
       [](TBrush& b, TBitmap&) { b.SetColor(clRed); },
       Rect(-1, 3, 2, 6),
       {"YYYYY", "YYYYY", "YYYYY", "RGYYY", "RRYYY"}},
  };
  for (const auto& test : cases) {
    TBitmap bitmap;
    Paint(bitmap, {"YYYYY", "YYYYY", "YYYYY", "YYYYY", "YYYYY"});
    test.Set(*bitmap.Canvas()->Brush(), pattern);
    bitmap.Canvas()->BrushCopy(test.Dest, &source, Rect(0, 0, 3, 3), clBlack);
    EXPECT_EQ(Letters(bitmap), test.Expected) << test.What;
    bitmap.Canvas()->Brush()->SetBitmap(nullptr);
  }
}

TEST(Canvas, BrushCopyPaintsHatchesWhereTheCanvasPaintsThem) {
  TBitmap filled(24, 24);
  filled.Canvas()->Brush()->SetStyle(bsFDiagonal);
  filled.Canvas()->Brush()->SetColor(clRed);
  filled.Canvas()->FillRect(Rect(0, 0, 24, 24));
  TBitmap black(20, 20);
  black.Canvas()->Brush()->SetColor(clBlack);
  black.Canvas()->FillRect(Rect(0, 0, 20, 20));

  TBitmap copied(24, 24);
  copied.Canvas()->Brush()->Assign(filled.Canvas()->Brush());
  copied.Canvas()->BrushCopy(Rect(3, 2, 23, 22), &black, Rect(0, 0, 20, 20), clBlack);
  int lines = 0;
  for (int y = 2; y < 22; ++y) {
    for (int x = 3; x < 23; ++x) {
      ASSERT_EQ(copied.Canvas()->Pixels(x, y), filled.Canvas()->Pixels(x, y)) << x << ", " << y;
      lines += copied.Canvas()->Pixels(x, y) == clRed;
    }
  }
  EXPECT_GT(lines, 30);
  EXPECT_LT(lines, 200);
}

TEST(Canvas, CopyRectStretchesAndCombines) {
  TBitmap source;
  Paint(source, {"RG", "B."});
  TBitmap bitmap(4, 4);
  bitmap.Canvas()->CopyRect(Rect(0, 0, 4, 4), source.Canvas(), Rect(0, 0, 2, 2));
  EXPECT_EQ(Letters(bitmap), (Rows{"RRGG", "RRGG", "BB..", "BB.."}));
  bitmap.Canvas()->SetCopyMode(cmSrcInvert);
  bitmap.Canvas()->CopyRect(Rect(0, 0, 2, 2), source.Canvas(), Rect(0, 0, 2, 2));
  EXPECT_EQ(Letters(bitmap)[0], "KYGG");
}

TEST(Canvas, TransparentBitmapLeavesItsColorOut) {
  TBitmap picture;
  Paint(picture, {"RFR", "FRF"});
  TBitmap bitmap;
  Paint(bitmap, {"YYYY", "YYYY"});
  picture.SetTransparent(true);
  EXPECT_EQ(picture.TransparentColor(), clFuchsia) << "the lower left pixel's";
  bitmap.Canvas()->Draw(1, 0, &picture);
  EXPECT_EQ(Letters(bitmap), (Rows{"YRYR", "YYRY"}));
  picture.SetTransparentColor(clRed);
  EXPECT_EQ(picture.TransparentMode(), tmFixed);
  bitmap.Canvas()->StretchDraw(Rect(0, 0, 3, 1), &picture);
  EXPECT_EQ(Letters(bitmap)[0], "YFYR");
}

// ---- Handles ----

TEST(Canvas, TenThousandPaintsKeepNoHandle) {
  TBitmap bitmap(16, 16), picture(8, 8);
  picture.SetTransparent(true);
  handles::ExpectNoneKept(10000, 14, [&](int i) {
    const auto color = static_cast<TColor>(i);
    TCanvas& canvas = *bitmap.Canvas();
    canvas.Brush()->SetColor(color);
    canvas.Pen()->SetColor(color);
    canvas.Font()->SetHeight(-8 - i % 8);
    canvas.Font()->SetColor(color);
    canvas.Rectangle(0, 0, 16, 16);
    canvas.TextOut(0, 0, "a");
    canvas.Draw(2, 2, &picture);
    canvas.BrushCopy(Rect(0, 0, 4, 4), &picture, Rect(0, 0, 4, 4), clWhite);
    TBitmap temporary(4, 4);
    temporary.Canvas()->FillRect(Rect(0, 0, 4, 4));
    if (i % 7 == 0) FreeDeviceContexts();
  });
}

}  // namespace
}  // namespace vcl::test
