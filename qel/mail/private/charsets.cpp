// Choosing how bytes become UTF-8.
#include "qel/mail/private/charsets.h"

#include <algorithm>

#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/charsetsystem.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::string_view Unknown = "\xEF\xBF\xBD";

/// How many bytes the character that the text begins with has (RFC 3629, 4); 0 for none.
std::size_t CharacterSize(std::string_view text) {
  const auto byte = [&](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u;
  };
  const unsigned first = byte(0);
  if (first < 0x80) return 1;
  // What the first byte allows the second one to be.
  unsigned low = 0x80, high = 0xBF;
  if (first == 0xE0) low = 0xA0;
  if (first == 0xED) high = 0x9F;
  if (first == 0xF0) low = 0x90;
  if (first == 0xF4) high = 0x8F;
  const std::size_t size = first < 0xC2   ? 0
                           : first < 0xE0 ? 2
                           : first < 0xF0 ? 3
                           : first < 0xF5 ? 4
                                          : 0;
  if (size == 0 || byte(1) < low || byte(1) > high) return 0;
  for (std::size_t i = 2; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  return size;
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t size = CharacterSize(bytes);
    if (size == 0) return false;
    bytes.remove_prefix(size);
  }
  return true;
}

std::string RepairedUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t size = CharacterSize(bytes);
    text.append(size == 0 ? Unknown : bytes.substr(0, size));
    bytes.remove_prefix(std::max<std::size_t>(size, 1));
  }
  return text;
}

std::string CharsetToUtf8(std::string_view bytes, std::string_view charset) {
  const std::string name = SmallLetters(vcl::Trim(charset));
  if (name == "utf-8" || name == "utf8")
    return IsUtf8(bytes) ? std::string(bytes) : RepairedUtf8(bytes);
  if (IsAscii(bytes) && (name.empty() || name == "us-ascii" || name == "ascii")) {
    return std::string(bytes);
  }
  std::string text;
  // What calls itself Latin 1 has the typographer's marks of windows-1252 more often than the
  // control characters that stand there in Latin 1.
  const bool latin = name == "iso-8859-1" || name == "latin1";
  const bool plain = name.empty() || name == "us-ascii" || name == "ascii";
  if (!plain && SystemCharsetToUtf8(bytes, latin ? "windows-1252" : name, text)) return text;
  if (IsUtf8(bytes)) return std::string(bytes);
  return SystemCharsetToUtf8(bytes, "windows-1252", text) ? text : RepairedUtf8(bytes);
}

}  // namespace qel
