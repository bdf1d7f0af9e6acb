// TQELSpinButton: a square button of two halves, up and down; TQELCustomStepEdit: an edit with such
// a button at its right edge; TQELSpinEdit: one for whole numbers.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "qel/core/Qelclasses.h"
#include "qel/core/Qelcontrols.h"
#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/edit.h"

namespace qel {

/// A button that is divided along its diagonal into an up half at the top left and a down half at
/// the bottom right. A press counts when the mouse button is released; holding it down repeats
/// nothing.
class QEL_API TQELCustomSpinButton : public TQELGraphicControl {
 public:
  explicit TQELCustomSpinButton(vcl::TComponent* owner);
  ~TQELCustomSpinButton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  std::vector<vcl::TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const vcl::TAccessiblePath& part) override;

  void SetColor(vcl::TColor color) override;
  vcl::TColor ArrowColor() const { return FArrowColor; }
  /// The colour of the two arrows.
  void SetArrowColor(vcl::TColor color);
  /// What the button looks like now.
  TQELButtonState Down() const { return FState; }
  /// Shows another look.
  void SetDown(TQELButtonState state);

  /// The down half has been pressed and released.
  vcl::TNotifyEvent OnBottomClick;
  /// The up half has been pressed and released; or any mouse button was released over the control,
  /// or captured by it, while no half was pressed.
  vcl::TNotifyEvent OnTopClick;

 protected:
  void Paint() override;
  /// Draws the four looks into the strip that Paint copies from.
  void CreateStates();
  /// Draws one look into its place in the strip.
  void DrawState(TQELButtonState state);
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  TQELButtonState HalfAt(int x, int y) const;
  void Rebuild();
  void DrawFace(vcl::TCanvas* canvas) const;
  void DrawBevels(vcl::TCanvas* canvas, TQELButtonState state) const;
  void DrawArrows(vcl::TCanvas* canvas, TQELButtonState state) const;

  vcl::TBitmap FStrip;
  TQELButtonState FState = bsUp;
  TQELButtonState FPressed = bsUp;  // The half that the mouse went down on.
  bool FMouseDown = false;
  vcl::TColor FArrowColor = vcl::clBlack;
};

/// A spin button for forms.
class QEL_API TQELSpinButton : public TQELCustomSpinButton {
 public:
  using TQELCustomSpinButton::TQELCustomSpinButton;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 protected:
  void Loaded() override;
};

/// An edit for a number, with a button at its right edge. The button and the arrow keys step the
/// number, the page keys by more; descendants say what a number is. What is typed or pasted is
/// looked at when the focus leaves, and a text that is no number is then replaced.
class QEL_API TQELCustomStepEdit : public vcl::TCustomEdit {
 public:
  ~TQELCustomStepEdit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  vcl::TColor ButtonColor() const { return FButton->Color(); }
  /// The colour of the button's surface.
  void SetButtonColor(vcl::TColor color) { FButton->SetColor(color); }
  vcl::TColor ArrowColor() const { return FButton->ArrowColor(); }
  /// The colour of the button's arrows.
  void SetArrowColor(vcl::TColor color) { FButton->SetArrowColor(color); }
  bool CutandPaste() const { return FCutandPaste; }
  /// False: text can be neither cut nor pasted nor typed nor deleted; buttons and keys still step
  /// the number.
  void SetCutandPaste(bool allowed) { FCutandPaste = allowed; }
  bool Readonly() const { return ReadOnly(); }
  /// True: neither typing nor buttons nor keys change the number.
  void SetReadonly(bool readOnly) { SetReadOnly(readOnly); }

  void GetChildren(const std::function<void(vcl::TComponent*)>& each,
                   vcl::TComponent* root) override;

  /// One step up, or a beep when the edit is read-only.
  virtual void UpClick(vcl::TObject* sender);
  virtual void DownClick(vcl::TObject* sender);

 protected:
  explicit TQELCustomStepEdit(vcl::TComponent* owner);
  /// Adds so many times the difference that the button and the arrow keys make to the number,
  /// resp. the greater one of the page keys.
  virtual void Step(int times) = 0;
  virtual void StepPage(int times) = 0;
  /// Makes the text one that says a number within the bounds.
  virtual void CorrectText() = 0;
  /// Whether the character can be part of a number.
  virtual bool IsNumeral(char32_t key) const = 0;
  /// Whether a typed character is taken. Those that would begin a line or a column are taken here
  /// and go no further than OnKeyPress.
  virtual bool IsValidChar(char32_t key) const;
  bool MultiLine() const override { return true; }
  /// The least height that the font needs.
  int GetMinHeight() const;
  /// Makes the edit high enough, and puts the button at its right edge.
  void AdjustSize();
  /// Keeps the text off the button.
  void SetEditRect();
  void CreateParams(vcl::TCreateParams& params) override;
  void CreateWnd() override;
  void Resize() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void DoEnter() override;
  void DoExit() override;
  void Dispatch(vcl::TMessage& message) override;
  void Loaded() override;

 private:
  void StepLine(int times);
  void KeepText(std::uint16_t& key, vcl::TShiftState shift);
  bool Refuses(const vcl::TMessage& message) const;

  bool FCutandPaste = true;
  vcl::TWinControl* FButtonWindow;  // Holds the button, which has no window of its own.
  TQELCustomSpinButton* FButton;
};

/// An edit for a whole number with sign. The button and the arrow keys step the number, the page
/// keys by more. It is kept within bounds when it is set or stepped and when the focus leaves; what
/// is typed or pasted in between is not, and a text that is no number is then replaced by the value
/// that it is read as.
class QEL_API TQELCustomSpinEdit : public TQELCustomStepEdit {
 public:
  explicit TQELCustomSpinEdit(vcl::TComponent* owner);
  ~TQELCustomSpinEdit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int LineSize() const { return FLineSize; }
  /// What the button and the arrow keys add or take. Any number; a negative one turns them round.
  void SetLineSize(int size) { FLineSize = size; }
  int MultipleLineSize() const { return FMultipleLineSize; }
  /// What the page keys add or take. Any number.
  void SetMultipleLineSize(int size) { FMultipleLineSize = size; }
  /// The greatest number; must be greater than MinValue.
  int MaxValue() const { return FMaxValue; }
  /// Refuses, silently, what is not greater than MinValue. A form file may give any two bounds, of
  /// which the same twice stands for none; with a maximum less than the minimum, reading it raises
  /// EReadError.
  void SetMaxValue(int maxValue);
  /// The least number; must be less than MaxValue.
  int MinValue() const { return FMinValue; }
  /// Refuses, silently, what is not less than MaxValue.
  void SetMinValue(int minValue);
  /// The number that the text says; MinValue when it says none. Writes MinValue into an empty text.
  int GetValue() const;
  /// Writes the number, kept within the bounds.
  void SetValue(int value);
  /// The number within the bounds.
  int CheckValue(int value) const;

 protected:
  void Step(int times) override;
  void StepPage(int times) override;
  void CorrectText() override;
  bool IsNumeral(char32_t key) const override;
  void Loaded() override;

 private:
  void StepBy(std::int64_t difference);
  void CheckBounds();

  int FLineSize = 1;
  int FMultipleLineSize = 10;
  int FMaxValue;
  int FMinValue;
};

/// A spin edit for forms.
class QEL_API TQELSpinEdit : public TQELCustomSpinEdit {
 public:
  explicit TQELSpinEdit(vcl::TComponent* owner);
  ~TQELSpinEdit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the edit says about the package.
  TQELAbout* About() const { return FAbout.get(); }

 private:
  std::unique_ptr<TQELAbout> FAbout;
};

}  // namespace qel
