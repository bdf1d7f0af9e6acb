// Names for files that come from strangers.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

/// Gives the attachments of one mail names under which they can be saved: without folders, without
/// what no file's name may have, none that the system takes for a device, at most 200 bytes, none
/// twice, capitals and small letters being the same.
class QEL_API TAttachmentNames {
 public:
  /// A name near the given one, UTF-8; for an empty one "attachment" with the extension that the
  /// type, in small letters, has.
  std::string Give(std::string_view name, std::string_view type);

 private:
  struct TBefore {
    bool operator()(const std::string& a, const std::string& b) const;
  };
  /// The names, and the number that the next file of the same name is tried with.
  std::map<std::string, int, TBefore> FGiven;
};

}  // namespace qel
