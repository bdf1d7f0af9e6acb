// Quoted-printable (RFC 2045, 6.7): texts whose bytes are letters but for a few.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

/// Decodes a body. What is written wrongly stays as it is; blanks at a line's end, which only the
/// way adds, go.
QEL_API std::string DecodeQuotedPrintable(std::string_view text);

/// Encodes a line of a text, which has no end, as lines of at most 76 characters for the sink. The
/// word "From " at its beginning and a lone dot are encoded, which programs on the way would
/// change.
QEL_API void EncodeQuotedPrintableLine(std::string_view line,
                                       const std::function<void(std::string_view)>& sink);

/// The value of a hexadecimal digit, small or capital; -1 for another character.
int HexValue(char digit);
/// Appends a byte as two capital hexadecimal digits behind a mark.
void AppendHex(char mark, char byte, std::string& text);

}  // namespace qel
