// Pictures of forms as they stand on the screen, for programs that run unseen.
#pragma once

#include "vcl/forms/forms.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/rtl/api.h"

namespace vcl {

/// What of a form is on its picture: its client area, or all with caption and menu.
enum class TFormPart { Inside, Whole };

/// Takes a picture of a shown form, which nothing covers, once the screen has come to rest: that is
/// some time after the painting. The system's controls draw their edges nowhere but there.
VCL_API void TakePicture(TCustomForm& form, TFormPart part, TBitmap& picture);

}  // namespace vcl
