// THintControl: whose hint is shown, when it comes and goes, and where it stands.
#include "vcl/forms/hints.h"

#include <algorithm>
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/forms/applicationlistener.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

TPoint MousePosition() {
  POINT position;
  ::GetCursorPos(&position);
  return position;
}

// Where a hint stands: below the pointer. The arrow fills five eighths of the pointer's height.
TPoint BelowPointer(TPoint mouse) {
  return {mouse.X, mouse.Y + ::GetSystemMetrics(SM_CYCURSOR) * 5 / 8};
}

// The control whose hint shows for a control: itself or the nearest around it that shows one.
TControl* HintControlOf(TControl* control) {
  while (control && !control->ShowHint()) control = control->Parent();
  return control && !control->Designing() ? control : nullptr;
}

// Nearest hint outwards that is not empty.
std::string HintOf(const TControl* control) {
  while (control && control->Hint().empty()) control = control->Parent();
  return control ? control->Hint() : std::string();
}

const TClass*& WindowClass() {
  static const TClass* windowClass = &THintWindow::Class();
  return windowClass;
}

}  // namespace

const TClass& HintWindowClass() { return *WindowClass(); }

void SetHintWindowClass(const TClass& windowClass) {
  if (!windowClass.InheritsFrom(THintWindow::Class()) || !windowClass.Maker().Component) {
    throw EInvalidOperation(Concat(windowClass.Name(), " is no class of windows for hints"));
  }
  WindowClass() = &windowClass;
}

THintControl::~THintControl() { StopTimer(); }

void THintControl::MouseOver(TControl* control) {
  TControl* const hinted = HintControlOf(control);
  const TPoint mouse = MousePosition();
  const bool moved = mouse != FMouse;
  FMouse = mouse;
  if (hinted != FControl) return Enter(hinted);
  if (!hinted || !moved || FCancelled) return;
  if (!FShown) return StartTimer(FPause);  // It rests from here on.
  if (FCursorRect.Contains(hinted->ScreenToClient(mouse))) return;
  Hide();
  StartTimer(FShortPause);
}

void THintControl::Enter(TControl* control) {
  const bool another = FShown != nullptr;
  Hide();
  FControl = control;
  FCancelled = false;
  if (control) StartTimer(another ? FShortPause : FPause);
}

void THintControl::Cancel() {
  FCancelled = true;
  Hide();
}

void THintControl::ActivateHint(TPoint screen) {
  FMouse = screen;
  TControl* const control = HintControlOf(Screen()->ControlAt(screen, true));
  Enter(control);
  if (control) ShowFor(control);
}

void THintControl::SetEnabled(bool enabled) {
  MouseOver(nullptr);
  if (!enabled) {
    delete std::exchange(FWindow, nullptr);
  } else if (!FWindow) {
    FWindow = static_cast<THintWindow*>(HintWindowClass().Maker().Component(FOwner));
    FWindow->SetColor(FColor);
  }
}

void THintControl::SetColor(TColor color) {
  FColor = color;
  if (FWindow) FWindow->SetColor(color);
}

void THintControl::Forget(TControl* control) {
  if (control != FControl && control != FShown) return;
  Hide();
  FControl = nullptr;
}

void THintControl::Hide() {
  StopTimer();
  FShown = nullptr;
  if (FWindow) FWindow->ReleaseHandle();
}

// Time.

void THintControl::StartTimer(int milliseconds) {
  StopTimer();
  FTimer = ::SetTimer(nullptr, 0, static_cast<UINT>(std::max(milliseconds, 1)), &TimerProc);
}

void THintControl::StopTimer() {
  if (FTimer) ::KillTimer(nullptr, FTimer);
  FTimer = 0;
}

void CALLBACK THintControl::TimerProc(HWND, UINT, UINT_PTR id, DWORD) {
  THintControl& hints = Application()->Hints();
  // A message of a timer that has been stopped may still have been on its way.
  if (id != hints.FTimer) return;
  try {
    hints.Elapsed();
  } catch (...) {
    Application()->HandleCurrentException(nullptr);
  }
}

void THintControl::Elapsed() {
  StopTimer();
  if (FShown) return Cancel();
  if (FControl) ShowFor(FControl);
}

// Showing.

void THintControl::ShowFor(TControl* control) {
  StopTimer();
  if (!FWindow) return;
  THintInfo info;
  info.HintControl = control;
  info.HintPos = BelowPointer(FMouse);
  info.HintMaxWidth = Screen()->Width();
  info.HintColor = FColor;
  info.CursorRect = control->ClientRect();
  info.CursorPos = control->ScreenToClient(FMouse);
  info.HideTimeout = FHidePause;
  info.HintStr = GetShortHint(HintOf(control));
  if (Ask(info)) Show(info);
}

// Asks control and application, whose handlers may free the control or cancel the hint.
bool THintControl::Ask(THintInfo& info) {
  TWatch watch(info.HintControl);
  bool show = info.HintControl->Perform(CM_HINTSHOW, 0, reinterpret_cast<LPARAM>(&info)) == 0;
  if (watch.Gone()) return false;
  Application()->OnShowHint(info.HintStr, show, info);
  TApplicationListener::TellAll(
      [&](TApplicationListener& each) { each.ShowHint(info.HintStr, show, info); });
  return show && !watch.Gone() && info.HintControl == FControl && !FCancelled && FWindow &&
         !info.HintStr.empty();
}

void THintControl::Show(const THintInfo& info) {
  FWindow->SetColor(info.HintColor);
  FWindow->SetPixelsPerInch(info.HintControl->CurrentPPI());
  TRect rect = FWindow->CalcHintRect(info.HintMaxWidth, info.HintStr);
  rect.Offset(info.HintPos.X, info.HintPos.Y);
  FShown = info.HintControl;
  FCursorRect = info.CursorRect;
  FWindow->ActivateHint(rect, info.HintStr);
  // A handler that the window calls may have ended the hint, which the window has shown all the
  // same, or have had another window made.
  if (!FShown) return Hide();
  StartTimer(info.HideTimeout);
}

}  // namespace vcl
