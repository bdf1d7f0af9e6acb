// TPressable: what the mouse does to buttons without a window.
#pragma once

#include "vcl/controls/control.h"

namespace vcl {

/// Base of the buttons without a window: the mouse presses them, and they come up again where it
/// leaves them or is released.
class VCL_API TPressable : public TGraphicControl {
 public:
  explicit TPressable(TComponent* owner);
  ~TPressable() override;

 protected:
  /// Looks pressed: the mouse is down, and over the button.
  bool Pressed() const { return FPressed; }
  /// The mouse is over the button.
  bool Hot() const { return FHot; }
  /// Whether a press at the position presses the button. Here: everywhere.
  virtual bool TakesPress(TPoint /*position*/) const { return true; }
  /// The mouse was released over the button that it has pressed.
  virtual void Released() = 0;
  /// The mouse has come to the button or left it. Here: does nothing.
  virtual void HotChanged() {}
  /// True for the key of the caption's accelerator while the button can be seen and used.
  bool IsAccelerated(const TMessage& message) const;

  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void MouseMove(TShiftState shift, int x, int y) override;
  void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
  void Dispatch(TMessage& message) override;

 private:
  void SetPressed(bool pressed);
  void SetHot(bool hot);

  bool FTracking = false;  // The mouse went down on the button and is still down.
  bool FPressed = false;
  bool FHot = false;
};

}  // namespace vcl
