// What the system knows of character sets, with one implementation per system.
#pragma once

#include <string>
#include <string_view>

namespace qel {

/// Converts the bytes of a set, whose name is in small letters; what it does not know becomes
/// U+FFFD. False for a set that is not known.
bool SystemCharsetToUtf8(std::string_view bytes, const std::string& charset, std::string& text);

}  // namespace qel
