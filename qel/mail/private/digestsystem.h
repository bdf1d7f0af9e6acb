// What the mail components ask of the system's cryptography, with one implementation per system.
#pragma once

#include <string>
#include <string_view>

namespace qel {

/// The 16 bytes of the digest (RFC 1321). Raises EQELMailError when the system refuses.
std::string Md5(std::string_view bytes);

}  // namespace qel
