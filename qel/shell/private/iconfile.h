// The icons in programs, libraries and icon files.
#pragma once

#include <functional>
#include <string>

#include "vcl/graphics/handles.h"

namespace qel {

/// Calls `each` with the file's icons in their order, each in the size, in pixels, that it is
/// wanted in, with so many at most. Programs are read here and not by the system, which trusts that
/// they are whole: what is damaged, is no such file or cannot be read has no icons.
void ReadIcons(const std::string& fileName, int size, int most,
               const std::function<void(vcl::TOwnedIcon icon)>& each);

}  // namespace qel
