// Uuencoded text: lines of letters that stand for a file's bytes, between "begin" and "end".
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

/// The bytes of one line, at most.
inline constexpr std::size_t UULineBytes = 45;

/// Decodes a line: its first letter says how many bytes it has, six bits of each further letter
/// make them up, and what is missing counts as 0. Returns their number; an empty line has none.
/// Raises EQELMailError for a character that is no letter of this code.
QEL_API std::size_t DecodeUULine(std::string_view line,
                                 std::array<unsigned char, UULineBytes>& bytes);
/// True for a line "begin 644 name" with a mode below 777, read as a decimal number; sets the name.
QEL_API bool IsUUBegin(std::string_view line, std::string& name);
/// True for the line behind an embedded file: "end" in any case, with blanks around it.
QEL_API bool IsUUEnd(std::string_view line);

}  // namespace qel
