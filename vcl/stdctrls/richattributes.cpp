// TTextAttributes and TParaAttributes: the system's formats of characters and paragraphs.
#include "vcl/stdctrls/richattributes.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/richformats.h"
#include "vcl/stdctrls/richedit.h"

namespace vcl {

using rich::TwipsPerPoint;

namespace {

/// SCF_DEFAULT, which is nothing, or SCF_SELECTION.
WPARAM RangeOf(TTextAttributes::TOf of) {
  return of == TTextAttributes::TOf::Default ? SCF_DEFAULT : SCF_SELECTION;
}

CHARFORMAT2W CharFormat(const TCustomRichEdit& edit, TTextAttributes::TOf of) {
  CHARFORMAT2W format = rich::EmptyCharFormat();
  Send(edit, EM_GETCHARFORMAT, RangeOf(of), reinterpret_cast<LPARAM>(&format));
  return format;
}

constexpr int MostTabs = MAX_TAB_STOPS;
constexpr double MostPoints = 1638;

PARAFORMAT2 EmptyParaFormat() {
  PARAFORMAT2 format{};
  format.cbSize = sizeof format;
  return format;
}

PARAFORMAT2 ParaFormat(const TCustomRichEdit& edit) {
  PARAFORMAT2 format = EmptyParaFormat();
  Send(edit, EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
  return format;
}

template <class Set>
void ChangeParagraph(TCustomRichEdit& edit, DWORD mask, const Set& set) {
  PARAFORMAT2 format = EmptyParaFormat();
  format.dwMask = mask;
  set(format);
  Send(edit, EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
}

}  // namespace

/// Changes what the mask says, and nothing else.
template <class Set>
static void ChangeText(TCustomRichEdit& edit, TTextAttributes::TOf of, DWORD mask, const Set& set) {
  CHARFORMAT2W format = rich::EmptyCharFormat();
  format.dwMask = mask;
  set(format);
  edit.ApplyCharFormat(RangeOf(of), &format);
}

std::string TTextAttributes::Name() const { return ToUtf8(CharFormat(FEdit, FOf).szFaceName); }

void TTextAttributes::SetName(const std::string& name) {
  const std::wstring wide = rich::CheckedFace(name);
  ChangeText(FEdit, FOf, CFM_FACE,
             [&](CHARFORMAT2W& format) { std::ranges::copy(wide, format.szFaceName); });
}

double TTextAttributes::Size() const {
  return static_cast<double>(CharFormat(FEdit, FOf).yHeight) / TwipsPerPoint;
}

void TTextAttributes::SetSize(double points) {
  if (!(points >= 1 && points <= MostPoints)) {
    throw EArgumentOutOfRangeException(
        Concat("Characters cannot be ", std::to_string(points), " points high"));
  }
  ChangeText(FEdit, FOf, CFM_SIZE, [&](CHARFORMAT2W& format) {
    format.yHeight = static_cast<LONG>(std::lround(points * TwipsPerPoint));
  });
}

TColor TTextAttributes::Color() const {
  const CHARFORMAT2W format = CharFormat(FEdit, FOf);
  if (format.dwEffects & CFE_AUTOCOLOR) return clWindowText;
  return static_cast<TColor>(format.crTextColor);
}

void TTextAttributes::SetColor(TColor color) {
  ChangeText(FEdit, FOf, CFM_COLOR, [&](CHARFORMAT2W& format) { rich::PutColor(format, color); });
}

TFontStyles TTextAttributes::Style() const {
  return rich::StyleOf(CharFormat(FEdit, FOf).dwEffects);
}

void TTextAttributes::SetStyle(TFontStyles style) {
  ChangeText(FEdit, FOf, rich::StyleMask,
             [&](CHARFORMAT2W& format) { format.dwEffects = rich::EffectsOf(style); });
}

bool TTextAttributes::Protected() const {
  return (CharFormat(FEdit, FOf).dwEffects & CFE_PROTECTED) != 0;
}

void TTextAttributes::SetProtected(bool isProtected) {
  ChangeText(FEdit, FOf, CFM_PROTECTED, [&](CHARFORMAT2W& format) {
    if (isProtected) format.dwEffects = CFE_PROTECTED;
  });
}

void TTextAttributes::Assign(const TPersistent* source) {
  if (const auto* font = dynamic_cast<const TFont*>(source)) {
    CHARFORMAT2W format = rich::FormatOf(*font);
    FEdit.ApplyCharFormat(RangeOf(FOf), &format);
  } else if (const auto* other = dynamic_cast<const TTextAttributes*>(source)) {
    CHARFORMAT2W format = CharFormat(other->FEdit, other->FOf);
    FEdit.ApplyCharFormat(RangeOf(FOf), &format);
  } else {
    TPersistent::Assign(source);
  }
}

TAlignment TParaAttributes::Alignment() const {
  const WORD alignment = ParaFormat(FEdit).wAlignment;
  return alignment == PFA_RIGHT    ? taRightJustify
         : alignment == PFA_CENTER ? taCenter
                                   : taLeftJustify;
}

void TParaAttributes::SetAlignment(TAlignment alignment) {
  static constexpr WORD values[] = {PFA_LEFT, PFA_RIGHT, PFA_CENTER};
  ChangeParagraph(FEdit, PFM_ALIGNMENT,
                  [&](PARAFORMAT2& format) { format.wAlignment = values[alignment]; });
}

TNumberingStyle TParaAttributes::Numbering() const {
  return ParaFormat(FEdit).wNumbering == PFN_BULLET ? nsBullet : nsNone;
}

void TParaAttributes::SetNumbering(TNumberingStyle numbering) {
  ChangeParagraph(FEdit, PFM_NUMBERING, [&](PARAFORMAT2& format) {
    format.wNumbering = numbering == nsBullet ? static_cast<WORD>(PFN_BULLET) : WORD{0};
  });
}

int TParaAttributes::FirstIndent() const {
  return static_cast<int>(ParaFormat(FEdit).dxStartIndent / TwipsPerPoint);
}

void TParaAttributes::SetFirstIndent(int points) {
  ChangeParagraph(FEdit, PFM_STARTINDENT,
                  [&](PARAFORMAT2& format) { format.dxStartIndent = points * TwipsPerPoint; });
}

int TParaAttributes::LeftIndent() const {
  return static_cast<int>(ParaFormat(FEdit).dxOffset / TwipsPerPoint);
}

void TParaAttributes::SetLeftIndent(int points) {
  ChangeParagraph(FEdit, PFM_OFFSET,
                  [&](PARAFORMAT2& format) { format.dxOffset = points * TwipsPerPoint; });
}

int TParaAttributes::RightIndent() const {
  return static_cast<int>(ParaFormat(FEdit).dxRightIndent / TwipsPerPoint);
}

void TParaAttributes::SetRightIndent(int points) {
  ChangeParagraph(FEdit, PFM_RIGHTINDENT,
                  [&](PARAFORMAT2& format) { format.dxRightIndent = points * TwipsPerPoint; });
}

int TParaAttributes::TabCount() const { return ParaFormat(FEdit).cTabCount; }

int TParaAttributes::Tab(int index) const {
  const PARAFORMAT2 format = ParaFormat(FEdit);
  if (index < 0 || index >= format.cTabCount) {
    throw EListError(Concat("Tab stop ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(format.cTabCount)));
  }
  constexpr LONG place = 0x00FFFFFF;  // Above it is how the text stands there.
  return static_cast<int>((format.rgxTabs[index] & place) / TwipsPerPoint);
}

void TParaAttributes::SetTabs(const std::vector<int>& points) {
  if (points.size() > static_cast<std::size_t>(MostTabs)) {
    throw EArgumentOutOfRangeException(
        Concat("A paragraph cannot have ", std::to_string(points.size()), " tab stops"));
  }
  ChangeParagraph(FEdit, PFM_TABSTOPS, [&](PARAFORMAT2& format) {
    format.cTabCount = static_cast<SHORT>(points.size());
    std::ranges::transform(points, format.rgxTabs, [](int each) { return each * TwipsPerPoint; });
  });
}

}  // namespace vcl
