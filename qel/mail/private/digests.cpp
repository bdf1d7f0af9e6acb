// HMAC-MD5 and digits, from what the system knows of MD5.
#include "qel/mail/private/digests.h"

#include "qel/mail/private/digestsystem.h"

namespace qel {
namespace {

constexpr std::size_t BlockSize = 64;

std::string Mixed(std::string_view key, char pad) {
  std::string block(BlockSize, pad);
  for (std::size_t i = 0; i < key.size(); ++i) block[i] = static_cast<char>(block[i] ^ key[i]);
  return block;
}

}  // namespace

std::string HexText(std::string_view bytes) {
  constexpr const char* digits = "0123456789abcdef";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

std::string Md5Text(std::string_view bytes) { return HexText(Md5(bytes)); }

std::string HmacMd5Text(std::string_view key, std::string_view bytes) {
  std::string hashed;
  if (key.size() > BlockSize) key = hashed = Md5(key);
  return Md5Text(Mixed(key, 0x5C) + Md5(Mixed(key, 0x36).append(bytes)));
}

}  // namespace qel
