// Decoding base64 line by line, and letter by letter where a line is not clean.
#include "qel/mail/private/lenientbase64.h"

#include <array>
#include <cstdint>

#include "qel/mail/private/base64.h"

namespace qel {
namespace {

constexpr std::uint8_t Pad = 64, Blank = 65, Junk = 66;

constexpr auto Values = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(Junk);
  const std::string_view letters =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
  for (std::size_t i = 0; i < letters.size(); ++i) {
    values[static_cast<unsigned char>(letters[i])] = static_cast<std::uint8_t>(i);
  }
  for (const char c : {' ', '\t', '\r', '\n'}) values[static_cast<unsigned char>(c)] = Blank;
  return values;
}();

class TDecoder {
 public:
  explicit TDecoder(std::string_view text) : FText(text) {
    // Room for all; what is not used goes at the end.
    FResult.Bytes.resize(text.size() / 4 * 3 + 3);
    FOut = reinterpret_cast<unsigned char*>(FResult.Bytes.data());
  }

  TLenientBase64 Decode() {
    while (!FText.empty()) {
      if (FCount == 0) TakeCleanGroups();
      if (!FText.empty()) TakeLetter();
    }
    EndGroup();
    const auto* const begin = reinterpret_cast<const unsigned char*>(FResult.Bytes.data());
    FResult.Bytes.resize(static_cast<std::size_t>(FOut - begin));
    return std::move(FResult);
  }

 private:
  /// What nearly all of a mail consists of: whole groups up to the line's end.
  void TakeCleanGroups() {
    const std::size_t groups = DecodeBase64Groups(FText.data(), FText.size(), FOut);
    FText.remove_prefix(4 * groups);
    FOut += 3 * groups;
  }
  void TakeLetter() {
    const std::uint8_t value = Values[static_cast<unsigned char>(FText.front())];
    FText.remove_prefix(1);
    if (value == Blank) return;
    if (value == Junk) {
      FResult.Damaged = true;
    } else if (value == Pad) {
      EndGroup();
    } else {
      FBits = FBits << 6 | value;
      if (++FCount == 4) EndGroup();
    }
  }
  /// Writes the bytes that the letters of the group make up: two letters one, three two.
  void EndGroup() {
    FResult.Damaged |= FCount == 1;
    const std::uint32_t bits = FBits << (24 - 6 * FCount);
    for (int i = 0; i + 1 < FCount; ++i) *FOut++ = static_cast<unsigned char>(bits >> (16 - 8 * i));
    FBits = 0;
    FCount = 0;
  }

  std::string_view FText;
  TLenientBase64 FResult;
  unsigned char* FOut;
  std::uint32_t FBits = 0;
  int FCount = 0;
};

}  // namespace

TLenientBase64 DecodeLenientBase64(std::string_view text) { return TDecoder(text).Decode(); }

}  // namespace qel
