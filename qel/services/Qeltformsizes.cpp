// TQELFormSizes: its limits, and the messages in which a window asks for them.
#include "qel/services/Qeltformsizes.h"

#include <algorithm>

#include "vcl/controls/scaling.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

/// 0 is no limit; the least value holds against a largest one that is below it.
int LimitedTo(int value, int least, int largest) {
  if (largest != 0) value = std::min(value, largest);
  return least != 0 ? std::max(value, least) : value;
}

/// The value itself, unless another one is asked for.
void Replace(LONG& value, int wanted) {
  if (wanted != 0) value = wanted;
}

bool IsLeft(WPARAM edge) {
  return edge == WMSZ_LEFT || edge == WMSZ_TOPLEFT || edge == WMSZ_BOTTOMLEFT;
}

bool IsTop(WPARAM edge) {
  return edge == WMSZ_TOP || edge == WMSZ_TOPLEFT || edge == WMSZ_TOPRIGHT;
}

}  // namespace

const vcl::TClass& TQELFormSizes::Class() {
  using T = TQELFormSizes;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormComponent>(
      "qel::TQELFormSizes", "qel/services/Qeltformsizes.h",
      {
          Property<&T::MinWidth, &T::SetMinWidth>("MinWidth").Default(0),
          Property<&T::MinHeight, &T::SetMinHeight>("MinHeight").Default(0),
          Property<&T::MaxWidth, &T::SetMaxWidth>("MaxWidth").Default(0),
          Property<&T::MaxHeight, &T::SetMaxHeight>("MaxHeight").Default(0),
          Property<&T::MinLeft, &T::SetMinLeft>("MinLeft").Default(0),
          Property<&T::MinTop, &T::SetMinTop>("MinTop").Default(0),
          Property<&T::MaxLeft, &T::SetMaxLeft>("MaxLeft").Default(0),
          Property<&T::MaxTop, &T::SetMaxTop>("MaxTop").Default(0),
          Property<&T::MaximizedWidth, &T::SetMaximizedWidth>("MaximizedWidth").Default(0),
          Property<&T::MaximizedHeight, &T::SetMaximizedHeight>("MaximizedHeight").Default(0),
          Property<&T::MaximizedLeft, &T::SetMaximizedLeft>("MaximizedLeft").Default(0),
          Property<&T::MaximizedTop, &T::SetMaximizedTop>("MaximizedTop").Default(0),
      });
  return info;
}

TQELFormSizes::TQELFormSizes(vcl::TComponent* owner) : TQELFormComponent(owner) { Attach(); }

TQELFormSizes::~TQELFormSizes() {
  AnnounceEnd();
  Detach();
}

// Values.

int TQELFormSizes::PixelsPerInch() const {
  return Form() ? Form()->PixelsPerInch() : vcl::DefaultPixelsPerInch;
}

int TQELFormSizes::Scaled(const TMeasure& measure) const {
  return ::MulDiv(measure.Pixels, PixelsPerInch(), measure.PerInch);
}

void TQELFormSizes::SetSize(TMeasure& measure, int pixels) {
  if (pixels < 0) return;
  measure = {pixels, PixelsPerInch()};
  Apply();
}

void TQELFormSizes::SetPlace(int& place, int value) {
  place = value;
  Apply();
}

// The form's window.

void TQELFormSizes::Begin() { Apply(); }

/// Has the window ask whether it may be as it is.
void TQELFormSizes::Apply() {
  if (!Begun() || !FreelyPlaced()) return;
  const vcl::TRect bounds = Form()->BoundsRect();
  ::SetWindowPos(Form()->Handle(), nullptr, bounds.Left, bounds.Top, bounds.Width(),
                 bounds.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}

bool TQELFormSizes::FreelyPlaced() const {
  const HWND window = Form()->Handle();
  return !::IsIconic(window) && !::IsZoomed(window);
}

void TQELFormSizes::BeforeMessage(vcl::TMessage& message, bool&) {
  switch (message.Msg) {
    case WM_WINDOWPOSCHANGING: return LimitChange(*reinterpret_cast<WINDOWPOS*>(message.LParam));
    case WM_MOVING: return LimitMove(*reinterpret_cast<RECT*>(message.LParam));
    case WM_SIZING: return LimitEdges(*reinterpret_cast<RECT*>(message.LParam), message.WParam);
    default: return;
  }
}

void TQELFormSizes::AfterMessage(vcl::TMessage& message) {
  if (message.Msg == WM_GETMINMAXINFO) LimitInfo(*reinterpret_cast<MINMAXINFO*>(message.LParam));
}

void TQELFormSizes::LimitInfo(MINMAXINFO& info) const {
  POINT& least = info.ptMinTrackSize;
  POINT& largest = info.ptMaxTrackSize;
  least = {LimitedTo(least.x, MinWidth(), 0), LimitedTo(least.y, MinHeight(), 0)};
  largest = {LimitedTo(largest.x, least.x, MaxWidth()), LimitedTo(largest.y, least.y, MaxHeight())};
  Replace(info.ptMaxSize.x, MaximizedWidth());
  Replace(info.ptMaxSize.y, MaximizedHeight());
  Replace(info.ptMaxPosition.x, FMaximizedLeft);
  Replace(info.ptMaxPosition.y, FMaximizedTop);
}

vcl::TPoint TQELFormSizes::Limited(vcl::TPoint place) const {
  return {LimitedTo(place.X, FMinLeft, FMaxLeft), LimitedTo(place.Y, FMinTop, FMaxTop)};
}

// Also what code changes, and windows whose border can't be sized, which are not asked for their
// sizes.
void TQELFormSizes::LimitChange(WINDOWPOS& change) const {
  if (!FreelyPlaced()) return;
  if (!(change.flags & SWP_NOSIZE)) {
    change.cx = LimitedTo(change.cx, MinWidth(), MaxWidth());
    change.cy = LimitedTo(change.cy, MinHeight(), MaxHeight());
  }
  if (change.flags & SWP_NOMOVE) return;
  const vcl::TPoint place = Limited({change.x, change.y});
  change.x = place.X;
  change.y = place.Y;
}

void TQELFormSizes::LimitMove(RECT& bounds) const {
  const vcl::TPoint place = Limited({bounds.left, bounds.top});
  ::OffsetRect(&bounds, place.X - bounds.left, place.Y - bounds.top);
}

/// The edge under the mouse stops, where the whole form would move on.
void TQELFormSizes::LimitEdges(RECT& bounds, WPARAM edge) const {
  const vcl::TPoint place = Limited({bounds.left, bounds.top});
  if (IsLeft(edge)) bounds.left = place.X;
  if (IsTop(edge)) bounds.top = place.Y;
}

}  // namespace qel
