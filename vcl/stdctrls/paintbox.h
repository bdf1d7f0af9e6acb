// TPaintBox: a place on a form that the program paints.
#pragma once

#include "vcl/controls/control.h"

namespace vcl {

/// A control without a window whose look is what OnPaint draws.
class VCL_API TPaintBox : public TGraphicControl {
 public:
  explicit TPaintBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// To draw on in OnPaint; (0, 0) is the control's top left.
  TCanvas* Canvas() const { return TGraphicControl::Canvas(); }

  /// The control is to be painted.
  TNotifyEvent OnPaint;

 protected:
  void Paint() override;
};

}  // namespace vcl
