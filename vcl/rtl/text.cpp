// Small operations on texts: comparison without case, trimming, and single characters of UTF-8.
#include "vcl/rtl/text.h"

#include <algorithm>

#include "vcl/rtl/private/os.h"

namespace vcl {
namespace {

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
bool IsLetter(char c) { return (Upper(c) >= 'A' && Upper(c) <= 'Z') || c == '_'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

}  // namespace

bool SameText(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Upper, Upper);
}

int CompareText(std::string_view a, std::string_view b) {
  const auto order = std::lexicographical_compare_three_way(
      a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<unsigned char>(Upper(x)) <=> static_cast<unsigned char>(Upper(y));
      });
  // NOLINTNEXTLINE(modernize-use-nullptr): an ordering is compared with 0.
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

bool AnsiSameText(std::string_view a, std::string_view b) { return AnsiCompareText(a, b) == 0; }

int AnsiCompareText(std::string_view a, std::string_view b) { return os::CompareText(a, b); }

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::ranges::transform(upper, upper.begin(), Upper);
  return upper;
}

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool IsValidIdent(std::string_view text) {
  return !text.empty() && IsLetter(text.front()) &&
         std::ranges::all_of(text, [](char c) { return IsLetter(c) || IsDigit(c); });
}

std::string Utf8(char32_t character) {
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (surrogate || character > 0x10FFFF) return {};
  const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
  const auto next = [&](int shift) { return byte(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) return {byte(character)};
  if (character < 0x800) return {byte(0xC0 | (character >> 6)), next(0)};
  if (character < 0x10000) return {byte(0xE0 | (character >> 12)), next(6), next(0)};
  return {byte(0xF0 | (character >> 18)), next(12), next(6), next(0)};
}

std::optional<char32_t> OnlyCharacter(std::string_view text) {
  if (text.empty() || text.size() > 4) return std::nullopt;
  static constexpr char32_t leadBits[] = {0x7F, 0x1F, 0x0F, 0x07};
  char32_t character = static_cast<unsigned char>(text.front()) & leadBits[text.size() - 1];
  for (char c : text.substr(1))
    character = (character << 6) | (static_cast<unsigned char>(c) & 0x3F);
  // Only the right bytes give the same text again.
  if (Utf8(character) != text) return std::nullopt;
  return character;
}

std::string_view CutUtf8(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  // What follows the cut must not go on a character that begins before it.
  const auto goesOn = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
  while (bytes > 0 && goesOn(text[bytes])) --bytes;
  return text.substr(0, bytes);
}

std::string Shown(std::string_view value) {
  constexpr std::size_t enough = 100;  // Bytes: two lines of a box.
  if (value.size() <= enough) return std::string(value);
  return Concat(CutUtf8(value, enough), "...");
}

}  // namespace vcl
