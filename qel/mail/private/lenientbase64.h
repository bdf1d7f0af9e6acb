// Base64 as RFC 2045, 6.8 wants it read: what is no letter counts as nothing.
#pragma once

#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

struct TLenientBase64 {
  std::string Bytes;
  bool Damaged = false;  ///< Letters are missing at its end, or others stand in it.
};

/// Decodes a body: ends of lines and whatever else is no letter is skipped; a pad mark ends it,
/// unless letters follow, as where two encoded texts were put together.
QEL_API TLenientBase64 DecodeLenientBase64(std::string_view text);

}  // namespace qel
