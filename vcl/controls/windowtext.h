// The texts of windows, which the system keeps in UTF-16, as UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// The window's text, whole.
VCL_API std::string WindowText(HWND window);
VCL_API void SetWindowTextUtf8(HWND window, std::string_view text);

}  // namespace vcl
