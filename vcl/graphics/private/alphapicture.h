// Pictures with an alpha channel: read from what is drawn, and put into image lists.
#pragma once

#include <functional>

#include "vcl/graphics/private/resample.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/colors.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

class TBitmap;

/// A picture of that size that the call draws on a bitmap of any kind, filled with the colour:
/// where it is see-through, black and white shine through it.
TAlphaPicture AlphaPicture(int width, int height,
                           const std::function<void(TBitmap& drawn, TColor background)>& draw);
/// The part of a picture that begins at (x, y).
TAlphaPicture PartOf(const TAlphaPicture& picture, int x, int y, int width, int height);
/// Appends a picture of the list's size. Raises EOutOfResources.
void AddPicture(HIMAGELIST list, const TAlphaPicture& picture);

}  // namespace vcl
