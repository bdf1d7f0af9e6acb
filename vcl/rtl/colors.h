// TColor, the names of colours, and the conversion between colours and text.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "vcl/rtl/api.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

/// A colour: 0x00BBGGRR, or 0x80000000 + n for the system colour of index n (GetSysColor), or
/// clNone.
enum TColor : std::int32_t {
  clBlack = 0x000000,
  clMaroon = 0x000080,
  clGreen = 0x008000,
  clOlive = 0x008080,
  clNavy = 0x800000,
  clPurple = 0x800080,
  clTeal = 0x808000,
  clGray = 0x808080,
  clSilver = 0xC0C0C0,
  clRed = 0x0000FF,
  clLime = 0x00FF00,
  clYellow = 0x00FFFF,
  clBlue = 0xFF0000,
  clFuchsia = 0xFF00FF,
  clAqua = 0xFFFF00,
  clWhite = 0xFFFFFF,
  clLtGray = clSilver,
  clDkGray = clGray,
  clNone = 0x1FFFFFFF,
  clDefault = 0x20000000,

  clScrollBar = static_cast<std::int32_t>(0x80000000),
  clBackground,
  clActiveCaption,
  clInactiveCaption,
  clMenu,
  clWindow,
  clWindowFrame,
  clMenuText,
  clWindowText,
  clCaptionText,
  clActiveBorder,
  clInactiveBorder,
  clAppWorkSpace,
  clHighlight,
  clHighlightText,
  clBtnFace,
  clBtnShadow,
  clGrayText,
  clBtnText,
  clInactiveCaptionText,
  clBtnHighlight,
  cl3DDkShadow,
  cl3DLight,
  clInfoText,
  clInfoBk,
};

/// The colour's name ("clBtnFace"); nothing for a colour without one.
VCL_API std::optional<std::string> ColorToIdent(std::int64_t color);
/// The colour of that name, compared without case; nothing when there is none.
VCL_API std::optional<std::int64_t> IdentToColor(std::string_view ident);
/// The colour's name, or "$" and eight hexadecimal digits.
VCL_API std::string ColorToString(TColor color);
/// The colour that a name or a number says: decimal, or hexadecimal behind "$" or "0x". Raises
/// EConvertError, with the text, for anything else.
VCL_API TColor StringToColor(std::string_view text);
/// The colour of a number from outside, such as a form file's: of the two numbers that system
/// colours are known by, 0xFF000000 + n becomes 0x80000000 + n, so that equal colours are equal.
VCL_API TColor ColorOfNumber(std::int32_t number);
/// Calls `each` for every colour that has a name, in the order of the palette.
VCL_API void GetColorValues(const std::function<void(const std::string&)>& each);

template <>
inline constexpr TIntegerText IntegerText<TColor>{
    "TColor", [](std::int64_t value) { return ColorToIdent(value); },
    [](std::string_view ident) { return IdentToColor(ident); },
    [](const std::function<void(const std::string&)>& each) { GetColorValues(each); }};

}  // namespace vcl
