// TButtonControl and TButton: clicks, and which button Enter and Escape press.
#include "vcl/stdctrls/button.h"

#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TButtonControl::Class() {
  static const TClass info =
      Describe<TButtonControl, TWinControl>("vcl::TButtonControl", "vcl/stdctrls/stdctrls.h", {});
  return info;
}

TButtonControl::TButtonControl(TComponent* owner) : TWinControl(owner) {
  // The system's button captures the mouse and tells of clicks itself.
  SetControlStyle({csSetCaption, csDoubleClicks});
}

void TButtonControl::CreateParams(TCreateParams& params) {
  TWinControl::CreateParams(params);
  params.SubClassOf = "BUTTON";
}

void TButtonControl::Dispatch(TMessage& message) {
  if (message.Msg == CN_COMMAND) {
    if (HIWORD(message.WParam) == BN_CLICKED) Pressed();
    return;
  }
  if (message.Msg == CM_DIALOGCHAR && IsAccel(message.WParam, Caption()) && CanFocus()) {
    message.Result = 1;
    return AccelPressed();
  }
  TWinControl::Dispatch(message);
}

const TClass& TButton::Class() {
  static const TClass info = Describe<TButton, TButtonControl>(
      "vcl::TButton", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Action"),
          Property<&TButton::Cancel, &TButton::SetCancel>("Cancel").Default(false),
          Inherit("Caption"),
          Property<&TButton::Default, &TButton::SetDefault>("Default").Default(false),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&TButton::ModalResult, &TButton::SetModalResult>("ModalResult").Default(mrNone),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TButton::TButton(TComponent* owner) : TButtonControl(owner) {
  SetBounds(0, 0, 75, 25);
  SetTabStop(true);
  HearOnlyAsked<TButton>();
}

void TButton::SetDefault(bool isDefault) {
  FDefault = isDefault;
  TCustomForm* form = ParentForm();
  if (!form || !HandleAllocated()) return;
  Perform(CM_FOCUSCHANGED, 0, reinterpret_cast<LPARAM>(form->ActiveControl()));
}

void TButton::Click() {
  if (TCustomForm* form = ParentForm()) form->SetModalResult(FModalResult);
  TButtonControl::Click();
}

void TButton::CreateParams(TCreateParams& params) {
  TButtonControl::CreateParams(params);
  params.Style |= FActive ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

void TButton::CreateWnd() {
  FActive = FDefault;
  TButtonControl::CreateWnd();
}

void TButton::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  SetButtonStyle(active);
}

void TButton::SetButtonStyle(bool active) {
  SendIfAllocated(*this, BM_SETSTYLE, active ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

bool TButton::TakesDialogKey(const TMessage& message) const {
  const bool mine =
      (message.WParam == VK_RETURN && FActive) || (message.WParam == VK_ESCAPE && FCancel);
  return mine && KeyDataToShiftState(message.LParam).Empty() && CanFocus();
}

void TButton::Dispatch(TMessage& message) {
  if (message.Msg == CM_DIALOGKEY && TakesDialogKey(message)) {
    message.Result = 1;
    return Click();
  }
  if (message.Msg == CM_FOCUSCHANGED) {
    // Enter is for the button with the focus, if one has it, and for the default one otherwise.
    const auto* focused = reinterpret_cast<TWinControl*>(message.LParam);
    SetActive(dynamic_cast<const TButton*>(focused) ? focused == this : FDefault);
  }
  TButtonControl::Dispatch(message);
}

void TButton::DescribeAccessible(TAccessibleInfo& info) const {
  TButtonControl::DescribeAccessible(info);
  info.Role = arPushButton;
  info.DefaultAction = "Press";
  if (FActive) info.State.Include(asDefault);
  const bool down = HandleAllocated() && (Send(*this, BM_GETSTATE) & BST_PUSHED) != 0;
  if (down) info.State.Include(asPressed);
}

}  // namespace vcl
