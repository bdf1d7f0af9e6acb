// TQELSystemTray: what it tells the shell, the icon's messages, and hiding the application.
#include "qel/services/Qeltsystemtray.h"

#include "vcl/controls/messagewindow.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <shellapi.h>

#include <cstring>

namespace qel {

namespace {

constexpr UINT IconsMessage = WM_USER + 1;  // LParam: the mouse's message.

/// Broadcast by the shell when its taskbar has come, at its start and after its end.
UINT TaskbarCreated() {
  static const UINT message = ::RegisterWindowMessageW(L"TaskbarCreated");
  return message;
}

/// Systems of version 3 have no taskbar.
bool HasShell() {
  OSVERSIONINFOA version{};
  version.dwOSVersionInfoSize = sizeof version;
  ::GetVersionExA(&version);
  return version.dwMajorVersion > 3;
}

bool IsMinimized(HWND window) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  return ::GetWindowPlacement(window, &placement) && placement.showCmd == SW_SHOWMINIMIZED;
}

}  // namespace

const vcl::TClass& TQELSystemTray::Class() {
  using T = TQELSystemTray;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELSystemTray", "qel/services/Qeltsystemtray.h",
      {
          Property<&T::Enabled, &T::SetEnabled>("Enabled").Default(false),
          Property<&T::Hint, &T::SetHint>("Hint"),
          Property<&T::PopupMenu, &T::SetPopupMenu>("PopupMenu"),
          Property<&T::NormalIcon, &T::SetNormalIcon>("NormalIcon").Default(false),
          Event<&T::OnClick>("OnClick"),
          Event<&T::OnDblClick>("OnDblClick"),
          Event<&T::OnRightClick>("OnRightClick"),
          Event<&T::OnMinimize>("OnMinimize"),
          Event<&T::OnRestore>("OnRestore"),
      });
  return info;
}

TQELSystemTray::TQELSystemTray(vcl::TComponent* owner)
    : TQELComponent(owner),
      FIcon(std::make_unique<vcl::TIcon>()),
      FRecord(std::make_unique<NOTIFYICONDATAA>()),
      FShellAvailable(HasShell()) {
  FIcon->Assign(vcl::Application()->Icon());
  if (Designing()) return;
  FIcon->OnChange = {this, &TQELSystemTray::IconChanged};
  FWindow = vcl::AllocateHWnd({this, &TQELSystemTray::WndProc});
  // The shell has fewer rights than a program that runs as administrator.
  ::ChangeWindowMessageFilterEx(FWindow, TaskbarCreated(), MSGFLT_ALLOW, nullptr);
  FillRecord();
  TakeOverApplication();
}

TQELSystemTray::~TQELSystemTray() {
  AnnounceEnd();
  if (FEnabled) RemoveIconFromTray();
  SetPopupMenu(nullptr);
  vcl::DeallocateHWnd(FWindow);
}

void TQELSystemTray::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation == vcl::opRemove && component == FPopupMenu) FPopupMenu = nullptr;
}

// The shell.

// The record is the shell's first version of it, which every system takes, and which has no room
// for more of a tip than its 64 bytes.
void TQELSystemTray::FillRecord() {
  FRecord->cbSize = NOTIFYICONDATAA_V1_SIZE;
  static_assert(sizeof(void*) != 4 || NOTIFYICONDATAA_V1_SIZE == 88);
  FRecord->hWnd = FWindow;
  FRecord->uFlags = NIF_MESSAGE | NIF_ICON;
  FRecord->uCallbackMessage = IconsMessage;
  FRecord->hIcon = FIcon->Handle();
  SetTip(vcl::Application()->Title());
}

// The active code page is UTF-8, so the narrow call counts bytes where the user sees characters: of
// a tip that is too long, whole characters are left out.
void TQELSystemTray::SetTip(const std::string& tip) {
  constexpr std::size_t room = 64;
  const std::string_view shown = vcl::CutUtf8(tip, room - 1);
  std::memset(FRecord->szTip, 0, room);
  std::memcpy(FRecord->szTip, shown.data(), shown.size());
  // Without the flag the shell leaves the tip that it has until the icon is added anew.
  FRecord->uFlags &= ~static_cast<UINT>(NIF_TIP);
  if (!tip.empty()) FRecord->uFlags |= NIF_TIP;
}

/// The one sender to the shell; false when it refuses. A component in the designer has no icon.
bool TQELSystemTray::Send(DWORD command) {
  return ::Shell_NotifyIconA(command, FRecord.get()) != FALSE;
}

void TQELSystemTray::AddIconToTray() {
  if (!FEnabled || !FShellAvailable || !FWindow || !FIconAbsent) return;
  if (!Send(NIM_ADD)) throw vcl::EOutOfResources("Cannot create shell notification icon");
  FIconAbsent = false;
}

void TQELSystemTray::RemoveIconFromTray() {
  if (FShellAvailable && FWindow) Send(NIM_DELETE);
  FIconAbsent = true;
}

// Also sent for an absent icon, which the shell refuses without harm.
void TQELSystemTray::UpdateTrayIcon() {
  if (FEnabled && FShellAvailable && FWindow) Send(NIM_MODIFY);
}

// Nobody asked for this one, so a refusal raises nothing: the shell announces itself again when it
// is ready. But the user gets the taskbar's button back when there is no icon to come back by.
void TQELSystemTray::ShellRestarted() {
  FIconAbsent = true;
  // An icon that was handed to SetIcon may have gone since; the copy is the same picture.
  FRecord->hIcon = FIcon->Handle();
  if (!FEnabled || !FShellAvailable || !(FMinimized || FNormalIcon)) return;
  FIconAbsent = !Send(NIM_ADD);
  if (FIconAbsent && FMinimized) ::ShowWindow(vcl::Application()->Handle(), SW_SHOWMINNOACTIVE);
}

// Messages.

void TQELSystemTray::WndProc(vcl::TMessage& message) {
  if (message.Msg == IconsMessage) return IconMessage(message.LParam);
  if (message.Msg == TaskbarCreated()) ShellRestarted();
  message.Result = ::DefWindowProcW(FWindow, message.Msg, message.WParam, message.LParam);
}

void TQELSystemTray::IconMessage(LPARAM mouseMessage) {
  switch (mouseMessage) {
    case WM_LBUTTONUP: return OnClick(this);
    case WM_LBUTTONDBLCLK: return OnDblClick(this);
    case WM_RBUTTONUP: return HandleRightClick(this);
    default: return;
  }
}

void TQELSystemTray::HandleRightClick(vcl::TObject* sender) {
  vcl::TWatch watch(this);
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const bool inTray = !::IsWindowVisible(vcl::Application()->Handle());
  if (FPopupMenu && (inTray || FNormalIcon)) FPopupMenu->Popup(mouse.x, mouse.y);
  // The menu may have ended the program's form.
  if (!watch.Gone()) OnRightClick(sender, vcl::mbRight, {}, mouse.x, mouse.y);
}

// The application.

void TQELSystemTray::TakeOverApplication() {
  vcl::TApplication* const application = vcl::Application();
  application->OnMinimize = WhileAlive(&TQELSystemTray::HandleMinimize);
  application->OnRestore = WhileAlive(&TQELSystemTray::HandleRestore);
  FMinimized = IsMinimized(application->Handle());
}

/// The component does not know who has the application's events by the time it is freed, so it
/// leaves them there, with a handler that does nothing from then on.
vcl::TNotifyEvent TQELSystemTray::WhileAlive(void (TQELSystemTray::*handler)(vcl::TObject*)) {
  return [this, watch = vcl::TWatch(this), handler](vcl::TObject* sender) {
    if (!watch.Gone()) (this->*handler)(sender);
  };
}

void TQELSystemTray::HandleMinimize(vcl::TObject* sender) {
  if (FEnabled) MinimizeToTray();
  FMinimized = true;
  OnMinimize(sender);
}

void TQELSystemTray::MinimizeToTray() {
  vcl::TApplication* const application = vcl::Application();
  // The application takes the tray's icon, not the other way round.
  application->Icon()->Assign(FIcon.get());
  FRecord->hIcon = FIcon->Handle();
  ::ShowWindow(application->Handle(), SW_HIDE);
  if (!FIconAbsent) return UpdateTrayIcon();
  // With neither an icon nor a button the user could not come back.
  const vcl::TOnFailure comeBack(
      [application] { ::ShowWindow(application->Handle(), SW_SHOWMINNOACTIVE); });
  AddIconToTray();
}

// The mark is set before OnMinimize but cleared after OnRestore: handlers of both see the
// application as minimized.
void TQELSystemTray::HandleRestore(vcl::TObject* sender) {
  vcl::TWatch watch(this);
  if (FEnabled) {
    ::ShowWindow(vcl::Application()->Handle(), SW_RESTORE);
    if (!FNormalIcon) RemoveIconFromTray();
  }
  OnRestore(sender);
  if (!watch.Gone()) FMinimized = false;
}

// Properties.

void TQELSystemTray::SetEnabled(bool enabled) {
  FEnabled = enabled;
  if (Designing()) return;
  // On purpose, the icon also goes when the application is minimized while NormalIcon is on.
  FEnabled&& FMinimized != FNormalIcon ? AddIconToTray() : RemoveIconFromTray();
}

void TQELSystemTray::SetNormalIcon(bool normalIcon) {
  FNormalIcon = normalIcon;
  if (Designing() || !FEnabled) return;
  if (FNormalIcon) return AddIconToTray();
  if (!FMinimized) RemoveIconFromTray();
}

void TQELSystemTray::SetHint(const std::string& hint) {
  if (hint == FHint) return;
  FHint = hint;
  if (Designing()) return;
  SetTip(FHint);
  UpdateTrayIcon();
}

void TQELSystemTray::SetIcon(vcl::TIcon* icon) {
  FIcon->Assign(icon);
  if (Designing()) return;
  FRecord->hIcon = icon ? icon->Handle() : nullptr;
  UpdateTrayIcon();
}

// Changing the icon frees the handle that it had.
void TQELSystemTray::IconChanged(vcl::TObject*) { FRecord->hIcon = FIcon->Handle(); }

void TQELSystemTray::SetPopupMenu(vcl::TPopupMenu* menu) {
  if (FPopupMenu) FPopupMenu->RemoveFreeNotification(this);
  FPopupMenu = menu;
  if (menu) menu->FreeNotification(this);
}

}  // namespace qel
