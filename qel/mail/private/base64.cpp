// Base64 by tables: groups of bytes to letters, and clean groups of letters to bytes.
#include "qel/mail/private/base64.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qel {
namespace {

constexpr std::string_view Letters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

using TPair = std::array<char, 2>;

/// The two letters of each 12 bits: half the look-ups of one letter at a time.
constexpr auto Pairs = [] {
  std::array<TPair, 4096> pairs{};
  for (std::size_t i = 0; i < pairs.size(); ++i) pairs[i] = {Letters[i >> 6], Letters[i & 63]};
  return pairs;
}();

/// A mark, above the 24 bits of a group, that a character is no letter.
constexpr std::uint32_t NoLetter = 1u << 24;

/// The bits of each character at each place of a group, already where they belong.
constexpr auto Bits = [] {
  std::array<std::array<std::uint32_t, 256>, 4> bits{};
  for (auto& place : bits) place.fill(NoLetter);
  for (std::uint32_t i = 0; i < Letters.size(); ++i) {
    for (std::size_t place = 0; place < 4; ++place) {
      bits[place][static_cast<unsigned char>(Letters[i])] = i << (18 - 6 * place);
    }
  }
  return bits;
}();

void EncodeGroup(const unsigned char* bytes, char* text) {
  const std::uint32_t group = std::uint32_t{bytes[0]} << 16 | bytes[1] << 8 | bytes[2];
  std::memcpy(text, Pairs[group >> 12].data(), 2);
  std::memcpy(text + 2, Pairs[group & 4095].data(), 2);
}

std::uint32_t BigEndian(const unsigned char* four) {
  return std::uint32_t{four[0]} << 24 | four[1] << 16 | four[2] << 8 | four[3];
}

/// The first six of eight bytes: their 48 bits are four pairs of letters.
void EncodeTwoGroups(const unsigned char* bytes, char* text) {
  const std::uint64_t eight = std::uint64_t{BigEndian(bytes)} << 32 | BigEndian(bytes + 4);
  const auto pair = [eight](int shift) { return Pairs[eight >> shift & 4095].data(); };
  std::memcpy(text, pair(52), 2);
  std::memcpy(text + 2, pair(40), 2);
  std::memcpy(text + 4, pair(28), 2);
  std::memcpy(text + 6, pair(16), 2);
}

}  // namespace

void EncodeBase64(const unsigned char* bytes, std::size_t count, char* text) {
  const std::size_t groups = count / 3;
  std::size_t i = 0;
  for (; 3 * i + 8 <= count; i += 2) EncodeTwoGroups(bytes + 3 * i, text + 4 * i);
  for (; i < groups; ++i) EncodeGroup(bytes + 3 * i, text + 4 * i);
  const std::size_t left = count % 3;
  if (left == 0) return;
  unsigned char last[3] = {};
  std::memcpy(last, bytes + 3 * groups, left);
  char* const end = text + 4 * groups;
  EncodeGroup(last, end);
  std::memset(end + left + 1, '=', 3 - left);
}

std::size_t DecodeBase64Groups(const char* text, std::size_t count, unsigned char* bytes) {
  const auto* next = reinterpret_cast<const unsigned char*>(text);
  const std::size_t groups = count / 4;
  for (std::size_t i = 0; i < groups; ++i, next += 4, bytes += 3) {
    const std::uint32_t group =
        Bits[0][next[0]] | Bits[1][next[1]] | Bits[2][next[2]] | Bits[3][next[3]];
    if (group & NoLetter) return i;
    bytes[0] = static_cast<unsigned char>(group >> 16);
    bytes[1] = static_cast<unsigned char>(group >> 8);
    bytes[2] = static_cast<unsigned char>(group);
  }
  return groups;
}

}  // namespace qel
