// Disabling the thread's other windows while one is modal, and finding the one that comes to the
// front next.
#include "vcl/forms/private/taskwindows.h"

#include <utility>

#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"

namespace vcl {

namespace {

struct TSearch {
  HWND Other;
  HWND Found;
};

// The windows come in z-order, the topmost first. Only forms count: the application's own window
// and hints are visible too.
BOOL CALLBACK TakeFirst(HWND window, LPARAM param) {
  auto& search = *reinterpret_cast<TSearch*>(param);
  if (window == search.Other || !::IsWindowVisible(window) || !::IsWindowEnabled(window))
    return TRUE;
  if (!dynamic_cast<TCustomForm*>(TWinControl::FromHandle(window))) return TRUE;
  search.Found = window;
  return FALSE;
}

}  // namespace

TDisabledWindows::TDisabledWindows(HWND exception) : FException(exception) {
  ::EnumThreadWindows(::GetCurrentThreadId(), &Disable, reinterpret_cast<LPARAM>(this));
}

BOOL CALLBACK TDisabledWindows::Disable(HWND window, LPARAM self) {
  auto& windows = *reinterpret_cast<TDisabledWindows*>(self);
  if (window == windows.FException || !::IsWindowVisible(window) || !::IsWindowEnabled(window)) {
    return TRUE;
  }
  windows.FWindows.push_back(window);
  ::EnableWindow(window, FALSE);
  return TRUE;
}

void TDisabledWindows::Enable() {
  for (HWND window : std::exchange(FWindows, {})) {
    if (::IsWindow(window)) ::EnableWindow(window, TRUE);
  }
}

TSystemModal::TSystemModal()
    : FActive(::GetActiveWindow()), FFocus(::GetFocus()), FOthers(nullptr) {
  Application()->CancelHint();
}

TSystemModal::~TSystemModal() {
  FOthers.Enable();
  if (FActive && ::IsWindow(FActive)) ::SetActiveWindow(FActive);
  if (FFocus && ::IsWindow(FFocus)) ::SetFocus(FFocus);
}

HWND TSystemModal::Owner() const { return FActive ? FActive : Application()->Handle(); }

HWND NextWindow(HWND other) {
  TSearch search{other, nullptr};
  ::EnumThreadWindows(::GetCurrentThreadId(), &TakeFirst, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

}  // namespace vcl
