// A drag from its beginning to the drop: the mouse, the targets that are asked, and who is told.
#include "vcl/forms/drag.h"

#include <cstdlib>

#include "vcl/controls/wincontrol.h"
#include "vcl/forms/application.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr int DefaultThreshold = 5;  // Pixels.
constexpr const wchar_t* WindowClassName = L"TDragSession";

// Shared with the functions at work in it, for a handler may end the drag.
std::shared_ptr<TDragSession>& TheSession() {
  static std::shared_ptr<TDragSession> session;
  return session;
}

TPoint MousePosition() {
  POINT position;
  ::GetCursorPos(&position);
  return position;
}

}  // namespace

TCursor TDragObject::GetDragCursor(bool accepted, int, int) {
  return accepted && FControl ? FControl->DragCursor() : crNoDrop;
}

// Beginning.

TDragSession* TDragSession::Current() { return TheSession().get(); }

void TDragSession::Begin(TControl* control, bool immediate, int threshold) {
  if (TheSession()) return;
  const std::shared_ptr<TDragSession> session(new TDragSession(control));
  session->FThreshold = threshold < 0 ? DefaultThreshold : threshold;
  session->Capture();
  TheSession() = session;
  if (immediate) session->Start();
}

TDragSession::TDragSession(TControl* control)
    : FControl(control), FStart(MousePosition()), FPosition(FStart) {}

TDragSession::~TDragSession() {
  if (FWindow) ::DestroyWindow(FWindow);
}

void TDragSession::Capture() {
  static const ATOM registered = [] {
    WNDCLASSW info{};
    info.lpfnWndProc = &WndProc;
    info.hInstance = ::GetModuleHandleW(nullptr);
    info.lpszClassName = WindowClassName;
    return ::RegisterClassW(&info);
  }();
  if (!registered) RaiseOutOfResources("The window class of drags");
  FWindow =
      CheckHandle(::CreateWindowExW(WS_EX_TOOLWINDOW, WindowClassName, L"", WS_POPUP, 0, 0, 0, 0,
                                    nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr),
                  "The window of a drag");
  ::SetCapture(FWindow);
}

void TDragSession::Start() {
  const auto self = shared_from_this();
  TDragObject* object = nullptr;
  {
    const TOnFailure cancel([&] {
      delete object;
      Finish(false);
    });
    FControl->DoStartDrag(object);
  }
  FObject.reset(object);
  FObjectGiven = object != nullptr;
  if (FFinished) return;  // The handler has ended the drag or freed the control.
  if (!FObject) FObject = std::make_unique<TDragObject>(FControl);
  FStarted = true;
  MoveTo(MousePosition());
}

TObject* TDragSession::Source() const {
  if (FObjectGiven) return FObject.get();
  return FControl;
}

// The mouse.

LRESULT CALLBACK TDragSession::WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto session = TheSession();
  if (session && session->FWindow == window) {
    try {
      session->HandleMessage(message);
    } catch (...) {
      Application()->HandleCurrentException(session->FControl);
    }
  }
  return ::DefWindowProcW(window, message, wParam, lParam);
}

void TDragSession::HandleMessage(UINT message) {
  switch (message) {
    case WM_MOUSEMOVE: return MouseMoved();
    case WM_LBUTTONUP: return Finish(true);
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE: return Finish(false);
    default: return;
  }
}

bool TDragSession::HandleKey(const MSG& message) {
  if (!Current()) return false;
  const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  if (!down || message.wParam != VK_ESCAPE) return false;
  End(false);
  return true;
}

void TDragSession::MouseMoved() {
  const TPoint mouse = MousePosition();
  if (FStarted) return MoveTo(mouse);
  const bool farEnough =
      std::abs(mouse.X - FStart.X) >= FThreshold || std::abs(mouse.Y - FStart.Y) >= FThreshold;
  if (farEnough) Start();
}

// Each step may run handlers that end the drag, which leaves the session finished and alive.
void TDragSession::MoveTo(TPoint screen) {
  const auto self = shared_from_this();
  FPosition = screen;
  TControl* const target = Screen()->ControlAt(screen, false);
  if (target != FTarget) ChangeTarget(target);
  if (FFinished) return;
  AskTarget(dsDragMove);
  if (FFinished) return;
  const TCursor cursor = FObject->GetDragCursor(FAccepted, screen.X, screen.Y);
  ::SetCursor(Screen()->Cursors(cursor));
}

void TDragSession::ChangeTarget(TControl* target) {
  TWatch watch(target);
  AskTarget(dsDragLeave);
  if (FFinished) return;
  FTarget = target && watch.Gone() ? nullptr : target;
  AskTarget(dsDragEnter);
}

void TDragSession::AskTarget(TDragState state) {
  FAccepted = false;
  if (!FTarget || !Source()) return;
  const TPoint place = FTarget->ScreenToClient(FPosition);
  bool accepted = false;
  FTarget->DragOver(Source(), place.X, place.Y, state, accepted);
  FAccepted = accepted && FTarget;
}

// Ending.

void TDragSession::End(bool drop) {
  if (const auto session = TheSession()) session->Finish(drop);
}

void TDragSession::Finish(bool drop) {
  if (FFinished) return;
  const auto self = shared_from_this();
  if (drop && FStarted) MoveTo(MousePosition());
  if (FFinished) return;
  FFinished = true;
  if (::GetCapture() == FWindow) ::ReleaseCapture();
  const TAtEnd leave([] { TheSession().reset(); });
  if (FStarted) {
    const bool accepted = drop && FAccepted;
    AskTarget(dsDragLeave);
    FAccepted = accepted && FTarget;
    Drop();
  }
}

// The target's event comes first; a handler that raises does not keep the source from its own.
void TDragSession::Drop() {
  const bool dropped = FAccepted;
  const TPoint place = dropped ? FTarget->ScreenToClient(FPosition) : FPosition;
  if (dropped) {
    try {
      FTarget->DragDrop(Source(), place.X, place.Y);
    } catch (...) {
      Application()->HandleCurrentException(FTarget);
    }
  }
  if (FControl) FControl->DoEndDrag(dropped ? FTarget : nullptr, place.X, place.Y);
}

void TDragSession::Forget(TControl* control) {
  const auto session = TheSession();
  if (!session) return;
  if (session->FTarget == control) session->FTarget = nullptr;
  if (session->FControl != control) return;
  session->FControl = nullptr;
  if (session->FObject) session->FObject->FControl = nullptr;
  session->Finish(false);
}

}  // namespace vcl
