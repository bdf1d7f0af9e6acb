// TWinControl: making and destroying the window.
#include <algorithm>
#include <map>
#include <unordered_map>

#include "vcl/controls/private/handling.h"
#include "vcl/controls/private/windowwatch.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/controls/windowhook.h"
#include "vcl/controls/windowtext.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// The controls by their windows. Only the GUI thread makes windows.
std::unordered_map<HWND, TWinControl*>& Windows() {
  static std::unordered_map<HWND, TWinControl*> windows;
  return windows;
}

/// The control whose window is being made: the first messages come before the system returns the
/// handle.
TWinControl* creating = nullptr;

/// The module that the window procedure lies in, which the window classes belong to.
HINSTANCE OwnModule() { return ModuleOf(&creating); }

/// A window class of ours: its name, and the procedure that it builds on.
struct TWindowClass {
  std::wstring Name;
  WNDPROC BaseProc;
};

TWindowClass RegisterWindowClass(const TCreateParams& params, WNDPROC proc, std::size_t number) {
  WNDCLASSW info{};
  if (params.SubClassOf.empty()) {
    info.lpfnWndProc = ::DefWindowProcW;
    info.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    info.style = params.ClassStyle;
  } else {
    const std::wstring base = ToUtf16(params.SubClassOf);
    if (!::GetClassInfoW(nullptr, base.c_str(), &info)) RaiseOutOfResources("window class");
    // A class that the whole system shares, or that keeps one context, stays the system's own.
    info.style = (info.style & ~static_cast<UINT>(CS_GLOBALCLASS)) | params.ClassStyle;
  }
  TWindowClass made{ToUtf16(params.WinClassName), info.lpfnWndProc};
  info.lpfnWndProc = proc;
  info.hInstance = OwnModule();
  info.lpszClassName = made.Name.c_str();
  if (::RegisterClassW(&info)) return made;
  // The name is taken, by a class of the same name that is made otherwise.
  made.Name += L"." + std::to_wstring(number);
  info.lpszClassName = made.Name.c_str();
  if (!::RegisterClassW(&info)) RaiseOutOfResources("window class");
  return made;
}

const TWindowClass& WindowClass(const TCreateParams& params, WNDPROC proc) {
  static std::map<std::string, TWindowClass> known;
  const std::string key =
      Concat(params.WinClassName, "|", params.SubClassOf, "|", std::to_string(params.ClassStyle));
  const auto found = known.find(key);
  if (found != known.end()) return found->second;
  return known.emplace(key, RegisterWindowClass(params, proc, known.size())).first->second;
}

}  // namespace

TWinControl* TWinControl::FromHandle(HWND handle) {
  const auto found = Windows().find(handle);
  return found == Windows().end() ? nullptr : found->second;
}

HWND TWinControl::Handle() {
  if (!FHandle) {
    const TWatch watch(this);
    if (Parent()) Parent()->HandleNeeded();
    // Making the parent's window may have made this one.
    if (!watch.Gone() && !FHandle) CreateHandle();
    if (watch.Gone()) return nullptr;
  }
  return FHandle;
}

void TWinControl::CreateParams(TCreateParams& params) {
  params.Caption = Text();
  params.Style = WS_CHILD | WS_CLIPSIBLINGS;
  if (ControlStyle().Has(csAcceptsControls)) {
    params.Style |= WS_CLIPCHILDREN;
    params.ExStyle |= WS_EX_CONTROLPARENT;
  }
  if (!FEnabled && !Designing()) params.Style |= WS_DISABLED;
  if (FTabStop) params.Style |= WS_TABSTOP;
  params.X = Left();
  params.Y = Top();
  params.Width = Width();
  params.Height = Height();
  params.WndParent = Parent() ? Parent()->Handle() : nullptr;
  params.ClassStyle = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
  params.WinClassName = ClassName();
}

void TWinControl::CreateHandle() {
  const TWatch watch(this);
  CreateWnd();
  if (watch.Gone() || !Parent()) return;
  const HWND above = Parent()->PrecedingWindow(this);
  // The system puts a new window below its siblings: most are there already.
  if (::GetWindow(FHandle, GW_HWNDPREV) == above) return;
  ::SetWindowPos(FHandle, above, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

/// The window right above the control's; null when it is the topmost.
HWND TWinControl::PrecedingWindow(const TWinControl* control) const {
  auto each = std::ranges::find(FControls, control);
  if (each == FControls.end()) return nullptr;
  while (++each != FControls.end()) {
    // Behind a control with a window stand none without.
    const auto* winControl = static_cast<TWinControl*>(*each);
    if (winControl->FHandle) return winControl->FHandle;
  }
  return nullptr;
}

void TWinControl::CreateWnd() {
  TCreateParams params;
  FSingleBorder = false;
  CreateParams(params);
  if ((params.Style & WS_CHILD) && !params.WndParent) {
    throw EInvalidOperation(Concat("Control '", Name(), "' has no parent window"));
  }
  const TWindowClass& windowClass = WindowClass(params, &TWinControl::StaticWndProc);
  FDefWndProc = windowClass.BaseProc;
  creating = this;
  const HWND window =
      ::CreateWindowExW(params.ExStyle, windowClass.Name.c_str(), ToUtf16(params.Caption).c_str(),
                        params.Style, params.X, params.Y, params.Width, params.Height,
                        params.WndParent, nullptr, OwnModule(), nullptr);
  creating = nullptr;
  if (!window) RaiseOutOfResources("window");
  UpdateBounds();
  ::SendMessageW(FHandle, WM_SETFONT, reinterpret_cast<WPARAM>(Font()->Handle()), FALSE);
  Realign();
  TWindowWatch::TellMade(*this, FHandle);
}

void TWinControl::DestroyHandle() {
  if (!FHandle) return;
  // The windows inside go first, each by its own way, so that each can save what only it knows. The
  // system ends them with this one.
  const bool here = VisitControls([](TControl* control) {
    auto* winControl = dynamic_cast<TWinControl*>(control);
    if (!winControl) return true;
    const TSetFor ending(winControl->FParentEnds, true, winControl);
    winControl->DestroyHandle();
    return true;
  });
  if (here && FHandle) DestroyWnd();
}

void TWinControl::DestroyWnd() {
  FText = WindowText(FHandle);
  FShowing = false;
  IncludeState(csDestroyingHandle);
  if (!EndsWithParent()) DestroyWindowHandle();
}

bool TWinControl::EndsWithParent() const {
  return FParentEnds && ::GetAncestor(FHandle, GA_PARENT) == Parent()->FHandle;
}

void TWinControl::DestroyWindowHandle() { ::DestroyWindow(FHandle); }

void TWinControl::RecreateWnd() {
  if (!FHandle) return;
  const bool focused = Focused();
  const TWatch watch(this);
  DestroyHandle();
  if (!watch.Gone()) UpdateControlState();
  if (!watch.Gone() && focused && FHandle) ::SetFocus(FHandle);
}

void TWinControl::UpdateControlState() {
  const TWinControl* topmost = this;
  while (topmost->Parent()) {
    topmost = topmost->Parent();
    if (!topmost->FShowing) return;
  }
  if (dynamic_cast<const TCustomForm*>(topmost)) UpdateShowing();
}

void TWinControl::UpdateShowing() {
  const bool show = Seen() && !ControlState().Has(csReadingState);
  if (show) {
    const TWatch watch(this);
    Handle();
    if (watch.Gone()) return;
    // Top first, as the system puts each new window below the others.
    const bool here = VisitControls(
        [](TControl* control) {
          auto* winControl = dynamic_cast<TWinControl*>(control);
          if (winControl) winControl->UpdateShowing();
          return winControl != nullptr;
        },
        true);
    if (!here) return;
  }
  if (!FHandle || show == FShowing) return;
  FShowing = show;
  Perform(CM_SHOWINGCHANGED);
}

bool TWinControl::TakenByDesigner(TMessage& message) {
  const TCustomForm* form = Designing() ? ParentForm() : nullptr;
  return form && form->Designer() && form->Designer()->IsDesignMessage(*this, message);
}

LRESULT CALLBACK TWinControl::StaticWndProc(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
  TWinControl* control = FromHandle(window);
  if (!control && creating) {
    control = std::exchange(creating, nullptr);
    control->FHandle = window;
    Windows().emplace(window, control);
  }
  if (!control) return ::DefWindowProcW(window, message, wParam, lParam);
  TMessage record{message, wParam, lParam, 0};
  TWatch watch(control);
  const THandling handling;
  if (message == WM_DESTROY) TWindowWatch::TellEnding(*control, window);
  try {
    TWindowHook::Handle(*control, record, [&] {
      if (!control->TakenByDesigner(record)) control->WndProc(record);
    });
  } catch (...) {
    TControl* const sender = watch.Gone() ? nullptr : control;
    message == WM_TIMER ? Application()->HandleTimerException(sender)
                        : Application()->HandleCurrentException(sender);
  }
  if (message == WM_NCDESTROY) {
    Windows().erase(window);
    if (watch.Gone() || control->FHandle != window) return record.Result;
    control->FHandle = nullptr;
    control->ExcludeState(csDestroyingHandle);
  }
  return record.Result;
}

}  // namespace vcl
