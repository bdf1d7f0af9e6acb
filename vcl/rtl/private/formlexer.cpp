// The words of a form file's text form: blanks, names, numbers, quoted texts and character codes.
#include "vcl/rtl/private/formlexer.h"

#include <charconv>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsIdentStart(char c) { return IsValidIdent({&c, 1}); }
bool IsIdentPart(char c) { return IsIdentStart(c) || IsDigit(c); }

/// The value of a hexadecimal digit; -1 for others.
int HexValue(char c) {
  int value = -1;
  std::from_chars(&c, &c + 1, value, 16);
  return value;
}

bool IsHighSurrogate(char32_t code) { return code >= 0xD800 && code < 0xDC00; }
bool IsLowSurrogate(char32_t code) { return code >= 0xDC00 && code < 0xE000; }

}  // namespace

TFormLexer::TFormLexer(std::string_view text) : FSource(text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(byteOrderMark)) FSource.remove_prefix(byteOrderMark.size());
  Next();
}

void TFormLexer::Fail(std::string_view text) const {
  throw EParserError(Concat("Line ", std::to_string(FTokenLine), ": ", text));
}

void TFormLexer::FailExpected(std::string_view wanted) const {
  if (FToken == TFormToken::End) Fail(Concat(wanted, " is expected, but the text ends"));
  Fail(Concat(wanted, " is expected, not '", Shown(FText), "'"));
}

/// The character at the position; a NUL behind the end.
char TFormLexer::Peek(std::size_t ahead) const {
  return FPosition + ahead < FSource.size() ? FSource[FPosition + ahead] : '\0';
}

void TFormLexer::SkipBlanks() {
  for (; FPosition < FSource.size(); ++FPosition) {
    const char c = FSource[FPosition];
    if (c == '\n') ++FLine;
    if (c != ' ' && c != '\t' && c != '\r' && c != '\n') return;
  }
}

void TFormLexer::Next() {
  SkipBlanks();
  FTokenLine = FLine;
  FText.clear();
  if (FPosition == FSource.size()) {
    FToken = TFormToken::End;
    return;
  }
  const char c = Peek();
  const char digit = c == '-' ? Peek(1) : c;
  if (IsIdentStart(c)) return ReadIdent();
  if (IsDigit(digit) || digit == '$') return ReadNumber();
  if (c == '\'' || c == '#') return ReadString();
  FToken = TFormToken::Symbol;
  FText = c;
  ++FPosition;
}

void TFormLexer::ReadIdent() {
  FToken = TFormToken::Ident;
  while (IsIdentPart(Peek()) || (Peek() == '.' && IsIdentStart(Peek(1))))
    FText += FSource[FPosition++];
}

void TFormLexer::ReadNumber() {
  const std::size_t sign = Peek() == '-' ? 1 : 0;
  if (Peek(sign) == '$') return ReadHexNumber(sign);
  std::size_t size = sign;
  bool isFloat = false;
  const auto digits = [&] {
    while (IsDigit(Peek(size))) ++size;
  };
  digits();
  if (Peek(size) == '.' && IsDigit(Peek(size + 1))) {
    isFloat = true;
    ++size;
    digits();
  }
  if (Peek(size) == 'e' || Peek(size) == 'E') {
    isFloat = true;
    ++size;
    if (Peek(size) == '-' || Peek(size) == '+') ++size;
    digits();
  }
  FText = FSource.substr(FPosition, size);
  FPosition += size;
  FToken = isFloat ? TFormToken::Float : TFormToken::Integer;
  const bool read = isFloat ? TryStrToFloat(FText, FFloat) : TryStrToInt64(FText, FInteger);
  if (!read || IsIdentPart(Peek()))
    Fail(Concat("'", Shown(FText), "' is no number that can be kept"));
}

void TFormLexer::ReadHexNumber(std::size_t sign) {
  std::size_t size = sign + 1;
  while (IsIdentPart(Peek(size))) ++size;
  FText = FSource.substr(FPosition, size);
  FPosition += size;
  FToken = TFormToken::Integer;
  if (!TryStrToInt64(FText, FInteger))
    Fail(Concat("'", Shown(FText), "' is no number that can be kept"));
}

void TFormLexer::ReadString() {
  FToken = TFormToken::String;
  for (;;) {
    if (Peek() == '\'') {
      ReadQuoted();
    } else if (Peek() == '#') {
      ReadCharacter();
    } else {
      return;
    }
  }
}

void TFormLexer::ReadQuoted() {
  for (++FPosition;; ++FPosition) {
    if (FPosition == FSource.size() || Peek() == '\n' || Peek() == '\r') {
      Fail("a string is not ended on its line");
    }
    if (Peek() == '\'' && Peek(1) != '\'') break;
    if (Peek() == '\'') ++FPosition;
    FText += FSource[FPosition];
  }
  ++FPosition;
}

char32_t TFormLexer::ReadCode() {
  const char* end = FSource.data() + FSource.size();
  const char* start = FSource.data() + FPosition + 1;
  std::uint32_t code = 0;
  const auto [rest, error] = std::from_chars(start, end, code);
  if (error != std::errc{}) Fail("the number of a character is expected behind '#'");
  FPosition = static_cast<std::size_t>(rest - FSource.data());
  return code;
}

/// Reads "#" and a number: a character, or, behind each other, the two halves that stand for one in
/// UTF-16.
void TFormLexer::ReadCharacter() {
  char32_t code = ReadCode();
  if (IsHighSurrogate(code) && Peek() == '#') {
    const char32_t low = ReadCode();
    if (!IsLowSurrogate(low)) Fail("a character's second half is missing");
    code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
  }
  const std::string character = Utf8(code);
  if (character.empty()) Fail(Concat("#", std::to_string(std::uint32_t{code}), " is no character"));
  FText += character;
}

bool TFormLexer::IsSymbol(char symbol) const {
  return FToken == TFormToken::Symbol && FText.front() == symbol;
}

bool TFormLexer::IsWord(std::string_view word) const {
  return FToken == TFormToken::Ident && SameText(FText, word);
}

void TFormLexer::TakeSymbol(char symbol) {
  if (!IsSymbol(symbol)) FailExpected(Concat("'", std::string(1, symbol), "'"));
  Next();
}

std::string TFormLexer::TakeIdent(std::string_view wanted) {
  if (FToken != TFormToken::Ident) FailExpected(wanted);
  std::string ident = FText;
  Next();
  return ident;
}

std::string TFormLexer::TakeHex() {
  std::string bytes;
  for (SkipBlanks(); Peek() != '}'; SkipBlanks()) {
    FTokenLine = FLine;
    const int high = HexValue(Peek());
    const int low = HexValue(Peek(1));
    if (high < 0 || low < 0) Fail("two hexadecimal digits or '}' are expected");
    bytes += static_cast<char>(high * 16 + low);
    FPosition += 2;
  }
  ++FPosition;
  Next();
  return bytes;
}

}  // namespace vcl
