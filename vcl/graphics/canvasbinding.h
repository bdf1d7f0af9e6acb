// TCanvasBinding: gives a control's canvas a device context while the control paints.
#pragma once

#include "vcl/graphics/canvas.h"
#include "vcl/rtl/component.h"

namespace vcl {

/// Binds the canvas to the context from now on and lets go of it in every case, also when painting
/// raises; unless painting has freed the control, and the canvas with it.
class TCanvasBinding {
 public:
  TCanvasBinding(TComponent& owner, TCanvas& canvas, HDC dc) : FWatch(&owner), FCanvas(canvas) {
    FCanvas.SetHandle(dc);
  }
  ~TCanvasBinding() {
    if (!FWatch.Gone()) FCanvas.SetHandle(nullptr);
  }
  TCanvasBinding(const TCanvasBinding&) = delete;
  TCanvasBinding& operator=(const TCanvasBinding&) = delete;

 private:
  TWatch FWatch;
  TCanvas& FCanvas;
};

}  // namespace vcl
