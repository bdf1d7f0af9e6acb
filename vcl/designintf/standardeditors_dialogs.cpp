// The editors of colours and fonts.
#include "vcl/designintf/maskdialog.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/dialogs/dialogs.h"

namespace vcl {
TPropertyAttributes TColorProperty::GetAttributes() const {
  return TIntegerProperty::GetAttributes() + TPropertyAttributes{paDialog};
}

void TColorProperty::Edit() {
  TColorDialog dialog(nullptr);
  dialog.SetColor(static_cast<TColor>(std::get<std::int64_t>(Value())));
  dialog.SetOptions({cdFullOpen});
  if (dialog.Execute()) SetAll(std::int64_t{dialog.Color()});
}

TPropertyAttributes TMaskProperty::GetAttributes() const {
  return TStringProperty::GetAttributes() + TPropertyAttributes{paDialog};
}

void TMaskProperty::Edit() {
  std::string mask = GetValue();
  if (EditMask(GetName(), mask)) SetValue(mask);
}

TPropertyAttributes TFontProperty::GetAttributes() const {
  return TClassProperty::GetAttributes() + TPropertyAttributes{paDialog};
}

void TFontProperty::Edit() {
  TFontDialog dialog(nullptr);
  if (const auto* font = dynamic_cast<const TFont*>(ObjectValue())) dialog.SetFont(font);
  if (dialog.Execute()) AssignAll(*dialog.Font());
}

}  // namespace vcl
