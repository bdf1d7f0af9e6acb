// Words in headers that are not ASCII (RFC 2047), and folding.
#pragma once

#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

/// The text with its encoded words decoded, in UTF-8. Bytes beside them that are not ASCII are
/// UTF-8 or else windows-1252; words that are written wrongly stay as they are.
QEL_API std::string DecodeWords(std::string_view text);

/// The text, UTF-8, as words, of at most 75 characters each, with blanks between them, when it is
/// not ASCII or looks like encoded words; else as it is. In a phrase, the name of a person, fewer
/// characters stand for themselves (RFC 2047, 5). The first word leaves room for so many columns
/// before it in its line.
QEL_API std::string EncodeWords(std::string_view text, bool inPhrase = false,
                                std::size_t columns = 0);

/// A field's line, "Name: value", as lines of at most 78 characters, ended by CR LF but for the
/// last, as far as its blanks allow that; no line has more than 998 bytes (RFC 5322, 2.1.1), for
/// which a word without a blank is cut as the last resort.
QEL_API std::string FoldField(std::string_view field);

}  // namespace qel
