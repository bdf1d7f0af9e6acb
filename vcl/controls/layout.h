// How a control keeps its place when its parent changes: anchors, limits of its size, the distances
// that aligned controls keep.
#pragma once

#include <functional>

#include "vcl/controls/scaling.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/persistent.h"
#include "vcl/rtl/sets.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

enum TAnchorKind { akLeft, akTop, akRight, akBottom };
template <>
inline constexpr TEnumText EnumText<TAnchorKind>{"TAnchorKind", "akLeft akTop akRight akBottom",
                                                 "TAnchors"};
using TAnchors = TSet<TAnchorKind>;

/// The least and the most that a control's width and height may be, in pixels; 0 is no limit. Of a
/// least and a most that contradict each other, the one that is set last moves the other. Negative
/// values raise EArgumentOutOfRangeException.
class VCL_API TSizeConstraints : public TPersistent {
 public:
  /// `changed` is called after each change.
  explicit TSizeConstraints(std::function<void()> changed = nullptr);
  ~TSizeConstraints() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;

  int MaxHeight() const { return FHeight.Most; }
  /// The greatest height in pixels, which lowers MinHeight where that is more; 0 for no limit.
  void SetMaxHeight(int height) { SetMost(FHeight, height); }
  int MaxWidth() const { return FWidth.Most; }
  /// The greatest width in pixels, which lowers MinWidth where that is more; 0 for no limit.
  void SetMaxWidth(int width) { SetMost(FWidth, width); }
  int MinHeight() const { return FHeight.Least; }
  /// The least height in pixels, which raises MaxHeight where there is one that is less.
  void SetMinHeight(int height) { SetLeast(FHeight, height); }
  int MinWidth() const { return FWidth.Least; }
  /// The least width in pixels, which raises MaxWidth where there is one that is less.
  void SetMinWidth(int width) { SetLeast(FWidth, width); }

  /// All four by m / d, rounded; scaled back they are what they were. Without a notice.
  void Scale(int m, int d);

 private:
  struct TLimits {
    int Least = 0;
    int Most = 0;
  };
  void SetLeast(TLimits& limits, int value);
  void SetMost(TLimits& limits, int value);
  void Changed() const;

  TLimits FWidth;
  TLimits FHeight;
  TScaledMeasure FScaled[4];
  std::function<void()> FChanged;
};

/// Four distances from the edges of a rectangle, in pixels.
class VCL_API TEdges : public TPersistent {
 public:
  ~TEdges() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;

  int Left() const { return FEdges.Left; }
  /// The distance from the left edge, in pixels.
  void SetLeft(int left) { Set(FEdges.Left, left); }
  int Top() const { return FEdges.Top; }
  /// The distance from the top edge, in pixels.
  void SetTop(int top) { Set(FEdges.Top, top); }
  int Right() const { return FEdges.Right; }
  /// The distance from the right edge, in pixels.
  void SetRight(int right) { Set(FEdges.Right, right); }
  int Bottom() const { return FEdges.Bottom; }
  /// The distance from the bottom edge, in pixels.
  void SetBottom(int bottom) { Set(FEdges.Bottom, bottom); }
  /// All four at once, with one notice.
  void SetEdges(int left, int top, int right, int bottom);

  /// The rectangle without what the distances take of it.
  TRect Inside(const TRect& rect) const;
  /// All four by m / d, rounded; scaled back they are what they were. Without a notice.
  void Scale(int m, int d);

 protected:
  TEdges(int all, std::function<void()> changed);

 private:
  void Set(int& edge, int value);
  void Changed() const;

  TRect FEdges;
  TScaledMeasure FScaled[4];
  std::function<void()> FChanged;
};

/// What an aligned control with AlignWithMargins keeps free around itself; 3 pixels at first.
class VCL_API TMargins : public TEdges {
 public:
  explicit TMargins(std::function<void()> changed = nullptr);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

/// What a control keeps free inside itself of the controls that are aligned there.
class VCL_API TPadding : public TEdges {
 public:
  explicit TPadding(std::function<void()> changed = nullptr);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
