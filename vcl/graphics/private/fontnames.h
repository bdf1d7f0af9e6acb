// The names of the fonts that the system has.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/api.h"

namespace vcl {

/// The names, each once, in alphabetical order, without those for vertical text.
VCL_API std::vector<std::string> FontNames();

}  // namespace vcl
