// MD5 (RFC 1321) and HMAC-MD5 (RFC 2104), which old ways of logging in are made of.
#pragma once

#include <string>
#include <string_view>

namespace qel {

/// The digest in small hexadecimal digits.
std::string Md5Text(std::string_view bytes);
/// The same with a key.
std::string HmacMd5Text(std::string_view key, std::string_view bytes);
/// So many bytes that nobody can guess, from the system. Raises EQELMailError when it has none.
std::string RandomBytes(std::size_t count);
/// Bytes as small hexadecimal digits.
std::string HexText(std::string_view bytes);

}  // namespace qel
