// TControlScrollBar: one scroll bar of a window.
#include <algorithm>

#include "vcl/controls/private/margins.h"
#include "vcl/controls/scrolling.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

void CheckAtLeast(int value, int least, const char* what) {
  if (value >= least) return;
  throw EArgumentOutOfRangeException(
      Concat(what, " of a scroll bar cannot be ", std::to_string(value)));
}

}  // namespace

const TClass& TControlScrollBar::Class() {
  using T = TControlScrollBar;
  static const TClass info = Describe<T, TPersistent>(
      "vcl::TControlScrollBar", "vcl/controls/controls.h",
      {
          Property<&T::Increment, &T::SetIncrement>("Increment").Default(8),
          Property<&T::Margin, &T::SetMargin>("Margin").Default(0),
          // Before the position, which depends on it.
          Property<&T::Range, &T::SetRange>("Range").Default(0).StoredIf<&T::IsRangeStored>(),
          Property<&T::Position, &T::SetPosition>("Position").Default(0),
          Property<&T::Tracking, &T::SetTracking>("Tracking").Default(false),
          Property<&T::Visible, &T::SetVisible>("Visible").Default(true),
      });
  return info;
}

TControlScrollBar::TControlScrollBar(TScrollingWinControl& control, TAxis axis)
    : FControl(control), FAxis(axis) {}

void TControlScrollBar::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TControlScrollBar*>(source);
  if (!other) return TPersistent::Assign(source);
  FIncrement = other->FIncrement;
  FMargin = other->FMargin;
  FTracking = other->FTracking;
  if (other->IsRangeStored()) SetRange(other->FRange);
  SetVisible(other->FVisible);
  SetPosition(other->FPosition);
}

bool TControlScrollBar::IsRangeStored() const { return !FControl.AutoScroll(); }

void TControlScrollBar::SetIncrement(int increment) {
  CheckAtLeast(increment, 1, "The increment");
  FIncrement = increment;
}

void TControlScrollBar::SetMargin(int margin) {
  CheckAtLeast(margin, 0, "The margin");
  if (margin == FMargin) return;
  FMargin = margin;
  FControl.Realign();
}

void TControlScrollBar::SetRange(int range) {
  CheckAtLeast(range, 0, "The range");
  FControl.FAutoScroll = false;
  FRange = range;
  FControl.Realign();
}

void TControlScrollBar::SetVisible(bool visible) {
  if (visible == FVisible) return;
  FVisible = visible;
  FControl.Realign();
}

// Measures.

int TControlScrollBar::Bar() const { return Vertical() ? SB_VERT : SB_HORZ; }

int TControlScrollBar::Thickness() const {
  return ::GetSystemMetrics(Vertical() ? SM_CXVSCROLL : SM_CYHSCROLL);
}

bool TControlScrollBar::IsScrollBarVisible() const {
  if (!FControl.HandleAllocated()) return false;
  const LONG style = ::GetWindowLongW(FControl.Handle(), GWL_STYLE);
  return (style & (Vertical() ? WS_VSCROLL : WS_HSCROLL)) != 0;
}

int TControlScrollBar::Page() const { return Along(FControl.ClientRect().Size()); }
int TControlScrollBar::Last() const { return std::max(FRange - Page(), 0); }

/// Where the control's far edge is when nothing is scrolled; 0 for one that follows the window.
int TControlScrollBar::EndOf(const TControl& control) const {
  const TRect around = MarginsOf(control);
  const TRect bounds = control.BoundsRect();
  const auto nearAnchor = Vertical() ? akTop : akLeft;
  const auto farAnchor = Vertical() ? akBottom : akRight;
  const bool aligned = control.Align() == (Vertical() ? alTop : alLeft);
  const bool anchored = control.Align() == alNone && control.Anchors().Has(nearAnchor) &&
                        !control.Anchors().Has(farAnchor);
  if (!aligned && !anchored) return 0;
  return FPosition + (Vertical() ? bounds.Bottom + around.Bottom : bounds.Right + around.Right);
}

/// What the controls inside need.
int TControlScrollBar::Needed() const {
  int end = 0;
  int farSide = 0;
  for (int i = 0; i < FControl.ControlCount(); ++i) {
    const TControl& each = *FControl.Controls(i);
    if (!each.Seen()) continue;
    end = std::max(end, EndOf(each));
    if (each.Align() != (Vertical() ? alBottom : alRight)) continue;
    const TRect around = MarginsOf(each);
    farSide += Vertical() ? around.Top + each.Height() + around.Bottom
                          : around.Left + each.Width() + around.Right;
  }
  return end + farSide > 0 ? end + farSide + FMargin : 0;
}

void TControlScrollBar::CalcAutoRange() { FRange = Needed(); }

// Showing and scrolling.

void TControlScrollBar::Show(bool visible) {
  const TWatch watch(&FControl);
  if (visible != IsScrollBarVisible()) ::ShowScrollBar(FControl.Handle(), Bar(), visible);
  if (!watch.Gone()) ShowPosition();
}

void TControlScrollBar::ShowPosition() {
  if (!IsScrollBarVisible()) return;
  SCROLLINFO info{sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL, 0, 0, 0, 0, 0};
  info.nMax = std::max(FRange - 1, 0);
  info.nPage = static_cast<UINT>(Page());
  info.nPos = FPosition;
  ::SetScrollInfo(FControl.Handle(), Bar(), &info, TRUE);
}

void TControlScrollBar::SetPosition(int position) {
  if (FControl.Loading()) {
    FPosition = position;
    return;
  }
  MoveTo(std::clamp(position, 0, Last()));
}

void TControlScrollBar::MoveTo(int position) {
  if (position == FPosition) return;
  const int way = FPosition - position;
  FPosition = position;
  const TWatch watch(&FControl);
  Vertical() ? FControl.ScrollBy(0, way) : FControl.ScrollBy(way, 0);
  if (!watch.Gone()) ShowPosition();
}

void TControlScrollBar::Scroll(WPARAM code) {
  SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
  switch (code) {
    case SB_LINEUP: return SetPosition(FPosition - FIncrement);
    case SB_LINEDOWN: return SetPosition(FPosition + FIncrement);
    case SB_PAGEUP: return SetPosition(FPosition - Page());
    case SB_PAGEDOWN: return SetPosition(FPosition + Page());
    case SB_TOP: return SetPosition(0);
    case SB_BOTTOM: return SetPosition(FRange);
    case SB_THUMBTRACK:
      if (!FTracking) return;
      [[fallthrough]];
    case SB_THUMBPOSITION:
      // The message has room for 16 bits of the position only.
      if (::GetScrollInfo(FControl.Handle(), Bar(), &info)) SetPosition(info.nTrackPos);
      return;
    default: return;
  }
}

void TControlScrollBar::BringIntoView(int from, int to) {
  const int page = Page();
  if (from < FMargin || to - from > page) return SetPosition(FPosition + from - FMargin);
  if (to > page - FMargin) SetPosition(FPosition + to - page + FMargin);
}

}  // namespace vcl
