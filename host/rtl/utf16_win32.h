// Texts for the system's wide entry points and back.
#pragma once

#include <string>
#include <string_view>

namespace vcl::os {

/// What cannot be converted becomes U+FFFD.
std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view wide);

}  // namespace vcl::os
