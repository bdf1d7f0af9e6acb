// Fields with parameters, "type/subtype; name=value" (RFC 2045, 5.1; RFC 2231).
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

struct QEL_API TMimeField {
  std::string Value;                              ///< In small letters, without blanks.
  std::map<std::string, std::string> Parameters;  ///< By their names in small letters, in UTF-8.

  /// The parameter's value; empty without one.
  std::string Parameter(const std::string& name) const;
};

/// Reads an unfolded field's text. Values in sections and other sets are put together (RFC 2231);
/// words of RFC 2047, which do not belong there but which many programs write, are decoded; a value
/// without quotes goes up to the next semicolon; a quote that is missing ends with the text.
QEL_API TMimeField ReadMimeField(std::string_view text);

/// "; name=value", quoted or encoded as it needs (RFC 2231).
QEL_API std::string MimeParameter(std::string_view name, std::string_view value);

}  // namespace qel
