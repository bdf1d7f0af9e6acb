// Texts of files: which characters their bytes are.
#include "qel/shell/private/textcoding.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr char32_t Stray = 0x110000;  // The number of a byte that is no character, added to it.
constexpr std::string_view Utf8Sign = "\xEF\xBB\xBF", LittleSign = "\xFF\xFE", BigSign = "\xFE\xFF";

unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

/// The character that begins there, and how many bytes it has; a stray byte where none does.
std::pair<char32_t, std::size_t> NextCharacter(std::string_view bytes) {
  const unsigned char first = Byte(bytes[0]);
  if (first < 0x80) return {first, 1};
  const std::size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first >= 0xC2 && first < 0xF5 && bytes.size() >= size) {
    if (const auto character = vcl::OnlyCharacter(bytes.substr(0, size))) return {*character, size};
  }
  return {Stray + first, 1};
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto [character, size] = NextCharacter(bytes);
    if (character >= Stray) return false;
    bytes.remove_prefix(size);
  }
  return true;
}

std::u32string FromUtf16(std::u16string_view units) {
  std::u32string text;
  for (const char16_t unit : units) {
    const bool second = unit >= 0xDC00 && unit <= 0xDFFF && !text.empty() &&
                        text.back() >= 0xD800 && text.back() <= 0xDBFF;
    if (second) {
      text.back() = 0x10000 + ((text.back() - 0xD800) << 10) + (unit - 0xDC00);
    } else {
      text += unit;
    }
  }
  return text;
}

std::u16string ToUtf16(char32_t c) {
  if (c <= 0xFFFF) return {static_cast<char16_t>(c)};
  c -= 0x10000;
  return {static_cast<char16_t>(0xD800 + (c >> 10)), static_cast<char16_t>(0xDC00 + (c & 0x3FF))};
}

std::u32string DecodeUtf16(std::string_view bytes, bool big) {
  std::u16string units;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const unsigned char one = Byte(bytes[i]), two = Byte(bytes[i + 1]);
    units += static_cast<char16_t>(big ? one << 8 | two : two << 8 | one);
  }
  std::u32string text = FromUtf16(units);
  if (bytes.size() % 2 == 1) text += static_cast<char32_t>(Stray + Byte(bytes.back()));
  return text;
}

/// Nothing where it would not give the same bytes again.
std::optional<std::u32string> DecodeCodePage(std::string_view bytes) {
  const auto size = static_cast<int>(bytes.size());
  std::u16string units(bytes.size(), u'\0');
  auto* const target = reinterpret_cast<wchar_t*>(units.data());
  const int count =
      ::MultiByteToWideChar(::GetACP(), MB_ERR_INVALID_CHARS, bytes.data(), size, target, size);
  if (count == 0) return {};
  std::string back(bytes.size() + 4, '\0');
  const int written = ::WideCharToMultiByte(::GetACP(), 0, target, count, back.data(),
                                            static_cast<int>(back.size()), nullptr, nullptr);
  if (back.substr(0, static_cast<std::size_t>(written)) != bytes) return {};
  units.resize(static_cast<std::size_t>(count));
  return FromUtf16(units);
}

std::string EncodeCodePage(char32_t c) {
  const std::u16string units = ToUtf16(c);
  char bytes[8];
  BOOL replaced = FALSE;
  const int size = ::WideCharToMultiByte(
      ::GetACP(), WC_NO_BEST_FIT_CHARS, reinterpret_cast<const wchar_t*>(units.data()),
      static_cast<int>(units.size()), bytes, sizeof bytes, nullptr, &replaced);
  if (size == 0 || replaced) {
    throw vcl::EConvertError(vcl::Concat("The file's character set has no '", vcl::Utf8(c), "'"));
  }
  return {bytes, static_cast<std::size_t>(size)};
}

}  // namespace

std::u32string CharactersOf(std::string_view utf8) {
  std::u32string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto [character, size] = NextCharacter(utf8);
    text += character;
    utf8.remove_prefix(size);
  }
  return text;
}

std::string Utf8Of(std::u32string_view characters) {
  std::string text;
  text.reserve(characters.size());
  for (const char32_t each : characters) {
    if (each >= Stray) {
      text += static_cast<char>(each - Stray);
    } else {
      text += vcl::Utf8(each);
    }
  }
  return text;
}

bool LooksLikeUtf8(std::string_view bytes) { return IsUtf8(bytes); }

TMark MarkOf(std::string_view bytes) {
  if (bytes.starts_with(Utf8Sign)) return {TTextCoding::Utf8Mark, Utf8Sign.size()};
  if (bytes.starts_with(LittleSign)) return {TTextCoding::Utf16Little, LittleSign.size()};
  if (bytes.starts_with(BigSign)) return {TTextCoding::Utf16Big, BigSign.size()};
  return {};
}

namespace {

std::pair<char32_t, std::size_t> NextOfCodePage(std::string_view bytes) {
  if (Byte(bytes[0]) < 0x80) return {Byte(bytes[0]), 1};
  const bool two = bytes.size() > 1 && ::IsDBCSLeadByteEx(::GetACP(), static_cast<BYTE>(bytes[0]));
  const int size = two ? 2 : 1;
  wchar_t unit = 0;
  if (::MultiByteToWideChar(::GetACP(), MB_ERR_INVALID_CHARS, bytes.data(), size, &unit, 1) != 1) {
    return {Stray + Byte(bytes[0]), 1};
  }
  return {unit, static_cast<std::size_t>(size)};
}

std::pair<char32_t, std::size_t> NextOfUtf16(std::string_view bytes, bool big) {
  const auto unit = [&](std::size_t at) -> char32_t {
    const unsigned char one = Byte(bytes[at]), two = Byte(bytes[at + 1]);
    return big ? one << 8 | two : two << 8 | one;
  };
  if (bytes.size() < 2) return {Stray + Byte(bytes[0]), 1};
  const char32_t first = unit(0);
  const bool pair = first >= 0xD800 && first <= 0xDBFF && bytes.size() >= 4 && unit(2) >= 0xDC00 &&
                    unit(2) <= 0xDFFF;
  if (pair) return {0x10000 + ((first - 0xD800) << 10) + (unit(2) - 0xDC00), 4};
  const bool half = first >= 0xD800 && first <= 0xDFFF;
  return {half ? Stray : first, 2};
}

}  // namespace

void EachCharacter(std::string_view bytes, TTextCoding coding,
                   const std::function<void(char32_t, std::size_t)>& each) {
  while (!bytes.empty()) {
    std::pair<char32_t, std::size_t> next;
    switch (coding) {
      case TTextCoding::Utf8:
      case TTextCoding::Utf8Mark: next = NextCharacter(bytes); break;
      case TTextCoding::CodePage: next = NextOfCodePage(bytes); break;
      case TTextCoding::Utf16Little:
      case TTextCoding::Utf16Big: next = NextOfUtf16(bytes, coding == TTextCoding::Utf16Big); break;
    }
    each(next.first, next.second);
    bytes.remove_prefix(next.second);
  }
}

std::optional<TCodedText> DecodeText(std::string_view bytes) {
  if (bytes.starts_with(Utf8Sign)) {
    return TCodedText{TTextCoding::Utf8Mark, CharactersOf(bytes.substr(Utf8Sign.size()))};
  }
  if (bytes.starts_with(LittleSign)) {
    return TCodedText{TTextCoding::Utf16Little, DecodeUtf16(bytes.substr(2), false)};
  }
  if (bytes.starts_with(BigSign)) {
    return TCodedText{TTextCoding::Utf16Big, DecodeUtf16(bytes.substr(2), true)};
  }
  if (bytes.find('\0') != std::string_view::npos) return {};
  if (IsUtf8(bytes) || ::GetACP() == CP_UTF8)
    return TCodedText{TTextCoding::Utf8, CharactersOf(bytes)};
  auto text = DecodeCodePage(bytes);
  if (!text) return {};
  return TCodedText{TTextCoding::CodePage, std::move(*text)};
}

std::string EncodeText(const TCodedText& text) {
  std::string bytes;
  switch (text.Coding) {
    case TTextCoding::Utf8: return Utf8Of(text.Text);
    case TTextCoding::Utf8Mark: return std::string(Utf8Sign) + Utf8Of(text.Text);
    case TTextCoding::CodePage:
      for (const char32_t each : text.Text) {
        if (each < 0x80) {
          bytes += static_cast<char>(each);
        } else {
          bytes += EncodeCodePage(each);
        }
      }
      return bytes;
    case TTextCoding::Utf16Little:
    case TTextCoding::Utf16Big: break;
  }
  const bool big = text.Coding == TTextCoding::Utf16Big;
  bytes = big ? BigSign : LittleSign;
  for (const char32_t each : text.Text) {
    if (each >= Stray) {
      bytes += static_cast<char>(each - Stray);
      continue;
    }
    for (const char16_t unit : ToUtf16(each)) {
      const auto high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
      bytes += big ? high : low;
      bytes += big ? low : high;
    }
  }
  return bytes;
}

}  // namespace qel
