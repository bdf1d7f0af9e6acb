// TMaskText: filling the cells of a mask, and reading them.
#include "vcl/rtl/masktext.h"

#include <algorithm>

#include "vcl/rtl/private/masklanguage.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl {

EMaskError::~EMaskError() = default;

TMaskText::TEdited ToCells(std::string_view text) {
  const std::u16string units = ToUtf16Units(text);
  return {units.begin(), units.end()};
}

std::string FromCells(const TMaskText::TEdited& cells) {
  const std::u16string units(cells.begin(), cells.end());
  return ToUtf8(units);
}

bool TMaskText::Editable(int cell) const {
  return cell >= 0 && cell < Length() && FCells[static_cast<std::size_t>(cell)].Kind != 0;
}

int TMaskText::Next(int cell) const {
  int next = std::max(cell, 0);
  while (next < Length() && !Editable(next)) ++next;
  return std::min(next, Length());
}

int TMaskText::Previous(int cell) const {
  for (int each = std::min(cell, Length()) - 1; each >= 0; --each) {
    if (Editable(each)) return each;
  }
  return Next(0);
}

char32_t TMaskText::Fitted(int cell, char32_t character) const {
  const TCell& at = FCells[static_cast<std::size_t>(cell)];
  if (character == U' ' || character == FBlank) return FBlank;
  if (!mask::Fits(at.Kind, character)) return 0;
  switch (at.Case) {
    case TCase::Upper: return mask::Upper(character);
    case TCase::Lower: return mask::Lower(character);
    case TCase::AsTyped:
    default: return character;
  }
}

bool TMaskText::Filled(const TEdited& edited, int cell) const {
  return Editable(cell) && edited[static_cast<std::size_t>(cell)] != FBlank;
}

bool TMaskText::AnyFilled(const TEdited& edited) const {
  for (int i = 0; i < Length(); ++i) {
    if (Filled(edited, i)) return true;
  }
  return false;
}

/// Puts the characters of a text as Text writes it into the cells, each into its own; false when it
/// is another text.
bool TMaskText::Put(TEdited& edited, const TEdited& characters) const {
  std::size_t at = 0;
  for (std::size_t i = 0; i < FCells.size() && at < characters.size(); ++i) {
    const bool literal = FCells[i].Kind == 0;
    if (literal && !FKeepsLiterals) continue;
    const char32_t c = characters[at++];
    const char32_t fitted = literal ? FCells[i].Literal : Fitted(static_cast<int>(i), c);
    if (literal ? c != fitted : fitted == 0) return false;
    edited[i] = fitted;
  }
  return at == characters.size() && (!FKeepsLiterals || at == FCells.size());
}

TMaskText::TEdited TMaskText::Edited(std::string_view text) const {
  TEdited empty;
  for (const TCell& cell : FCells) empty += cell.Kind == 0 ? cell.Literal : FBlank;
  TEdited characters = ToCells(text);
  if (Fits(characters)) return characters;
  const auto cells = static_cast<std::size_t>(
      std::ranges::count_if(FCells, [](const TCell& each) { return each.Kind != 0; }));
  if (FMissingLeft && characters.size() < cells) {
    characters.insert(0, cells - characters.size(), U' ');
  }
  TEdited edited = empty;
  if (Put(edited, characters)) return edited;
  int caret = 0;
  TypeAll(empty, caret, characters);
  return empty;
}

std::string TMaskText::Text(const TEdited& edited) const {
  if (!Fits(edited) || !AnyFilled(edited)) return {};
  TEdited text;
  for (int i = 0; i < Length(); ++i) {
    if (!Editable(i) && !FKeepsLiterals) continue;
    const bool empty = Editable(i) && !Filled(edited, i);
    text += empty ? U' ' : edited[static_cast<std::size_t>(i)];
  }
  if (FKeepsLiterals) return FromCells(text);
  const auto first = FMissingLeft ? text.find_first_not_of(U' ') : 0;
  const auto last = FMissingLeft ? text.size() : text.find_last_not_of(U' ') + 1;
  return FromCells(text.substr(first, last - first));
}

bool TMaskText::Fits(const TEdited& edited) const {
  if (edited.size() != FCells.size()) return false;
  for (int i = 0; i < Length(); ++i) {
    const auto at = static_cast<std::size_t>(i);
    const char32_t wanted = Editable(i) ? Fitted(i, edited[at]) : FCells[at].Literal;
    if (edited[at] != wanted) return false;
  }
  return true;
}

int TMaskText::FirstMissing(const TEdited& edited) const {
  for (int i = 0; i < Length(); ++i) {
    if (mask::Required(FCells[static_cast<std::size_t>(i)].Kind) && !Filled(edited, i)) return i;
  }
  return -1;
}

bool TMaskText::Type(TEdited& edited, int& caret, char32_t character) const {
  const int at = std::clamp(caret, 0, Length());
  const auto literal = [&](int cell) {
    return !Editable(cell) && FCells[static_cast<std::size_t>(cell)].Literal == character;
  };
  if (at < Length() && literal(at)) {
    caret = at + 1;
    return true;
  }
  const int cell = Next(at);
  if (const char32_t fitted = cell < Length() ? Fitted(cell, character) : 0; fitted != 0) {
    edited[static_cast<std::size_t>(cell)] = fitted;
    caret = cell + 1;
    return true;
  }
  // The end of a group that is typed before the group is full.
  for (int each = at; each < Length(); ++each) {
    if (!literal(each)) continue;
    caret = each + 1;
    return true;
  }
  return false;
}

int TMaskText::TypeAll(TEdited& edited, int& caret, const TEdited& characters) const {
  int refused = 0;
  for (const char32_t each : characters) refused += Type(edited, caret, each) ? 0 : 1;
  return refused;
}

void TMaskText::Clear(TEdited& edited, int from, int to) const {
  for (int i = std::max(from, 0); i < std::min(to, Length()); ++i) {
    if (Editable(i)) edited[static_cast<std::size_t>(i)] = FBlank;
  }
}

}  // namespace vcl
