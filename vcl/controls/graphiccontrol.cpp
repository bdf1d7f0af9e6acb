// TGraphicControl: painting a control that has no window.
#include "vcl/controls/control.h"
#include "vcl/controls/controlcanvas.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TGraphicControl::Class() {
  static const TClass info =
      Describe<TGraphicControl, TControl>("vcl::TGraphicControl", "vcl/controls/controls.h", {});
  return info;
}

TGraphicControl::TGraphicControl(TComponent* owner)
    : TControl(owner), FCanvas(std::make_unique<TControlCanvas>()) {
  FCanvas->SetControl(this);
}

TGraphicControl::~TGraphicControl() { AnnounceEnd(); }

TCanvas* TGraphicControl::Canvas() const { return FCanvas.get(); }

void TGraphicControl::Dispatch(TMessage& message) {
  if (message.Msg != WM_PAINT) return TControl::Dispatch(message);
  const HDC dc = reinterpret_cast<HDC>(message.WParam);
  if (!dc) return;
  const TCanvasBinding binding(*this, *FCanvas, dc);
  Paint();
}

}  // namespace vcl
