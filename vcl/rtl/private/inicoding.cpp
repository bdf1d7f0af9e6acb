// The encodings of settings files: told by their mark, decoded to UTF-8 and encoded again.
#include "vcl/rtl/private/inicoding.h"

#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl {
namespace {

/// The marks in the order of TIniCoding.
constexpr std::string_view Marks[] = {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};

std::string_view MarkOf(TIniCoding coding) { return Marks[static_cast<int>(coding)]; }

/// The units of bytes in either order; an odd byte at the end is none.
std::u16string UnitsOf(std::string_view bytes, bool bigEndian) {
  std::u16string units(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < units.size(); ++i) {
    const auto first = static_cast<unsigned char>(bytes[2 * i]);
    const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
    units[i] = static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first);
  }
  return units;
}

std::string BytesOf(std::u16string_view units, bool bigEndian) {
  std::string bytes;
  bytes.reserve(units.size() * 2);
  for (const char16_t unit : units) {
    const char high = static_cast<char>(unit >> 8);
    const char low = static_cast<char>(unit & 0xFF);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

}  // namespace

TIniCoding IniCodingOf(std::string_view bytes) {
  for (const TIniCoding coding : {TIniCoding::Utf8, TIniCoding::Utf16Le, TIniCoding::Utf16Be}) {
    if (bytes.starts_with(MarkOf(coding))) return coding;
  }
  return TIniCoding::Plain;
}

std::string DecodeIni(std::string bytes) {
  const TIniCoding coding = IniCodingOf(bytes);
  bytes.erase(0, MarkOf(coding).size());
  if (coding < TIniCoding::Utf16Le) return bytes;
  return ToUtf8(UnitsOf(bytes, coding == TIniCoding::Utf16Be));
}

std::string EncodeIni(std::string_view text, TIniCoding coding) {
  if (coding < TIniCoding::Utf16Le) return Concat(MarkOf(coding), text);
  return Concat(MarkOf(coding), BytesOf(ToUtf16Units(text), coding == TIniCoding::Utf16Be));
}

}  // namespace vcl
