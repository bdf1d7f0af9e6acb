// TCustomCheckBox, TCheckBox and TRadioButton.
#pragma once

#include "vcl/stdctrls/button.h"

namespace vcl {

enum TCheckBoxState { cbUnchecked, cbChecked, cbGrayed };
template <>
inline constexpr TEnumText EnumText<TCheckBoxState>{"TCheckBoxState",
                                                    "cbUnchecked cbChecked cbGrayed"};

/// A check box. A change of its state is a click, by whomever; reading a form is not.
class VCL_API TCustomCheckBox : public TButtonControl {
 public:
  explicit TCustomCheckBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TAlignment Alignment() const { return FAlignment; }
  /// The side of the box on which the caption stands: taLeftJustify or taRightJustify; raises
  /// EArgumentOutOfRangeException for another.
  void SetAlignment(TAlignment alignment);
  bool AllowGrayed() const { return FAllowGrayed; }
  /// True: the user goes through three states.
  void SetAllowGrayed(bool allow) { FAllowGrayed = allow; }
  bool Checked() const { return FState == cbChecked; }
  /// The box is checked.
  void SetChecked(bool checked) { SetState(checked ? cbChecked : cbUnchecked); }
  TCheckBoxState State() const { return FState; }
  /// Whether the box is unchecked, checked or greyed.
  void SetState(TCheckBoxState state);

 protected:
  /// Goes to the next state.
  virtual void Toggle();
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Pressed() override { Toggle(); }
  void AccelPressed() override;
  void FollowAction(const TActionChange& change) override;

 private:
  void ShowChecked(bool checked);
  bool IsCheckedStored() const;
  bool IsStateStored() const { return FState == cbGrayed || IsCheckedStored(); }

  bool FFollowing = false;  // The action changes the state, which is no click.
  TAlignment FAlignment = taRightJustify;
  bool FAllowGrayed = false;
  TCheckBoxState FState = cbUnchecked;
};

/// A check box for forms.
class VCL_API TCheckBox : public TCustomCheckBox {
 public:
  explicit TCheckBox(TComponent* owner) : TCustomCheckBox(owner) { HearOnlyAsked<TCheckBox>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

/// A radio button: checking it unchecks the others in its parent, and is a click.
class VCL_API TRadioButton : public TButtonControl {
 public:
  explicit TRadioButton(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// The side of the button on which the caption stands: taLeftJustify or taRightJustify.
  TAlignment Alignment() const { return FAlignment; }
  /// As TCustomCheckBox::SetAlignment.
  void SetAlignment(TAlignment alignment);
  bool Checked() const { return FChecked; }
  /// The button is the chosen one of those in its parent.
  void SetChecked(bool checked);

 protected:
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Pressed() override { SetChecked(true); }
  void AccelPressed() override;
  void Dispatch(TMessage& message) override;
  void FollowAction(const TActionChange& change) override;

 private:
  void UncheckSiblings();
  void ShowChecked(bool checked);
  bool IsCheckedStored() const;

  bool FFollowing = false;  // The action checks the button, which is no click.

  TAlignment FAlignment = taRightJustify;
  bool FChecked = false;
};

}  // namespace vcl
