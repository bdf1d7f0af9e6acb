// Fonts as the system's rich edit describes them.
#include <algorithm>
#include <cstdlib>

#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/richformats.h"

namespace vcl::rich {
namespace {

struct TStyleEffect {
  TFontStyle Style;
  DWORD Effect;
};
constexpr TStyleEffect StyleEffects[] = {{fsBold, CFE_BOLD},
                                         {fsItalic, CFE_ITALIC},
                                         {fsUnderline, CFE_UNDERLINE},
                                         {fsStrikeOut, CFE_STRIKEOUT}};

}  // namespace

CHARFORMAT2W EmptyCharFormat() {
  CHARFORMAT2W format{};
  format.cbSize = sizeof format;
  return format;
}

std::wstring CheckedFace(const std::string& name) {
  std::wstring wide = ToUtf16(name);
  if (wide.size() >= LF_FACESIZE) {
    throw EArgumentOutOfRangeException(Concat("The font name '", Shown(name), "' is too long"));
  }
  return wide;
}

void PutColor(CHARFORMAT2W& format, TColor color) {
  const bool systems = color == clWindowText || color == clDefault;
  format.crTextColor = ColorToRGB(color);
  if (systems) format.dwEffects |= CFE_AUTOCOLOR;
}

DWORD EffectsOf(TFontStyles style) {
  DWORD effects = 0;
  for (const auto& [each, effect] : StyleEffects) effects |= style.Has(each) ? effect : 0;
  return effects;
}

TFontStyles StyleOf(DWORD effects) {
  TFontStyles style;
  for (const auto& [each, effect] : StyleEffects) {
    if (effects & effect) style.Include(each);
  }
  return style;
}

CHARFORMAT2W FormatOf(const TFont& font) {
  CHARFORMAT2W format = EmptyCharFormat();
  format.dwMask = CFM_FACE | CFM_SIZE | CFM_COLOR | CFM_CHARSET | StyleMask;
  std::ranges::copy(CheckedFace(font.Name()), format.szFaceName);
  format.yHeight = std::abs(font.Size()) * TwipsPerPoint;
  format.bCharSet = font.Charset();
  format.dwEffects = EffectsOf(font.Style());
  PutColor(format, font.Color());
  return format;
}

}  // namespace vcl::rich
