// TControlCanvas: getting and releasing the control's device context.
#include "vcl/controls/controlcanvas.h"

#include <utility>

#include "vcl/controls/control.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

TControlCanvas::~TControlCanvas() { FreeHandle(); }

const TClass& TControlCanvas::Class() {
  static const TClass info =
      Describe<TControlCanvas, TCanvas>("vcl::TControlCanvas", "vcl/controls/controls.h", {});
  return info;
}

void TControlCanvas::SetControl(TControl* control) {
  if (control == FControl) return;
  FreeHandle();
  FControl = control;
}

HDC TControlCanvas::AcquireContext() {
  if (!FControl) throw EInvalidOperation("The canvas has no control to draw on");
  return FControl->GetDeviceContext(FWindow);
}

void TControlCanvas::ReleaseContext(HDC dc) { ::ReleaseDC(std::exchange(FWindow, nullptr), dc); }

}  // namespace vcl
