// Base64 as mails bring it: the letters picked out, pad marks and odd ends.
#include "qel/mail/private/base64decoder.h"

#include "qel/mail/private/base64.h"

namespace qel {
namespace {

/// The pad mark, which counts as 0.
constexpr std::uint8_t Pad = 64;
/// Neither a letter nor the pad mark.
constexpr std::uint8_t Unknown = 255;

constexpr auto Values = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(Unknown);
  const std::string_view letters =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
  for (std::size_t i = 0; i < letters.size(); ++i) {
    values[static_cast<unsigned char>(letters[i])] = static_cast<std::uint8_t>(i);
  }
  return values;
}();

}  // namespace

void TBase64Decoder::Decode(std::string_view groups, std::string& bytes) {
  groups = groups.substr(0, groups.size() / 4 * 4);
  const std::size_t before = bytes.size();
  bytes.resize(before + groups.size() / 4 * 3);
  auto* const begin = reinterpret_cast<unsigned char*>(bytes.data());
  unsigned char* out = begin + before;
  while (!groups.empty()) {
    const std::size_t done = DecodeBase64Groups(groups.data(), groups.size(), out);
    out += 3 * done;
    if (done > 0) Remember(out - 3);
    groups.remove_prefix(4 * done);
    if (groups.empty()) break;
    out += DecodeGroup(groups.data(), out);
    groups.remove_prefix(4);
  }
  bytes.resize(static_cast<std::size_t>(out - begin));
}

void TBase64Decoder::Remember(const unsigned char* last) {
  const std::uint32_t group = std::uint32_t{last[0]} << 16 | last[1] << 8 | last[2];
  for (std::size_t i = 0; i < 4; ++i) {
    FPlaces[i] = static_cast<std::uint8_t>(group >> (18 - 6 * i) & 63);
  }
}

std::size_t TBase64Decoder::DecodeGroup(const char* group, unsigned char* bytes) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const std::uint8_t value = Values[static_cast<unsigned char>(group[i])];
    if (value != Unknown) FPlaces[i] = value;
    bits |= std::uint32_t{FPlaces[i]} % Pad << (18 - 6 * i);
  }
  for (std::size_t i = 0; i < 3; ++i) bytes[i] = static_cast<unsigned char>(bits >> (16 - 8 * i));
  // The later check wins: a group of four pad marks has one byte.
  std::size_t count = FPlaces[0] == Pad ? 0 : 3;
  if (FPlaces[2] == Pad) {
    count = 1;
    FPlaces[3] = 0;
  }
  return FPlaces[3] == Pad ? 2 : count;
}

}  // namespace qel
