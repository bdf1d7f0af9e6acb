// TScrollBar: the system's scroll bar, and what the user does to it.
#include "vcl/stdctrls/scrollbar.h"

#include <algorithm>
#include <cstdint>

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TScrollBar::Class() {
  using T = TScrollBar;
  static const TClass info = Describe<T, TRangeControl>(
      "vcl::TScrollBar", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Align"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::Kind, &T::SetKind>("Kind").Default(sbHorizontal),
          Property<&T::LargeChange, &T::SetLargeChange>("LargeChange").Default(1),
          Inherit("Max"),
          Inherit("Min"),
          Property<&T::PageSize, &T::SetPageSize>("PageSize").Default(0),
          Inherit("ParentCtl3D"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("Position"),
          Inherit("ShowHint"),
          Property<&T::SmallChange, &T::SetSmallChange>("SmallChange").Default(1),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Event<&T::OnChange>("OnChange"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
          Event<&T::OnScroll>("OnScroll"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TScrollBar::TScrollBar(TComponent* owner) : TRangeControl(owner, 100) {
  SetControlStyle({csFramed, csDoubleClicks});
  SetBounds(0, 0, 121, ::GetSystemMetrics(SM_CYHSCROLL));
  SetTabStop(true);
}

void TScrollBar::SetKind(TScrollBarKind kind) {
  if (kind == FKind) return;
  FKind = kind;
  // What lay is now upright; a form file gives the bounds for what it has.
  if (!Loading()) SetBounds(Left(), Top(), Height(), Width());
  RecreateWnd();
}

void TScrollBar::SetPageSize(int pageSize) {
  if (pageSize < 0) {
    throw EArgumentOutOfRangeException(
        Concat("The thumb of a scroll bar cannot cover ", std::to_string(pageSize)));
  }
  if (pageSize == FPageSize) return;
  FPageSize = pageSize;
  if (HandleAllocated()) SendRange();
}

void TScrollBar::SendRange() {
  const SCROLLINFO info{sizeof info,
                        SIF_RANGE | SIF_PAGE | SIF_POS,
                        Min(),
                        Max(),
                        static_cast<UINT>(FPageSize),
                        Position(),
                        0};
  ::SetScrollInfo(Handle(), SB_CTL, &info, TRUE);
}

void TScrollBar::SendPosition() {
  const SCROLLINFO info{sizeof info, SIF_POS, 0, 0, 0, Position(), 0};
  ::SetScrollInfo(Handle(), SB_CTL, &info, TRUE);
}

void TScrollBar::Change() {
  TRangeControl::Change();
  OnChange(this);
}

void TScrollBar::CreateParams(TCreateParams& params) {
  TRangeControl::CreateParams(params);
  params.SubClassOf = "SCROLLBAR";
  params.Style |= FKind == sbVertical ? SBS_VERT : SBS_HORZ;
}

// What the user does.

/// As far as the thumb lets the user go.
int TScrollBar::LastForUser() const {
  const std::int64_t last = std::int64_t{Max()} - std::max(FPageSize - 1, 0);
  return static_cast<int>(std::max<std::int64_t>(last, Min()));
}

int TScrollBar::PositionBy(TScrollCode code) const {
  SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
  std::int64_t to = Position();
  switch (code) {
    case scLineUp: to -= FSmallChange; break;
    case scLineDown: to += FSmallChange; break;
    case scPageUp: to -= FLargeChange; break;
    case scPageDown: to += FLargeChange; break;
    case scPosition:
    case scTrack:
      // The message has room for 16 bits of the position only.
      ::GetScrollInfo(const_cast<TScrollBar*>(this)->Handle(), SB_CTL, &info);
      to = info.nTrackPos;
      break;
    case scTop: to = Min(); break;
    case scBottom: to = Max(); break;
    case scEndScroll: break;
  }
  return static_cast<int>(std::clamp<std::int64_t>(to, Min(), LastForUser()));
}

void TScrollBar::Scroll(TScrollCode code, int& position) { OnScroll(this, code, position); }

void TScrollBar::MoveByUser(TScrollCode code) {
  const TWatch watch(this);
  int position = code == scEndScroll ? Position() : PositionBy(code);
  Scroll(code, position);
  if (!watch.Gone()) SetPosition(position);
}

bool TScrollBar::DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) {
  const TWatch watch(this);
  if (TRangeControl::DoMouseWheel(shift, wheelDelta, mousePos) || watch.Gone()) return true;
  constexpr int step = WHEEL_DELTA / 3;
  FWheelRest += wheelDelta;
  while (!watch.Gone() && std::abs(FWheelRest) >= step) {
    const bool up = FWheelRest > 0;
    FWheelRest += up ? -step : step;
    MoveByUser(up ? scLineUp : scLineDown);
  }
  return true;
}

void TScrollBar::Dispatch(TMessage& message) {
  if (message.Msg != CN_HSCROLL && message.Msg != CN_VSCROLL) {
    return TRangeControl::Dispatch(message);
  }
  switch (LOWORD(message.WParam)) {
    case SB_LINEUP: return MoveByUser(scLineUp);
    case SB_LINEDOWN: return MoveByUser(scLineDown);
    case SB_PAGEUP: return MoveByUser(scPageUp);
    case SB_PAGEDOWN: return MoveByUser(scPageDown);
    case SB_THUMBPOSITION: return MoveByUser(scPosition);
    case SB_THUMBTRACK: return MoveByUser(scTrack);
    case SB_TOP: return MoveByUser(scTop);
    case SB_BOTTOM: return MoveByUser(scBottom);
    case SB_ENDSCROLL: return MoveByUser(scEndScroll);
    default: return;
  }
}

void TScrollBar::DescribeAccessible(TAccessibleInfo& info) const {
  TRangeControl::DescribeAccessible(info);
  info.Role = arScrollBar;
}

}  // namespace vcl
