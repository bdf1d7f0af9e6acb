#include "host/rtl/text.h"

#include <algorithm>

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
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

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

}  // namespace vcl
