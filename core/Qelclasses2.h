// Drawing helpers that several controls share.
#pragma once

#include "core/Qelfont3d.h"
#include "core/api.h"
#include "host/vcl/graphics.h"

namespace qel {

/// Draws the bitmap at (x, y) without its pixels of the colour.
QEL_API void QELDrawTransparentBitmap(vcl::TCanvas* canvas, vcl::TBitmap* bitmap, int x, int y,
                                      vcl::TColor transparentColor);

}  // namespace qel
