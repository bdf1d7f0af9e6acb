// TControlCanvas: the canvas of a control.
#pragma once

#include "vcl/graphics/canvas.h"

namespace vcl {

class TControl;

/// Draws on a control: on the context that it is given while the control paints, otherwise on one
/// that it gets from the control's window on demand and gives back when `FreeHandle` or
/// `FreeDeviceContexts` says.
class VCL_API TControlCanvas : public TOnDemandCanvas {
 public:
  ~TControlCanvas() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TControl* Control() const { return FControl; }
  /// Null for none. A context that was got from the former control is given back to it.
  void SetControl(TControl* control);

 protected:
  /// Raises EInvalidOperation when there is no control.
  HDC AcquireContext() override;
  void ReleaseContext(HDC dc) override;

 private:
  TControl* FControl = nullptr;
  HWND FWindow = nullptr;
};

}  // namespace vcl
