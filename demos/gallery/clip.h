// A clip for TAnimate, from pictures that stand side by side.
#pragma once

#include <string>

#include "vcl/graphics/bitmap.h"

namespace gallery {

/// The bytes of an AVI file without compression or sound, as the system's animation control plays
/// it: of the strip's frames, one each 80 ms. A frame's width is a multiple of 4 pixels.
std::string ClipOf(const vcl::TBitmap& strip, int frames);

}  // namespace gallery
