// The kinds of TBitBtn: caption, result and the strokes that their glyphs are drawn with.
#include "vcl/stdctrls/private/bitbtnkinds.h"

#include <span>

namespace vcl {
namespace {

constexpr TBitBtnTraits Traits[] = {
    {"", mrNone, false, false},        {"OK", mrOk, true, false},
    {"Cancel", mrCancel, false, true}, {"&Help", mrNone, false, false},
    {"&Yes", mrYes, true, false},      {"&No", mrNo, false, true},
    {"&Close", mrNone, false, false},  {"Abort", mrAbort, false, false},
    {"&Retry", mrRetry, false, false}, {"&Ignore", mrIgnore, false, false},
    {"&All", mrAll, false, false},
};

constexpr int GlyphSize = 18;
constexpr TColor Background = clFuchsia;  // The colour that is see-through.

/// A line through points, two pixels wide.
struct TStroke {
  TColor Color;
  std::span<const TPoint> Points;
};

constexpr TPoint Check[] = {{3, 9}, {7, 13}, {15, 4}};
constexpr TPoint SecondCheck[] = {{3, 13}, {7, 17}, {15, 8}};
constexpr TPoint HigherCheck[] = {{3, 5}, {7, 9}, {15, 0}};
constexpr TPoint Falling[] = {{4, 4}, {14, 14}};
constexpr TPoint Rising[] = {{4, 14}, {14, 4}};
constexpr TPoint Ring[] = {{6, 2},  {12, 2}, {16, 6}, {16, 12}, {12, 16},
                           {6, 16}, {2, 12}, {2, 6},  {6, 2}};
constexpr TPoint Bar[] = {{4, 13}, {13, 4}};
constexpr TPoint Hook[] = {{5, 6}, {6, 3}, {11, 3}, {13, 5}, {12, 8}, {9, 10}, {9, 12}};
constexpr TPoint Dot[] = {{9, 15}, {9, 16}};
constexpr TPoint Door[] = {{9, 2}, {3, 2}, {3, 16}, {9, 16}};
constexpr TPoint Shaft[] = {{7, 9}, {15, 9}};
constexpr TPoint Head[] = {{12, 5}, {16, 9}, {12, 13}};
constexpr TPoint SmallFalling[] = {{6, 6}, {12, 12}};
constexpr TPoint SmallRising[] = {{6, 12}, {12, 6}};
constexpr TPoint Turn[] = {{14, 12}, {11, 15}, {6, 15}, {3, 12}, {3, 6}, {6, 3}, {11, 3}, {14, 6}};
constexpr TPoint TurnHead[] = {{14, 1}, {14, 6}, {9, 6}};
constexpr TPoint FirstAngle[] = {{3, 4}, {8, 9}, {3, 14}};
constexpr TPoint SecondAngle[] = {{9, 4}, {14, 9}, {9, 14}};

constexpr TStroke OkStrokes[] = {{clGreen, Check}};
constexpr TStroke CancelStrokes[] = {{clRed, Falling}, {clRed, Rising}};
constexpr TStroke HelpStrokes[] = {{clBlue, Hook}, {clBlue, Dot}};
constexpr TStroke NoStrokes[] = {{clMaroon, Ring}, {clMaroon, Bar}};
constexpr TStroke CloseStrokes[] = {{clNavy, Door}, {clTeal, Shaft}, {clTeal, Head}};
constexpr TStroke AbortStrokes[] = {{clRed, Ring}, {clRed, SmallFalling}, {clRed, SmallRising}};
constexpr TStroke RetryStrokes[] = {{clGreen, Turn}, {clGreen, TurnHead}};
constexpr TStroke IgnoreStrokes[] = {{clTeal, FirstAngle}, {clTeal, SecondAngle}};
constexpr TStroke AllStrokes[] = {{clGreen, HigherCheck}, {clGreen, SecondCheck}};

constexpr std::span<const TStroke> Drawings[] = {
    {},           OkStrokes,    CancelStrokes, HelpStrokes,   OkStrokes,  NoStrokes,
    CloseStrokes, AbortStrokes, RetryStrokes,  IgnoreStrokes, AllStrokes,
};

}  // namespace

const TBitBtnTraits& TraitsOf(TBitBtnKind kind) { return Traits[kind]; }

void DrawKindGlyph(TBitBtnKind kind, TBitmap& glyph) {
  TCanvas* canvas = glyph.Canvas();
  canvas->Brush()->SetColor(Background);
  glyph.SetSize(GlyphSize, GlyphSize);
  canvas->Pen()->SetWidth(2);
  for (const TStroke& stroke : Drawings[kind]) {
    canvas->Pen()->SetColor(stroke.Color);
    canvas->Polyline(stroke.Points);
  }
}

}  // namespace vcl
