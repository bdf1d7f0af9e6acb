// The words of a form file's text form.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vcl {

enum class TFormToken { End, Ident, Integer, Float, String, Symbol };

/// Takes a text form apart. Raises EParserError, with the line, for what is no word.
class TFormLexer {
 public:
  /// The text must outlive the lexer. The first word is read at once.
  explicit TFormLexer(std::string_view text);

  TFormToken Token() const { return FToken; }
  /// The line on which the word stands, from 1.
  int Line() const { return FTokenLine; }
  /// The identifier with the dotted ones behind it, a string's contents, or the symbol.
  const std::string& Text() const { return FText; }
  std::int64_t Integer() const { return FInteger; }
  double Float() const { return FFloat; }

  void Next();
  bool IsSymbol(char symbol) const;
  /// True for the identifier, in any case.
  bool IsWord(std::string_view word) const;
  /// Passes over the symbol. Raises EParserError when another word stands there.
  void TakeSymbol(char symbol);
  /// The identifier, which is passed over. Raises EParserError, with what was wanted, for others.
  std::string TakeIdent(std::string_view wanted);
  /// The bytes that hexadecimal digits give up to a "}", which is the next word then. The word
  /// before is "{".
  std::string TakeHex();
  /// Says that something else is expected here.
  [[noreturn]] void FailExpected(std::string_view wanted) const;
  [[noreturn]] void Fail(std::string_view text) const;

 private:
  char Peek(std::size_t ahead = 0) const;
  void SkipBlanks();
  void ReadIdent();
  void ReadNumber();
  void ReadHexNumber(std::size_t sign);
  void ReadString();
  void ReadQuoted();
  char32_t ReadCode();
  void ReadCharacter();

  std::string_view FSource;
  std::size_t FPosition = 0;
  int FLine = 1;
  int FTokenLine = 1;
  TFormToken FToken = TFormToken::End;
  std::string FText;
  std::int64_t FInteger = 0;
  double FFloat = 0;
};

}  // namespace vcl
