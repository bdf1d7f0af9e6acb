// TColorLines: which colours there are, what they are called, and their swatches.
#include "vcl/dialogs/colorlines.h"

#include <cctype>
#include <vector>

#include "vcl/dialogs/colordialog.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr const char* CustomLine = "Custom...";

/// What has no name in form files.
struct TExtendedColor {
  const char* Name;
  TColor Color;
};
constexpr TExtendedColor ExtendedColors[] = {{"clMoneyGreen", static_cast<TColor>(0xC0DCC0)},
                                             {"clSkyBlue", static_cast<TColor>(0xF0CAA6)},
                                             {"clCream", static_cast<TColor>(0xF0FBFF)},
                                             {"clMedGray", static_cast<TColor>(0xA4A0A0)}};

/// "clBtnFace" as "Btn face", "cl3DDkShadow" as "3D dk shadow".
std::string PrettyName(const std::string& ident) {
  const auto upper = [&](std::size_t i) {
    return i < ident.size() && std::isupper(static_cast<unsigned char>(ident[i])) != 0;
  };
  std::string pretty;
  for (std::size_t i = 2; i < ident.size(); ++i) {
    const bool begins = i > 2 && upper(i) && !(i == 3 && !upper(2));
    if (begins) pretty += ' ';
    const char c = ident[i];
    pretty += begins ? static_cast<char>(std::tolower(static_cast<unsigned char>(c))) : c;
  }
  return pretty;
}

std::string LineOf(const std::string& name, TColor color) {
  return Concat(name, "=", ColorToString(color));
}

bool IsSystemColor(TColor color) { return static_cast<std::int32_t>(color) < 0; }

}  // namespace

TColorLines::TColorLines(TCustomListControl& list, const TGetColorsEvent& onGetColors)
    : FList(list), FOnGetColors(onGetColors) {}

void TColorLines::SetStyle(TColorBoxStyle style) {
  if (style == FStyle) return;
  FStyle = style;
  Fill();
}

void TColorLines::SetDefaultColor(TColor color) {
  FDefault = color;
  FList.Invalidate();
}

void TColorLines::SetNoneColor(TColor color) {
  FNone = color;
  FList.Invalidate();
}

TColor TColorLines::Selected() const {
  const int index = FList.ItemIndex();
  return index < 0 ? FWanted : Colors(index);
}

void TColorLines::Select(TColor color) {
  FWanted = color;
  const int index = IndexOf(color);
  index < 0 ? SelectUnlisted(color) : FList.SetItemIndex(index);
  FList.Invalidate();
}

void TColorLines::SelectUnlisted(TColor color) {
  const bool custom = FStyle.Has(cbCustomColor);
  if (custom) SetCustom(color);
  FList.SetItemIndex(custom ? 0 : -1);
}

void TColorLines::SelectPicked(TColor color) {
  FWanted = color;
  SetCustom(color);
  FList.SetItemIndex(0);
  FList.Invalidate();
}

void TColorLines::SetCustom(TColor color) {
  FCustom = color;
  SetMark(FList, 0, color);
}

/// Another line's before the custom one's, whose colour may be the same.
int TColorLines::IndexOf(TColor color) const {
  const int first = FStyle.Has(cbCustomColor) ? 1 : 0;
  for (int i = first; i < FList.Items()->Count(); ++i) {
    if (Colors(i) == color) return i;
  }
  return -1;
}

bool TColorLines::PickCustom() {
  const TWatch watch(&FList);
  TColorDialog dialog(nullptr);
  dialog.SetColor(FCustom);
  dialog.SetOptions({cdFullOpen});
  if (!dialog.Execute() || watch.Gone()) return false;
  SelectPicked(dialog.Color());
  return true;
}

std::string TColorLines::NameOf(const std::string& ident) const {
  return FStyle.Has(cbPrettyNames) ? PrettyName(ident) : ident;
}

void TColorLines::AddLines(TStrings& lines) const {
  const auto add = [&](TColor color) { lines.Add(LineOf(NameOf(*ColorToIdent(color)), color)); };
  if (FStyle.Has(cbIncludeDefault)) add(clDefault);
  if (FStyle.Has(cbIncludeNone)) add(clNone);
  std::vector<TColor> standard;
  std::vector<TColor> system;
  GetColorValues([&](const std::string& ident) {
    const TColor color = StringToColor(ident);
    if (color == clNone || color == clDefault) return;
    (IsSystemColor(color) ? system : standard).push_back(color);
  });
  if (FStyle.Has(cbStandardColors)) {
    for (const TColor color : standard) add(color);
  }
  if (FStyle.Has(cbExtendedColors)) {
    for (const auto& [name, color] : ExtendedColors) lines.Add(LineOf(NameOf(name), color));
  }
  if (FStyle.Has(cbSystemColors)) {
    for (const TColor color : system) add(color);
  }
}

void TColorLines::Fill() {
  TStringList lines;
  AddLines(lines);
  const TWatch watch(&FList);
  if (FStyle.Has(cbCustomColors)) FOnGetColors(&FList, &lines);
  if (watch.Gone()) return;
  std::vector<std::pair<std::string, TColor>> colors;
  if (FStyle.Has(cbCustomColor)) colors.emplace_back(CustomLine, FCustom);
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line = lines.Strings(i);
    const auto equals = line.rfind('=');
    if (equals == std::string::npos) {
      throw EConvertError(Concat("'", Shown(line), "' is no name, '=' and a colour"));
    }
    colors.emplace_back(line.substr(0, equals), StringToColor(line.substr(equals + 1)));
  }
  const TColor selected = Selected();
  {
    const TUpdating updating(*FList.Items(), &FList);
    FList.Items()->Clear();
    for (const auto& [name, color] : colors) SetMark(FList, FList.Items()->Add(name), color);
  }
  Select(selected);
}

TColor TColorLines::ShownColor(int index) const {
  const TColor color = Colors(index);
  return color == clDefault ? FDefault : color == clNone ? FNone : color;
}

void TColorLines::Draw(TCustomListControl& list, int index, const TRect& rect, TOwnerDrawState) {
  const int margin = list.ScaledPixels(2);
  const int size = rect.Height() - 2 * margin;
  const TRect swatch = Bounds(rect.Left + margin, rect.Top + margin, size * 3 / 2, size);
  DrawSwatch(index, swatch);
  DrawLineText(list, rect, swatch.Right - rect.Left + list.ScaledPixels(4),
               list.Items()->Strings(index));
}

void TColorLines::DrawSwatch(int index, const TRect& swatch) const {
  TCanvas& canvas = *FList.Canvas();
  const TColor back = canvas.Brush()->Color();
  canvas.Brush()->SetColor(ShownColor(index));
  canvas.FillRect(swatch);
  canvas.Brush()->SetColor(FList.Enabled() ? clWindowText : clGrayText);
  canvas.FrameRect(swatch);
  canvas.Brush()->SetColor(back);
}

}  // namespace vcl
