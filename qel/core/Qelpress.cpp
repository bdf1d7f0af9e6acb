// TQELPress: what begins a press, what ends it, and what clicks.
#include "qel/core/Qelpress.h"

#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

using vcl::TWatch;

namespace {

bool IsRelease(UINT message) {
  return message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
}

}  // namespace

TQELPress::TQELPress(vcl::TControl& control, TQELPressed& button, TRelease release)
    : FControl(control), FButton(button), FRelease(release) {}

TQELPress::~TQELPress() = default;

void TQELPress::SetRepeat(unsigned delay, unsigned interval) {
  FDelay = delay;
  FInterval = interval;
}

// Beginning and end.

void TQELPress::Begin(THolder holder) {
  const TWatch watch(&FControl);
  FHolder = holder;
  FOver = true;
  if (FDelay > 0) FButton.ForgetClick();
  FButton.ShowPress();
  if (watch.Gone() || FDelay == 0 || !Down()) return;
  if (!FTimer) {
    FTimer = std::make_unique<vcl::TTimer>(nullptr);
    FTimer->OnTimer = vcl::TNotifyEvent(this, &TQELPress::Repeat);
  }
  FTimer->SetInterval(FDelay);
  FTimer->SetEnabled(true);
  ClickOnce(holder == THolder::Key);
}

void TQELPress::End() {
  if (FHolder == THolder::Nobody) return;
  FHolder = THolder::Nobody;
  if (FTimer) FTimer->SetEnabled(false);
  FButton.ForgetClick();
  FButton.ShowPress();
}

void TQELPress::Clicking() {
  if (!FRepeating) End();
}

/// One click of those that a press repeats.
void TQELPress::ClickOnce(bool byKey) {
  const vcl::TSetFor repeating(FRepeating, true, &FControl);
  FButton.PressClicks(byKey);
}

void TQELPress::Repeat(vcl::TObject* /*sender*/) {
  if (FHolder == THolder::Mouse && !FButton.HoldsMouse()) return End();
  FTimer->SetInterval(FInterval);
  // Beside the button the clicks pause. A click that lasts, as one that shows a box, is not
  // repeated inside itself.
  if (FOver && !FRepeating) ClickOnce(FHolder == THolder::Key);
}

// The mouse.

void TQELPress::MouseDown(vcl::TMouseButton button) {
  if (button != vcl::mbLeft || FHolder != THolder::Nobody) return;
  // A handler that shows a box has let the mouse go: its release comes here no more.
  FButton.HoldsMouse() ? Begin(THolder::Mouse) : FButton.ForgetClick();
}

void TQELPress::MouseMove(bool over) {
  if (FHolder != THolder::Mouse || FRelease == TRelease::Anywhere) return;
  if (!FButton.HoldsMouse()) return End();
  if (over == FOver) return;
  FOver = over;
  FButton.ShowPress();
}

void TQELPress::MouseUp(vcl::TMouseButton button) {
  // What is released over the button has clicked it by now.
  if (FRelease == TRelease::Anywhere) {
    if (Down()) FButton.PressClicks(false);
  } else if (FHolder == THolder::Mouse && button == vcl::mbLeft) {
    End();
  }
}

// The keyboard.

void TQELPress::KeyDown(std::uint16_t key) {
  if (key == VK_SPACE && FHolder == THolder::Nobody) Begin(THolder::Key);
}

void TQELPress::KeyUp(std::uint16_t key) {
  if (key != VK_SPACE || !Down()) return;
  const TWatch watch(&FControl);
  const bool repeats = FDelay > 0;
  End();
  if (!watch.Gone() && !repeats) FButton.PressClicks(true);
}

// Messages.

vcl::TSetFor<bool> TQELPress::Handling(const vcl::TMessage& message) {
  return {FReleasing, FReleasing || IsRelease(message.Msg), &FControl};
}

bool TQELPress::EndsBy(const vcl::TMessage& message) const {
  switch (message.Msg) {
    case WM_CANCELMODE: return true;
    case WM_CAPTURECHANGED: return !FReleasing;
    case WM_KILLFOCUS: return !FButton.HoldsMouse();
    case vcl::CM_ENABLEDCHANGED: return !FControl.Enabled();
    case vcl::CM_VISIBLECHANGED: return !FControl.Visible();
    default: return false;
  }
}

void TQELPress::Heard(const vcl::TMessage& message) {
  if (message.Msg == vcl::CM_MOUSEENTER || message.Msg == vcl::CM_MOUSELEAVE) {
    FHot = message.Msg == vcl::CM_MOUSEENTER;
    return FButton.ShowHot();
  }
  if (FHolder != THolder::Nobody && EndsBy(message)) End();
}

}  // namespace qel
