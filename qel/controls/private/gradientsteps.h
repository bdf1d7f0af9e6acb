// A gradient as it is painted: its colours by pairs, and the steps between the two of a pair.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "qel/controls/Qeltbackground.h"
#include "qel/controls/private/surface.h"
#include "qel/core/private/arithmetic.h"

namespace qel {

/// A gradient for an area of one size.
struct TGradientPlan {
  int Width;
  int Height;
  TQELFillStyle FillStyle;
  int ColorCount;
  std::vector<COLORREF> Colors;  ///< At least two.

  int Pairs() const { return static_cast<int>(Colors.size()) - 1; }
};

/// A step's two colours.
struct TStepColors {
  COLORREF Forth;  ///< From the pair's first colour to its second. Never pure black.
  COLORREF Back;   ///< From the second to the first.
};
TStepColors StepColors(const TGradientPlan& plan, int pair, int step);

/// Paints the plan on a surface of its size.
void PaintGradient(const TGradientPlan& plan, TSurface& surface);

/// The last of the steps that follow the step at its own place, as `place(pair, step)` says in any
/// comparable form: it hides the others. Within a pair, no coordinate may turn back as steps go on.
template <class Place>
int LastStepAt(const TGradientPlan& plan, int pair, std::int64_t step, Place place) {
  const auto here = place(pair, static_cast<int>(step));
  const auto same = [&](std::int64_t later) {
    return later < plan.ColorCount && place(pair, static_cast<int>(later)) == here;
  };
  std::int64_t stride = 1;
  for (; same(step + stride); stride *= 2) step += stride;
  for (stride /= 2; stride > 0; stride /= 2) {
    if (same(step + stride)) step += stride;
  }
  return static_cast<int>(step);
}

/// Visits the steps of all pairs in the order of painting: `paint(pair, step)`. Where there are
/// many, those that are hidden at once are left out, so that the number of visits of a pair is
/// bounded by its share of the area, however many colours are asked for.
template <class Place, class Paint>
void ForEachStep(const TGradientPlan& plan, Place place, Paint paint) {
  constexpr int Many = 256;
  const bool many = std::int64_t{plan.ColorCount} * plan.Pairs() > Many;
  for (int pair = 0; pair < plan.Pairs(); ++pair) {
    for (std::int64_t step = 0; step < plan.ColorCount; ++step) {
      if (many) step = LastStepAt(plan, pair, step, place);
      paint(pair, static_cast<int>(step));
    }
  }
}

// The ways of painting. Each is for the fill styles that its source file lists.
void PaintBars(const TGradientPlan& plan, TSurface& surface);
void PaintSquares(const TGradientPlan& plan, TSurface& surface);
void PaintFan(const TGradientPlan& plan, TSurface& surface);
void PaintEllipses(const TGradientPlan& plan, TSurface& surface);

/// A strip of a row or column as the system's PatBlt takes it: where it begins, and its extent,
/// negative when it goes the other way.
struct TStrip {
  int At = 0;
  int Extent = 0;
};
/// A strip's pixels: from the first to before the last, none when they are equal.
struct TSpan {
  int From = 0;
  int To = 0;

  bool Empty() const { return From >= To; }
  bool Within(const TSpan& other) const { return From >= other.From && To <= other.To; }
};
/// The pixels of the strip in a row or column of that length.
TSpan SpanOf(TStrip strip, int length);

}  // namespace qel
