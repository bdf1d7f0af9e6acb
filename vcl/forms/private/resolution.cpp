// Asking the system for dots per inch, by calls that not every system has.
#include "vcl/forms/private/resolution.h"

#include "vcl/forms/screen.h"

namespace vcl {

namespace {

/// A function of one of the system's libraries; null where it has none of the name. The library
/// stays loaded.
template <class T>
T SystemCall(const wchar_t* library, const char* name) {
  const HMODULE module = ::LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (!module) return nullptr;
  return reinterpret_cast<T>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

}  // namespace

int PixelsPerInchAt(const TRect& place) {
  using TCall = HRESULT(WINAPI*)(HMONITOR monitor, int type, UINT* x, UINT* y);
  static const auto call = SystemCall<TCall>(L"shcore.dll", "GetDpiForMonitor");
  constexpr int effective = 0;
  const RECT rect = place;
  const HMONITOR monitor = ::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST);
  UINT x = 0;
  UINT y = 0;
  if (call && SUCCEEDED(call(monitor, effective, &x, &y)) && y > 0) return static_cast<int>(y);
  return Screen()->PixelsPerInch();
}

void AddFrameOf(const TFrameKind& kind, int pixelsPerInch, RECT& rect) {
  using TCall = BOOL(WINAPI*)(RECT * rect, DWORD style, BOOL menu, DWORD exStyle, UINT dpi);
  static const auto call = SystemCall<TCall>(L"user32.dll", "AdjustWindowRectExForDpi");
  if (call) {
    call(&rect, kind.Style, kind.Menu, kind.ExStyle, static_cast<UINT>(pixelsPerInch));
  } else {
    ::AdjustWindowRectEx(&rect, kind.Style, kind.Menu, kind.ExStyle);
  }
}

}  // namespace vcl
