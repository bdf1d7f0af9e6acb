// The one conversion between UTF-8 and UTF-16.
#include "vcl/rtl/utf16.h"

#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr char32_t Replacement = 0xFFFD;

/// What a text begins with: a character, or bytes that are none.
struct TBeginning {
  char32_t Character;
  std::size_t Bytes;
  bool Stray;
};

/// Takes bytes until they are a character or can no longer become one (The Unicode Standard,
/// table 3-7).
TBeginning BeginningOf(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) return {first, 1, false};
  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (first < 0xC2 || first > 0xF4) return {Replacement, 1, true};
  char32_t character = first & (0x7Fu >> length);
  unsigned low = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
  unsigned high = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
  for (std::size_t at = 1; at < length; ++at, low = 0x80, high = 0xBF) {
    const unsigned byte = at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
    if (byte < low || byte > high) return {Replacement, at, true};
    character = character << 6 | (byte & 0x3F);
  }
  return {character, length, false};
}

template <class Unit>
void Append(std::basic_string<Unit>& wide, char32_t character) {
  if (character < 0x10000) {
    wide += static_cast<Unit>(character);
  } else {
    wide += static_cast<Unit>(0xD7C0 + (character >> 10));
    wide += static_cast<Unit>(0xDC00 + (character & 0x3FF));
  }
}

template <class Unit>
std::basic_string<Unit> Encoded(std::string_view text, TStrayByte stray) {
  std::basic_string<Unit> wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    TBeginning next = BeginningOf(text);
    if (next.Stray && stray == TStrayByte::Latin1) {
      next = {static_cast<unsigned char>(text[0]), 1, true};
    }
    Append(wide, next.Character);
    text.remove_prefix(next.Bytes);
  }
  return wide;
}

bool IsLead(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsTrail(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

template <class Unit>
void Assign(std::string& text, std::basic_string_view<Unit> wide) {
  text.resize(wide.size());
  std::size_t i = 0;
  for (; i < wide.size() && wide[i] < 0x80; ++i) text[i] = static_cast<char>(wide[i]);
  text.resize(i);
  for (; i < wide.size(); ++i) {
    char32_t character = wide[i];
    const char32_t next = i + 1 < wide.size() ? wide[i + 1] : 0;
    if (IsLead(character) && IsTrail(next)) {
      character = 0x10000 + ((character - 0xD800) << 10) + (next - 0xDC00);
      ++i;
    } else if (IsLead(character) || IsTrail(character)) {
      character = Replacement;
    }
    text += Utf8(character);
  }
}

}  // namespace

std::wstring ToUtf16(std::string_view text) { return Encoded<wchar_t>(text, TStrayByte::Replaced); }

std::u16string ToUtf16Units(std::string_view text, TStrayByte stray) {
  return Encoded<char16_t>(text, stray);
}

std::string ToUtf8(std::wstring_view wide) {
  std::string text;
  Assign(text, wide);
  return text;
}

std::string ToUtf8(std::u16string_view wide) {
  std::string text;
  Assign(text, wide);
  return text;
}

void AssignUtf8(std::string& text, std::u16string_view wide) { Assign(text, wide); }

}  // namespace vcl
