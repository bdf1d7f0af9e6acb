// TWinControl: what a window does with the system's messages and the library's notices.
#include <algorithm>
#include <cstdlib>

#include "vcl/controls/controlwatch.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/brush.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {

// The header that has no system's header repeats its numbers.
static_assert(CN_COMMAND == CN_BASE + WM_COMMAND);
static_assert(CN_NOTIFY == CN_BASE + WM_NOTIFY);
static_assert(CN_DRAWITEM == CN_BASE + WM_DRAWITEM);
static_assert(CN_MEASUREITEM == CN_BASE + WM_MEASUREITEM);
static_assert(CN_HSCROLL == CN_BASE + WM_HSCROLL);
static_assert(CN_VSCROLL == CN_BASE + WM_VSCROLL);
static_assert(CN_CTLCOLOR == CN_BASE + WM_CTLCOLORMSGBOX);
static_assert(CN_KEYDOWN == CN_BASE + WM_KEYDOWN);
static_assert(CN_CHAR == CN_BASE + WM_CHAR);
static_assert(CN_SYSKEYDOWN == CN_BASE + WM_SYSKEYDOWN);
static_assert(CN_SYSCHAR == CN_BASE + WM_SYSCHAR);

namespace {

/// The control that a notification to a parent is about.
TWinControl* ControlOf(LPARAM window) {
  return TWinControl::FromHandle(reinterpret_cast<HWND>(window));
}

bool HasClientPosition(UINT message) {
  return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST && message != WM_MOUSEWHEEL &&
         message != WM_MOUSEHWHEEL;
}

/// The notification's number as the control gets it back (CN_...) and the control; null when it is
/// no notification, or comes from no control of ours.
struct TReflection {
  UINT Message = 0;
  TWinControl* Control = nullptr;
};

TReflection Reflect(const TMessage& message) {
  switch (message.Msg) {
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL: return {CN_BASE + message.Msg, ControlOf(message.LParam)};
    case WM_NOTIFY:
      return {CN_NOTIFY,
              TWinControl::FromHandle(reinterpret_cast<const NMHDR*>(message.LParam)->hwndFrom)};
    case WM_DRAWITEM:
      return {CN_DRAWITEM, TWinControl::FromHandle(
                               reinterpret_cast<const DRAWITEMSTRUCT*>(message.LParam)->hwndItem)};
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC: return {CN_CTLCOLOR, ControlOf(message.LParam)};
    default: return {};
  }
}

}  // namespace

void TWinControl::WndProc(TMessage& message) {
  if (HasClientPosition(message.Msg) && IsControlMouseMessage(message)) return;
  TControl::WndProc(message);
}

void TWinControl::Dispatch(TMessage& message) {
  if (message.Msg >= CM_BASE && message.Msg < CN_BASE) {
    TWatch watch(this);
    TControl::Dispatch(message);
    if (!watch.Gone()) DispatchNotice(message);
    return;
  }
  const TReflection reflection = Reflect(message);
  if (reflection.Control) {
    message.Result =
        reflection.Control->Perform(reflection.Message, message.WParam, message.LParam);
    return;
  }
  DispatchWindow(message);
}

void TWinControl::DefaultHandler(TMessage& message) {
  if (!FHandle || message.Msg >= CM_BASE) return;
  message.Result =
      ::CallWindowProcW(FDefWndProc, FHandle, message.Msg, message.WParam, message.LParam);
}

void TWinControl::DispatchWindow(TMessage& message) {
  switch (message.Msg) {
    case WM_PAINT: return WMPaint(message);
    case WM_ERASEBKGND: return WMEraseBkgnd(message);
    case WM_WINDOWPOSCHANGING: return WMWindowPosChanging(message);
    case WM_WINDOWPOSCHANGED: return WMWindowPosChanged(message);
    case WM_MOUSEWHEEL: return WMMouseWheel(message);
    case WM_SETFOCUS:
    case WM_KILLFOCUS: return WMFocus(message);
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_CHAR: return DispatchKey(message);
    case WM_SETCURSOR: return WMSetCursor(message);
    case WM_CONTEXTMENU: return WMContextMenu(message);
    case WM_CANCELMODE: return WMCancelMode(message);
    case WM_GETOBJECT: return WMGetObject(message);
    case CN_CTLCOLOR: return CNCtlColor(message);
    default: return TControl::Dispatch(message);
  }
}

void TWinControl::DispatchNotice(TMessage& message) {
  switch (message.Msg) {
    case CM_VISIBLECHANGED: {
      const TWatch watch(this);
      if (!Visible()) GiveUpFocus();
      return watch.Gone() ? void() : UpdateControlState();
    }
    case CM_SHOWINGCHANGED: return ShowHandle(FShowing);
    case CM_ENABLEDCHANGED: {
      const TWatch watch(this);
      if (!FEnabled) GiveUpFocus();
      if (!watch.Gone() && FHandle && !Designing()) ::EnableWindow(FHandle, FEnabled);
      return;
    }
    case CM_FONTCHANGED: {
      const TWatch watch(this);
      if (FHandle) {
        ::SendMessageW(FHandle, WM_SETFONT, reinterpret_cast<WPARAM>(Font()->Handle()), TRUE);
      }
      return watch.Gone() ? void() : Broadcast(CM_PARENTFONTCHANGED);
    }
    case CM_COLORCHANGED: FBrush->SetColor(Color()); return Broadcast(CM_PARENTCOLORCHANGED);
    case CM_SHOWHINTCHANGED: return Broadcast(CM_PARENTSHOWHINTCHANGED);
    case CM_PARENTCTL3DCHANGED:
      if (FParentCtl3D && Parent()) {
        const TAtEnd follows([this] { FParentCtl3D = true; }, this);
        SetCtl3D(Parent()->FCtl3D);
      }
      return;
    case CM_CTL3DCHANGED: {
      const TWatch watch(this);
      if (FSingleBorder) RecreateWnd();
      return watch.Gone() ? void() : Broadcast(CM_PARENTCTL3DCHANGED);
    }
    case CM_CURSORCHANGED: {
      POINT at;
      ::GetCursorPos(&at);
      if (FHandle && ::WindowFromPoint(at) == FHandle) {
        ::SendMessageW(FHandle, WM_SETCURSOR, reinterpret_cast<WPARAM>(FHandle), HTCLIENT);
      }
      return;
    }
    case CM_ENTER: return DoEnter();
    case CM_EXIT: return DoExit();
    case CM_SYSCOLORCHANGE:
    case CM_DIALOGKEY:
    case CM_DIALOGCHAR:
    case CM_FOCUSCHANGED: return PassToChildren(message);
    default: return;
  }
}

void TWinControl::ShowHandle(bool show) {
  // Inside a window that is not seen yet nothing has to be placed or painted.
  if (show && Parent() && !::IsWindowVisible(Parent()->FHandle)) {
    ::ShowWindow(FHandle, SW_SHOWNA);
    return;
  }
  ::SetWindowPos(FHandle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE |
                     (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void TWinControl::GiveUpFocus() {
  TCustomForm* form = ParentForm();
  if (form && form != this) form->DefocusControl(this);
}

/// Calls `each` for the controls inside, bottom first or top first, until it returns false, and
/// leaves out those that a former call has freed or moved elsewhere. False when this control has
/// gone.
bool TWinControl::VisitControls(const std::function<bool(TControl*)>& each, bool topFirst) {
  if (FControls.empty()) return true;
  std::vector<TControl*> controls = FControls;
  if (topFirst) std::ranges::reverse(controls);
  const std::vector<TWatch> watches(controls.begin(), controls.end());
  const TWatch watch(this);
  for (std::size_t i = 0; i < controls.size() && !watch.Gone(); ++i) {
    if (!watches[i].Gone() && controls[i]->Parent() == this && !each(controls[i])) break;
  }
  return !watch.Gone();
}

/// Until one of them has answered.
void TWinControl::PassToChildren(TMessage& message) {
  if (message.Result != 0) return;
  VisitControls([&message](TControl* control) {
    control->WndProc(message);
    return message.Result == 0;
  });
}

void TWinControl::Broadcast(UINT notice) {
  VisitControls([notice](TControl* control) {
    control->Perform(notice);
    return true;
  });
}

bool TWinControl::IsControlMouseMessage(TMessage& message) {
  TControl* control = nullptr;
  if (FHandle && ::GetCapture() == FHandle) {
    control = CaptureControl();
    if (control == this) return false;
  } else {
    control = ControlAtPos({message.XPos(), message.YPos()}, false);
    if (dynamic_cast<TWinControl*>(control)) return false;
  }
  if (!control) return false;
  TWatch watch(this);
  const LPARAM position =
      MAKELPARAM(message.XPos() - control->Left(), message.YPos() - control->Top());
  message.Result = control->Perform(message.Msg, message.WParam, position);
  // The system still does its part, such as asking for the context menu.
  if (!watch.Gone() && message.Result == 0 && FHandle) {
    message.Result = ::DefWindowProcW(FHandle, message.Msg, message.WParam, message.LParam);
  }
  return true;
}

/// Whoever sizes the window, the user included, does so within the control's limits.
void TWinControl::WMWindowPosChanging(TMessage& message) {
  const TWatch watch(this);
  DefaultHandler(message);
  if (watch.Gone() || ::IsIconic(FHandle)) return;
  auto* place = reinterpret_cast<WINDOWPOS*>(message.LParam);
  if (place->flags & SWP_NOSIZE) return;
  const TSize size = ConstrainedSize(place->cx, place->cy);
  place->cx = size.cx;
  place->cy = size.cy;
}

void TWinControl::WMMouseWheel(TMessage& message) {
  const TWatch watch(this);
  const TShiftState shift = KeysToShiftState(LOWORD(message.WParam));
  const TPoint mouse{message.XPos(), message.YPos()};
  const bool used = DoMouseWheel(shift, GET_WHEEL_DELTA_WPARAM(message.WParam), mouse);
  // The system hands what nobody uses to the control around.
  if (!used && !watch.Gone()) DefaultHandler(message);
}

bool TWinControl::DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) {
  const TWatch watch(this);
  bool handled = false;
  OnMouseWheel(this, shift, wheelDelta, mousePos, handled);
  if (watch.Gone() || handled) return true;
  FWheelRest += wheelDelta;
  while (!watch.Gone() && std::abs(FWheelRest) >= WHEEL_DELTA) {
    const bool up = FWheelRest > 0;
    FWheelRest += up ? -WHEEL_DELTA : WHEEL_DELTA;
    bool notchHandled = false;
    (up ? OnMouseWheelUp : OnMouseWheelDown)(this, shift, mousePos, notchHandled);
    handled |= notchHandled;
  }
  return watch.Gone() || handled;
}

void TWinControl::WMWindowPosChanged(TMessage& message) {
  const TRect former = BoundsRect();
  UpdateBounds();
  TWatch watch(this);
  DefaultHandler(message);
  if (watch.Gone() || ControlState().Has(csDestroyingHandle)) return;
  const auto* place = reinterpret_cast<const WINDOWPOS*>(message.LParam);
  if (!(place->flags & SWP_NOMOVE) || !(place->flags & SWP_NOSIZE)) RequestAlign();
  if (!watch.Gone() && !(place->flags & SWP_NOSIZE)) Realign();
  if (watch.Gone()) return;
  const bool resized = !(place->flags & SWP_NOSIZE) && former.Size() != BoundsRect().Size();
  if (resized) TellResize();
  if (!watch.Gone() && former != BoundsRect()) TControlWatch::Changed(this);
}

void TWinControl::WMSetCursor(TMessage& message) {
  if (reinterpret_cast<HWND>(message.WParam) != FHandle || LOWORD(message.LParam) != HTCLIENT) {
    return DefaultHandler(message);
  }
  POINT at;
  ::GetCursorPos(&at);
  ::ScreenToClient(FHandle, &at);
  const TControl* control = ControlAtPos({static_cast<int>(at.x), static_cast<int>(at.y)}, false);
  if (!control) control = this;
  TCursor cursor = Screen()->Cursor();
  for (; cursor == crDefault && control; control = control->Parent()) cursor = control->Cursor();
  if (cursor == crDefault) return DefaultHandler(message);
  ::SetCursor(Screen()->Cursors(cursor));
  message.Result = 1;
}

void TWinControl::WMContextMenu(TMessage& message) {
  if (message.LParam != -1) {
    const TPoint inside = ScreenToClient({message.XPos(), message.YPos()});
    TControl* control = ControlAtPos(inside, false);
    if (control && !dynamic_cast<TWinControl*>(control)) {
      TWatch watch(this);
      message.Result = control->Perform(message.Msg, message.WParam, message.LParam);
      if (watch.Gone() || message.Result != 0) return;
    }
  }
  TControl::Dispatch(message);
}

void TWinControl::WMCancelMode(TMessage& message) {
  // The capture may be for a control without a window, which has to end what it does with it.
  TControl* captured = ::GetCapture() == FHandle ? CaptureControl() : nullptr;
  TWatch watch(this);
  if (captured && captured != this) captured->Perform(WM_CANCELMODE);
  if (!watch.Gone()) TControl::Dispatch(message);
}

void TWinControl::CNCtlColor(TMessage& message) {
  const HDC dc = reinterpret_cast<HDC>(message.WParam);
  ::SetTextColor(dc, ColorToRGB(Font()->Color()));
  ::SetBkColor(dc, ColorToRGB(FBrush->Color()));
  message.Result = reinterpret_cast<LRESULT>(FBrush->Handle());
}

}  // namespace vcl
