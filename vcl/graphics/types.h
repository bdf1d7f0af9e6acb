// Points, sizes and rectangles, in pixels.
#pragma once

#include <type_traits>

#include "vcl/rtl/systemtypes.h"

namespace vcl {

struct TPoint {
  int X = 0;
  int Y = 0;

  constexpr TPoint() = default;
  constexpr TPoint(int x, int y) : X(x), Y(y) {}
  // Implicit both ways, so that a point goes into and comes out of a system call as it is;
  // templates, because only callers of the system know what a POINT holds.
  template <class P, class = std::enable_if_t<std::is_same_v<P, POINT>>>
  constexpr TPoint(const P& p)  // NOLINT(google-explicit-constructor)
      : X(static_cast<int>(p.x)), Y(static_cast<int>(p.y)) {}
  template <class P, class = std::enable_if_t<std::is_same_v<P, POINT>>>
  constexpr operator P() const {  // NOLINT(google-explicit-constructor)
    return {X, Y};
  }

  friend constexpr bool operator==(const TPoint&, const TPoint&) = default;
  friend constexpr TPoint operator+(TPoint a, TPoint b) { return {a.X + b.X, a.Y + b.Y}; }
  friend constexpr TPoint operator-(TPoint a, TPoint b) { return {a.X - b.X, a.Y - b.Y}; }
};

struct TSize {
  int cx = 0;
  int cy = 0;

  friend constexpr bool operator==(const TSize&, const TSize&) = default;
};

/// A rectangle whose right column and bottom row are the first ones outside.
struct TRect {
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;

  constexpr TRect() = default;
  constexpr TRect(int left, int top, int right, int bottom)
      : Left(left), Top(top), Right(right), Bottom(bottom) {}
  template <class R, class = std::enable_if_t<std::is_same_v<R, RECT>>>
  constexpr TRect(const R& r)  // NOLINT(google-explicit-constructor): see TPoint.
      : Left(static_cast<int>(r.left)),
        Top(static_cast<int>(r.top)),
        Right(static_cast<int>(r.right)),
        Bottom(static_cast<int>(r.bottom)) {}
  template <class R, class = std::enable_if_t<std::is_same_v<R, RECT>>>
  constexpr operator R() const {  // NOLINT(google-explicit-constructor)
    return {Left, Top, Right, Bottom};
  }

  constexpr int Width() const { return Right - Left; }
  constexpr int Height() const { return Bottom - Top; }
  constexpr TSize Size() const { return {Width(), Height()}; }
  constexpr TPoint TopLeft() const { return {Left, Top}; }
  constexpr TPoint BottomRight() const { return {Right, Bottom}; }
  /// True when no pixel is inside.
  constexpr bool Empty() const { return Right <= Left || Bottom <= Top; }
  constexpr bool Contains(TPoint p) const {
    return p.X >= Left && p.X < Right && p.Y >= Top && p.Y < Bottom;
  }
  /// Moves the rectangle.
  constexpr void Offset(int dx, int dy) { Left += dx, Right += dx, Top += dy, Bottom += dy; }
  /// Moves each side outwards; negative values shrink it.
  constexpr void Inflate(int dx, int dy) { Left -= dx, Right += dx, Top -= dy, Bottom += dy; }

  friend constexpr bool operator==(const TRect&, const TRect&) = default;
};

constexpr TPoint Point(int x, int y) { return {x, y}; }
constexpr TRect Rect(int left, int top, int right, int bottom) {
  return {left, top, right, bottom};
}
/// The rectangle of that place and size.
constexpr TRect Bounds(int left, int top, int width, int height) {
  return {left, top, left + width, top + height};
}
/// The common part of the two; an empty rectangle at 0, 0 when there is none.
constexpr TRect Intersection(const TRect& a, const TRect& b) {
  const TRect r(a.Left > b.Left ? a.Left : b.Left, a.Top > b.Top ? a.Top : b.Top,
                a.Right < b.Right ? a.Right : b.Right, a.Bottom < b.Bottom ? a.Bottom : b.Bottom);
  return r.Empty() ? TRect() : r;
}

}  // namespace vcl
