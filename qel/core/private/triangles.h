// Solid triangles in every direction and size.
#pragma once

#include "vcl/graphics/canvas.h"

namespace qel {

/// Where a triangle points.
enum class TPointing { Up, Down, Left, Right };

/// Draws the triangle that points up in QELGetTriangle, turned, with its tip at the pixel: `size`
/// lines, each two pixels longer than the one before. The canvas's pen is changed.
void DrawTriangle(vcl::TCanvas* canvas, vcl::TPoint tip, TPointing pointing, vcl::TColor color,
                  int size);

}  // namespace qel
