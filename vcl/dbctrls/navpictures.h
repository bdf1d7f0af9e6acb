// The pictures of a navigator's buttons.
#pragma once

#include "vcl/dbctrls/dbnavigator.h"

namespace vcl {

/// Draws what the button is for into the middle of the area: a square of that side, or as large as
/// the area allows, embossed where the button is not enabled.
VCL_API void DrawNavigatorPicture(TCanvas& canvas, TNavigateBtn button, const TRect& area, int side,
                                  bool enabled);

}  // namespace vcl
