// TCustomForm: activation, the focus, and the keys that move it.
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

std::string Described(const TControl* control) {
  return Concat(control->Name(), ": ", control->ClassName());
}

}  // namespace

void TCustomForm::Activate() { OnActivate(this); }
void TCustomForm::Deactivate() { OnDeactivate(this); }

void TCustomForm::SetActive(bool active) {
  FActive = active;
  if (!active) return;
  if (!FActiveControl) FActiveControl = FindNextControl(nullptr, true, true, false);
  if (FActiveControl) FActiveControl->FreeNotification(this);
  SetWindowFocus();
}

void TCustomForm::SetWindowFocus() {
  if (!HandleAllocated()) return;
  TWinControl* const target = FActiveControl && FActiveControl->CanFocus() ? FActiveControl : this;
  ::SetFocus(target->Handle());
}

void TCustomForm::SetFocus() {
  if (!CanFocus()) {
    throw EInvalidOperation(
        Concat("The form ", Described(this), " is invisible or disabled and can't have the focus"));
  }
  SetWindowFocus();
}

void TCustomForm::SetActiveControl(TWinControl* control) {
  if (control == FActiveControl) return;
  if (control) {
    const bool mustTakeIt = Showing() && !Loading() && !Designing();
    if (control == this || control->ParentForm() != this) {
      throw EInvalidOperation(
          Concat("The control ", Described(control), " is not on the form ", Described(this)));
    }
    if (mustTakeIt && !control->CanFocus()) {
      throw EInvalidOperation(Concat("The control ", Described(control),
                                     " is invisible or disabled and can't have the focus"));
    }
    control->FreeNotification(this);
  }
  FActiveControl = control;
  if (FActive && !Loading()) SetWindowFocus();
}

void TCustomForm::FocusControl(TWinControl* control) {
  const TWatch watch(this);
  SetActiveControl(control == this ? nullptr : control);
  if (!watch.Gone()) SetFocus();
}

void TCustomForm::DefocusControl(TWinControl* control) {
  if (FActiveControl && control->ContainsControl(FActiveControl)) SetActiveControl(nullptr);
}

// The way of the focus. The controls that it leaves hear CM_EXIT, the innermost first; those that
// it comes into hear CM_ENTER, the outermost first. A handler that moves the focus elsewhere, or
// frees one of them, ends the way there.

bool TCustomForm::IsTarget(const TWinControl* control) const {
  return control == (FActiveControl ? FActiveControl : this);
}

// Goes one step; false when the way to the target has come to an end.
bool TCustomForm::StepTo(TWinControl* entered, TWinControl* target, UINT notice) {
  TWatch form(this);
  TWatch aim(target);
  TWinControl* const told = notice == CM_EXIT ? FFocusedControl : entered;
  FFocusedControl = entered;
  entered->FreeNotification(this);
  told->Perform(notice);
  return !form.Gone() && !aim.Gone() && FFocusedControl && IsTarget(target);
}

void TCustomForm::SetFocusedControl(TWinControl* control) {
  // The system gives the focus of a control that goes to the one around it, which may be going too.
  if (Designing() || control->Destroying()) return;
  TWatch form(this);
  TWatch aim(control);
  FActiveControl = control == this ? nullptr : control;
  if (FActiveControl) control->FreeNotification(this);
  Screen()->SetActive(this, control);
  if (form.Gone() || aim.Gone() || !IsTarget(control)) return;
  if (!FFocusedControl) FFocusedControl = this;
  if (FFocusedControl == control) return;
  while (!FFocusedControl->ContainsControl(control)) {
    if (!StepTo(FFocusedControl->Parent(), control, CM_EXIT)) return;
  }
  while (FFocusedControl != control) {
    TWinControl* next = control;
    while (next->Parent() != FFocusedControl) next = next->Parent();
    if (!StepTo(next, control, CM_ENTER)) return;
  }
  // What moves under a pressed button would miss its click.
  if (!IsDown(VK_LBUTTON) && !IsDown(VK_RBUTTON)) TScrollingWinControl::BringIntoView(*control);
  if (form.Gone() || aim.Gone()) return;
  Perform(CM_FOCUSCHANGED, 0, reinterpret_cast<LPARAM>(control));
}

// Keys.

bool TCustomForm::DialogKey(WPARAM key) {
  if (IsDown(VK_MENU)) return false;
  switch (key) {
    case VK_TAB:
      if (IsDown(VK_CONTROL)) return false;
      SelectNext(FActiveControl, !IsDown(VK_SHIFT), true);
      return true;
    case VK_RIGHT:
    case VK_DOWN: return MoveByArrow(true);
    case VK_LEFT:
    case VK_UP: return MoveByArrow(false);
    default: return false;
  }
}

// Arrows move among the controls of one parent, tab stops or not.
bool TCustomForm::MoveByArrow(bool forward) {
  if (!FActiveControl || IsDown(VK_CONTROL) || IsDown(VK_SHIFT)) return false;
  FActiveControl->Parent()->SelectNext(FActiveControl, forward, false);
  return true;
}

}  // namespace vcl
