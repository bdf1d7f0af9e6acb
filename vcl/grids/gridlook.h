// How cells look: the text in them.
#pragma once

#include <string>

#include "vcl/controls/controltypes.h"
#include "vcl/graphics/canvas.h"

namespace vcl {

/// At 96 dots per inch, around a cell's text.
inline constexpr int CellMargin = 2;

/// Draws the text inside the rectangle, `margin` pixels from its edges; what does not fit ends with
/// dots. Lines stand below each other.
VCL_API void DrawCellText(TCanvas& canvas, TRect rect, const std::string& text,
                          TAlignment alignment, int margin);
/// A triangle at the right of a title, up or down, in the font's colour.
VCL_API void DrawSortMark(TCanvas& canvas, const TRect& rect, bool descending, int size);

}  // namespace vcl
