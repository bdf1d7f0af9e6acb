// TQELTextMatcher: lines folded once and searched often.
#include "qel/core/Qellookup.h"

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

std::wstring Folded(std::string_view text, bool caseSensitive) {
  std::wstring wide = vcl::ToUtf16(text);
  if (!caseSensitive && !wide.empty()) {
    ::CharLowerBuffW(wide.data(), static_cast<DWORD>(wide.size()));
  }
  return wide;
}

}  // namespace

void TQELTextMatcher::Keep(const vcl::TStrings& lines, bool caseSensitive) {
  if (FKnown && FCaseSensitive == caseSensitive) return;
  FLines.clear();
  FLines.reserve(static_cast<std::size_t>(lines.Count()));
  for (int i = 0; i < lines.Count(); ++i) {
    FLines.push_back(Folded(lines.Strings(i), caseSensitive));
  }
  FKnown = true;
  FCaseSensitive = caseSensitive;
}

std::vector<int> TQELTextMatcher::Find(const vcl::TStrings& lines, std::string_view text,
                                       bool contains, bool caseSensitive) {
  Keep(lines, caseSensitive);
  const std::wstring wanted = Folded(text, caseSensitive);
  std::vector<int> found;
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    const bool matches =
        contains ? FLines[i].find(wanted) != std::wstring::npos : FLines[i].starts_with(wanted);
    if (matches) found.push_back(static_cast<int>(i));
  }
  return found;
}

}  // namespace qel
