// TQELButton: a push button that paints itself.
#pragma once

#include <string>

#include "qel/controls/Qelcustombutton.h"

namespace qel {

/// A push button with a glyph, a three-dimensional caption and a soft edge, on a background. The
/// left mouse button and the space bar press it, and the letter that "&" marks in its caption
/// clicks it. What ends a press otherwise (WM_CANCELMODE, the mouse captured for another window,
/// the focus lost under the space bar) leaves the button up and clicks nothing.
class QEL_API TQELButton : public TQELCustomButton {
 public:
  explicit TQELButton(vcl::TComponent* owner);
  ~TQELButton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  /// The button's own state, which stands in for that of its window: false greys it and has it
  /// ignore the mouse, but the window stays enabled, and the space bar works.
  bool Enabled() const { return FEnabled; }
  void SetEnabled(bool enabled);
  std::string getcaption() const;
  /// The text on the button.
  void Setcaption(const std::string& caption);
  bool WordWrap() const { return FWordWrap; }
  /// True wraps the caption; false draws it on one line that ends in an ellipsis when it is too
  /// long.
  void Setword(bool wordWrap);
  bool ButtonSunk() const { return FButtonSunk; }
  /// Sinks the button into its parent. Makes the window anew.
  void SetButtonSunk(bool sunk);

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void Paint() override;
  bool TakesMouse() const override { return FEnabled; }
  bool TakesAccel() const override { return FEnabled && CanFocus(); }
  bool FocusedByMouse() const override { return false; }
  void ShowPress() override;
  void ShowHot() override {}
  void PressClicks(bool byKey) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;

 private:
  void PaintGlyph(const vcl::TRect& face, bool beforeText);
  void PaintCaption(vcl::TRect face, const std::string& caption);
  void PaintEdge();

  bool FWordWrap = false;
  bool FButtonSunk = false;
  bool FEnabled = true;
};

}  // namespace qel
