// Decoding uuencoded lines, and recognising where they begin and end.
#include "qel/mail/private/uucode.h"

#include <algorithm>
#include <cstdint>

#include "qel/mail/mailerror.h"
#include "qel/mail/private/headerfields.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::uint32_t FirstLetter = ' ', LastLetter = '`';

/// The letters are the characters from the blank to the grave accent, both of which stand for 0.
std::uint32_t UUValue(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  if (code < FirstLetter || code > LastLetter) throw EQELMailError("Message Format Error");
  return (code - FirstLetter) & 63;
}

}  // namespace

std::size_t DecodeUULine(std::string_view line, std::array<unsigned char, UULineBytes>& bytes) {
  if (line.empty()) return 0;
  const std::size_t count = UUValue(line.front());
  std::string_view letters = line.substr(1);
  // A checksum may follow the letters of a full line.
  constexpr std::size_t full = 60;
  if (count * 4 / 3 == full) letters = letters.substr(0, full);
  bytes.fill(0);
  std::uint32_t group = 0;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const std::uint32_t value = UUValue(letters[i]);
    if (i >= full) continue;  // Looked at, but there is no room for it.
    const std::size_t place = i % 4;
    group = place == 0 ? value << 18 : group | value << (18 - 6 * place);
    unsigned char* const out = bytes.data() + i / 4 * 3;
    out[0] = static_cast<unsigned char>(group >> 16);
    out[1] = static_cast<unsigned char>(group >> 8);
    out[2] = static_cast<unsigned char>(group);
  }
  return std::min(count, UULineBytes);
}

bool IsUUBegin(std::string_view line, std::string& name) {
  int mode = 0;
  if (line.size() <= 10 || !StartsWithKey(line, "BEGIN") ||
      !vcl::TryStrToInt(Characters(line, 7, 3), mode) || mode >= 777) {
    return false;
  }
  name = Characters(line, 11, 64);
  return true;
}

bool IsUUEnd(std::string_view line) { return vcl::SameText(vcl::Trim(line), "end"); }

}  // namespace qel
