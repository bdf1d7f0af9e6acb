// The editor of the colours in between: showing its form, and taking its list.
#include "qel/design/Qelcolorsinbetween.h"

#include "qel/design/colorsform.h"

namespace qel {

void TQELColorInBetweenProperty::Edit() {
  auto* colors = dynamic_cast<vcl::TStrings*>(ObjectValue());
  if (!colors) return;
  TQELColorsForm form(nullptr);
  form.Colors()->Clear();
  form.Colors()->AddStrings(*colors);
  form.ShowModal();
  // Whatever button has closed the form: a cancel keeps the edits, too.
  colors->Clear();
  colors->AddStrings(*form.Colors());
  Modified();
}

}  // namespace qel
