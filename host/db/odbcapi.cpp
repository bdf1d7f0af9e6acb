#include "host/db/odbcapi.h"

#include <algorithm>

#include "host/db/dbtypes.h"
#include "host/rtl/text.h"

namespace vcl::odbc {
namespace {

constexpr char32_t Unknown = 0xFFFD;

/// The length of the sequence of UTF-8 that the text begins with; 0 when it is none.
std::size_t SequenceLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  return length <= text.size() && OnlyCharacter(text.substr(0, length)) ? length : 0;
}

void AppendWide(TWideText& wide, char32_t character) {
  if (character < 0x10000) {
    wide += static_cast<char16_t>(character);
  } else {
    wide += static_cast<char16_t>(0xD7C0 + (character >> 10));
    wide += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
  }
}

bool IsHigh(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool IsLow(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

}  // namespace

TWideText ToWide(std::string_view text) {
  TWideText wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    AppendWide(wide, length ? *OnlyCharacter(text.substr(0, length))
                            : static_cast<unsigned char>(text[0]));
    text.remove_prefix(length ? length : 1);
  }
  return wide;
}

void FromWide(const char16_t* wide, std::size_t length, std::string& text) {
  text.resize(length);
  std::size_t i = 0;
  for (; i < length && wide[i] < 0x80; ++i) text[i] = static_cast<char>(wide[i]);
  text.resize(i);
  for (; i < length; ++i) {
    char32_t character = wide[i];
    if (IsHigh(wide[i]) && i + 1 < length && IsLow(wide[i + 1])) {
      character = 0x10000 + ((character - 0xD800) << 10) + (wide[++i] - 0xDC00u);
    } else if (IsHigh(wide[i]) || IsLow(wide[i])) {
      character = Unknown;
    }
    text += Utf8(character);
  }
}

std::string FromWide(const TWideText& wide) {
  std::string text;
  FromWide(wide.data(), wide.size(), text);
  return text;
}

void Check(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle) {
  if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA) return;
  std::string message;
  TWideText state(5, u' '), text(1024, u' ');
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  for (SQLSMALLINT record = 1; SQL_SUCCEEDED(
           SQLGetDiagRecW(handleType, handle, record, Argument(state), &native, Argument(text),
                          static_cast<SQLSMALLINT>(text.size()), &length));
       ++record) {
    const auto kept = std::min(static_cast<std::size_t>(std::max<int>(length, 0)), text.size() - 1);
    if (!message.empty()) message += "\r\n";
    message += Concat(FromWide(text.substr(0, kept)), " (SQLSTATE ", FromWide(state), ")");
  }
  if (message.empty()) message = Concat("ODBC has failed with ", std::to_string(result));
  throw EDatabaseError(message);
}

}  // namespace vcl::odbc
