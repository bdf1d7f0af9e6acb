// TQELCheckbox and TQELRadiobutton: boxes that are checked, with a three-dimensional caption.
#pragma once

#include <memory>

#include "qel/controls/Qelcustombutton.h"
#include "vcl/controls/controltypes.h"
#include "vcl/stdctrls/checkbox.h"

namespace qel {

/// What check box and radio button have in common: a box, or an image in its place, with a caption
/// beside it, inside a frame. A change of the state is a click, by whomever; reading a form is not.
class QEL_API TQELCustomCheck : public TQELCustomButton {
 public:
  explicit TQELCustomCheck(vcl::TComponent* owner);
  ~TQELCustomCheck() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The frame along the control's edge.
  TQELFrame* Frame() const { return FFrame.get(); }
  /// Copies the settings.
  void SetFrame(const TQELFrame* frame);
  vcl::TAlignment Alignment() const { return FAlignment; }
  /// The side of the box on which the caption stands: taLeftJustify or taRightJustify. Another is
  /// refused.
  void SetAlignment(vcl::TAlignment alignment);
  bool WordWrap() const { return FWordWrap; }
  /// True wraps the caption; false draws it on one line that ends in an ellipsis when it is too
  /// long.
  void SetWordWrap(bool wordWrap);

 protected:
  /// The state that is shown.
  virtual vcl::TCheckBoxState Shown() const = 0;
  /// The system's picture of the box, as DrawFrameControl names it.
  virtual unsigned BoxLook() const = 0;
  /// The user has clicked: goes to the next state.
  virtual void Toggle() = 0;
  /// The state has changed: shows it, and tells of it as a click.
  void StateChanged();
  /// A click of the user, who goes to the next state.
  void Click() override { Toggle(); }
  void AccelPressed() override;
  void Paint() override;

 private:
  struct TPlaces;
  TPlaces Arrange() const;
  void PaintBox(const vcl::TRect& box);
  void PaintCaption(const vcl::TRect& area);

  std::unique_ptr<TQELFrame> FFrame;
  vcl::TAlignment FAlignment = vcl::taRightJustify;
  bool FWordWrap = false;
};

/// A check box. The images of its glyph, when it has some, take the place of the system's box: for
/// unchecked, disabled, checked and greyed; for those that are missing the first one stands in.
class QEL_API TQELCheckbox : public TQELCustomCheck {
 public:
  explicit TQELCheckbox(vcl::TComponent* owner);
  ~TQELCheckbox() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  bool AllowGrayed() const { return FAllowGrayed; }
  /// True: the user goes through three states.
  void SetAllowGrayed(bool allow) { FAllowGrayed = allow; }
  bool Checked() const { return FState == vcl::cbChecked; }
  /// The box is checked; form files hold State instead.
  void SetChecked(bool checked) { SetState(checked ? vcl::cbChecked : vcl::cbUnchecked); }
  vcl::TCheckBoxState State() const { return FState; }
  /// Whether the box is unchecked, checked or greyed.
  void SetState(vcl::TCheckBoxState state);

 protected:
  vcl::TCheckBoxState Shown() const override { return FState; }
  unsigned BoxLook() const override;
  void Toggle() override;

 private:
  bool FAllowGrayed = false;
  vcl::TCheckBoxState FState = vcl::cbUnchecked;
};

/// A radio button: of those in one parent with one GroupIndex at most one is checked. The arrow
/// keys move on to the next one and check it; Tab reaches the checked one only.
class QEL_API TQELRadiobutton : public TQELCustomCheck {
 public:
  explicit TQELRadiobutton(vcl::TComponent* owner);
  ~TQELRadiobutton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void SetParent(vcl::TWinControl* parent) override;

  bool Checked() const { return FChecked; }
  /// The button is the chosen one of its group.
  void SetChecked(bool checked);
  int GroupIndex() const { return FGroupIndex; }
  /// Parts the buttons of one parent into groups. A checked one unchecks that of the group it
  /// comes into.
  void SetGroupIndex(int group);

 protected:
  vcl::TCheckBoxState Shown() const override {
    return FChecked ? vcl::cbChecked : vcl::cbUnchecked;
  }
  unsigned BoxLook() const override;
  void Toggle() override { SetChecked(true); }
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  bool InGroup(const vcl::TControl* control) const;
  TQELRadiobutton* CheckedOther() const;
  bool UncheckOthers();
  void Enter();
  void Step(bool forward);

  bool FChecked = false;
  int FGroupIndex = 0;
};

}  // namespace qel
