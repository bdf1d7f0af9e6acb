// TControl: anchors, the limits of its size, margins.
#include <algorithm>
#include <cmath>

#include "vcl/controls/control.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/scope.h"

namespace vcl {

// Limits.

TSizeConstraints* TControl::Constraints() const {
  if (!FConstraints) {
    FConstraints = std::make_unique<TSizeConstraints>(
        [self = const_cast<TControl*>(this)] { self->LimitsChanged(); });
  }
  return FConstraints.get();
}

void TControl::SetConstraints(const TSizeConstraints* constraints) {
  Constraints()->Assign(constraints);
}

void TControl::LimitsChanged() {
  if (!Loading()) SetBounds(FLeft, FTop, FWidth, FHeight);
}

TSize TControl::ConstrainedSize(int width, int height) {
  int least[2] = {0, 0};
  int most[2] = {0, 0};
  if (FConstraints) {
    least[0] = FConstraints->MinWidth();
    least[1] = FConstraints->MinHeight();
    most[0] = FConstraints->MaxWidth();
    most[1] = FConstraints->MaxHeight();
  }
  if (OnConstrainedResize && !Loading()) {
    OnConstrainedResize(this, least[0], least[1], most[0], most[1]);
  }
  const auto within = [&](int size, int axis) {
    if (most[axis] > 0) size = std::min(size, most[axis]);
    return std::max({size, least[axis], 0});
  };
  return {within(width, 0), within(height, 1)};
}

// Margins.

TMargins* TControl::Margins() const {
  if (!FMargins) {
    FMargins = std::make_unique<TMargins>([self = const_cast<TControl*>(this)] {
      if (self->FAlignWithMargins) self->RequestAlign();
    });
  }
  return FMargins.get();
}

void TControl::SetMargins(const TMargins* margins) { Margins()->Assign(margins); }

void TControl::SetAlignWithMargins(bool alignWithMargins) {
  if (alignWithMargins == FAlignWithMargins) return;
  FAlignWithMargins = alignWithMargins;
  RequestAlign();
}

// Anchors.

void TControl::SetAnchors(TAnchors anchors) {
  if (anchors == FAnchors) return;
  FAnchors = anchors;
  KeepPlace();
  if (!Loading()) RequestAlign();
}

namespace {

/// Where an edge pair lies.
struct TSpan {
  int Begin;
  int End;
  bool operator==(const TSpan&) const = default;
};

/// Which edges of its parent an edge pair follows.
struct TSides {
  bool Begin;
  bool End;
};

/// Where it lies when the parent's inside has become another.
TSpan Anchored(TSpan span, TSides to, int before, int now) {
  const int grown = now - before;
  if (to.Begin && to.End) return {span.Begin, std::max(span.End + grown, span.Begin)};
  if (to.Begin) return span;
  if (to.End) return {span.Begin + grown, span.End + grown};
  // Between the edges the middle keeps its share of the way.
  const int size = span.End - span.Begin;
  if (before == 0) return span;
  const double twice = (double(span.Begin) + span.End) * now - double(size) * before;
  const auto begin = static_cast<int>(std::lround(twice / (2.0 * before)));
  return {begin, begin + size};
}

/// What would have come there from. What counts from the same inside as before stays the same in
/// the direction that nobody has moved it.
void KeepSpan(TSpan& kept, int& before, TSpan span, TSides to, int now) {
  if (Anchored(kept, to, before, now) == span) return;
  const int grown = to.Begin || to.End ? now - before : 0;
  kept = {to.Begin ? span.Begin : span.Begin - grown, to.End ? span.End - grown : span.End};
  before = now - grown;
}

}  // namespace

int TControl::FileLeft() const { return FLeft + (FParent ? FParent->ScrollOffset().X : 0); }
int TControl::FileTop() const { return FTop + (FParent ? FParent->ScrollOffset().Y : 0); }
void TControl::SetFileLeft(int left) { SetLeft(left - (FileLeft() - FLeft)); }
void TControl::SetFileTop(int top) { SetTop(top - (FileTop() - FTop)); }

/// Moves the control with all that its parent holds, which is no news to the anchors.
void TControl::ScrollBounds(int dx, int dy) {
  const TSetFor anchoring(FAnchoring, true, this);
  FPlace.Bounds.Offset(dx, dy);
  SetBounds(FLeft + dx, FTop + dy, FWidth, FHeight);
}

/// Remembers the control's place as the one that the anchors keep.
void TControl::KeepPlace() {
  if (FAnchoring || !FParent || FAnchors == TAnchors{akLeft, akTop}) return;
  const TWinControl& giver = *FParent->SizeGiver();
  if (&giver != FParent && giver.Loading()) return;  // The parent has no size yet.
  const TSize inside = FParent->ClientRect().Size();
  const bool window = giver.HandleAllocated();
  if (!FPlace.Known || FPlace.WithWindow != window) {
    FPlace.Bounds = BoundsRect();
    FPlace.Inside = inside;
  }
  TSpan x{FPlace.Bounds.Left, FPlace.Bounds.Right};
  TSpan y{FPlace.Bounds.Top, FPlace.Bounds.Bottom};
  KeepSpan(x, FPlace.Inside.cx, {FLeft, FLeft + FWidth},
           {FAnchors.Has(akLeft), FAnchors.Has(akRight)}, inside.cx);
  KeepSpan(y, FPlace.Inside.cy, {FTop, FTop + FHeight},
           {FAnchors.Has(akTop), FAnchors.Has(akBottom)}, inside.cy);
  FPlace.Bounds = {x.Begin, y.Begin, x.End, y.End};
  FPlace.Parent = {giver.Width(), giver.Height()};
  FPlace.WithWindow = window;
  FPlace.Known = true;
}

void TControl::MoveByAnchors(TSize inside) {
  if (FAnchors == TAnchors{akLeft, akTop}) return;
  const TWinControl& giver = *FParent->SizeGiver();
  const TSize parent{giver.Width(), giver.Height()};
  // The parent's window has been made since: its border takes what was counted as its inside.
  const bool onlyBorder =
      FPlace.Known && !FPlace.WithWindow && giver.HandleAllocated() && parent == FPlace.Parent;
  if (!FPlace.Known || onlyBorder) return KeepPlace();
  const TRect& kept = FPlace.Bounds;
  const TSpan x = Anchored({kept.Left, kept.Right}, {FAnchors.Has(akLeft), FAnchors.Has(akRight)},
                           FPlace.Inside.cx, inside.cx);
  const TSpan y = Anchored({kept.Top, kept.Bottom}, {FAnchors.Has(akTop), FAnchors.Has(akBottom)},
                           FPlace.Inside.cy, inside.cy);
  if (!giver.HandleAllocated()) FPlace.Parent = parent;
  const TSetFor anchoring(FAnchoring, true, this);
  SetBounds(x.Begin, y.Begin, x.End - x.Begin, y.End - y.Begin);
}

}  // namespace vcl
