// Fonts as the system's rich edit describes them.
#pragma once

#include <string>

#include "vcl/graphics/font.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <richedit.h>

namespace vcl::rich {

inline constexpr int TwipsPerPoint = 20;
inline constexpr DWORD StyleMask = CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE | CFM_STRIKEOUT;

CHARFORMAT2W EmptyCharFormat();
/// Face, size in points, colour and style of the font.
CHARFORMAT2W FormatOf(const TFont& font);
void PutColor(CHARFORMAT2W& format, TColor color);
DWORD EffectsOf(TFontStyles style);
TFontStyles StyleOf(DWORD effects);
/// The face's name; raises EArgumentOutOfRangeException for one of 32 UTF-16 units or more.
std::wstring CheckedFace(const std::string& name);

}  // namespace vcl::rich
