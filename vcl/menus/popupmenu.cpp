// TPopupMenu: bringing it up, and the window that gets its messages meanwhile.
#include "vcl/controls/messagewindow.h"
#include "vcl/forms/application.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

/// The window that gets a popup menu's messages while it is up.
class TMenuWindow {
 public:
  explicit TMenuWindow(TMenu* menu)
      : FMenu(menu), FWatch(menu), FHandle(AllocateHWnd({this, &TMenuWindow::WndProc})) {}
  ~TMenuWindow() { DeallocateHWnd(FHandle); }
  TMenuWindow(const TMenuWindow&) = delete;
  TMenuWindow& operator=(const TMenuWindow&) = delete;

  HWND Handle() const { return FHandle; }

 private:
  void WndProc(TMessage& message) {
    const bool handled = !FWatch.Gone() && FMenu->HandleMessage(message);
    const bool asks = message.Msg == WM_MEASUREITEM || message.Msg == WM_DRAWITEM;
    if (handled && asks) {
      message.Result = TRUE;
      return;
    }
    message.Result = ::DefWindowProcW(FHandle, message.Msg, message.WParam, message.LParam);
  }

  TMenu* FMenu;
  TWatch FWatch;
  HWND FHandle;
};

bool ProgramIsInFront() {
  DWORD process = 0;
  ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
  return process == ::GetCurrentProcessId();
}

}  // namespace

const TClass& TPopupMenu::Class() {
  static const TClass info = Describe<TPopupMenu, TMenu>(
      "vcl::TPopupMenu", "vcl/menus/menus.h",
      {
          Property<&TPopupMenu::AutoPopup, &TPopupMenu::SetAutoPopup>("AutoPopup").Default(true),
          Event<&TPopupMenu::OnPopup>("OnPopup"),
      });
  return info;
}

TPopupMenu::TPopupMenu(TComponent* owner) : TMenu(owner) {}

TPopupMenu::~TPopupMenu() {
  AnnounceEnd();
  SetPopupComponent(nullptr);
}

void TPopupMenu::SetPopupComponent(TComponent* component) {
  // The former one stays told of this menu's end: most likely it is its PopupMenu.
  FPopupComponent = component;
  if (component) component->FreeNotification(this);
}

void TPopupMenu::Notification(TComponent* component, TOperation operation) {
  TMenu::Notification(component, operation);
  if (operation == opRemove && component == FPopupComponent) FPopupComponent = nullptr;
}

void TPopupMenu::Popup(int x, int y) {
  TWatch watch(this);
  OnPopup(this);
  if (watch.Gone()) return;
  Application()->CancelHint();
  FitPictures();
  UINT command = 0;
  {
    TMenuWindow window(this);
    // A menu of a program in the background, such as one of a tray icon, stays up when the user
    // clicks elsewhere, unless its window comes to the front; and the next one would vanish at
    // once, were the program not woken afterwards. See TrackPopupMenu's remarks.
    const bool inFront = ProgramIsInFront();
    if (!inFront) ::SetForegroundWindow(window.Handle());
    command = static_cast<UINT>(::TrackPopupMenuEx(Handle(), TPM_RIGHTBUTTON | TPM_RETURNCMD, x, y,
                                                   window.Handle(), nullptr));
    if (!inFront) ::PostMessageW(Application()->Handle(), WM_NULL, 0, 0);
  }
  if (command != 0 && !watch.Gone()) DispatchCommand(static_cast<std::uint16_t>(command));
}

}  // namespace vcl
