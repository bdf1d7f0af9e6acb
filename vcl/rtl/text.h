// Small operations on texts: comparison without case, trimming, splitting.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "vcl/rtl/api.h"

namespace vcl {

/// True when the texts are equal but for the case of the letters A to Z, which is how identifiers
/// and names in form files are compared.
VCL_API bool SameText(std::string_view a, std::string_view b);
/// Negative, zero or positive as SameText's ordering of the two goes.
VCL_API int CompareText(std::string_view a, std::string_view b);
/// The same by the user's language: letters of every alphabet match without case. This is how lists
/// of what users write are compared.
VCL_API bool AnsiSameText(std::string_view a, std::string_view b);
VCL_API int AnsiCompareText(std::string_view a, std::string_view b);
/// The text with A to Z in capitals.
VCL_API std::string UpperCase(std::string_view text);
/// The text without white space and control characters at both ends.
VCL_API std::string_view Trim(std::string_view text);
/// True for a letter or "_" followed by letters, digits and "_".
VCL_API bool IsValidIdent(std::string_view text);
/// The character in UTF-8; empty for a number that is no character.
VCL_API std::string Utf8(char32_t character);
/// The character that the text consists of; nothing when it is not exactly one in UTF-8.
VCL_API std::optional<char32_t> OnlyCharacter(std::string_view text);
/// The beginning of a text in UTF-8, as much as fits into so many bytes without cutting a
/// character.
VCL_API std::string_view CutUtf8(std::string_view text, std::size_t bytes);
/// A value as a message shows it: a long one is cut, with "..." at its end.
VCL_API std::string Shown(std::string_view value);
/// The pieces joined; what a message is put together with.
template <class... Pieces>
std::string Concat(const Pieces&... pieces) {
  std::string text;
  (text.append(pieces), ...);
  return text;
}

}  // namespace vcl
