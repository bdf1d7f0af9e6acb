// TScreen: the screen's measures, the program's forms and the active one, and the mouse pointers.
#include "vcl/forms/screen.h"

#include <algorithm>

#include "vcl/controls/private/cursors.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

TRect WorkAreaOf(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  if (!::GetMonitorInfoW(monitor, &info)) RaiseOutOfResources("The monitor's work area");
  return info.rcWork;
}

}  // namespace

const TClass& TScreen::Class() {
  static const TClass info =
      Describe<TScreen, TComponent>("vcl::TScreen", "vcl/forms/screen.h", {});
  return info;
}

TScreen::TScreen(TComponent* owner) : TComponent(owner) {}

TScreen::~TScreen() { AnnounceEnd(); }

TScreen* Screen() {
  // Never freed: forms that live to the process's end still leave it.
  static auto* const screen = new TScreen(nullptr);
  return screen;
}

// The screen itself.

int TScreen::Width() const { return ::GetSystemMetrics(SM_CXSCREEN); }
int TScreen::Height() const { return ::GetSystemMetrics(SM_CYSCREEN); }

TRect TScreen::WorkAreaRect() const {
  return WorkAreaOf(::MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY));
}

TRect TScreen::WorkAreaRect(TPoint nearest) const {
  return WorkAreaOf(::MonitorFromPoint(nearest, MONITOR_DEFAULTTONEAREST));
}

TRect TScreen::WorkAreaRect(const TRect& nearest) const {
  const RECT rect = nearest;
  return WorkAreaOf(::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST));
}

int TScreen::PixelsPerInch() const {
  const TWindowDC dc(nullptr);
  return ::GetDeviceCaps(dc.Get(), LOGPIXELSY);
}

// Forms and controls.

TCustomForm* TScreen::Forms(int index) const {
  if (index < 0 || index >= FormCount()) {
    throw EListError(Concat("The program has ", std::to_string(FormCount()),
                            " forms and none at index ", std::to_string(index)));
  }
  return FForms[static_cast<std::size_t>(index)];
}

bool TScreen::HasForm(const TCustomForm* form) const {
  return std::find(FForms.begin(), FForms.end(), form) != FForms.end();
}

void TScreen::RemoveForm(TCustomForm* form) {
  std::erase(FForms, form);
  if (FActiveForm == form) SetActive(nullptr, nullptr);
}

void TScreen::SetActive(TCustomForm* form, TWinControl* control) {
  TCustomForm* const former = FActiveForm;
  const bool otherControl = FActiveControl != control;
  FActiveForm = form;
  FActiveControl = control;
  if (former != form) {
    if (HasForm(former)) former->Perform(CM_DEACTIVATE);
    // A handler may have activated or freed forms: the last word stands.
    if (FActiveForm == form && HasForm(form)) form->Perform(CM_ACTIVATE);
    OnActiveFormChange(this);
  }
  if (otherControl) OnActiveControlChange(this);
}

TControl* TScreen::ControlAt(TPoint position, bool allowDisabled) const {
  TWinControl* window = nullptr;
  // The system skips disabled windows; an edit line inside a combo box belongs to the box.
  for (HWND handle = ::WindowFromPoint(position); handle && !window;
       handle = ::GetAncestor(handle, GA_PARENT)) {
    window = TWinControl::FromHandle(handle);
  }
  while (window) {
    TControl* inside = window->ControlAtPos(window->ScreenToClient(position), allowDisabled);
    auto* const deeper = dynamic_cast<TWinControl*>(inside);
    if (inside && !deeper) return inside;
    if (!deeper) break;
    window = deeper;
  }
  return window && (allowDisabled || window->Enabled()) ? window : nullptr;
}

// The mouse pointer.

HCURSOR TScreen::Cursors(TCursor cursor) const {
  const auto found = FCursors.find(cursor);
  if (found != FCursors.end()) return found->second.Get();
  if (const HCURSOR system = SystemCursor(cursor)) return system;
  if (HCURSOR drawn = DrawnCursor(cursor)) {
    return FCursors.emplace(cursor, TOwnedCursor(drawn)).first->second.Get();
  }
  return cursor == crNone ? nullptr : SystemCursor(crArrow);
}

void TScreen::SetCursors(TCursor cursor, HCURSOR handle) {
  if (cursor <= 0) {
    throw EArgumentOutOfRangeException(
        Concat("A pointer of the application's own has a number above 0, not ",
               std::to_string(static_cast<int>(cursor))));
  }
  FCursors[cursor].Reset(handle);
}

void TScreen::SetCursor(TCursor cursor) {
  if (cursor == FCursor) return;
  FCursor = cursor;
  if (cursor != crDefault) {
    ::SetCursor(Cursors(cursor));
    return;
  }
  // Each control shows its own again: the window under the mouse is asked as if the mouse moved.
  POINT mouse;
  ::GetCursorPos(&mouse);
  const HWND window = ::WindowFromPoint(mouse);
  if (!window || ::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId()) return;
  const LPARAM place = MAKELPARAM(mouse.x, mouse.y);
  const LRESULT area = ::SendMessageW(window, WM_NCHITTEST, 0, place);
  ::SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                 MAKELPARAM(area, WM_MOUSEMOVE));
}

}  // namespace vcl
