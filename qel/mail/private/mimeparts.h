// The parts of a body between its boundaries (RFC 2046, 5.1.1).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"

namespace qel {

struct TMimeParts {
  std::vector<std::string_view> Found;  ///< In the body, headers included.
  bool Closed = false;                  ///< The last one's end is there.
};

/// Tells the parts apart. The end of line before a boundary belongs to it. A body that ends before
/// its last part does has what there is of it.
QEL_API TMimeParts FindParts(std::string_view body, const std::string& boundary);

}  // namespace qel
