// Accelerators: the letters that "&" marks in captions.
#pragma once

#include <string_view>

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// True when the caption marks the character (a UTF-16 unit, as WM_SYSCHAR brings it) with "&", in
/// whatever case. "&&" is a plain ampersand and marks nothing.
VCL_API bool IsAccel(WPARAM character, std::string_view caption);

}  // namespace vcl
