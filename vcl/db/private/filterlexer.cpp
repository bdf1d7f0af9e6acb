// The words of a filter: names, texts, numbers and symbols.
#include "vcl/db/private/filterlexer.h"

#include <algorithm>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace vcl::filter {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
/// Letters of other alphabets are some of the bytes above 127.
bool IsLetter(char c) {
  return c == '_' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c & 0x80) != 0;
}

constexpr std::string_view Symbols[] = {"<>", "<=", ">=", "=", "<", ">", "+",
                                        "-",  "*",  "/",  "(", ")", ","};

}  // namespace

bool TToken::IsWord(std::string_view word) const { return Kind == tkWord && SameText(Text, word); }

void TLexer::Fail(std::size_t offset, std::string_view what) const {
  const auto begins = [](char c) { return (c & 0xC0) != 0x80; };
  const auto before = std::ranges::count_if(FText.substr(0, offset), begins);
  throw EDatabaseError(Concat("The filter \"", Shown(FText), "\" is wrong at character ",
                              IntToStr(before + 1), ": ", what));
}

void TLexer::Expected(std::string_view expected) const {
  const std::string found =
      FCurrent.Kind == TToken::tkEnd ? "its end" : Concat("\"", Shown(FCurrent.Text), "\"");
  Fail(FCurrent.Offset, Concat(expected, " was expected, not ", found));
}

TToken TLexer::Take() {
  TToken token = std::move(FCurrent);
  Advance();
  return token;
}

bool TLexer::TakeWord(std::string_view word) {
  const bool is = FCurrent.IsWord(word);
  if (is) Advance();
  return is;
}

bool TLexer::TakeSymbol(std::string_view symbol) {
  const bool is = FCurrent.IsSymbol(symbol);
  if (is) Advance();
  return is;
}

void TLexer::Advance() {
  while (FNext < FText.size() && IsBlank(FText[FNext])) ++FNext;
  FCurrent = {TToken::tkEnd, {}, FNext};
  if (FNext == FText.size()) return;
  const char c = FText[FNext];
  if (c == '\'' || c == '[') {
    ReadQuoted(c == '[' ? ']' : c);
  } else if (IsDigit(c)) {
    ReadNumber();
  } else if (IsLetter(c)) {
    ReadWord();
  } else {
    ReadSymbol();
  }
}

/// A quote inside of a text is written twice.
void TLexer::ReadQuoted(char end) {
  FCurrent.Kind = end == ']' ? TToken::tkField : TToken::tkText;
  for (++FNext;; ++FNext) {
    const std::size_t found = FText.find(end, FNext);
    if (found == FText.npos) {
      Fail(FCurrent.Offset, end == ']' ? "the bracket is not closed" : "the text does not end");
    }
    FCurrent.Text += FText.substr(FNext, found - FNext);
    FNext = found + 1;
    if (end == ']' || FNext == FText.size() || FText[FNext] != end) return;
    FCurrent.Text += end;
  }
}

void TLexer::ReadNumber() {
  FCurrent.Kind = TToken::tkNumber;
  const std::size_t begin = FNext;
  const auto digits = [this] {
    while (FNext < FText.size() && IsDigit(FText[FNext])) ++FNext;
  };
  digits();
  if (FText.substr(FNext).starts_with('.')) ++FNext, digits();
  if (FNext < FText.size() && (FText[FNext] | 0x20) == 'e') {
    ++FNext;
    if (FNext < FText.size() && (FText[FNext] == '-' || FText[FNext] == '+')) ++FNext;
    digits();
  }
  while (FNext < FText.size() && IsLetter(FText[FNext])) ++FNext;  // What makes it wrong.
  FCurrent.Text = FText.substr(begin, FNext - begin);
}

void TLexer::ReadWord() {
  FCurrent.Kind = TToken::tkWord;
  const std::size_t begin = FNext;
  while (FNext < FText.size() && (IsLetter(FText[FNext]) || IsDigit(FText[FNext]))) ++FNext;
  FCurrent.Text = FText.substr(begin, FNext - begin);
}

void TLexer::ReadSymbol() {
  const std::string_view rest = FText.substr(FNext);
  for (const std::string_view symbol : Symbols) {
    if (!rest.starts_with(symbol)) continue;
    FCurrent.Kind = TToken::tkSymbol;
    FCurrent.Text = symbol;
    FNext += symbol.size();
    return;
  }
  Fail(FCurrent.Offset, Concat("\"", rest.substr(0, 1), "\" means nothing here"));
}

}  // namespace vcl::filter
