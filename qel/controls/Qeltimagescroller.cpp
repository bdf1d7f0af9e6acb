// TQELImageScroller: where its picture is, moving and painting it.
#include "qel/controls/Qeltimagescroller.h"

#include <algorithm>
#include <cmath>

#include "qel/controls/private/focusmark.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;
using vcl::TWatch;

const vcl::TClass& TQELImageScroller::Class() {
  using T = TQELImageScroller;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELImageScroller", "qel/controls/Qeltimagescroller.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Background"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Property<&T::Picture, &T::SetPicture>("Picture"),
          Property<&T::ScrollDirection, &T::SetScrollDirection>("ScrollDirection")
              .Default(kHorizontal),
          Property<&T::Active, &T::SetActive>("Active").Default(false),
          Property<&T::Step, &T::SetStep>("Step").Default(1),
          Property<&T::Interval, &T::SetInterval>("Interval").Default(20),
          Property<&T::Wrap, &T::SetWrap>("Wrap").Default(true),
          Property<&T::Draggable, &T::SetDraggable>("Draggable").Default(true),
          Property<&T::StopOnHover, &T::SetStopOnHover>("StopOnHover").Default(false),
          Property<&T::Position, &T::SetPosition>("Position").Default(0),
          Event<&T::OnWrap>("OnWrap"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELImageScroller::TQELImageScroller(vcl::TComponent* owner)
    : TQELCustomControl(owner),
      FPicture(std::make_unique<vcl::TPicture>()),
      FMotion(*this, [this](double passed) { Tick(passed); }) {
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csOpaque});
  SetBounds(0, 0, 200, 60);
  FPicture->OnChange = {this, &TQELImageScroller::PictureChanged};
  HearOnlyAsked<TQELImageScroller>();
}

TQELImageScroller::~TQELImageScroller() {
  AnnounceEnd();
  FPicture->OnChange.Clear();
}

void TQELImageScroller::PictureChanged(vcl::TObject* /*sender*/) {
  UpdateMotion();
  Invalidate();
}

void TQELImageScroller::SetScrollDirection(TQELKind direction) {
  FScrollDirection = direction;
  Invalidate();
}

void TQELImageScroller::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  FRest = 0;
  UpdateMotion();
  AccessibleChanged(vcl::acState);
}

void TQELImageScroller::SetInterval(int milliseconds) {
  if (milliseconds > 0) FInterval = milliseconds;
}

void TQELImageScroller::SetWrap(bool wrap) {
  FWrap = wrap;
  Invalidate();
}

void TQELImageScroller::SetStopOnHover(bool stop) {
  FStopOnHover = stop;
  UpdateMotion();
}

void TQELImageScroller::UpdateMotion() {
  const bool held = FDragging || (FStopOnHover && FHovered);
  FMotion.SetActive(FActive && !held && Enabled() && FPicture->Width() > 0);
}

// Where the picture is.

int TQELImageScroller::Along(TPoint point) const {
  return FScrollDirection == kHorizontal ? point.X : point.Y;
}

int TQELImageScroller::Extent() const { return Along({FPicture->Width(), FPicture->Height()}); }
int TQELImageScroller::Room() const { return Along({ClientWidth(), ClientHeight()}); }

/// A position as it counts; any while there is no picture, as form files give it first.
int TQELImageScroller::Normal(int position) const {
  const int extent = Extent();
  if (extent < 1) return position;
  if (!FWrap) return std::clamp(position, 0, std::max(extent - Room(), 0));
  return (position % extent + extent) % extent;
}

void TQELImageScroller::SetPosition(int position) {
  const int from = FPosition;
  FPosition = Normal(position);
  if (FPosition != from) ShowMove(from);
}

/// Also tells of a new round; false when the control has been freed by that.
bool TQELImageScroller::MoveTo(int position) {
  const TWatch watch(this);
  const int extent = Extent();
  const bool wraps = FWrap && extent > 0 && (position < 0 || position >= extent);
  SetPosition(position);
  if (wraps) OnWrap(this);
  return !watch.Gone();
}

void TQELImageScroller::Tick(double milliseconds) {
  FRest += milliseconds * FStep / FInterval;
  const double whole = std::trunc(FRest);
  FRest -= whole;
  if (whole == 0) return;
  const int from = FPosition;
  // A clock that has stood still for long moves no further than round once.
  const auto most = static_cast<double>(std::max(Extent(), 1));
  if (!MoveTo(from + static_cast<int>(std::clamp(whole, -most, most)))) return;
  if (!FWrap && FPosition == from) SetActive(false);
}

/// The picture's part of the window: all of it in the direction of the move, and across as much as
/// the picture has, in the middle.
TRect TQELImageScroller::Band() const {
  const TRect client = ClientRect();
  if (FScrollDirection == kHorizontal) {
    const int top = (client.Height() - FPicture->Height()) / 2;
    return vcl::Intersection(client, {0, top, client.Right, top + FPicture->Height()});
  }
  const int left = (client.Width() - FPicture->Width()) / 2;
  return vcl::Intersection(client, {left, 0, left + FPicture->Width(), client.Bottom});
}

/// Whether the picture hides all that is behind it in its band.
bool TQELImageScroller::Covers() const {
  const auto* bitmap = dynamic_cast<const vcl::TBitmap*>(FPicture->Graphic());
  return bitmap && !bitmap->Transparent() && !bitmap->Empty() && (FWrap || Extent() >= Room());
}

/// Moves on the screen what is seen there already, so that only the rest is painted.
void TQELImageScroller::ShowMove(int from) {
  AccessibleChanged(vcl::acValue);
  if (!HandleAllocated()) return;
  const bool plain = Covers() && !ShowsFocus(*this);
  SetDoubleBuffered(!plain);
  int by = from - FPosition;
  if (FWrap && std::abs(by) > Extent() / 2) by += by > 0 ? -Extent() : Extent();
  if (!plain || std::abs(by) >= Room()) return Invalidate();
  const RECT band = Band();
  const bool across = FScrollDirection == kHorizontal;
  ::ScrollWindowEx(Handle(), across ? by : 0, across ? 0 : by, &band, &band, nullptr, nullptr,
                   SW_INVALIDATE);
}

// Painting.

void TQELImageScroller::Paint() {
  FMotion.Wake();
  const HDC dc = Canvas()->Handle();
  const bool covers = Covers();
  const TRect band = Band();
  {
    const vcl::TSavedDC saved(dc);
    if (covers) ::ExcludeClipRect(dc, band.Left, band.Top, band.Right, band.Bottom);
    TQELCustomControl::Paint();
  }
  const int extent = Extent();
  if (vcl::TGraphic* const graphic = FPicture->Graphic(); graphic && extent > 0) {
    const bool across = FScrollDirection == kHorizontal;
    const TPoint middle((ClientWidth() - graphic->Width()) / 2,
                        (ClientHeight() - graphic->Height()) / 2);
    for (int at = -Normal(FPosition); at < Room(); at += extent) {
      TRect place(0, 0, graphic->Width(), graphic->Height());
      across ? place.Offset(at, middle.Y) : place.Offset(middle.X, at);
      const RECT seen = place;
      if (::RectVisible(dc, &seen)) graphic->Draw(Canvas(), place);
      if (!FWrap) break;
    }
  }
  DrawFocusMark(*this, *Canvas());
}

void TQELImageScroller::Resize() {
  TQELCustomControl::Resize();
  Invalidate();
}

// Input.

void TQELImageScroller::Dispatch(vcl::TMessage& message) {
  const TWatch watch(this);
  if (message.Msg == vcl::CM_WANTSPECIALKEY && message.WParam >= VK_LEFT &&
      message.WParam <= VK_DOWN) {
    message.Result = 1;
    return;
  }
  TQELCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  if (ChangesFocusMark(message.Msg)) Invalidate();
  if (message.Msg == vcl::CM_MOUSEENTER || message.Msg == vcl::CM_MOUSELEAVE)
    FHovered = message.Msg == vcl::CM_MOUSEENTER;
  if (message.Msg == WM_CANCELMODE || message.Msg == WM_CAPTURECHANGED) FDragging = false;
  if (message.Msg == WM_CANCELMODE || message.Msg == WM_CAPTURECHANGED ||
      message.Msg == vcl::CM_ENABLEDCHANGED || message.Msg == vcl::CM_MOUSEENTER ||
      message.Msg == vcl::CM_MOUSELEAVE)
    UpdateMotion();
}

void TQELImageScroller::MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (TabStop() && CanFocus() && button == vcl::mbLeft) SetFocus();
  if (watch.Gone()) return;
  TQELCustomControl::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != vcl::mbLeft || !FDraggable || !MouseCapture()) return;
  FDragging = true;
  FDragPosition = FPosition + Along({x, y});
  UpdateMotion();
}

void TQELImageScroller::MouseMove(vcl::TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (FDragging && MoveTo(FDragPosition - Along({x, y}))) FDragPosition = FPosition + Along({x, y});
  if (!watch.Gone()) TQELCustomControl::MouseMove(shift, x, y);
}

void TQELImageScroller::MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  if (button == vcl::mbLeft) FDragging = false;
  UpdateMotion();
  TQELCustomControl::MouseUp(button, shift, x, y);
}

/// By how much the key moves the picture; 0 for another key.
int TQELImageScroller::Jump(std::uint16_t key) const {
  const int line = ScaledPixels(16);
  switch (key) {
    case VK_LEFT:
    case VK_UP: return -line;
    case VK_RIGHT:
    case VK_DOWN: return line;
    case VK_PRIOR: return -Room();
    case VK_NEXT: return Room();
    case VK_HOME: return -FPosition;
    case VK_END: return Extent() - Room() - FPosition;
    default: return 0;
  }
}

void TQELImageScroller::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone()) return;
  if (key == VK_SPACE) return SetActive(!FActive);
  if (const int jump = Jump(key)) MoveTo(FPosition + jump);
}

bool TQELImageScroller::DoMouseWheel(vcl::TShiftState shift, int wheelDelta, TPoint mousePos) {
  if (TQELCustomControl::DoMouseWheel(shift, wheelDelta, mousePos)) return true;
  MoveTo(FPosition - ::MulDiv(wheelDelta, ScaledPixels(48), WHEEL_DELTA));
  return true;
}

// Screen readers.

void TQELImageScroller::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arGraphic;
  info.Value = std::to_string(FPosition);
  info.DefaultAction = FActive ? "Stop" : "Start";
}

void TQELImageScroller::DoAccessibleAction() { SetActive(!FActive); }

}  // namespace qel
