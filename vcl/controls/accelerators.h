// Accelerators: the letters that "&" marks in captions.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// True when the caption marks the character (a UTF-16 unit, as WM_SYSCHAR brings it) with "&", in
/// whatever case. "&&" is a plain ampersand and marks nothing.
VCL_API bool IsAccel(WPARAM character, std::string_view caption);
/// The caption as it is read: without marks, and "&&" as an ampersand.
VCL_API std::string WithoutAccel(std::string_view caption);
/// The keys of the first character that is marked: "Alt+H"; empty when none is.
VCL_API std::string AccelKeys(std::string_view caption);

}  // namespace vcl
