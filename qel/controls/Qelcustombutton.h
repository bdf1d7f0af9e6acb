// TQELCustomButton: what the buttons with a window have in common.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelclasses.h"
#include "qel/core/Qelcontrols.h"
#include "qel/core/Qelpress.h"

namespace qel {

/// A control with a caption, its three-dimensional font and a glyph, on a background, that is
/// pressed by the mouse, the space bar and the letter that "&" marks in its caption. Classes
/// derived from it paint it, and say what a click does.
class QEL_API TQELCustomButton : public TQELCustomControl, private TQELPressed {
 public:
  explicit TQELCustomButton(vcl::TComponent* owner,
                            TQELPress::TRelease release = TQELPress::TRelease::Over);
  ~TQELCustomButton() override;
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
  /// True while the button is shown pressed.
  bool Down() const { return FPress.Down(); }
  /// True while the mouse is over the button.
  bool Hot() const { return FPress.Hot(); }
  /// Whether Enter clicks the button while it has the focus.
  virtual bool TakesReturn() const { return false; }

 protected:
  TQELPress& Press() { return FPress; }
  /// Whether the mouse presses the button now.
  virtual bool TakesMouse() const { return Enabled(); }
  /// Whether the letter in the caption clicks the button now.
  virtual bool TakesAccel() const { return CanFocus(); }
  /// Whether a press of the mouse gives the button the focus.
  virtual bool FocusedByMouse() const { return true; }
  /// Whether the position lies on the button.
  virtual bool Contains(vcl::TPoint position) const { return ClientRect().Contains(position); }
  /// The user has pressed the letter in the caption.
  virtual void AccelPressed() { Click(); }
  /// True while the focus is to be shown: the button has it, and the system's state of this window
  /// does not hide it from somebody who uses the mouse.
  bool ShowsFocus();
  /// Draws the focus rectangle when it is to be shown.
  void PaintFocus(const vcl::TRect& rect);

  void ShowPress() override;
  void ShowHot() override;
  void PressClicks(bool byKey) override;
  void Click() override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void KeyUp(std::uint16_t& key, vcl::TShiftState shift) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  bool HoldsMouse() const override { return MouseCapture(); }
  void ForgetClick() override { ExcludeState(vcl::csClicked); }
  bool TakeOwn(vcl::TMessage& message);

  std::unique_ptr<TQELGlyph> FGlyph;
  std::unique_ptr<TQELFont3D> FFont3D;
  TQELPress FPress;
};

}  // namespace qel
