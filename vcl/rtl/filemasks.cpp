// TFileMasks: masks and names compared character by character.
#include "vcl/rtl/filemasks.h"

#include <algorithm>

#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl {
namespace {

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  for (const char16_t unit : ToUtf16Units(text)) {
    const bool second = unit >= 0xDC00 && unit <= 0xDFFF && !characters.empty();
    if (second) {
      characters.back() = 0x10000 + ((characters.back() - 0xD800) << 10) + (unit - 0xDC00);
    } else {
      characters += unit;
    }
  }
  return characters;
}

bool SameCharacter(char32_t a, char32_t b) {
  if (a == b) return true;
  // Letters of ASCII have none but each other as the other case, where all names are made of them.
  if (a < 0x80 && b < 0x80)
    return (a | 0x20) == (b | 0x20) && (a | 0x20) >= 'a' && (a | 0x20) <= 'z';
  return AnsiSameText(Utf8(a), Utf8(b));
}

/// In time of the one length by the other at most: a "*" that has found its place once need not
/// look for another when a later one fails.
bool Matches(std::u32string_view mask, std::u32string_view name) {
  std::size_t at = 0, inMask = 0;
  std::size_t star = mask.size(), afterStar = 0;
  while (at < name.size()) {
    if (inMask < mask.size() && mask[inMask] == '*') {
      star = inMask++;
      afterStar = at;
    } else if (inMask < mask.size() &&
               (mask[inMask] == '?' || SameCharacter(mask[inMask], name[at]))) {
      ++inMask;
      ++at;
    } else if (star < mask.size()) {
      inMask = star + 1;
      at = ++afterStar;
    } else {
      return false;
    }
  }
  return mask.find_first_not_of(U'*', inMask) == std::u32string_view::npos;
}

}  // namespace

TFileMasks::TFileMasks(std::string_view masks) {
  while (!masks.empty()) {
    const std::size_t end = std::min(masks.find(';'), masks.size());
    const std::string_view mask = Trim(masks.substr(0, end));
    masks.remove_prefix(std::min(end + 1, masks.size()));
    if (mask == "*" || mask == "*.*") {
      FMasks.clear();
      return;
    }
    if (!mask.empty()) FMasks.push_back(Characters(mask));
  }
}

bool TFileMasks::Matches(std::string_view name) const {
  if (FMasks.empty()) return true;
  const std::u32string characters = Characters(name);
  return std::ranges::any_of(
      FMasks, [&](const std::u32string& mask) { return vcl::Matches(mask, characters); });
}

}  // namespace vcl
