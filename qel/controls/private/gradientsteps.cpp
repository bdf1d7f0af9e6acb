// Where a gradient's colours are computed: the steps between two colours, the strips they fill, and
// which painter a style has.
#include "qel/controls/private/gradientsteps.h"

#include <algorithm>
#include <iterator>

#include "vcl/rtl/win32.h"

namespace qel {

namespace {

/// One channel's value at the step, kept in 8 bits as it comes.
int Channel(COLORREF from, COLORREF to, int shift, int step, int last) {
  const int first = from >> shift & 0xFF;
  const int difference = static_cast<int>(to >> shift & 0xFF) - first;
  return (first + MulDiv(step, difference, last)) & 0xFF;
}

/// Steps are never pure black.
COLORREF Raised(COLORREF color) {
  for (COLORREF channel : {0xFFu, 0xFF00u, 0xFF0000u}) {
    if (!(color & channel)) color |= channel & 0x010101;
  }
  return color;
}

COLORREF Blend(COLORREF from, COLORREF to, int step, int last) {
  COLORREF color = 0;
  for (int shift : {0, 8, 16}) color |= Channel(from, to, shift, step, last) << shift;
  return color;
}

/// How far a strip of negative extent reaches: systems differ on whether the pixel that it starts
/// from is the first painted or the first left out, so this one is asked.
int BackwardShift() {
  static const int shift = [] {
    TSurface probe(4, 1);
    ::PatBlt(probe.DC(), 0, 0, 4, 1, WHITENESS);
    ::PatBlt(probe.DC(), 2, 0, -1, 1, BLACKNESS);
    ::GdiFlush();
    return (probe.Row(0)[2] & 0xFFFFFF) == 0 ? 1 : 0;
  }();
  return shift;
}

using TPainter = void (*)(const TGradientPlan&, TSurface&);
constexpr TPainter Painters[] = {
    PaintFan,       // Circle
    PaintBars,      // Horizontal
    PaintBars,      // Vertical
    PaintSquares,   // LeftBottom
    PaintEllipses,  // RoundMiddle
    PaintSquares,   // SquareMiddle
    PaintFan,       // Spectral
    PaintEllipses,  // DoppelFlash
    PaintEllipses,  // Singleflash
    PaintBars,      // MiddleHBar
    PaintBars,      // MiddleVBar
    PaintBars,      // VerticalDoppelBar
    PaintBars,      // HorizontalDoppelBar
};

}  // namespace

TStepColors StepColors(const TGradientPlan& plan, int pair, int step) {
  const COLORREF from = plan.Colors[pair];
  const COLORREF to = plan.Colors[pair + 1];
  const int last = plan.ColorCount - 1;
  if (last < 1) return {Raised(from), from};
  return {Raised(Blend(from, to, step, last)), Blend(from, to, last - step, last)};
}

TSpan SpanOf(TStrip strip, int length) {
  std::int64_t from = strip.At;
  std::int64_t to = from + strip.Extent;
  if (to < from) {
    std::swap(from, to);
    from += BackwardShift();
    to += BackwardShift();
  }
  const std::int64_t end = length;
  return {static_cast<int>(std::clamp<std::int64_t>(from, 0, end)),
          static_cast<int>(std::clamp<std::int64_t>(to, 0, end))};
}

void PaintGradient(const TGradientPlan& plan, TSurface& surface) {
  const auto style = static_cast<std::size_t>(plan.FillStyle);
  if (style < std::size(Painters)) return Painters[style](plan, surface);
  FillPixels(surface.Row(0), std::size_t(plan.Width) * plan.Height, PixelOf(plan.Colors[0]));
}

}  // namespace qel
