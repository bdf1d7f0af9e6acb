// The effects, a function each, and the table of them.
#include "qel/controls/private/slideeffects.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace qel {
namespace {

using vcl::TSize;

using TEffect = void (*)(TSize size, double progress, TSlideMix& mix);

int Part(int whole, double progress) {
  return static_cast<int>(std::lround(static_cast<double>(whole) * progress));
}

void None(TSize size, double, TSlideMix& mix) { mix.Shown = {{0, 0, size.cx, size.cy}}; }

void Fade(TSize size, double progress, TSlideMix& mix) {
  None(size, progress, mix);
  mix.Opacity = Part(255, progress);
}

void WipeLeft(TSize size, double progress, TSlideMix& mix) {
  mix.Shown = {{size.cx - Part(size.cx, progress), 0, size.cx, size.cy}};
}

void WipeRight(TSize size, double progress, TSlideMix& mix) {
  mix.Shown = {{0, 0, Part(size.cx, progress), size.cy}};
}

void WipeUp(TSize size, double progress, TSlideMix& mix) {
  mix.Shown = {{0, size.cy - Part(size.cy, progress), size.cx, size.cy}};
}

void WipeDown(TSize size, double progress, TSlideMix& mix) {
  mix.Shown = {{0, 0, size.cx, Part(size.cy, progress)}};
}

void PushLeft(TSize size, double progress, TSlideMix& mix) {
  WipeLeft(size, progress, mix);
  mix.Old.X = -Part(size.cx, progress);
  mix.New.X = size.cx + mix.Old.X;
}

void PushRight(TSize size, double progress, TSlideMix& mix) {
  WipeRight(size, progress, mix);
  mix.Old.X = Part(size.cx, progress);
  mix.New.X = mix.Old.X - size.cx;
}

/// The edges of `count` equal parts.
int Edge(int whole, int index, int count) {
  return static_cast<int>(std::int64_t{whole} * index / count);
}

void Blinds(TSize size, double progress, TSlideMix& mix) {
  constexpr int slats = 8;
  for (int i = 0; i < slats; ++i) {
    const int top = Edge(size.cy, i, slats);
    const int height = Edge(size.cy, i + 1, slats) - top;
    mix.Shown.push_back({0, top, size.cx, top + Part(height, progress)});
  }
}

/// Every other field opens in the first half of the time, the rest in the second.
void Checker(TSize size, double progress, TSlideMix& mix) {
  constexpr int columns = 8, rows = 6;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      const double later = (row + column) % 2 == 0 ? 0 : 1;
      const double own = std::clamp(progress * 2 - later, 0.0, 1.0);
      const int left = Edge(size.cx, column, columns);
      const int width = Edge(size.cx, column + 1, columns) - left;
      mix.Shown.push_back(
          {left, Edge(size.cy, row, rows), left + Part(width, own), Edge(size.cy, row + 1, rows)});
    }
  }
}

/// When the field appears, between 0 and 1: the same at each moment of an effect, and scattered.
double Moment(std::uint32_t field) {
  std::uint32_t mixed = (field + 1) * 0x9E3779B1u;
  mixed = (mixed ^ (mixed >> 15)) * 0x85EBCA77u;
  mixed ^= mixed >> 13;
  return (mixed + 0.5) / 4294967296.0;
}

void Dissolve(TSize size, double progress, TSlideMix& mix) {
  constexpr int side = 16;
  std::uint32_t field = 0;
  for (int top = 0; top < size.cy; top += side) {
    for (int left = 0; left < size.cx; left += side) {
      if (Moment(field++) > progress) continue;
      mix.Shown.push_back(
          {left, top, std::min(left + side, size.cx), std::min(top + side, size.cy)});
    }
  }
}

void Box(TSize size, double progress, TSlideMix& mix) {
  const int width = Part(size.cx, progress), height = Part(size.cy, progress);
  mix.Shown = {vcl::Bounds((size.cx - width) / 2, (size.cy - height) / 2, width, height)};
}

/// By TQELSlideEffect.
constexpr TEffect Effects[] = {None,     Fade,      WipeLeft, WipeRight, WipeUp,   WipeDown,
                               PushLeft, PushRight, Blinds,   Checker,   Dissolve, Box};

}  // namespace

TSlideMix MixSlides(TQELSlideEffect effect, TSize size, double progress) {
  TSlideMix mix;
  const bool known = effect >= 0 && effect < static_cast<int>(std::size(Effects));
  Effects[known ? effect : seNone](size, std::clamp(progress, 0.0, 1.0), mix);
  return mix;
}

}  // namespace qel
