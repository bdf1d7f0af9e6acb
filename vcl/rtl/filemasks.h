// TFileMasks: which names of files are meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/api.h"

namespace vcl {

/// Masks of names, parted by ";", such as "*.txt;read?e*": "*" stands for any characters, none too,
/// and "?" for exactly one. Case does not count in any alphabet. "*.*" means every name, as ever;
/// no mask at all does, too. Blanks around a mask do not belong to it.
class VCL_API TFileMasks {
 public:
  explicit TFileMasks(std::string_view masks = {});
  /// Whether one of the masks means the name, which has no folder before it.
  bool Matches(std::string_view name) const;
  /// True where every name is meant.
  bool MatchAll() const { return FMasks.empty(); }

 private:
  std::vector<std::u32string> FMasks;
};

}  // namespace vcl
