// The picture of a component that is not seen when the form runs.
#pragma once

#include "vcl/graphics/canvas.h"
#include "vcl/rtl/component.h"

namespace ide {

/// Paints the component's icon on a raised face; `selected` gives it a frame.
void PaintComponentPicture(vcl::TCanvas& canvas, const vcl::TRect& inside,
                           const vcl::TComponent& component, bool selected);

}  // namespace ide
