// TCustomLabel and TLabel: text on a form, without a window.
#pragma once

#include "vcl/controls/control.h"

namespace vcl {

/// Where text stands between the top and the bottom.
enum TTextLayout { tlTop, tlCenter, tlBottom };
template <>
inline constexpr TEnumText EnumText<TTextLayout>{"TTextLayout", "tlTop tlCenter tlBottom"};

/// A label. Its size follows the text unless AutoSize is off; "&" marks an accelerator, which takes
/// the focus to FocusControl.
class VCL_API TCustomLabel : public TGraphicControl {
 public:
  explicit TCustomLabel(TComponent* owner);
  ~TCustomLabel() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  const TControl* Labelled() const override;

  TAlignment Alignment() const { return FAlignment; }
  /// Where the text stands between left and right.
  void SetAlignment(TAlignment alignment);
  bool AutoSize() const { return FAutoSize; }
  /// True: the label's size follows its text.
  virtual void SetAutoSize(bool autoSize);
  TWinControl* FocusControl() const { return FFocusControl; }
  /// The control that the accelerator takes the focus to; null for none.
  void SetFocusControl(TWinControl* control);
  TTextLayout Layout() const { return FLayout; }
  /// Where the text stands between top and bottom.
  void SetLayout(TTextLayout layout);
  bool ShowAccelChar() const { return FShowAccelChar; }
  /// False: "&" is an ampersand like any other.
  void SetShowAccelChar(bool show);
  bool Transparent() const { return !ControlStyle().Has(csOpaque); }
  /// True: what is behind the label shows between the letters.
  void SetTransparent(bool transparent);
  bool WordWrap() const { return FWordWrap; }
  /// True: lines that are too long go on in the next row.
  void SetWordWrap(bool wordWrap);

 protected:
  void Paint() override;
  /// Draws the text in the rectangle (or, with DT_CALCRECT, only measures it) on `Canvas`, with
  /// DrawText's flags.
  virtual void DoDrawText(TRect& rect, UINT flags);
  /// Makes the size fit the text when AutoSize is on.
  virtual void AdjustBounds();
  void Dispatch(TMessage& message) override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  UINT TextFlags() const;
  void LookChanged();
  bool TakesAccel(WPARAM character) const;

  TAlignment FAlignment = taLeftJustify;
  TTextLayout FLayout = tlTop;
  bool FAutoSize = true;
  bool FShowAccelChar = true;
  bool FWordWrap = false;
  TWinControl* FFocusControl = nullptr;
};

/// A label for forms.
class VCL_API TLabel : public TCustomLabel {
 public:
  explicit TLabel(TComponent* owner) : TCustomLabel(owner) { HearOnlyAsked<TLabel>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
