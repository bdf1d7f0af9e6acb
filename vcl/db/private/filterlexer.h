// The words of a filter.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "vcl/db/dbtypes.h"

namespace vcl::filter {

struct TToken {
  enum TKind { tkEnd, tkWord, tkField, tkText, tkNumber, tkSymbol };
  TKind Kind = tkEnd;
  /// Without quotes or brackets.
  std::string Text;
  /// Where it begins, in bytes.
  std::size_t Offset = 0;

  /// The word, in any case.
  bool IsWord(std::string_view word) const;
  bool IsSymbol(std::string_view symbol) const { return Kind == tkSymbol && Text == symbol; }
};

/// Takes a filter apart, one word ahead.
class TLexer {
 public:
  /// The text must live as long. Raises EDatabaseError, as the others do.
  explicit TLexer(std::string_view text) : FText(text) { Advance(); }
  const TToken& Current() const { return FCurrent; }
  /// Moves on; returns the word that was the current one.
  TToken Take();
  /// Moves on when the current word is that one.
  bool TakeWord(std::string_view word);
  bool TakeSymbol(std::string_view symbol);
  /// EDatabaseError: the filter, the place, and what was expected there.
  [[noreturn]] void Fail(std::size_t offset, std::string_view what) const;
  /// The same for the current word: "EXPECTED was expected, not X".
  [[noreturn]] void Expected(std::string_view expected) const;

 private:
  void Advance();
  void ReadQuoted(char end);
  void ReadNumber();
  void ReadWord();
  void ReadSymbol();

  std::string_view FText;
  std::size_t FNext = 0;
  TToken FCurrent;
};

}  // namespace vcl::filter
