// TQELButton: a push button that paints itself.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelclasses.h"
#include "qel/core/Qelcontrols.h"

namespace qel {

/// A push button with a glyph, a three-dimensional caption and a soft edge, on a background. The
/// left mouse button and the space bar press it, and the letter that "&" marks in its caption
/// clicks it. What ends a press otherwise (WM_CANCELMODE, the mouse captured for another window,
/// the focus lost under the space bar) leaves the button up and clicks nothing.
class QEL_API TQELButton : public TQELCustomControl {
 public:
  explicit TQELButton(vcl::TComponent* owner);
  ~TQELButton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  /// How the caption is written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Copies the settings.
  void Set3D(const TQELFont3D* font3D);
  /// The images beside the caption.
  TQELGlyph* Glyph() const { return FGlyph.get(); }
  /// Copies the settings and the images.
  void SetQELGlyph(const TQELGlyph* glyph);
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
  /// True while the button is shown pressed.
  bool Down() const { return FDown; }

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void Paint() override;
  void Click() override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void KeyUp(std::uint16_t& key, vcl::TShiftState shift) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  void GlyphChange(vcl::TObject* sender);
  void SetDown(bool down);
  bool TakesAccel(WPARAM character) const;
  void DispatchPress(vcl::TMessage& message);
  void PaintGlyph(const vcl::TRect& face, bool beforeText);
  void PaintCaption(vcl::TRect face, const std::string& caption);
  void PaintEdge();

  std::unique_ptr<TQELGlyph> FGlyph;
  std::unique_ptr<TQELFont3D> FFont3D;
  bool FDown = false;
  bool FReleasing = false;  // The mouse is being released: the capture ends by itself.
  bool FWordWrap = false;
  bool FButtonSunk = false;
  bool FEnabled = true;
};

}  // namespace qel
