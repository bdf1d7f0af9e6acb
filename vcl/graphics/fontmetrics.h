// The measures of a font and text drawn in it, for controls.
#pragma once

#include <string>

#include "vcl/graphics/canvas.h"

namespace vcl {

/// The height of a line in the font on the screen, in pixels.
VCL_API int FontHeight(const TFont& font);
/// The width of the text in one line in the font on the screen, in pixels.
VCL_API int TextWidth(const TFont& font, const std::string& text);
/// Draws text with the canvas's font as the system's DrawText does, with its flags.
VCL_API void DrawTextOn(TCanvas* canvas, const std::string& text, TRect& rect, UINT flags);

}  // namespace vcl
