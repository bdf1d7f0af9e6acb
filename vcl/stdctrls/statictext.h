// TStaticText: a text with a window of its own.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace vcl {

enum TStaticBorderStyle { sbsNone, sbsSingle, sbsSunken };
template <>
inline constexpr TEnumText EnumText<TStaticBorderStyle>{"TStaticBorderStyle",
                                                        "sbsNone sbsSingle sbsSunken"};

/// A label that is a window: it can stand over windows and have a border. Its size follows the text
/// unless AutoSize is off; "&" marks an accelerator, which takes the focus to FocusControl.
class VCL_API TStaticText : public TWinControl {
 public:
  explicit TStaticText(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  const TControl* Labelled() const override { return FFocusControl; }

  TAlignment Alignment() const { return FAlignment; }
  /// Where the text stands between left and right.
  void SetAlignment(TAlignment alignment);
  bool AutoSize() const { return FAutoSize; }
  /// True: the size follows the text.
  void SetAutoSize(bool autoSize);
  TStaticBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Which border the text has.
  void SetBorderStyle(TStaticBorderStyle style);
  TWinControl* FocusControl() const { return FFocusControl; }
  /// The control that the accelerator takes the focus to; null for none.
  void SetFocusControl(TWinControl* control);
  bool ShowAccelChar() const { return FShowAccelChar; }
  /// False: "&" is an ampersand like any other.
  void SetShowAccelChar(bool show);

 protected:
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  template <class T>
  void ChangeStyle(T& field, T value);
  void AdjustBounds();

  TAlignment FAlignment = taLeftJustify;
  TStaticBorderStyle FBorderStyle = sbsNone;
  bool FAutoSize = true;
  bool FShowAccelChar = true;
  TWinControl* FFocusControl = nullptr;
};

}  // namespace vcl
