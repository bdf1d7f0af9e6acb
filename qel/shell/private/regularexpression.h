// TRegularExpression: patterns of text, looked for with a limit of steps.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qel {

/// Where a match is, and its groups, 0 being all of it: from a character to behind another one;
/// nothing for a group that took no part.
struct TRegularMatch {
  struct TSpan {
    std::size_t From, To;
  };
  std::vector<std::optional<TSpan>> Groups;
};

/// A pattern in the usual notation: . [abc] [^a-z] \\d \\w \\s \\b and their capitals, ^ and $ at
/// the ends of lines, ( ) as groups, (?: ) as mere brackets, | between alternatives, * + ? {n}
/// {n,m}, and a ? behind these for as few as will do.
///
/// The standard library's matcher calls itself for every character and ends a program at a long
/// line; this one keeps the ways back in a list of its own, and gives up when it has tried too
/// much.
class TRegularExpression {
 public:
  /// Raises vcl::EConvertError, with the pattern and what is wrong, for what is none, and for one
  /// that is too long when its repetitions are written out.
  TRegularExpression(std::u32string_view pattern, bool matchCase);

  /// The first match at or behind `from`; nothing when there is none. Each step is taken from
  /// `steps`. Raises vcl::EInvalidOperation when they are used up.
  std::optional<TRegularMatch> Find(std::u32string_view text, std::size_t from,
                                    std::size_t& steps) const;

 private:
  friend class TRegularCompiler;
  enum class TOperation {
    Character,
    Any,
    Set,
    Split,
    SplitLazily,
    Jump,
    Save,
    Mark,   // Keeps where a round of a loop begins.
    Moved,  // Fails when the round has taken nothing.
    LineBegin,
    LineEnd,
    WordEdge,
    NoWordEdge,
    Match
  };
  struct TStep {
    TOperation Operation;
    char32_t Character = 0;
    std::size_t Where = 0;  ///< The other way of a split, a jump's end, a set, a slot.
  };
  struct TSet {
    struct TRange {
      char32_t From, To;
    };
    std::vector<TRange> Ranges;
    std::u32string Classes;  ///< "dws" and their capitals.
    bool Negated = false;
  };
  bool Has(const TSet& set, char32_t character) const;
  bool Run(std::u32string_view text, std::size_t at, std::vector<std::size_t>& slots,
           std::size_t& steps) const;

  std::vector<TStep> FSteps;
  std::vector<TSet> FSets;
  std::size_t FGroups = 1;
  std::size_t FMarks = 0;
  bool FMatchCase;
};

/// Whether a character is part of a word: a letter of any alphabet, a digit or "_".
bool IsWordCharacter(char32_t character);
/// The character in small letters, where it has such a form.
char32_t SmallCharacter(char32_t character);

}  // namespace qel
