// The character sets that mails are written in.
#pragma once

#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

/// The text in UTF-8, whatever it is given: what its set, a name of the IANA's in any case, does
/// not know becomes U+FFFD. Where the set is unknown, or the text not one of "us-ascii", UTF-8
/// stays, and else the bytes are taken for windows-1252, which most of such mails are written in.
QEL_API std::string CharsetToUtf8(std::string_view bytes, std::string_view charset);

/// True for UTF-8 as RFC 3629 has it.
QEL_API bool IsUtf8(std::string_view bytes);
/// The same text, in which each byte that belongs to no character has become U+FFFD.
std::string RepairedUtf8(std::string_view bytes);

}  // namespace qel
