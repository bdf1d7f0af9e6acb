// TCustomForm: windows inside a window. The main form, an fsMDIForm, holds a window of the
// system's, the client, in which the forms of the style fsMDIChild stand.
// https://learn.microsoft.com/windows/win32/winmsg/about-the-multiple-document-interface
#include <tuple>

#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr UINT FirstChild = 0xFF00;  // The children's commands, above those of menus.

template <class Use>
void EachChild(Use use) {
  for (int i = Screen()->FormCount() - 1; i >= 0; --i) {
    if (Screen()->Forms(i)->FormStyle() == fsMDIChild) use(Screen()->Forms(i));
  }
}

}  // namespace

// A child.

bool TCustomForm::StandsInside() const {
  return FFormStyle == fsMDIChild && !Designing() && !Parent();
}

/// The designer's window, or the main form's client, which is made if it has to be.
HWND TCustomForm::WindowAround() const {
  if (FDesigner) return FDesigner->HostWindow();
  TCustomForm* const main = Application()->MainForm();
  if (main && main != this && main->FFormStyle == fsMDIForm) main->HandleNeeded();
  if (main && main->FClientHandle) return main->FClientHandle;
  throw EInvalidOperation(Concat("The form ", Name(), ": ", ClassName(),
                                 " can't stand in the main form, which is no fsMDIForm"));
}

void TCustomForm::WMMDIActivate(TMessage& message) {
  FActive = reinterpret_cast<HWND>(message.LParam) == Handle();
  if (FActive && !FActiveControl) FActiveControl = FindNextControl(nullptr, true, true, false);
  if (FActiveControl) FActiveControl->FreeNotification(this);
  DefaultHandler(message);
}

/// Brings a child that has been shown to the front. The system may have done so already, when none
/// of its controls could have the focus.
void TCustomForm::ActivateInside() {
  const HWND client = WindowAround();
  ::SendMessageW(client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(Handle()), 0);
  ::SendMessageW(client, WM_MDIREFRESHMENU, 0, 0);
  if (FActive) SetActive(true);
}

void TCustomForm::DestroyWindowHandle() {
  if (!StandsInside()) return TScrollingWinControl::DestroyWindowHandle();
  FActive = false;
  // Destroyed otherwise, it would be counted on.
  ::SendMessageW(::GetParent(Handle()), WM_MDIDESTROY, reinterpret_cast<WPARAM>(Handle()), 0);
}

void TCustomForm::DefaultHandler(TMessage& message) {
  const auto [msg, wParam, lParam] = std::tuple(message.Msg, message.WParam, message.LParam);
  if (!HandleAllocated() || msg >= CM_BASE) return;
  if (StandsInside()) {
    message.Result = ::DefMDIChildProcW(Handle(), msg, wParam, lParam);
  } else if (FClientHandle && msg != WM_SIZE) {  // With which it would lay the client over all.
    message.Result = ::DefFrameProcW(Handle(), FClientHandle, msg, wParam, lParam);
  } else {
    TScrollingWinControl::DefaultHandler(message);
  }
}

/// The window goes in the way of its style, and comes in the new one's.
void TCustomForm::RemakeAs(TFormStyle style) {
  {
    const bool remade = HandleAllocated() && !Designing();
    const TSetFor remaking(FRemaking, true, this);
    if (remade) DestroyHandle();
    FFormStyle = style;
    if (remade) UpdateControlState();
  }
  if (style == fsMDIChild) SetVisible(true);
}

// The form around.

void TCustomForm::CreateClient() {
  constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | WS_CLIPCHILDREN |
                          WS_CLIPSIBLINGS | WS_HSCROLL | WS_VSCROLL | MDIS_ALLCHILDSTYLES;
  CLIENTCREATESTRUCT create{nullptr, FirstChild};
  FClientHandle = CheckHandle(
      ::CreateWindowExW(0, L"MDICLIENT", nullptr, style, 0, 0, ClientWidth(), ClientHeight(),
                        Handle(), nullptr, ::GetModuleHandleW(nullptr), &create),
      "the window of a form's children");
  Realign();
  // Children that were there have lost their windows with the former client.
  EachChild([](TCustomForm* child) {
    if (child->Visible()) child->UpdateControlState();
  });
}

void TCustomForm::DestroyClient() {
  if (!FClientHandle) return;
  EachChild([](TCustomForm* child) { child->DestroyHandle(); });
  FClientHandle = nullptr;  // It ends with this window.
}

/// The client takes what the controls leave.
void TCustomForm::AlignControls(TControl* control, TRect& rect) {
  TWatch watch(this);
  TScrollingWinControl::AlignControls(control, rect);
  if (watch.Gone() || !FClientHandle) return;
  ::SetWindowPos(FClientHandle, HWND_BOTTOM, rect.Left, rect.Top, rect.Width(), rect.Height(),
                 SWP_NOACTIVATE);
}

TCustomForm* TCustomForm::ActiveMDIChild() const {
  if (!FClientHandle) return nullptr;
  const LRESULT child = ::SendMessageW(FClientHandle, WM_MDIGETACTIVE, 0, 0);
  return dynamic_cast<TCustomForm*>(FromHandle(reinterpret_cast<HWND>(child)));
}

int TCustomForm::MDIChildCount() const {
  int count = 0;
  if (FClientHandle) EachChild([&](TCustomForm*) { ++count; });
  return count;
}

TCustomForm* TCustomForm::MDIChildren(int index) const {
  TCustomForm* found = nullptr;
  int place = MDIChildCount();
  EachChild([&](TCustomForm* child) {
    if (--place == index) found = child;
  });
  return found;
}

void TCustomForm::TellClient(UINT message, WPARAM wParam) {
  if (FClientHandle) ::SendMessageW(FClientHandle, message, wParam, 0);
}

void TCustomForm::Cascade() { TellClient(WM_MDICASCADE); }
void TCustomForm::Tile() {
  TellClient(WM_MDITILE, FTileMode == tbVertical ? MDITILE_VERTICAL : MDITILE_HORIZONTAL);
}
void TCustomForm::ArrangeIcons() { TellClient(WM_MDIICONARRANGE); }
void TCustomForm::Next() { TellClient(WM_MDINEXT); }
void TCustomForm::Previous() {
  if (FClientHandle) ::SendMessageW(FClientHandle, WM_MDINEXT, 0, 1);
}

}  // namespace vcl
