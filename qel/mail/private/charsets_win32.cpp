// Character sets by the system's code pages.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "qel/mail/private/charsetsystem.h"
#include "vcl/rtl/utf16.h"

namespace qel {
namespace {

struct TCodePage {
  std::string_view Name;
  UINT Number;
};

/// The registered names (IANA) whose numbers do not stand in them.
constexpr TCodePage Known[] = {
    {"ansi_x3.4-1968", 20127}, {"big5", 950},        {"big5-hkscs", 950},   {"cp-850", 850},
    {"euc-jp", 20932},         {"euc-kr", 949},      {"euc-tw", 51950},     {"gb18030", 54936},
    {"gb2312", 936},           {"gbk", 936},         {"hz-gb-2312", 52936}, {"iso-2022-jp", 50220},
    {"iso-2022-kr", 50225},    {"iso646-us", 20127}, {"koi8-r", 20866},     {"koi8-u", 21866},
    {"ks_c_5601-1987", 949},   {"macintosh", 10000}, {"ms_kanji", 932},     {"shift-jis", 932},
    {"shift_jis", 932},        {"sjis", 932},        {"tis-620", 874},      {"utf-7", 65000},
    {"x-mac-roman", 10000},    {"x-sjis", 932},
};

/// The number behind a prefix; 0 for another name.
UINT NumberBehind(std::string_view name, std::string_view prefix) {
  UINT number = 0;
  if (!name.starts_with(prefix)) return 0;
  name.remove_prefix(prefix.size());
  const auto result = std::from_chars(name.data(), name.data() + name.size(), number);
  return result.ptr == name.data() + name.size() ? number : 0;
}

UINT CodePageOf(std::string_view name) {
  for (const std::string_view prefix : {"windows-", "cp", "ibm", "x-cp", "cp-"}) {
    if (const UINT number = NumberBehind(name, prefix)) return number;
  }
  for (const std::string_view prefix : {"iso-8859-", "iso8859-", "iso_8859-", "latin"}) {
    const UINT part = NumberBehind(name, prefix);
    if (part > 0 && part <= 16) return 28590 + part;
  }
  const auto found = std::ranges::find(Known, name, &TCodePage::Name);
  return found == std::end(Known) ? 0 : found->Number;
}

std::wstring FromUtf16(std::string_view bytes, bool bigFirst) {
  std::wstring text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    text += static_cast<wchar_t>(bigFirst ? first << 8 | second : second << 8 | first);
  }
  return text;
}

}  // namespace

bool SystemCharsetToUtf8(std::string_view bytes, const std::string& charset, std::string& text) {
  if (charset.starts_with("utf-16")) {
    const bool little = charset == "utf-16le" || bytes.starts_with("\xFF\xFE");
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) bytes.remove_prefix(2);
    text = vcl::ToUtf8(FromUtf16(bytes, !little));
    return true;
  }
  const UINT page = CodePageOf(charset);
  if (page == 0 || !::IsValidCodePage(page)) return false;
  // The system counts in int.
  bytes = bytes.substr(0, std::numeric_limits<int>::max());
  const int count = static_cast<int>(bytes.size());
  const int size = ::MultiByteToWideChar(page, 0, bytes.data(), count, nullptr, 0);
  if (size == 0 && count > 0) return false;
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  ::MultiByteToWideChar(page, 0, bytes.data(), count, wide.data(), size);
  text = vcl::ToUtf8(wide);
  return true;
}

}  // namespace qel
