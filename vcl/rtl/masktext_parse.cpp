// TMaskText: reading a mask, and what its letters take.
#include <algorithm>
#include <string_view>

#include "vcl/rtl/masktext.h"
#include "vcl/rtl/private/masklanguage.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace mask {
namespace {

/// Letters whose other case is so far behind them.
struct TCaseRange {
  char32_t First;  // Of the capitals.
  char32_t Last;
  char32_t Distance;
};
constexpr TCaseRange Ranges[] = {{U'A', U'Z', 32},   {0xC0, 0xD6, 32},   {0xD8, 0xDE, 32},
                                 {0x391, 0x3A1, 32}, {0x3A3, 0x3AB, 32}, {0x410, 0x42F, 32},
                                 {0x400, 0x40F, 80}, {0x531, 0x556, 48}};
/// Capitals at even numbers resp. at odd ones, each with its small letter behind it.
constexpr char32_t EvenPairs[][2] = {{0x100, 0x12F}, {0x132, 0x137}, {0x14A, 0x177},
                                     {0x460, 0x481}, {0x48A, 0x4BF}, {0x1E00, 0x1E95}};
constexpr char32_t OddPairs[][2] = {{0x139, 0x148}, {0x179, 0x17E}};

bool In(const char32_t (&range)[2], char32_t c) { return c >= range[0] && c <= range[1]; }

bool InAny(const auto& ranges, char32_t c) {
  return std::ranges::any_of(ranges, [c](const auto& each) { return In(each, c); });
}

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

/// Of any alphabet: beyond ASCII what is no sign.
bool IsLetter(char32_t c) {
  constexpr char32_t signs[][2] = {
      {0x00, 0x40},     {0x5B, 0x60},     {0x7B, 0xA9},     {0xAB, 0xB4},     {0xB6, 0xB9},
      {0xBB, 0xBF},     {0xD7, 0xD7},     {0xF7, 0xF7},     {0x2000, 0x2BFF}, {0x3000, 0x3004},
      {0x3008, 0x3020}, {0xD800, 0xF8FF}, {0xFE00, 0xFE6F}, {0xFEFF, 0xFF20}, {0xFFF0, 0x10FFFF}};
  return !InAny(signs, c);
}

}  // namespace

bool IsKind(char32_t letter) {
  return std::u32string_view(U"LlAaCc09#").find(letter) != std::u32string_view::npos;
}

bool Required(char32_t kind) {
  return kind == U'L' || kind == U'A' || kind == U'C' || kind == U'0';
}

bool Fits(char32_t kind, char32_t c) {
  switch (kind) {
    case U'L':
    case U'l': return IsLetter(c);
    case U'A':
    case U'a': return IsLetter(c) || IsDigit(c);
    case U'0':
    case U'9': return IsDigit(c);
    case U'#': return IsDigit(c) || c == U'+' || c == U'-';
    case U'C':
    case U'c': return c > U' ' && c <= 0xFFFF && !(c >= 0xD800 && c <= 0xDFFF) && c != 0x7F;
    default: return false;
  }
}

char32_t Upper(char32_t c) {
  for (const auto& [first, last, distance] : Ranges) {
    if (c >= first + distance && c <= last + distance && c > last) return c - distance;
  }
  if (InAny(EvenPairs, c)) return c & ~char32_t{1};
  if (InAny(OddPairs, c)) return c % 2 == 0 ? c - 1 : c;
  return c;
}

char32_t Lower(char32_t c) {
  for (const auto& [first, last, distance] : Ranges) {
    if (c >= first && c <= last) return c + distance;
  }
  if (InAny(EvenPairs, c)) return c | 1;
  if (InAny(OddPairs, c)) return c % 2 == 1 ? c + 1 : c;
  return c;
}

}  // namespace mask

/// Reads a mask's cells up to its fields.
class TMaskText::TParser {
 public:
  TParser(TMaskText& to, std::string_view mask, const TFormatSettings& settings)
      : FTo(to), FText(mask), FMask(ToCells(mask)), FSettings(settings) {}

  void Parse() {
    while (FAt < FMask.size() && FMask[FAt] != U';') ParseCell(FMask[FAt++]);
    if (FAt < FMask.size()) ParseFields(FMask.substr(FAt + 1));
    const bool beyond =
        std::ranges::any_of(FMask, [](char32_t each) { return each >= 0xD800 && each <= 0xDFFF; });
    if (beyond) Refuse("has a character that no edit shows in one cell");
  }

 private:
  void ParseCell(char32_t letter) {
    switch (letter) {
      case U'!': FTo.FMissingLeft = true; return;
      case U'>': FCase = TCase::Upper; return;
      case U'<': return Lower();
      case U':': return AddLiterals(ToCells(FSettings.TimeSeparator));
      case U'/': return AddLiterals(ToCells(FSettings.DateSeparator));
      case U'_': return AddLiterals(U" ");
      case U'\\':
        if (FAt == FMask.size()) Refuse("ends behind a \\, which is to stand before a character");
        return AddLiterals({FMask[FAt++]});
      default:
        if (!mask::IsKind(letter)) return AddLiterals({letter});
        FTo.FCells.push_back({letter, 0, FCase});
    }
  }

  void Lower() {
    const bool asTyped = FAt < FMask.size() && FMask[FAt] == U'>';
    FCase = asTyped ? TCase::AsTyped : TCase::Lower;
    if (asTyped) ++FAt;
  }

  void AddLiterals(const TEdited& literals) {
    for (const char32_t each : literals) FTo.FCells.push_back({0, each, TCase::AsTyped});
  }

  void ParseFields(const TEdited& fields) {
    const auto end = fields.find(U';');
    const TEdited keeps = fields.substr(0, end);
    if (keeps.size() > 1 || (keeps.size() == 1 && keeps != U"0" && keeps != U"1")) {
      Refuse("says neither 0 nor 1 of its literals");
    }
    FTo.FKeepsLiterals = keeps != U"0";
    if (end == TEdited::npos) return;
    const TEdited blank = fields.substr(end + 1);
    if (blank.size() > 1) Refuse("has more than one character for its empty cells");
    if (!blank.empty()) FTo.FBlank = blank.front();
  }

  [[noreturn]] void Refuse(const char* why) const {
    throw EMaskError(Concat("The mask '", Shown(FText), "' ", why));
  }

  TMaskText& FTo;
  std::string_view FText;
  TEdited FMask;
  const TFormatSettings& FSettings;
  std::size_t FAt = 0;
  TCase FCase = TCase::AsTyped;
};

TMaskText::TMaskText(std::string_view mask, const TFormatSettings& settings) {
  TParser(*this, mask, settings).Parse();
}

}  // namespace vcl
