// The gradients made of rectangles inside each other: LeftBottom and SquareMiddle.
//
// While each rectangle lies within the one before, what a pixel shows is the last rectangle that it
// is in: the earlier one of the last that its column is in and the last that its row is in. So a
// row is the row of all columns' colours, with the middle replaced by its own colour.
#include <algorithm>
#include <cstring>
#include <vector>

#include "qel/controls/private/gradientsteps.h"

namespace qel {

namespace {

struct TBox {
  TSpan X;
  TSpan Y;
  TPixel Color = 0;
};
/// Left, top, width, height.
using TPlace = std::array<int, 4>;

TPlace CornerPlace(const TGradientPlan& plan, int pair, int step) {
  const int bandY = Round(double(plan.Height) / plan.Pairs()) + 1;
  const int bandX = Round(double(plan.Width) / plan.Pairs()) + 1;
  const int x = MulDiv(step, bandX, plan.ColorCount);
  const int y = MulDiv(step, bandY, plan.ColorCount);
  return {bandX * pair + x, bandY * pair + y, plan.Width - x, plan.Height - y};
}

TPlace MiddlePlace(const TGradientPlan& plan, int pair, int step) {
  const int bandY = Round(double(plan.Height) / plan.Pairs());
  const int bandX = Round(double(plan.Width) / plan.Pairs());
  const int offsetY = Round(bandY / 2.0 * pair);
  const int offsetX = Round(bandX / 2.0 * pair);
  const int x = MulDiv(step, Round(bandX / 2.0), plan.ColorCount);
  const int y = MulDiv(step, Round(bandY / 2.0), plan.ColorCount);
  return {offsetX + x, offsetY + y, plan.Width - 2 * x - 2 * offsetX,
          plan.Height - 2 * y - 2 * offsetY};
}

/// The boxes in the order of painting, clipped to the area; the first is the whole area.
std::vector<TBox> BoxesOf(const TGradientPlan& plan) {
  std::vector<TBox> boxes{{{0, plan.Width}, {0, plan.Height}, PixelOf(plan.Colors[0])}};
  const auto place = [&](int pair, int step) {
    return plan.FillStyle == LeftBottom ? CornerPlace(plan, pair, step)
                                        : MiddlePlace(plan, pair, step);
  };
  ForEachStep(plan, place, [&](int pair, int step) {
    const auto [left, top, width, height] = place(pair, step);
    const TBox box{SpanOf({left, width}, plan.Width), SpanOf({top, height}, plan.Height),
                   PixelOf(StepColors(plan, pair, step).Forth)};
    if (!box.X.Empty() && !box.Y.Empty()) boxes.push_back(box);
  });
  return boxes;
}

/// How many boxes, from the first on, lie each within the one before.
std::size_t CountNested(const std::vector<TBox>& boxes) {
  std::size_t count = 1;
  while (count < boxes.size() && boxes[count].X.Within(boxes[count - 1].X) &&
         boxes[count].Y.Within(boxes[count - 1].Y)) {
    ++count;
  }
  return count;
}

/// The last of the first `count` boxes that each place of a row (resp. column) is in.
std::vector<std::size_t> LastBoxes(const std::vector<TBox>& boxes, std::size_t count,
                                   TSpan TBox::*axis) {
  const auto length = static_cast<std::size_t>((boxes[0].*axis).To);
  std::vector<std::size_t> last(length, count - 1);
  for (std::size_t i = 1; i < count; ++i) {
    const TSpan& outer = boxes[i - 1].*axis;
    const TSpan& inner = boxes[i].*axis;
    std::fill(last.begin() + outer.From, last.begin() + inner.From, i - 1);
    std::fill(last.begin() + inner.To, last.begin() + outer.To, i - 1);
  }
  return last;
}

void PaintNested(const std::vector<TBox>& boxes, std::size_t count, TSurface& surface) {
  std::vector<TPixel> columns;
  for (std::size_t i : LastBoxes(boxes, count, &TBox::X)) columns.push_back(boxes[i].Color);
  const std::vector<std::size_t> rows = LastBoxes(boxes, count, &TBox::Y);
  const std::size_t bytes = columns.size() * sizeof(TPixel);
  for (std::size_t y = 0; y < rows.size(); ++y) {
    TPixel* row = surface.Row(static_cast<int>(y));
    if (y > 0 && rows[y] == rows[y - 1]) {
      std::memcpy(row, row - columns.size(), bytes);
      continue;
    }
    const TBox& box = boxes[rows[y]];
    std::memcpy(row, columns.data(), bytes);
    FillPixels(row + box.X.From, box.X.To - box.X.From, box.Color);
  }
}

void PaintBox(const TBox& box, TSurface& surface) {
  for (int y = box.Y.From; y < box.Y.To; ++y) {
    FillPixels(surface.Row(y) + box.X.From, box.X.To - box.X.From, box.Color);
  }
}

}  // namespace

void PaintSquares(const TGradientPlan& plan, TSurface& surface) {
  const std::vector<TBox> boxes = BoxesOf(plan);
  const std::size_t nested = CountNested(boxes);
  PaintNested(boxes, nested, surface);
  // Past the middle, rounding can turn the last rectangles inside out.
  for (std::size_t i = nested; i < boxes.size(); ++i) PaintBox(boxes[i], surface);
}

}  // namespace qel
