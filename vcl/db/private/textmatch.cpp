// Texts that begin with another one, or follow a pattern, character by character.
#include "vcl/db/private/textmatch.h"

#include <algorithm>

#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// How many bytes the first character of a text in UTF-8 has; stray bytes count as one each.
std::size_t FirstLength(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && length < 4 && (text[length] & 0xC0) == 0x80) ++length;
  return (text[0] & 0xC0) == 0xC0 ? length : 1;
}

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); text.remove_prefix(FirstLength(text))) ++count;
  return count;
}

bool IsAscii(std::string_view text) {
  return std::ranges::none_of(text, [](char c) { return (c & 0x80) != 0; });
}

/// The first characters of a text.
std::string_view FirstOf(std::string_view text, std::size_t characters) {
  std::size_t length = 0;
  for (; characters > 0 && length < text.size(); --characters) {
    length += FirstLength(text.substr(length));
  }
  return text.substr(0, length);
}

bool SameCharacter(std::string_view a, std::string_view b, bool ignoreCase) {
  if (a == b) return true;
  if (!ignoreCase) return false;
  return a.size() == 1 && b.size() == 1 ? SameText(a, b) : AnsiSameText(a, b);
}

}  // namespace

bool BeginsWith(std::string_view text, std::string_view beginning, bool ignoreCase) {
  if (text.starts_with(beginning)) return true;
  if (!ignoreCase) return false;
  // Of letters without accents every language knows the same capitals; asking the system about
  // each record of many takes a hundred times as long.
  const std::string_view same = text.substr(0, beginning.size());
  if (IsAscii(same) && IsAscii(beginning)) return SameText(same, beginning);
  return AnsiSameText(FirstOf(text, CharacterCount(beginning)), beginning);
}

bool MatchesPattern(std::string_view text, std::string_view pattern, bool ignoreCase) {
  // Where the last "%" was met: what follows it is tried one character further each time.
  std::string_view retryText, retryPattern;
  bool retry = false;
  while (!text.empty() || !pattern.empty()) {
    if (pattern.starts_with('%')) {
      pattern.remove_prefix(1);
      retryText = text, retryPattern = pattern, retry = true;
      continue;
    }
    if (!text.empty() && !pattern.empty()) {
      const std::string_view one = FirstOf(text, 1), wanted = FirstOf(pattern, 1);
      if (wanted == "_" || SameCharacter(one, wanted, ignoreCase)) {
        text.remove_prefix(one.size());
        pattern.remove_prefix(wanted.size());
        continue;
      }
    }
    if (!retry || retryText.empty()) return false;
    retryText.remove_prefix(FirstLength(retryText));
    text = retryText, pattern = retryPattern;
  }
  return true;
}

}  // namespace vcl
