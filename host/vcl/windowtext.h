// The texts of windows, which the system keeps in UTF-16, as UTF-8, and the conversion between the
// two.
#pragma once

#include <string>
#include <string_view>

#include "host/rtl/api.h"
#include "host/vcl/win32.h"

namespace vcl {

/// What cannot be converted becomes U+FFFD.
VCL_API std::wstring ToUtf16(std::string_view text);
VCL_API std::string ToUtf8(std::wstring_view text);
/// The window's text, whole.
VCL_API std::string WindowText(HWND window);
VCL_API void SetWindowTextUtf8(HWND window, std::string_view text);

}  // namespace vcl
