// The registrations as this folder's units share them.
#pragma once

#include <vector>

#include "host/designintf/registration.h"

namespace vcl::detail {

std::vector<TPaletteEntry>& Palette();

}  // namespace vcl::detail
