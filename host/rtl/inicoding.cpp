#include "host/rtl/inicoding.h"

#include "host/rtl/text.h"

namespace vcl {
namespace {

constexpr char32_t Replacement = 0xFFFD;

/// The marks in the order of TIniCoding.
constexpr std::string_view Marks[] = {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};

std::string_view MarkOf(TIniCoding coding) { return Marks[static_cast<int>(coding)]; }

char32_t UnitAt(std::string_view bytes, std::size_t at, bool bigEndian) {
  const auto first = static_cast<unsigned char>(bytes[at]);
  const auto second = static_cast<unsigned char>(bytes[at + 1]);
  return bigEndian ? first << 8 | second : second << 8 | first;
}

bool IsLead(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsTrail(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
  std::string text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t character = UnitAt(bytes, at, bigEndian);
    if (IsLead(character) && at + 3 < bytes.size()) {
      const char32_t trail = UnitAt(bytes, at + 2, bigEndian);
      if (IsTrail(trail)) {
        character = 0x10000 + ((character - 0xD800) << 10) + (trail - 0xDC00);
        at += 2;
      }
    }
    text += Utf8(IsLead(character) || IsTrail(character) ? Replacement : character);
  }
  return text;
}

void AddUnit(std::string& bytes, char32_t unit, bool bigEndian) {
  const char high = static_cast<char>(unit >> 8);
  const char low = static_cast<char>(unit & 0xFF);
  bytes += bigEndian ? high : low;
  bytes += bigEndian ? low : high;
}

/// The character that the text begins with, which is taken off it.
char32_t TakeCharacter(std::string_view& text) {
  for (std::size_t size = 1; size <= 4 && size <= text.size(); ++size) {
    if (const auto character = OnlyCharacter(text.substr(0, size))) {
      text.remove_prefix(size);
      return *character;
    }
  }
  text.remove_prefix(1);
  return Replacement;
}

std::string ToUtf16(std::string_view text, bool bigEndian) {
  std::string bytes;
  bytes.reserve(text.size() * 2);
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character < 0x10000) {
      AddUnit(bytes, character, bigEndian);
    } else {
      AddUnit(bytes, 0xD800 + ((character - 0x10000) >> 10), bigEndian);
      AddUnit(bytes, 0xDC00 + ((character - 0x10000) & 0x3FF), bigEndian);
    }
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
  return FromUtf16(bytes, coding == TIniCoding::Utf16Be);
}

std::string EncodeIni(std::string_view text, TIniCoding coding) {
  if (coding < TIniCoding::Utf16Le) return Concat(MarkOf(coding), text);
  return Concat(MarkOf(coding), ToUtf16(text, coding == TIniCoding::Utf16Be));
}

}  // namespace vcl
