#include <exception>

#include "host/rtl/properties.h"
#include "host/vcl/application.h"
#include "host/vcl/handles.h"
#include "host/vcl/menus.h"

namespace vcl {

namespace {

constexpr const wchar_t* WindowClassName = L"TMenuWindow";

/// The window that gets a popup menu's messages while it is up.
class TMenuWindow {
 public:
  explicit TMenuWindow(TMenu* menu) : FMenu(menu), FWatch(menu) {
    static const ATOM registered = Register();
    if (!registered) RaiseOutOfResources("The window class of popup menus");
    FHandle = CheckHandle(
        ::CreateWindowExW(WS_EX_TOOLWINDOW, WindowClassName, L"", WS_POPUP, 0, 0, 0, 0,
                          Application()->Handle(), nullptr, ::GetModuleHandleW(nullptr), this),
        "The window of a popup menu");
    ::SetWindowLongPtrW(FHandle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  ~TMenuWindow() { ::DestroyWindow(FHandle); }
  TMenuWindow(const TMenuWindow&) = delete;
  TMenuWindow& operator=(const TMenuWindow&) = delete;

  HWND Handle() const { return FHandle; }
  bool MenuGone() const { return FWatch.Gone(); }

 private:
  static ATOM Register() {
    WNDCLASSW info{};
    info.lpfnWndProc = &WndProc;
    info.hInstance = ::GetModuleHandleW(nullptr);
    info.lpszClassName = WindowClassName;
    return ::RegisterClassW(&info);
  }

  static LRESULT CALLBACK WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<TMenuWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    try {
      if (self && !self->MenuGone()) self->FMenu->HandleMessage({message, wParam, lParam, 0});
    } catch (...) {
      Application()->HandleCurrentException(nullptr);
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
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
      "TPopupMenu", "menus",
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
  if (FPopupComponent) FPopupComponent->RemoveFreeNotification(this);
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
  UINT command = 0;
  {
    TMenuWindow window(this);
    // A menu of a program in the background, such as one of a tray icon, stays up when the user
    // clicks elsewhere, unless the program comes to the front; see TrackPopupMenu's remarks.
    if (!ProgramIsInFront()) ::SetForegroundWindow(Application()->Handle());
    command = static_cast<UINT>(::TrackPopupMenuEx(Handle(), TPM_RIGHTBUTTON | TPM_RETURNCMD, x, y,
                                                   window.Handle(), nullptr));
  }
  if (command != 0 && !watch.Gone()) DispatchCommand(static_cast<std::uint16_t>(command));
}

}  // namespace vcl
