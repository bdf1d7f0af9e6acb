// The names of colours, and colours as texts and back.
#include "vcl/rtl/colors.h"

#include <algorithm>
#include <iterator>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

struct TNamedColor {
  std::string_view Name;
  TColor Color;
};

#define VCL_COLOR(name) \
  { #name, name }
constexpr TNamedColor Palette[] = {VCL_COLOR(clBlack),         VCL_COLOR(clMaroon),
                                   VCL_COLOR(clGreen),         VCL_COLOR(clOlive),
                                   VCL_COLOR(clNavy),          VCL_COLOR(clPurple),
                                   VCL_COLOR(clTeal),          VCL_COLOR(clGray),
                                   VCL_COLOR(clSilver),        VCL_COLOR(clRed),
                                   VCL_COLOR(clLime),          VCL_COLOR(clYellow),
                                   VCL_COLOR(clBlue),          VCL_COLOR(clFuchsia),
                                   VCL_COLOR(clAqua),          VCL_COLOR(clWhite),
                                   VCL_COLOR(clScrollBar),     VCL_COLOR(clBackground),
                                   VCL_COLOR(clActiveCaption), VCL_COLOR(clInactiveCaption),
                                   VCL_COLOR(clMenu),          VCL_COLOR(clWindow),
                                   VCL_COLOR(clWindowFrame),   VCL_COLOR(clMenuText),
                                   VCL_COLOR(clWindowText),    VCL_COLOR(clCaptionText),
                                   VCL_COLOR(clActiveBorder),  VCL_COLOR(clInactiveBorder),
                                   VCL_COLOR(clAppWorkSpace),  VCL_COLOR(clHighlight),
                                   VCL_COLOR(clHighlightText), VCL_COLOR(clBtnFace),
                                   VCL_COLOR(clBtnShadow),     VCL_COLOR(clGrayText),
                                   VCL_COLOR(clBtnText),       VCL_COLOR(clInactiveCaptionText),
                                   VCL_COLOR(clBtnHighlight),  VCL_COLOR(cl3DDkShadow),
                                   VCL_COLOR(cl3DLight),       VCL_COLOR(clInfoText),
                                   VCL_COLOR(clInfoBk),        VCL_COLOR(clNone),
                                   VCL_COLOR(clDefault)};
constexpr TNamedColor SecondNames[] = {VCL_COLOR(clLtGray), VCL_COLOR(clDkGray)};
#undef VCL_COLOR

}  // namespace

std::optional<std::string> ColorToIdent(std::int64_t color) {
  const auto* found = std::ranges::find(Palette, color, &TNamedColor::Color);
  if (found == std::end(Palette)) return std::nullopt;
  return std::string(found->Name);
}

std::optional<std::int64_t> IdentToColor(std::string_view ident) {
  const auto named = [&](const TNamedColor& each) { return SameText(each.Name, ident); };
  if (const auto* found = std::ranges::find_if(Palette, named); found != std::end(Palette)) {
    return found->Color;
  }
  const auto* found = std::ranges::find_if(SecondNames, named);
  if (found == std::end(SecondNames)) return std::nullopt;
  return found->Color;
}

std::string ColorToString(TColor color) {
  return ColorToIdent(color).value_or("$" + IntToHex(static_cast<std::uint32_t>(color), 8));
}

TColor StringToColor(std::string_view text) {
  if (const auto named = IdentToColor(text)) return static_cast<TColor>(*named);
  int number = 0;
  if (TryStrToInt(text, number)) return ColorOfNumber(number);
  throw EConvertError(Concat("'", Shown(text), "' is not a valid colour"));
}

TColor ColorOfNumber(std::int32_t number) {
  const auto bits = static_cast<std::uint32_t>(number);
  constexpr std::uint32_t aboveIndex = 0xFFFFFF00;
  const bool otherNumber = (bits & aboveIndex) == 0xFF000000;
  return static_cast<TColor>(otherNumber ? 0x80000000 | (bits & ~aboveIndex) : bits);
}

void GetColorValues(const std::function<void(const std::string&)>& each) {
  for (const TNamedColor& color : Palette) each(std::string(color.Name));
}

}  // namespace vcl
