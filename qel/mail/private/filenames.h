// Names of files.
#pragma once

#include <string_view>

namespace qel {

/// What follows the last folder or drive of a path.
inline std::string_view NamePart(std::string_view path) {
  return path.substr(path.find_last_of("/\\:") + 1);
}

}  // namespace qel
