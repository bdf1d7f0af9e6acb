// TOverlay: the window of its own that it is, painted and pressed.
#include "ide/overlay.h"

#include <string_view>
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/graphics/handles.h"

namespace ide {

using namespace vcl;

namespace {

constexpr const wchar_t* ClassName = L"DesignerOverlay";

void RegisterOnce(WNDPROC proc) {
  static const bool done = [proc] {
    WNDCLASSW info{};
    info.style = CS_DBLCLKS;
    info.lpfnWndProc = proc;
    info.hInstance = ::GetModuleHandleW(nullptr);
    info.lpszClassName = ClassName;
    return ::RegisterClassW(&info) != 0;
  }();
  if (!done) RaiseOutOfResources("window class");
}

}  // namespace

TOverlay::TOverlay(HWND parent, TPaint paint, TMouse mouse, LPCWSTR cursor)
    : FAround(parent),
      FPaint(std::move(paint)),
      FMouse(std::move(mouse)),
      FCursor(::LoadCursorW(nullptr, cursor)) {
  RegisterOnce(&TOverlay::WndProc);
  FHandle = CheckHandle(::CreateWindowExW(0, ClassName, L"", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 1, 1,
                                          parent, nullptr, ::GetModuleHandleW(nullptr), nullptr),
                        "window");
  ::SetWindowLongPtrW(FHandle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

bool TOverlay::Is(HWND window) {
  wchar_t name[32] = L"";
  ::GetClassNameW(window, name, 32);
  return std::wstring_view(name) == ClassName;
}

TOverlay::~TOverlay() {
  if (!Alive()) return;
  ::SetWindowLongPtrW(FHandle, GWLP_USERDATA, 0);
  ::DestroyWindow(FHandle);
}

void TOverlay::Place(const TRect& bounds) {
  const bool topmost = ::GetWindow(FHandle, GW_HWNDPREV) == nullptr;
  if (bounds == FBounds && topmost && ::IsWindowVisible(FHandle)) return;
  FBounds = bounds;
  ::SetWindowPos(FHandle, HWND_TOP, bounds.Left, bounds.Top, bounds.Width(), bounds.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

LRESULT CALLBACK TOverlay::WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<TOverlay*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
  try {
    return self->Handle(message, wParam, lParam);
  } catch (...) {
    Application()->HandleCurrentException(nullptr);
    return 0;
  }
}

LRESULT TOverlay::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: return PaintNow(), 0;
    case WM_ERASEBKGND: return 1;
    case WM_SETCURSOR: return ::SetCursor(FCursor), TRUE;
    case WM_NCDESTROY: FHandle = nullptr; return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONUP: {
      POINT at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
      ::ClientToScreen(FHandle, &at);
      if (FMouse) FMouse(message, at);
      return 0;
    }
    default: return ::DefWindowProcW(FHandle, message, wParam, lParam);
  }
}

void TOverlay::PaintNow() {
  PAINTSTRUCT paint;
  const HDC dc = ::BeginPaint(FHandle, &paint);
  RECT inside;
  ::GetClientRect(FHandle, &inside);
  TCanvas canvas;
  canvas.SetHandle(dc);
  FPaint(canvas, inside);
  canvas.SetHandle(nullptr);
  ::EndPaint(FHandle, &paint);
}

}  // namespace ide
