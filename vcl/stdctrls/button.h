// TButtonControl, the base of push buttons, check boxes and radio buttons, and TButton.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace vcl {

/// A control over one of the system's buttons.
class VCL_API TButtonControl : public TWinControl {
 public:
  explicit TButtonControl(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DoAccessibleAction() override { Pressed(); }

 protected:
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
  /// The user has pressed the button, by mouse or space bar.
  virtual void Pressed() {}
  /// The user has pressed the accelerator in the caption.
  virtual void AccelPressed() {}
};

/// A push button.
class VCL_API TButton : public TButtonControl {
 public:
  explicit TButton(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  bool Cancel() const { return FCancel; }
  /// Escape clicks the button, wherever the focus is.
  void SetCancel(bool cancel) { FCancel = cancel; }
  bool Default() const { return FDefault; }
  /// Enter clicks the button unless another button has the focus.
  void SetDefault(bool isDefault);
  TModalResult ModalResult() const { return FModalResult; }
  /// What a click gives the form as its modal result, before OnClick.
  void SetModalResult(TModalResult result) { FModalResult = result; }
  /// Clicks the button as the user would.
  void Click() override;

 protected:
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;
  /// Shows whether Enter is for this button now.
  virtual void SetButtonStyle(bool active);
  void Pressed() override { Click(); }
  void AccelPressed() override { Click(); }

 private:
  bool TakesDialogKey(const TMessage& message) const;
  void SetActive(bool active);

  bool FCancel = false;
  bool FDefault = false;
  bool FActive = false;  // Enter is for this button now, and it looks so.
  TModalResult FModalResult = mrNone;
};

}  // namespace vcl
