// The encodings that settings files come in.
#pragma once

#include <string>
#include <string_view>

namespace vcl {

enum class TIniCoding { Plain, Utf8, Utf16Le, Utf16Be };

/// Tells the encoding by the mark that a file begins with; without one it is Plain, which is read
/// as UTF-8 and whose other bytes stay as they are.
TIniCoding IniCodingOf(std::string_view bytes);
/// The file's text in UTF-8, without the mark.
std::string DecodeIni(std::string bytes);
/// The text as a file of that encoding, with the mark.
std::string EncodeIni(std::string_view text, TIniCoding coding);

}  // namespace vcl
