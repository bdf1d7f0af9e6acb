// UTF-16, which the system's wide entry points and some files hold, to UTF-8 and back.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/api.h"

namespace vcl {

/// What stands for a byte that is no part of a character in UTF-8: U+FFFD, or the character of
/// ISO 8859-1 that has its number, so that no byte is lost.
enum class TStrayByte { Replaced, Latin1 };

/// The text for an entry point of the system. Stray bytes become U+FFFD, one for each sequence that
/// breaks off.
VCL_API std::wstring ToUtf16(std::string_view text);
/// The same as plain units.
VCL_API std::u16string ToUtf16Units(std::string_view text, TStrayByte stray = TStrayByte::Replaced);
/// Halves of surrogate pairs become U+FFFD.
VCL_API std::string ToUtf8(std::wstring_view wide);
VCL_API std::string ToUtf8(std::u16string_view wide);
/// Sets `text` to the UTF-8 of the units; for many texts one after the other.
VCL_API void AssignUtf8(std::string& text, std::u16string_view wide);

}  // namespace vcl
