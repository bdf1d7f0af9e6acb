// TApplication: beginning, running and ending the program, its forms, and its own window.
#include "vcl/forms/application.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <utility>

#include "vcl/controls/private/handling.h"
#include "vcl/controls/windowtext.h"
#include "vcl/forms/applicationlistener.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/private/faults.h"
#include "vcl/forms/private/taskwindows.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/resources.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/thread.h"

namespace vcl {

namespace {

constexpr const wchar_t* WindowClassName = L"TApplication";
constexpr UINT WM_FREEFORM = WM_USER + 0x100;  // LParam: the form.

constexpr UINT WM_THREADSCALL = WM_USER + 0x101;
constexpr UINT_PTR ThreadsCallTimer = 1;

TApplication* TheApplication = nullptr;

/// The window that threads post to when they call the main thread.
std::atomic<HWND> CalledWindow = nullptr;

void PostThreadsCall() { ::PostMessageW(CalledWindow, WM_THREADSCALL, 0, 0); }

}  // namespace

TApplication* Application() {
  // Never freed by itself: its windows and forms go with the process.
  static auto* const application = new TApplication(nullptr);
  return application;
}

bool HasApplication() { return TheApplication != nullptr; }

const TClass& TApplication::Class() {
  static const TClass info = Describe<TApplication, TCustomApplication>(
      "vcl::TApplication", "vcl/forms/application.h", {});
  return info;
}

TApplication::TApplication(TComponent* owner)
    : TCustomApplication(owner),
      FIcon(std::make_unique<TIcon>()),
      FHints(std::make_unique<THintControl>(this)) {
  TheApplication = this;
  constexpr const char* mainIcon = "MAINICON";
  if (ResourceExists(nullptr, mainIcon, RT_GROUP_ICON)) {
    FIcon->LoadFromResourceName(nullptr, mainIcon);
  } else {
    FIcon->SetHandle(::CopyIcon(::LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_APPLICATION))));
  }
  FIcon->OnChange = {this, &TApplication::IconChanged};
  FHints->SetEnabled(FShowHint);
}

TApplication::~TApplication() {
  AnnounceEnd();
  FreeForms();
  FHints.reset();
  DestroyComponents();
  SetWakeMainThread(nullptr);
  if (FHandle) ::DestroyWindow(FHandle);
  TheApplication = nullptr;
}

void TApplication::Initialize() {
  INITCOMMONCONTROLSEX controls{sizeof controls,
                                ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_DATE_CLASSES};
  ::InitCommonControlsEx(&controls);
  Handle();
  std::set_terminate(&EndByError);
  CatchFaults();
}

void TApplication::Notification(TComponent* component, TOperation operation) {
  TCustomApplication::Notification(component, operation);
  if (operation != opRemove) return;
  if (component == FMainForm) FMainForm = nullptr;
  if (FHints && component == FHints->FWindow) FHints->FWindow = nullptr;
}

// Forms.

void TApplication::SetMainFormIfNone(TCustomForm* form) {
  if (FMainForm) return;
  FMainForm = form;
  form->FreeNotification(this);
}

void TApplication::FreeForms() {
  for (int i = ComponentCount() - 1; i >= 0; i = std::min(i, ComponentCount()) - 1) {
    if (auto* form = dynamic_cast<TCustomForm*>(Components(i))) {
      form->Free();
    } else if (auto* module = dynamic_cast<TDataModule*>(Components(i))) {
      module->Free();
    }
  }
}

void TApplication::FreeLater(TCustomForm* form) {
  ::PostMessageW(Handle(), WM_FREEFORM, 0, reinterpret_cast<LPARAM>(form));
}

void TApplication::FreeReleased(TCustomForm* form) {
  // It may have gone another way meanwhile.
  if (Screen()->HasForm(form) && form->FReleased) form->Free();
}

void TApplication::TellForms(UINT notice) {
  for (int i = 0; i < Screen()->FormCount(); ++i) Screen()->Forms(i)->Perform(notice);
}

// Running.

int TApplication::Run() {
  if (FHasRun) SetTerminated(false);
  FHasRun = true;
  if (FMainForm) {
    try {
      FMainForm->Show();
    } catch (...) {
      HandleCurrentException(FMainForm);
    }
    const TSetFor running(FRunning, true);
    while (!Terminated()) HandleMessage();
  }
  FreeForms();
  MSG quit;
  ::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
  return FExitCode;
}

void TApplication::Terminate() {
  if (Terminated()) return;
  TCustomApplication::Terminate();
  ::PostQuitMessage(FExitCode);  // Ends the system's own loops, such as a box's.
}

// The application's own window.

HWND TApplication::Handle() {
  if (!FHandle) CreateHandle();
  return FHandle;
}

void TApplication::CreateHandle() {
  static const ATOM registered = [] {
    WNDCLASSW info{};
    info.lpfnWndProc = &StaticWndProc;
    info.hInstance = ::GetModuleHandleW(nullptr);
    info.lpszClassName = WindowClassName;
    return ::RegisterClassW(&info);
  }();
  if (!registered) RaiseOutOfResources("The application's window class");
  const int x = Screen()->Width() / 2;
  const int y = Screen()->Height() / 2;
  FHandle = CheckHandle(
      ::CreateWindowExW(0, WindowClassName, L"",
                        WS_POPUP | WS_CAPTION | WS_CLIPSIBLINGS | WS_SYSMENU | WS_MINIMIZEBOX, x, y,
                        0, 0, nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr),
      "The application's window");
  SetWindowTextUtf8(FHandle, Title());
  IconChanged(nullptr);
  CalledWindow = FHandle;
  SetWakeMainThread(&PostThreadsCall);
}

void TApplication::SetTitle(const std::string& title) {
  TCustomApplication::SetTitle(title);
  if (FHandle) SetWindowTextUtf8(FHandle, Title());
}

void TApplication::IconChanged(TObject*) {
  const auto handle = reinterpret_cast<LPARAM>(FIcon->Handle());
  if (FHandle) ::SendMessageW(FHandle, WM_SETICON, ICON_BIG, handle);
  for (int i = 0; i < Screen()->FormCount(); ++i) Screen()->Forms(i)->UpdateIcon();
}

void TApplication::UpdateTaskbar() {
  bool shown = false;
  for (int i = 0; i < Screen()->FormCount(); ++i) shown |= Screen()->Forms(i)->Showing();
  // Acts on changes only: a program that hides its button, to live in the tray, keeps it hidden
  // when it shows a dialog.
  if (shown == std::exchange(FFormsShown, shown)) return;
  ::SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE |
                     static_cast<UINT>(shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

LRESULT CALLBACK TApplication::StaticWndProc(HWND window, UINT message, WPARAM wParam,
                                             LPARAM lParam) {
  if (!TheApplication || TheApplication->FHandle != window) {
    return ::DefWindowProcW(window, message, wParam, lParam);
  }
  const THandling handling;
  try {
    return TheApplication->WndProc(message, wParam, lParam);
  } catch (...) {
    TheApplication->HandleCurrentException(TheApplication);
    return 0;
  }
}

LRESULT TApplication::WndProc(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_FREEFORM: FreeReleased(reinterpret_cast<TCustomForm*>(lParam)); return 0;
    case WM_THREADSCALL: RunThreadsCalls(); return 0;
    case WM_TIMER:
      ::KillTimer(FHandle, ThreadsCallTimer);
      CheckSynchronize();
      return 0;
    case WM_SYSCOMMAND: return SysCommand(wParam, lParam);
    case WM_CLOSE:
      if (FMainForm) FMainForm->Close();
      return 0;
    case WM_QUERYENDSESSION: return AskSessionEnd(FMainForm) && AskListeners();
    case WM_ENDSESSION:
      FSessionEnding = wParam != 0;
      if (wParam) EndSession();
      return 0;
    case WM_POWERBROADCAST:
    case WM_DISPLAYCHANGE: TellBroadcast(message, wParam, lParam); break;
    case WM_SIZE: SizeChanged(wParam); break;
    case WM_ACTIVATEAPP: SetActive(wParam != 0); break;
    case WM_SETFOCUS:
      if (!FMinimized) BringToFront();
      break;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
      TellForms(CM_SYSCOLORCHANGE);
      if (message == WM_SETTINGCHANGE) TellBroadcast(message, wParam, lParam);
      break;
    default: break;
  }
  return ::DefWindowProcW(FHandle, message, wParam, lParam);
}

bool TApplication::AskSessionEnd(TCustomForm* form) {
  FSessionEnding = true;
  const TOnFailure goesOn([this] { FSessionEnding = false; });
  return FSessionEnding = !form || form->CloseQuery();
}

bool TApplication::AskListeners() {
  const TOnFailure goesOn([this] { FSessionEnding = false; });
  bool canEnd = true;
  TApplicationListener::TellAll([&](TApplicationListener& each) {
    bool allowed = true;
    each.QueryEndSession(allowed);
    canEnd = canEnd && allowed;
  });
  return FSessionEnding = canEnd;
}

void TApplication::TellBroadcast(UINT message, WPARAM wParam, LPARAM lParam) {
  TApplicationListener::TellAll(
      [&](TApplicationListener& each) { each.Broadcast(message, wParam, lParam); });
}

// From the answer on the system may end the process at any time: what closing would do is done
// before that. Code that is underway still needs the forms; they go when it has returned to Run.
void TApplication::EndSession() {
  if (Terminated()) return;
  try {
    TCloseAction action = caHide;
    if (FMainForm) FMainForm->DoClose(action);
    TApplicationListener::TellAll([](TApplicationListener& each) { each.EndSession(); });
  } catch (...) {
    HandleCurrentException(FMainForm);
  }
  Terminate();
  const bool onlyThis = THandling::Depth() == 1;
  if (FRunning && onlyThis) FreeForms();
}

// The system hands out posted messages before input and painting, and timers after them. Threads
// that call without end must not lock the user out: when he waits too long, they wait for the
// timer.
void TApplication::RunThreadsCalls() {
  ++FThreadsRounds;
  constexpr ULONGLONG patience = 50;
  const ULONGLONG now = ::GetTickCount64();
  const bool waits = HIWORD(::GetQueueStatus(QS_INPUT | QS_PAINT)) != 0;
  if (!waits) FInputWaitsSince = 0;
  if (waits && FInputWaitsSince == 0) FInputWaitsSince = now;
  if (!waits || now - FInputWaitsSince < patience) {
    CheckSynchronize();
    return;
  }
  FInputWaitsSince = 0;
  if (!::SetTimer(FHandle, ThreadsCallTimer, USER_TIMER_MINIMUM, nullptr)) CheckSynchronize();
}

LRESULT TApplication::SysCommand(WPARAM wParam, LPARAM lParam) {
  constexpr WPARAM command = 0xFFF0;  // The system keeps the lowest four bits for itself.
  switch (wParam & command) {
    case SC_MINIMIZE: Minimize(); return 0;
    case SC_RESTORE: Restore(); return 0;
    default: return ::DefWindowProcW(FHandle, WM_SYSCOMMAND, wParam, lParam);
  }
}

void TApplication::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  CancelHint();
  (active ? OnActivate : OnDeactivate)(this);
  TApplicationListener::TellAll(
      [active](TApplicationListener& each) { active ? each.Activated() : each.Deactivated(); });
}

void TApplication::Minimize() {
  if (::IsIconic(Handle())) return;
  CancelHint();
  // Who looks for the window that was active last, to restore it, is to find the application's.
  FMinimized = true;
  ::SetActiveWindow(FHandle);
  ::DefWindowProcW(FHandle, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  FMinimized = ::IsIconic(FHandle) != FALSE;
  OnMinimize(this);
  TApplicationListener::TellAll([](TApplicationListener& each) { each.Minimized(); });
}

void TApplication::Restore() {
  if (::IsIconic(Handle())) ::DefWindowProcW(FHandle, WM_SYSCOMMAND, SC_RESTORE, 0);
}

// Another program may have restored the window without asking.
void TApplication::SizeChanged(WPARAM kind) {
  const bool minimized = kind == SIZE_MINIMIZED;
  if (!std::exchange(FMinimized, minimized) || minimized) return;
  ::ShowOwnedPopups(FHandle, TRUE);
  BringToFront();
  OnRestore(this);
  TApplicationListener::TellAll([](TApplicationListener& each) { each.Restored(); });
}

void TApplication::BringToFront() {
  const auto usable = [this](HWND window) {
    return window && window != FHandle && ::IsWindowVisible(window) && ::IsWindowEnabled(window);
  };
  TCustomForm* const form = Screen()->ActiveForm();
  HWND window = ::GetLastActivePopup(Handle());  // A box, or the application's window itself.
  if (!usable(window)) window = form && form->HandleAllocated() ? form->Handle() : nullptr;
  if (!usable(window)) window = NextWindow(nullptr);
  if (window) ::SetForegroundWindow(window);
}

}  // namespace vcl
