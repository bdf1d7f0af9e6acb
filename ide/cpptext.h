// C++ text taken apart into tokens, as far as finding and changing declarations needs it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/exceptions.h"

namespace ide {

/// A unit's text that can't be understood, or a form that no unit can be written of.
class EUnitError : public vcl::Exception {
 public:
  using Exception::Exception;
};

struct TCppToken {
  enum class TSort { Name, Text, Sign, Directive };
  TSort Sort;
  std::size_t Begin, End;  // Bytes of the text.
  std::string_view Text;
  std::size_t Mate = 0;  // Of a bracket: the token of the other one.
};

/// The tokens of a text, without comments and white space. A name or a number is a Name, a string
/// or character a Text, a line of the preprocessor a Directive; `::` is one Sign.
class TCppText {
 public:
  /// Raises EUnitError with the file's name and the line for a comment, string or bracket that
  /// isn't closed.
  TCppText(std::string fileName, std::string_view text);

  std::size_t Count() const { return FTokens.size(); }
  /// The token at that index; an empty one beyond the last.
  const TCppToken& operator[](std::size_t index) const;
  bool Is(std::size_t index, std::string_view text) const { return (*this)[index].Text == text; }
  bool IsName(std::size_t index) const;
  std::string_view Text() const { return FText; }
  /// How often a name stands there.
  int Uses(std::string_view name) const;

  /// The beginning of the line that the position is in.
  std::size_t LineBegin(std::size_t position) const;
  /// The end of a line with its line break, when nothing but white space and a comment follows the
  /// position in it; else the position.
  std::size_t RestOfLine(std::size_t position) const;
  /// True when nothing but white space stands before the position in its line.
  bool BeginsLine(std::size_t position) const;
  [[noreturn]] void Refuse(std::size_t position, const std::string& why) const;

 private:
  void Read();
  void Match();
  std::size_t SkipComment(std::size_t at) const;
  std::size_t EndOfDirective(std::size_t at) const;
  std::size_t EndOfQuoted(std::size_t at) const;
  std::size_t EndOfRaw(std::size_t at) const;
  std::size_t EndOfWord(std::size_t at) const;
  std::size_t Add(TCppToken::TSort sort, std::size_t begin, std::size_t end);

  std::string FFileName;
  std::string_view FText;
  std::vector<TCppToken> FTokens;
};

/// Changes of a text that are made together. Positions are those of the text before.
class TTextEdits {
 public:
  void Insert(std::size_t at, std::string text) { Replace(at, at, std::move(text)); }
  void Replace(std::size_t begin, std::size_t end, std::string text);
  /// Removes the bytes; the whole lines, when nothing else but a comment behind them is there.
  void Remove(const TCppText& text, std::size_t begin, std::size_t end);
  /// The changed text. New lines get the line breaks that the text has.
  std::string Apply(std::string_view text) const;

 private:
  struct TEdit {
    std::size_t Begin, End;
    std::string Text;
  };
  std::vector<TEdit> FEdits;
};

}  // namespace ide
