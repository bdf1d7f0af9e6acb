// Texts that protocols are written in: ASCII.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace qel {

inline bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// The text with A to Z in small letters.
inline std::string SmallLetters(std::string_view text) {
  std::string small(text);
  for (char& c : small) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return small;
}

}  // namespace qel
