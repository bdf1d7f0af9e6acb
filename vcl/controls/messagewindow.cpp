// Windows that only receive messages: making them, and passing their messages on.
#include "vcl/controls/messagewindow.h"

#include <memory>

#include "vcl/controls/private/handling.h"
#include "vcl/forms/application.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr const wchar_t* WindowClassName = L"TMessageWindow";

LRESULT CALLBACK PassOn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto* method =
      reinterpret_cast<const TWndMethod*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!method) return ::DefWindowProcW(window, message, wParam, lParam);
  TMessage record{message, wParam, lParam, 0};
  const THandling handling;
  try {
    (*method)(record);
  } catch (...) {
    message == WM_TIMER ? Application()->HandleTimerException(nullptr)
                        : Application()->HandleCurrentException(nullptr);
  }
  return record.Result;
}

ATOM RegisterWindowClass() {
  WNDCLASSW info{};
  info.lpfnWndProc = &PassOn;
  info.hInstance = ::GetModuleHandleW(nullptr);
  info.lpszClassName = WindowClassName;
  return ::RegisterClassW(&info);
}

}  // namespace

HWND AllocateHWnd(const TWndMethod& method) {
  static const ATOM registered = RegisterWindowClass();
  if (!registered) RaiseOutOfResources("The class of windows that only receive messages");
  auto kept = std::make_unique<TWndMethod>(method);
  const HWND window =
      CheckHandle(::CreateWindowExW(WS_EX_TOOLWINDOW, WindowClassName, L"", WS_POPUP, 0, 0, 0, 0,
                                    nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr),
                  "A window that only receives messages");
  // Set once the window is made: what the system sends meanwhile is not for the method.
  ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(kept.release()));
  return window;
}

void DeallocateHWnd(HWND window) {
  if (!window) return;
  const std::unique_ptr<TWndMethod> kept(
      reinterpret_cast<TWndMethod*>(::SetWindowLongPtrW(window, GWLP_USERDATA, 0)));
  ::DestroyWindow(window);
}

}  // namespace vcl
