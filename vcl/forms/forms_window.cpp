// TCustomForm: its window, what the window looks like, and how it is shown.
#include <utility>

#include "vcl/controls/controlcanvas.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/private/droppedfiles.h"
#include "vcl/forms/private/resolution.h"
#include "vcl/forms/private/taskwindows.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/scope.h"
// It needs what stands above.
#include <shellapi.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

namespace {

struct TFrame {
  DWORD Style;
  DWORD ExStyle;
};

// By border style. A caption includes a thin border.
constexpr TFrame Frames[] = {
    {WS_POPUP, 0},                                                    // bsNone
    {WS_CAPTION, 0},                                                  // bsSingle
    {WS_CAPTION | WS_THICKFRAME, 0},                                  // bsSizeable
    {WS_POPUP | WS_CAPTION, WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE},  // bsDialog
    {WS_CAPTION, WS_EX_TOOLWINDOW},                                   // bsToolWindow
    {WS_CAPTION | WS_THICKFRAME, WS_EX_TOOLWINDOW},                   // bsSizeToolWin
};

bool HasSizeButtons(TBorderStyle style) { return style == bsSingle || style == bsSizeable; }

}  // namespace

// Making the window.

void TCustomForm::AddFrame(TCreateParams& params) const {
  if (Parent()) return;
  const TFrame& frame = Frames[FBorderStyle];
  const bool inside = InsideWindow();
  params.Style &= ~static_cast<DWORD>(inside ? 0 : WS_CHILD);
  params.Style &= ~static_cast<DWORD>(WS_GROUP | WS_TABSTOP);
  params.Style |= frame.Style & ~(inside ? WS_POPUP : 0);
  params.ExStyle |= frame.ExStyle | WS_EX_CONTROLPARENT | (StandsInside() ? WS_EX_MDICHILD : 0);
  if (FBorderStyle == bsNone) return;
  if (FBorderIcons.Has(biSystemMenu)) params.Style |= WS_SYSMENU;
  if (HasSizeButtons(FBorderStyle)) {
    if (FBorderIcons.Has(biMinimize)) params.Style |= WS_MINIMIZEBOX;
    if (FBorderIcons.Has(biMaximize)) params.Style |= WS_MAXIMIZEBOX;
  } else if (FBorderIcons.Has(biHelp)) {
    params.ExStyle |= WS_EX_CONTEXTHELP;
  }
}

void TCustomForm::CreateParams(TCreateParams& params) {
  TScrollingWinControl::CreateParams(params);
  AddFrame(params);
  if (Parent()) return;
  params.Style &= ~static_cast<DWORD>(WS_VISIBLE);
  params.Style |= WS_CLIPCHILDREN;
  params.WndParent = InsideWindow() ? WindowAround() : Application()->Handle();
  if (Designing()) return;
  if (FFormStyle == fsStayOnTop) params.ExStyle |= WS_EX_TOPMOST;
  // The system places windows that are no popups only.
  if (FPlaced || (params.Style & WS_POPUP)) return;
  if (FPosition == poDefault || FPosition == poDefaultPosOnly) params.X = params.Y = CW_USEDEFAULT;
  if (FPosition == poDefault || FPosition == poDefaultSizeOnly) {
    params.Width = params.Height = CW_USEDEFAULT;
  }
}

void TCustomForm::CreateWnd() {
  ScaleToMonitor();
  TScrollingWinControl::CreateWnd();
  UpdateIcon();
  UpdateMenu();
  FTakesFiles = false;
  UpdateDropFiles();
  if (FFormStyle == fsMDIForm && !Designing()) CreateClient();
}

void TCustomForm::DestroyWnd() {
  DestroyClient();
  // The system frees a menu with its window, but this one belongs to its component.
  if (FMenu && !StandsInside()) ::SetMenu(Handle(), nullptr);
  TScrollingWinControl::DestroyWnd();
}

void TCustomForm::Remake() {
  if (!HandleAllocated()) return;
  const TSetFor remaking(FRemaking, true, this);
  RecreateWnd();
}

void TCustomForm::UpdateMenu() {
  if (!HandleAllocated() || Parent() || InsideWindow()) return;
  const bool shown = FMenu && FBorderStyle != bsDialog && !Designing();
  ::SetMenu(Handle(), shown ? FMenu->Handle() : nullptr);
  ::DrawMenuBar(Handle());
}

void TCustomForm::UpdateIcon() {
  if (!HandleAllocated() || FBorderStyle == bsDialog) return;
  const TIcon* icon = FIcon->Empty() ? Application()->Icon() : FIcon.get();
  ::SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon->Handle()));
}

// What the border and the menu take, as far as it is known without a window.
TSize TCustomForm::FrameSize() const {
  TCreateParams params;
  AddFrame(params);
  RECT frame{0, 0, 0, 0};
  const bool menu = FMenu && FBorderStyle != bsDialog && !Designing();
  if (!Parent()) AddFrameOf({params.Style, menu, params.ExStyle}, MonitorPPI(), frame);
  return TRect(frame).Size();
}

TRect TCustomForm::ClientRect() const {
  TRect rect = TScrollingWinControl::ClientRect();
  // Each control that is put onto the form asks; what the form file says of both needs no frame.
  if (!HandleAllocated() && (FClientWidth < 0 || FClientHeight < 0)) {
    const TSize frame = FrameSize();
    rect.Right = std::max(rect.Right - frame.cx, 0);
    rect.Bottom = std::max(rect.Bottom - frame.cy, 0);
  }
  if (FClientWidth >= 0) rect.Right = FClientWidth;
  if (FClientHeight >= 0) rect.Bottom = FClientHeight;
  return rect;
}

// Painting.

void TCustomForm::WMPaint(TMessage& message) {
  IncludeState(csCustomPaint);
  const TAtEnd done([this] { ExcludeState(csCustomPaint); }, this);
  TScrollingWinControl::WMPaint(message);
}

void TCustomForm::PaintWindow(HDC dc) {
  if (FDesigner) FDesigner->PaintBehind(dc);
  const TCanvasBinding binding(*this, *FCanvas, dc);
  OnPaint(this);
}

// Showing.

void TCustomForm::DoShow() { OnShow(this); }
void TCustomForm::DoHide() { OnHide(this); }

void TCustomForm::ShowingChanged() {
  TWatch watch(this);
  const bool showing = Showing();
  try {
    if (!FRemaking && !Designing()) showing ? DoShow() : DoHide();
  } catch (...) {
    Application()->HandleCurrentException(this);
  }
  // The handler may have changed its mind, or freed the form.
  if (watch.Gone() || Showing() != showing) return;
  showing ? ShowWindowNow() : HideWindowNow();
  Application()->UpdateTaskbar();
}

/// What the form comes up in the middle of.
TRect TCustomForm::AreaToCenterIn() const {
  const TCustomForm* const main = Application()->MainForm();
  if (StandsInside()) return TRect(0, 0, main->ClientWidth(), main->ClientHeight());
  const auto* over = FPosition == poOwnerFormCenter ? dynamic_cast<TCustomForm*>(Owner()) : nullptr;
  if (!over && FPosition >= poMainFormCenter) over = main;
  if (over && over != this && over->Showing()) return over->BoundsRect();
  if (FPosition != poDesktopCenter) return Screen()->WorkAreaRect();
  const int left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
  const int top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
  return TRect(left, top, left + ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
               top + ::GetSystemMetrics(SM_CYVIRTUALSCREEN));
}

void TCustomForm::PlaceOnScreen() {
  if (std::exchange(FPlaced, true) || FPosition < poScreenCenter || Parent() || Designing()) return;
  const TRect area = AreaToCenterIn();
  SetBounds(area.Left + std::max((area.Width() - Width()) / 2, 0),
            area.Top + std::max((area.Height() - Height()) / 2, 0), Width(), Height());
}

void TCustomForm::ShowWindowNow() {
  static constexpr int commands[] = {SW_SHOWNORMAL, SW_SHOWMINIMIZED, SW_SHOWMAXIMIZED};
  PlaceOnScreen();
  const bool minimizesAll = FWindowState == wsMinimized && this == Application()->MainForm();
  if (Designing() || minimizesAll) {
    ::ShowWindow(Handle(), SW_SHOWNOACTIVATE);
    if (minimizesAll) Application()->Minimize();
    return;
  }
  ::ShowWindow(Handle(), commands[FWindowState]);
  if (StandsInside()) ActivateInside();
}

void TCustomForm::HideWindowNow() {
  // The system does not count with children that are hidden.
  if (StandsInside()) return DestroyHandle();
  // The system would activate whatever window lies below, of another program as well.
  const HWND next = ::GetActiveWindow() == Handle() ? NextWindow(Handle()) : nullptr;
  if (next) ::SetActiveWindow(next);
  ::SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
}

TWindowState TCustomForm::WindowState() const { return FWindowState; }

void TCustomForm::SetWindowState(TWindowState state) {
  static constexpr int commands[] = {SW_RESTORE, SW_MINIMIZE, SW_MAXIMIZE};
  if (state == FWindowState) return;
  const bool main = this == Application()->MainForm();
  FWindowState = state;
  if (!Showing() || Designing()) return;
  if (state != wsMinimized || !main) {
    ::ShowWindow(Handle(), commands[state]);
  } else if (::IsWindowVisible(Handle())) {
    Application()->Minimize();  // In OnShow it is too early: that is done when the window is shown.
  }
}

void TCustomForm::WMSize(TMessage& message) {
  static constexpr TWindowState states[] = {wsNormal, wsMinimized, wsMaximized};
  const WPARAM kind = message.WParam;
  if (Showing() && !Designing() && kind <= SIZE_MAXIMIZED) FWindowState = states[kind];
  TWatch watch(this);
  TScrollingWinControl::Dispatch(message);
  // A menu that comes or goes changes the client rectangle in a window of the same size.
  if (!watch.Gone() && kind != SIZE_MINIMIZED) Realign();
}

void TCustomForm::WMSysCommand(TMessage& message) {
  constexpr WPARAM command = 0xFFF0;  // The system keeps the lowest four bits for itself.
  const bool minimize = (message.WParam & command) == SC_MINIMIZE;
  if (minimize && !Designing() && this == Application()->MainForm()) {
    Application()->Minimize();
  } else {
    TScrollingWinControl::Dispatch(message);
  }
}

// Files that are dropped.

void TCustomForm::UpdateDropFiles() {
  const bool takes = OnDropFiles.Assigned() && !Designing();
  if (!HandleAllocated() || takes == FTakesFiles) return;
  FTakesFiles = takes;
  ::DragAcceptFiles(Handle(), takes);
}

void TCustomForm::WMDropFiles(TMessage& message) {
  const TDroppedFiles dropped = TakeDroppedFiles(message.WParam);
  OnDropFiles(this, dropped.Names, dropped.Position);
}

// Messages.

void TCustomForm::Dispatch(TMessage& message) {
  if (DispatchWindow(message) || DispatchNotice(message)) return;
  TScrollingWinControl::Dispatch(message);
}

// The messages that a form handles at its own window; true when nobody else should.
bool TCustomForm::DispatchWindow(TMessage& message) {
  switch (message.Msg) {
    case WM_ACTIVATE:
      if (Designing() || Parent()) return false;
      if (FClientHandle) {  // Its children have the focus.
        FActive = LOWORD(message.WParam) != WA_INACTIVE;
        return false;
      }
      SetActive(LOWORD(message.WParam) != WA_INACTIVE && !HIWORD(message.WParam));
      return true;
    case WM_SETFOCUS:
      if (Designing() || !FActiveControl || !FActiveControl->CanFocus()) return false;
      SetWindowFocus();
      return true;
    case WM_COMMAND:
    case WM_INITMENUPOPUP:
    case WM_MENUSELECT: return FMenu && FMenu->HandleMessage(message);
    case WM_MEASUREITEM:
    case WM_DRAWITEM:
      if (!FMenu || !FMenu->HandleMessage(message)) return false;
      message.Result = TRUE;
      return true;
    case WM_CLOSE: return Close(), true;
    case WM_MDIACTIVATE: return WMMDIActivate(message), true;
    case WM_QUERYENDSESSION: return message.Result = Application()->AskSessionEnd(this), true;
    case WM_DROPFILES: return WMDropFiles(message), true;
    case WM_DPICHANGED: return WMDpiChanged(message), true;
    case WM_SIZE: return WMSize(message), true;
    case WM_SYSCOMMAND: return WMSysCommand(message), true;
    default: return false;
  }
}

bool TCustomForm::DispatchNotice(TMessage& message) {
  switch (message.Msg) {
    case CM_SHOWINGCHANGED: return ShowingChanged(), true;
    case CM_ACTIVATE:
      if (!Loading()) Activate();
      return true;
    case CM_DEACTIVATE:
      if (!Loading()) Deactivate();
      return true;
    case CM_DIALOGKEY:
      if (!DialogKey(message.WParam)) return false;
      message.Result = 1;
      return true;
    default: return false;
  }
}

void TCustomForm::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = FModal || FBorderStyle == bsDialog ? arDialog : arClient;
  // The caption bar shows "&" as it stands.
  info.Name = Caption();
  info.KeyboardShortcut.clear();
}

}  // namespace vcl
