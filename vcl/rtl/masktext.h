// TMaskText: what may be typed where in an edit with a mask, and what its text means. No window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/api.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formatsettings.h"

namespace vcl {

/// A mask that cannot be read, or a text that lacks what its mask requires; names both.
class VCL_API EMaskError : public Exception {
 public:
  using Exception::Exception;
  ~EMaskError() override;
};

/// A mask. Each of its characters is a cell of the edit:
///
///     L l   a letter, required resp. optional       0 9   a digit
///     A a   a letter or digit                       #     a digit or sign, optional
///     C c   any character                           : /   the user's separator of times, dates
///     > <   capitals resp. small letters from here  <>    as they are typed from here
///     \     the next character as it is             _     a blank as it is
///     !     optional characters are missing at the left instead of at the right
///
/// Anything else stands in its cell as it is, a literal. Behind ";" may follow "0" when the
/// literals are no part of the text, and behind another ";" the character that stands in an empty
/// cell, "_" unless said. Characters beyond the basic plane fit no cell, so that cells are what the
/// system's edits count. An edited text has one character for each cell; one that is the empty
/// cell's, or a blank, is an empty cell.
class VCL_API TMaskText {
 public:
  using TEdited = std::u32string;

  /// No mask: no cells.
  TMaskText() = default;
  /// Raises EMaskError for a mask that ends behind "\", has more than three fields, a field of
  /// literals other than "0" and "1", or more than one character for the empty cell.
  explicit TMaskText(std::string_view mask, const TFormatSettings& settings = FormatSettings());

  bool Empty() const { return FCells.empty(); }
  int Length() const { return static_cast<int>(FCells.size()); }
  bool KeepsLiterals() const { return FKeepsLiterals; }
  char32_t Blank() const { return FBlank; }
  /// True for a cell that the user fills; false for literals and outside.
  bool Editable(int cell) const;
  /// The first editable cell at `cell` or behind it; Length when there is none.
  int Next(int cell) const;
  /// The last editable cell before `cell`; the first editable one when there is none.
  int Previous(int cell) const;

  /// The cells that a text fills, or that it shows. What fits no cell is left out.
  TEdited Edited(std::string_view text) const;
  /// The text that the cells mean, in UTF-8: empty when nothing is filled in. With the literals,
  /// empty cells are blanks; without, so are those between others.
  std::string Text(const TEdited& edited) const;
  /// True for a text that has each literal in its cell, and in the other cells what fits there.
  bool Fits(const TEdited& edited) const;
  /// The first cell that is required and empty; -1 when there is none.
  int FirstMissing(const TEdited& edited) const;

  /// A character is typed at the caret, which moves behind it: it goes into the next editable cell,
  /// or moves over the literal that it is. A blank empties the cell. False when it does not fit;
  /// nothing is changed then.
  bool Type(TEdited& edited, int& caret, char32_t character) const;
  /// Types one after the other, as far as they fit; returns how many have not.
  int TypeAll(TEdited& edited, int& caret, const TEdited& characters) const;
  /// Empties the editable cells from `from` up to `to`, which is left.
  void Clear(TEdited& edited, int from, int to) const;

 private:
  enum class TCase { AsTyped, Upper, Lower };
  struct TCell {
    char32_t Kind;     ///< One of the mask's letters; 0 for a literal.
    char32_t Literal;  ///< Of a literal.
    TCase Case;
  };
  class TParser;
  bool Put(TEdited& edited, const TEdited& characters) const;
  bool Filled(const TEdited& edited, int cell) const;
  bool AnyFilled(const TEdited& edited) const;
  /// The character as it stands in the cell; 0 when it does not fit.
  char32_t Fitted(int cell, char32_t character) const;

  std::vector<TCell> FCells;
  bool FKeepsLiterals = true;
  bool FMissingLeft = false;
  char32_t FBlank = U'_';
};

/// The characters of a text in UTF-8 as cells count them: those beyond the basic plane are two.
VCL_API TMaskText::TEdited ToCells(std::string_view text);
/// The text of such characters in UTF-8.
VCL_API std::string FromCells(const TMaskText::TEdited& cells);

}  // namespace vcl
