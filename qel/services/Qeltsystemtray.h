// TQELSystemTray: the application's icon in the taskbar's notification area.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/graphics/icon.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/systemtypes.h"

// The system's record of an icon.
struct _NOTIFYICONDATAA;  // NOLINT(bugprone-reserved-identifier)

namespace qel {

/// Puts an icon for the whole application into the notification area, the tray. While it is
/// enabled, the application minimizes to the tray: its button leaves the taskbar and the icon
/// comes; restoring it turns that round. With NormalIcon the icon stays all the time. Clicks on the
/// icon become events, and a right click may bring up a menu.
///
/// The component takes the application's OnMinimize and OnRestore for itself and has events of its
/// own in their place; who had them before is not called any more, not even once it is freed. It
/// does not bring the taskbar's button back when it is freed or disabled while the application is
/// in the tray: restore the application first.
///
/// See Shell_NotifyIcon and "Notifications and the Notification Area" in the Win32 documentation.
class QEL_API TQELSystemTray : public TQELComponent {
 public:
  /// Raises EOutOfResources without a window for the icon's messages.
  explicit TQELSystemTray(vcl::TComponent* owner);
  ~TQELSystemTray() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  bool Enabled() const { return FEnabled; }
  /// Adds or removes the icon; raises as AddIconToTray does.
  void SetEnabled(bool enabled);
  const std::string& Hint() const { return FHint; }
  /// The icon's tool tip: as much as fits into the shell's 63 bytes without cutting a character.
  void SetHint(const std::string& hint);
  /// The icon, at first a copy of the application's. Changed in place, it is shown by the next
  /// UpdateTrayIcon.
  vcl::TIcon* Icon() const { return FIcon.get(); }
  /// Copies the icon, and shows the handle of the one given, not that of the copy: keep that icon
  /// until another one is shown. Null shows none.
  void SetIcon(vcl::TIcon* icon);
  vcl::TPopupMenu* PopupMenu() const { return FPopupMenu; }
  /// The menu of a right click on the icon.
  void SetPopupMenu(vcl::TPopupMenu* menu);
  bool NormalIcon() const { return FNormalIcon; }
  /// Keeps the icon in the tray while the application is not minimized; raises as AddIconToTray
  /// does.
  void SetNormalIcon(bool normalIcon);

  /// Adds the icon when the component is enabled and it is absent. Raises EOutOfResources when the
  /// shell refuses it; it counts as absent then, and is tried again when it is next wanted.
  void AddIconToTray();
  /// Removes the icon, if it is there.
  void RemoveIconFromTray();
  /// Shows changes of the icon and its tool tip.
  void UpdateTrayIcon();

  /// The left button was released on the icon resp. clicked twice. A double click fires OnClick,
  /// OnDblClick and OnClick again.
  vcl::TNotifyEvent OnClick, OnDblClick;
  /// The right button was released on the icon, and the menu, if it came up, has gone. The position
  /// is the mouse's on the screen.
  vcl::TMouseEvent OnRightClick;
  /// The application was minimized resp. restored, whether the component is enabled or not. The
  /// sender is the application.
  vcl::TNotifyEvent OnMinimize, OnRestore;

 protected:
  /// Handles the messages of the component's window: those of the icon, and the shell's
  /// announcement that it has begun anew.
  virtual void WndProc(vcl::TMessage& message);
  void HandleRightClick(vcl::TObject* sender);
  void HandleMinimize(vcl::TObject* sender);
  void HandleRestore(vcl::TObject* sender);
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  bool Send(DWORD command);
  void FillRecord();
  void SetTip(const std::string& tip);
  void TakeOverApplication();
  vcl::TNotifyEvent WhileAlive(void (TQELSystemTray::*handler)(vcl::TObject*));
  void MinimizeToTray();
  void ShellRestarted();
  void IconMessage(LPARAM mouseMessage);
  void IconChanged(vcl::TObject* sender);

  bool FEnabled = false;
  std::string FHint;
  std::unique_ptr<vcl::TIcon> FIcon;
  vcl::TPopupMenu* FPopupMenu = nullptr;
  bool FNormalIcon = false;
  std::unique_ptr<_NOTIFYICONDATAA> FRecord;  // NOLINT(bugprone-reserved-identifier)
  HWND FWindow = nullptr;                     // None in the designer.
  bool FShellAvailable;
  bool FMinimized = false;
  bool FIconAbsent = true;
};

}  // namespace qel
