// What controls do with messages: the mouse, the notices of the library, the popup menu.
#include <algorithm>

#include "vcl/controls/control.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/application.h"
#include "vcl/forms/drag.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// The control without a window that the mouse is captured for; its parent's window has the
/// capture.
TControl* capturedControl = nullptr;

}  // namespace

bool TControl::MouseCapture() const { return CaptureControl() == this; }

TControl* TControl::CaptureControl() {
  TWinControl* holder = TWinControl::FromHandle(::GetCapture());
  if (holder && capturedControl && capturedControl->Parent() == holder) return capturedControl;
  return holder;
}

void TControl::SetMouseCapture(bool capture) {
  if (capture == MouseCapture()) return;
  auto* winControl = dynamic_cast<TWinControl*>(this);
  capturedControl = capture && !winControl ? this : nullptr;
  if (!capture) {
    ::ReleaseCapture();
  } else if (TWinControl* holder = winControl ? winControl : FParent) {
    ::SetCapture(holder->Handle());
  }
}

/// For a control that ends: its parent's window may have lost the capture without its knowing. A
/// window's own capture has ended with the window.
void TControl::ForgetCapture() {
  if (capturedControl != this) return;
  if (MouseCapture()) SetMouseCapture(false);
  capturedControl = nullptr;
}

LRESULT TControl::Perform(UINT message, WPARAM wParam, LPARAM lParam) {
  TMessage record{message, wParam, lParam, 0};
  WndProc(record);
  return record.Result;
}

void TControl::Notify(UINT notice) { Perform(notice); }

namespace {

/// A control that wants no double clicks gets another press instead.
UINT PlainPress(UINT message) {
  switch (message) {
    case WM_LBUTTONDBLCLK: return WM_LBUTTONDOWN;
    case WM_RBUTTONDBLCLK: return WM_RBUTTONDOWN;
    case WM_MBUTTONDBLCLK: return WM_MBUTTONDOWN;
    default: return message;
  }
}

}  // namespace

void TControl::WndProc(TMessage& message) {
  if (!FControlStyle.Has(csDoubleClicks)) message.Msg = PlainPress(message.Msg);
  const bool pressed = message.Msg == WM_LBUTTONDOWN || message.Msg == WM_LBUTTONDBLCLK;
  if (pressed && FDragMode == dmAutomatic && !Designing()) return BeginAutoDrag(message);
  if (pressed) IncludeState(csLButtonDown);
  if (message.Msg == WM_LBUTTONUP) ExcludeState(csLButtonDown);
  Dispatch(message);
}

void TControl::Dispatch(TMessage& message) {
  if (message.Msg >= CM_BASE && message.Msg < CN_BASE) return DispatchNotice(message);
  if (DispatchMouse(message)) return;
  if (message.Msg == WM_CONTEXTMENU) PopupMenuAt(message);
  if (message.Result == 0) DefaultHandler(message);
}

void TControl::DefaultHandler(TMessage&) {}

bool TControl::DispatchMouse(TMessage& message) {
  switch (message.Msg) {
    case WM_LBUTTONDOWN: return MouseButtonDown(message, mbLeft, {}), true;
    case WM_RBUTTONDOWN: return MouseButtonDown(message, mbRight, {}), true;
    case WM_MBUTTONDOWN: return MouseButtonDown(message, mbMiddle, {}), true;
    case WM_LBUTTONDBLCLK: return MouseButtonDown(message, mbLeft, {ssDouble}), true;
    case WM_RBUTTONDBLCLK: return MouseButtonDown(message, mbRight, {ssDouble}), true;
    case WM_MBUTTONDBLCLK: return MouseButtonDown(message, mbMiddle, {ssDouble}), true;
    case WM_LBUTTONUP: return MouseButtonUp(message, mbLeft), true;
    case WM_RBUTTONUP: return MouseButtonUp(message, mbRight), true;
    case WM_MBUTTONUP: return MouseButtonUp(message, mbMiddle), true;
    case WM_MOUSEMOVE: {
      TWatch watch(this);
      DefaultHandler(message);
      if (!watch.Gone())
        MouseMove(KeysToShiftState(message.WParam), message.XPos(), message.YPos());
      return true;
    }
    case WM_CANCELMODE:
      ExcludeState(csClicked);
      if (MouseCapture()) SetMouseCapture(false);
      return false;
    default: return false;
  }
}

void TControl::MouseButtonDown(TMessage& message, TMouseButton button, TShiftState extra) {
  TWatch watch(this);
  DefaultHandler(message);
  if (watch.Gone()) return;
  if (FControlStyle.Has(csCaptureMouse) && button == mbLeft) SetMouseCapture(true);
  if (FControlStyle.Has(csClickEvents) && button == mbLeft) {
    if (!extra.Has(ssDouble)) IncludeState(csClicked);
    if (extra.Has(ssDouble)) DblClick();
  }
  if (watch.Gone() || FControlStyle.Has(csNoStdEvents)) return;
  MouseDown(button, KeysToShiftState(message.WParam) + extra, message.XPos(), message.YPos());
}

void TControl::MouseButtonUp(TMessage& message, TMouseButton button) {
  TWatch watch(this);
  DefaultHandler(message);
  if (watch.Gone()) return;
  if (button == mbLeft) {
    if (FControlStyle.Has(csCaptureMouse)) SetMouseCapture(false);
    const bool clicked = FControlState.Has(csClicked);
    ExcludeState(csClicked);
    if (clicked && ClientRect().Contains({message.XPos(), message.YPos()})) Click();
  }
  if (watch.Gone() || FControlStyle.Has(csNoStdEvents)) return;
  MouseUp(button, KeysToShiftState(message.WParam), message.XPos(), message.YPos());
}

void TControl::DblClick() { OnDblClick(this); }

void TControl::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  OnMouseDown(this, button, shift, x, y);
}

void TControl::MouseMove(TShiftState shift, int x, int y) { OnMouseMove(this, shift, x, y); }

void TControl::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  OnMouseUp(this, button, shift, x, y);
}

void TControl::DispatchNotice(TMessage& message) {
  switch (message.Msg) {
    // The setters say that the value is the control's own, which is not so here.
    case CM_PARENTFONTCHANGED:
      if (FParentFont && FParent) {
        const TAtEnd follows([this] { FParentFont = true; }, this);
        FFont->AssignPixels(FParent->Font());
      }
      return;
    case CM_PARENTCOLORCHANGED:
      if (FParentColor && FParent) {
        const TAtEnd follows([this] { FParentColor = true; }, this);
        SetColor(FParent->Color());
      }
      return;
    case CM_PARENTSHOWHINTCHANGED:
      if (FParentShowHint && FParent) {
        const TAtEnd follows([this] { FParentShowHint = true; }, this);
        SetShowHint(FParent->ShowHint());
      }
      return;
    case CM_VISIBLECHANGED:
      // What a control that vanishes leaves behind has to be painted.
      AccessibleChanged(acState);
      return InvalidateArea(true, FVisible && FControlStyle.Has(csOpaque));
    case CM_TEXTCHANGED: return AccessibleChanged(acName);
    case CM_ENABLEDCHANGED: AccessibleChanged(acState); return Invalidate();
    case CM_FONTCHANGED:
    case CM_COLORCHANGED:
    case CM_SYSCOLORCHANGE: return Invalidate();
    case CM_HITTEST: message.Result = 1; return;
    default: return;
  }
}

void TControl::PopupMenuAt(TMessage& message) {
  if (!FPopupMenu || !FPopupMenu->AutoPopup() || Designing()) return;
  TPoint position{message.XPos(), message.YPos()};
  // From the keyboard there is no position: the menu comes up in the control's middle.
  if (message.LParam == -1) position = ClientToScreen({ClientWidth() / 2, ClientHeight() / 2});
  message.Result = 1;
  FPopupMenu->SetPopupComponent(this);
  FPopupMenu->Popup(position.X, position.Y);
}

}  // namespace vcl
