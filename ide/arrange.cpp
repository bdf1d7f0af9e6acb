// Computing the places of rectangles that are aligned, spaced and sized.
#include "ide/arrange.h"

#include <algorithm>

namespace ide {

using namespace vcl;

namespace {

/// One direction of a rectangle.
struct TSpan {
  int TRect::*Low;
  int TRect::*High;

  int Length(const TRect& r) const { return r.*High - r.*Low; }
  void MoveTo(TRect& r, int low) const {
    const int length = Length(r);
    r.*Low = low;
    r.*High = low + length;
  }
};
constexpr TSpan Horizontal{&TRect::Left, &TRect::Right};
constexpr TSpan Vertical{&TRect::Top, &TRect::Bottom};

void Level(std::vector<TRect>& rects, const TSpan& span, TArrangement arrangement) {
  const TRect first = rects.front();
  for (TRect& each : rects) {
    const int excess = span.Length(first) - span.Length(each);
    const int low = first.*span.Low;
    span.MoveTo(each, arrangement == TArrangement::Low      ? low
                      : arrangement == TArrangement::Middle ? low + excess / 2
                                                            : low + excess);
  }
}

void Spread(std::vector<TRect>& rects, const TSpan& span) {
  std::vector<TRect*> order;
  for (TRect& each : rects) order.push_back(&each);
  std::ranges::stable_sort(order, {}, [&](const TRect* each) { return each->*span.Low; });
  const int gaps = static_cast<int>(order.size()) - 1;
  if (gaps < 2) return;
  const int from = order.front()->*span.Low;
  const int way = order.back()->*span.Low - from;
  for (int i = 1; i < gaps; ++i) {
    span.MoveTo(*order[static_cast<std::size_t>(i)], from + way * i / gaps);
  }
}

void Centre(std::vector<TRect>& rects, const TSpan& span, int around) {
  int low = rects.front().*span.Low;
  int high = rects.front().*span.High;
  for (const TRect& each : rects) {
    low = std::min(low, each.*span.Low);
    high = std::max(high, each.*span.High);
  }
  const int by = (around - (high - low)) / 2 - low;
  for (TRect& each : rects) span.MoveTo(each, each.*span.Low + by);
}

void Arrange(std::vector<TRect>& rects, const TSpan& span, TArrangement arrangement, int around) {
  switch (arrangement) {
    case TArrangement::None: return;
    case TArrangement::Spread: return Spread(rects, span);
    case TArrangement::Centre: return Centre(rects, span, around);
    case TArrangement::Low:
    case TArrangement::Middle:
    case TArrangement::High: Level(rects, span, arrangement);
  }
}

void Size(std::vector<TRect>& rects, const TSpan& span, TSizing sizing) {
  if (sizing == TSizing::None) return;
  int length = span.Length(rects.front());
  for (const TRect& each : rects) {
    if (sizing == TSizing::Smallest) length = std::min(length, span.Length(each));
    if (sizing == TSizing::Largest) length = std::max(length, span.Length(each));
  }
  for (TRect& each : rects) each.*span.High = each.*span.Low + length;
}

}  // namespace

void ArrangeRects(std::vector<TRect>& rects, TArrangement horizontal, TArrangement vertical,
                  TSize around) {
  if (rects.empty()) return;
  Arrange(rects, Horizontal, horizontal, around.cx);
  Arrange(rects, Vertical, vertical, around.cy);
}

void SizeRects(std::vector<TRect>& rects, TSizing horizontal, TSizing vertical) {
  if (rects.empty()) return;
  Size(rects, Horizontal, horizontal);
  Size(rects, Vertical, vertical);
}

}  // namespace ide
