// TCustomForm: closing, and modal forms.
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/private/taskwindows.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

// Closing.

bool TCustomForm::CloseQuery() {
  bool canClose = true;
  OnCloseQuery(this, canClose);
  return canClose;
}

void TCustomForm::DoClose(TCloseAction& action) { OnClose(this, action); }

void TCustomForm::Close() {
  // The modal loop asks, and ends.
  if (FModal) {
    if (FModalResult == mrNone) FModalResult = mrCancel;
    return;
  }
  TWatch watch(this);
  if (!CloseQuery() || watch.Gone()) return;
  // A form inside another is put away by minimizing it; without that it stays.
  const TCloseAction inside = FBorderIcons.Has(biMinimize) ? caMinimize : caNone;
  TCloseAction action = StandsInside() ? inside : caHide;
  DoClose(action);
  if (watch.Gone() || action == caNone) return;
  if (this == Application()->MainForm()) return Application()->Terminate();
  if (action == caFree) return Release();
  if (action == caMinimize) return SetWindowState(wsMinimized);
  SetVisible(false);
}

// Modal forms.

void TCustomForm::CheckCanShowModal() const {
  const char* reason = nullptr;
  if (FModal)
    reason = "is modal already";
  else if (Visible())
    reason = "is visible already";
  else if (!Enabled())
    reason = "is disabled";
  else if (Parent() || StandsInside())
    reason = "stands in another control";
  else if (Designing())
    reason = "is being designed";
  if (!reason) return;
  throw EInvalidOperation(
      Concat("The form ", Name(), ": ", ClassName(), " can't be shown modally: it ", reason));
}

int TCustomForm::ShowModal() {
  CheckCanShowModal();
  Application()->CancelHint();
  if (const HWND capture = ::GetCapture()) ::SendMessageW(capture, WM_CANCELMODE, 0, 0);
  ::ReleaseCapture();
  const HWND former = ::GetActiveWindow();
  const HWND own = Handle();
  TWatch watch(this);
  FModalResult = mrNone;
  const TSetFor modal(FModal, true, this);
  TDisabledWindows others(own);
  TModalResult result = mrCancel;
  Show();
  if (!watch.Gone()) result = RunModal();
  others.Enable();
  if (former && ::IsWindow(former) && ::GetActiveWindow() == own) ::SetActiveWindow(former);
  if (!watch.Gone()) SetVisible(false);
  return result;
}

TModalResult TCustomForm::RunModal() {
  TWatch watch(this);
  for (;;) {
    if (FModalResult != mrNone && !Application()->Terminated()) CloseModal();
    if (watch.Gone()) return mrCancel;
    if (FModalResult != mrNone) return FModalResult;
    // Hidden by other means than its end, it would leave a program of disabled windows.
    if (Application()->Terminated() || !Visible()) return mrCancel;
    Application()->HandleMessage();
    if (watch.Gone()) return mrCancel;
  }
}

// Asks as Close does; a refusal, or an error, takes the result back.
void TCustomForm::CloseModal() {
  TWatch watch(this);
  try {
    TCloseAction action = caNone;
    if (CloseQuery() && !watch.Gone()) {
      action = caHide;
      DoClose(action);
    }
    if (watch.Gone()) return;
    if (action == caNone) FModalResult = mrNone;
    if (action == caFree) Release();
  } catch (...) {
    if (!watch.Gone()) FModalResult = mrNone;
    Application()->HandleCurrentException(watch.Gone() ? nullptr : this);
  }
}

}  // namespace vcl
