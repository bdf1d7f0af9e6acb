// TQELPanel: being moved, sized and rolled up by mouse and keyboard.
#include <algorithm>
#include <cstdlib>

#include "qel/controls/Qeltpanel.h"
#include "vcl/controls/accelerators.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TPoint;
using vcl::TRect;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

/// At 96 dots per inch: how near to an edge the mouse takes hold of it, how far a key moves it, and
/// the least size.
constexpr int EdgeReach = 5;
constexpr int KeyStep = 8;
constexpr int LeastSize = 20;

}  // namespace

TQELPanel::TEdges TQELPanel::EdgesAt(int x, int y) const {
  if (!FSizeable || !Enabled()) return {};
  const int reach = ScaledPixels(EdgeReach);
  // A panel that is rolled up keeps its height.
  return {x < reach, y < reach && !FCollapsed, x >= ClientWidth() - reach,
          y >= ClientHeight() - reach && !FCollapsed};
}

/// The bounds with the edges moved, inside the parent and not too small.
TRect TQELPanel::Dragged(TRect bounds, const TEdges& edges, int dx, int dy) const {
  const TRect room = Parent() ? Parent()->ClientRect() : bounds;
  const bool moves = edges.Left && edges.Right && edges.Top && edges.Bottom;
  if (moves) {
    const int width = bounds.Width();
    const int height = bounds.Height();
    // Where there is no room, the top left corner is what stays in sight.
    const int left = std::max(std::min(bounds.Left + dx, room.Right - width), room.Left);
    const int top = std::max(std::min(bounds.Top + dy, room.Bottom - height), room.Top);
    return vcl::Bounds(left, top, width, height);
  }
  const int least = std::max(ScaledPixels(LeastSize), RolledHeight());
  const auto between = [](int value, int low, int high) {
    return std::max(std::min(value, high), low);
  };
  if (edges.Left) bounds.Left = between(bounds.Left + dx, room.Left, bounds.Right - least);
  if (edges.Right) bounds.Right = between(bounds.Right + dx, bounds.Left + least, room.Right);
  if (edges.Top) bounds.Top = between(bounds.Top + dy, room.Top, bounds.Bottom - least);
  if (edges.Bottom) bounds.Bottom = between(bounds.Bottom + dy, bounds.Top + least, room.Bottom);
  return bounds;
}

void TQELPanel::SetBoundsRect(const TRect& bounds) {
  SetBounds(bounds.Left, bounds.Top, bounds.Width(), bounds.Height());
}

// The mouse.

void TQELPanel::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  FOnHeader = false;
  const bool focuses = button == vcl::mbLeft && TabStop() && CanFocus() && !Focused();
  if (focuses) SetFocus();
  if (watch.Gone()) return;
  TQELCustomControl::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != vcl::mbLeft || !Enabled() || !MouseCapture()) return;
  FEdges = EdgesAt(x, y);
  FOnHeader = FCollapsible && !FEdges.Any() && Header().Contains({x, y});
  if (!FEdges.Any() && FMovable) FEdges = TEdges::All();
  FMoved = false;
  FStart = ClientToScreen({x, y});
  FStartBounds = BoundsRect();
}

void TQELPanel::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELCustomControl::MouseMove(shift, x, y);
  if (watch.Gone() || !FEdges.Any()) return;
  if (!MouseCapture()) return EndDrag(false);
  const TPoint now = ClientToScreen({x, y});
  const int dx = now.X - FStart.X;
  const int dy = now.Y - FStart.Y;
  const bool far = std::abs(dx) >= ::GetSystemMetrics(SM_CXDRAG) ||
                   std::abs(dy) >= ::GetSystemMetrics(SM_CYDRAG);
  if (!FMoved && !far) return;
  FMoved = true;
  // A drag is no click.
  ExcludeState(vcl::csClicked);
  SetBoundsRect(Dragged(FStartBounds, FEdges, dx, dy));
}

void TQELPanel::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELCustomControl::MouseUp(button, shift, x, y);
  if (!watch.Gone() && button == vcl::mbLeft && FEdges.Any()) EndDrag(true);
}

/// Ends the drag, where the mouse has left the panel or where that came from.
void TQELPanel::EndDrag(bool keep) {
  const TWatch watch(this);
  FEdges = {};
  const bool moved = std::exchange(FMoved, false);
  if (!keep) {
    ExcludeState(vcl::csClicked);
    SetBoundsRect(FStartBounds);
    if (!watch.Gone() && MouseCapture()) SetMouseCapture(false);
    return;
  }
  if (moved && BoundsRect() != FStartBounds) OnMove(this);
}

void TQELPanel::Click() {
  const TWatch watch(this);
  TQELCustomControl::Click();
  if (watch.Gone() || !std::exchange(FOnHeader, false) || !FCollapsible) return;
  SetCollapsed(!FCollapsed);
}

bool TQELPanel::ShowCursor(const vcl::TMessage& message) {
  if (LOWORD(message.LParam) != HTCLIENT || Designing()) return false;
  POINT mouse;
  if (reinterpret_cast<HWND>(message.WParam) != Handle() || !::GetCursorPos(&mouse)) return false;
  const TPoint inside = ScreenToClient({mouse.x, mouse.y});
  const TEdges edges = EdgesAt(inside.X, inside.Y);
  if (!edges.Any()) return false;
  const bool across = edges.Left || edges.Right;
  const bool down = edges.Top || edges.Bottom;
  const bool falling = (edges.Left && edges.Top) || (edges.Right && edges.Bottom);
  const char* shape =
      across && down ? (falling ? IDC_SIZENWSE : IDC_SIZENESW) : (across ? IDC_SIZEWE : IDC_SIZENS);
  ::SetCursor(::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(shape)));
  return true;
}

// The keyboard.

/// Ctrl moves, Shift sizes, by the arrow keys.
bool TQELPanel::StepByKey(std::uint16_t key, TShiftState shift) {
  const bool moves = shift == TShiftState{vcl::ssCtrl} && FMovable;
  const bool sizes = shift == TShiftState{vcl::ssShift} && FSizeable;
  if (!moves && !sizes) return false;
  const int step = ScaledPixels(KeyStep);
  const int dx = key == VK_LEFT ? -step : key == VK_RIGHT ? step : 0;
  const int dy = key == VK_UP ? -step : key == VK_DOWN ? step : 0;
  if ((dx == 0 && dy == 0) || (sizes && dy != 0 && FCollapsed)) return false;
  const TEdges edges = moves ? TEdges::All() : TEdges{false, false, dx != 0, dy != 0};
  const TRect before = BoundsRect();
  const TWatch watch(this);
  SetBoundsRect(Dragged(before, edges, dx, dy));
  if (!watch.Gone() && BoundsRect() != before) OnMove(this);
  return true;
}

void TQELPanel::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone() || !Enabled() || StepByKey(key, shift) || watch.Gone()) return;
  if (key == VK_SPACE && shift.Empty() && FCollapsible) SetCollapsed(!FCollapsed);
}

bool TQELPanel::TakeOwn(vcl::TMessage& message) {
  switch (message.Msg) {
    case vcl::CM_DIALOGCHAR:
      if (!vcl::IsAccel(message.WParam, Caption()) || !CanFocus()) return false;
      message.Result = 1;
      return FCollapsible ? SetCollapsed(!FCollapsed) : SelectNext(nullptr, true, true), true;
    case vcl::CM_CAPTUREKEY:
      if (message.WParam != VK_ESCAPE || !FEdges.Any()) return false;
      message.Result = 1;
      return EndDrag(false), true;
    case WM_SETCURSOR:
      if (!ShowCursor(message)) return false;
      message.Result = 1;
      return true;
    case WM_GETDLGCODE:
      if (!FMovable && !FSizeable) return false;
      message.Result = DLGC_WANTARROWS;
      return true;
    default: return false;
  }
}

void TQELPanel::Dispatch(vcl::TMessage& message) {
  const TWatch watch(this);
  if (TakeOwn(message)) return;
  TQELCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_CANCELMODE:
      if (FEdges.Any()) EndDrag(false);
      return;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_SIZE:
    case WM_UPDATEUISTATE:
    case vcl::CM_TEXTCHANGED: return Invalidate();
    default: return;
  }
}

}  // namespace qel
