// The header of a mail or a part (RFC 5322, 2.2): its fields, unfolded.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

/// Reads the fields up to the empty line, or to the first line that cannot be one; of a field that
/// comes twice the first one counts. The text must outlive it.
class QEL_API TMimeHeader {
 public:
  explicit TMimeHeader(std::string_view text);

  /// The field's text, trimmed, its lines joined; empty without one. The name is in small letters.
  std::string Field(std::string_view name) const;
  /// What follows the header.
  std::string_view Body() const { return FBody; }

 private:
  /// With the ends of its lines.
  std::map<std::string, std::string_view, std::less<>> FFields;
  std::string_view FBody;
};

}  // namespace qel
