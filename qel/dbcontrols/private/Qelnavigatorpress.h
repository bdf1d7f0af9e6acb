// TQELNavigatorPress: a button of a navigator.
#pragma once

#include "qel/dbcontrols/Qeltdbnavigator.h"
#include "vcl/stdctrls/buttons.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

/// Shows the picture of what it is for while it has neither a glyph nor a caption of its own.
class TQELNavigatorPress : public vcl::TSpeedButton {
 public:
  TQELNavigatorPress(TQELDBNavigator& navigator, TQELNavigatorButton button);
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void Click() override;

 protected:
  void Paint() override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  bool Repeats() const;
  void Repeat();
  void DrawFind();
  void DrawPicture();

  TQELDBNavigator& FNavigator;
  TQELNavigatorButton FButton;
  vcl::TTimer FTimer{nullptr};
  bool FRepeated = false;  // The release of this press does nothing more.
};

}  // namespace qel
