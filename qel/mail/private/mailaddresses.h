// Lists of addresses (RFC 5322, 3.4).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"

namespace qel {

struct TMailAddress {
  std::string Name;     ///< In UTF-8; empty for none.
  std::string Address;  ///< As servers know it, such as ann@example.test.
};

/// Reads a field's text: names in quotes, comments, encoded words, groups, of which the members
/// count. Never raises: what is no address is left out.
QEL_API std::vector<TMailAddress> ReadAddresses(std::string_view text);

/// The addresses as a header wants them: names quoted or encoded as they need.
QEL_API std::string WriteAddresses(const std::vector<TMailAddress>& addresses);

/// The addresses as people read them: names as they are, in quotes where a comma or the like
/// stands in one.
QEL_API std::string ShowAddresses(const std::vector<TMailAddress>& addresses);

}  // namespace qel
