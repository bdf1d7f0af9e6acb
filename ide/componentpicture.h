// The picture of a component that is not seen when the form runs.
#pragma once

#include "host/rtl/component.h"
#include "host/vcl/canvas.h"

namespace ide {

/// Paints the component's icon on a raised face; `selected` gives it a frame.
void PaintComponentPicture(vcl::TCanvas& canvas, const vcl::TRect& inside,
                           const vcl::TComponent& component, bool selected);

}  // namespace ide
