// The gradients that are the same in every column or in every row: Horizontal, Vertical,
// MiddleHBar, MiddleVBar, HorizontalDoppelBar and VerticalDoppelBar. One line of colours is
// computed, and the rows are made from it.
#include <algorithm>
#include <cstring>
#include <vector>

#include "qel/controls/private/gradientsteps.h"

namespace qel {

namespace {

/// A step's strips on the line; those not used have no extent.
using TStrips = std::array<TStrip, 3>;

/// What strips are computed from: the line's length, and the plan's counts.
struct TLineSteps {
  int Length;
  int Pairs;
  int Colors;

  int Band() const { return Round(double(Length) / Pairs) + 1; }
};

/// From one end to the other. The strips that were asked for reach on, by the pair's own offset,
/// but what is further than the second next step is always painted over.
TStrips SweepStrips(const TLineSteps& line, int pair, int step) {
  const int band = line.Band();
  const int from = MulDiv(step, band, line.Colors);
  const int to = MulDiv(std::int64_t{step} + 2, band, line.Colors);
  return {{{band * pair + from, to - from}}};
}

/// From both ends to the middle. The first strip's extent is negative.
TStrips MiddleStrips(const TLineSteps& line, int pair, int step) {
  const std::int64_t next = std::int64_t{step} + 2;
  const int band = line.Band();
  const int half = Round(band / 2.0);
  const int offset = Round(band / 2.0 * pair) + 1;
  const int a = line.Length - MulDiv(step, half + 1, line.Colors);
  const int b = line.Length - MulDiv(next, half + 1, line.Colors);
  const int c = MulDiv(step, half, line.Colors);
  const int d = MulDiv(next, half, line.Colors);
  return {{{a - 1 - offset, b - a}, {offset + c, d - c + 1}}};
}

/// Three strips, by thirds of the line. The region at the far end keeps what is there.
TStrips ThirdsStrips(const TLineSteps& line, int pair, int step) {
  const int band = line.Band();
  const int third = Round(band / 3.0) + 1;
  const int offset = Round(band / 3.0 * pair) + 1;
  const int c = MulDiv(step, third, line.Colors);
  const int d = MulDiv(std::int64_t{step} + 1, third, line.Colors);
  const int middle = 2 * Round(line.Length / 3.0);
  return {{{offset + c, d - c}, {middle - d - offset, d - c}, {middle + offset + c, d - c}}};
}

struct TBars {
  TQELFillStyle FillStyle;
  bool Rows;  ///< The line runs from top to bottom: a row has one colour.
  TStrips (*Strips)(const TLineSteps& line, int pair, int step);
};
constexpr TBars BarStyles[] = {
    {Horizontal, true, SweepStrips},           {Vertical, false, SweepStrips},
    {MiddleHBar, true, MiddleStrips},          {MiddleVBar, false, MiddleStrips},
    {HorizontalDoppelBar, true, ThirdsStrips}, {VerticalDoppelBar, false, ThirdsStrips},
};

/// The colours along the line.
std::vector<TPixel> LineOf(const TGradientPlan& plan, const TBars& bars) {
  const int length = bars.Rows ? plan.Height : plan.Width;
  std::vector<TPixel> line(length, PixelOf(plan.Colors[0]));
  const TLineSteps steps{length, plan.Pairs(), plan.ColorCount};
  const auto place = [&](int pair, int step) {
    std::array<int, 6> places{};
    const TStrips strips = bars.Strips(steps, pair, step);
    for (std::size_t i = 0; i < strips.size(); ++i) {
      places[2 * i] = strips[i].At;
      places[2 * i + 1] = strips[i].Extent;
    }
    return places;
  };
  ForEachStep(plan, place, [&](int pair, int step) {
    const TPixel color = PixelOf(StepColors(plan, pair, step).Forth);
    for (const TStrip& strip : bars.Strips(steps, pair, step)) {
      const TSpan span = SpanOf(strip, length);
      if (!span.Empty()) std::fill(line.begin() + span.From, line.begin() + span.To, color);
    }
  });
  return line;
}

void FillRows(const std::vector<TPixel>& line, TSurface& surface) {
  for (int y = 0; y < surface.Height(); ++y) FillPixels(surface.Row(y), surface.Width(), line[y]);
}

void RepeatRow(const std::vector<TPixel>& line, TSurface& surface) {
  for (int y = 0; y < surface.Height(); ++y) {
    std::memcpy(surface.Row(y), line.data(), line.size() * sizeof(TPixel));
  }
}

}  // namespace

void PaintBars(const TGradientPlan& plan, TSurface& surface) {
  for (const TBars& bars : BarStyles) {
    if (bars.FillStyle != plan.FillStyle) continue;
    const std::vector<TPixel> line = LineOf(plan, bars);
    bars.Rows ? FillRows(line, surface) : RepeatRow(line, surface);
  }
}

}  // namespace qel
