// The pictures of component classes, as the palette and the form show them.
#pragma once

#include <string>

#include "vcl/graphics/bitmap.h"
#include "vcl/rtl/object.h"

namespace ide {

inline constexpr int IconSize = 24;  ///< Width and height in pixels at 96 dots per inch.

/// The picture of a class: the bitmap that is named after it among the resources of the module that
/// declares it, else among the program's; else a picture that stands for any component. It is kept;
/// a bitmap of 32 bits a pixel, its colours multiplied by the fourth byte, how much is covered.
const vcl::TBitmap& ComponentIcon(const vcl::TClass& aClass);
/// The picture of that name among the program's resources. Raises EResNotFound.
const vcl::TBitmap& ProgramIcon(const std::string& name);
/// Draws such a picture over what is there, as large as the place; `dimmed` draws it faintly.
void DrawIcon(vcl::TCanvas& canvas, const vcl::TRect& place, const vcl::TBitmap& icon,
              bool dimmed = false);

}  // namespace ide
