// The form of the colours: adding, changing, ordering and drawing them.
#include "qel/design/colorsform.h"

#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/module.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/colors.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"

namespace qel {

using namespace vcl;

namespace {

constexpr int SwatchWidth = 28;

/// The colour of a line; nothing for a line that says none.
std::optional<TColor> ColorOf(const std::string& line) {
  try {
    return StringToColor(line);
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

}  // namespace

const TClass& TQELColorsForm::Class() {
  using T = TQELColorsForm;
  static const TClass info = Describe<T, TForm>("qel::TQELColorsForm", "qel/design/colorsform.h",
                                                {
                                                    Field<&T::ColorList>("ColorList"),
                                                    Field<&T::ChangeButton>("ChangeButton"),
                                                    Field<&T::DeleteButton>("DeleteButton"),
                                                    Field<&T::UpButton>("UpButton"),
                                                    Field<&T::DownButton>("DownButton"),
                                                    Method<&T::AddClick>("AddClick"),
                                                    Method<&T::ChangeClick>("ChangeClick"),
                                                    Method<&T::DeleteClick>("DeleteClick"),
                                                    Method<&T::UpClick>("UpClick"),
                                                    Method<&T::DownClick>("DownClick"),
                                                    Method<&T::ListClick>("ListClick"),
                                                    Method<&T::DrawColor>("DrawColor"),
                                                });
  return info;
}

TQELColorsForm::TQELColorsForm(TComponent* owner) : TForm(owner) {
  LoadForm(ModuleOf(&Class()));
  Select(-1);
}

void TQELColorsForm::AddClick(TObject*) {
  TColorDialog dialog(nullptr);
  if (dialog.Execute()) Select(Colors()->Add(ColorToString(dialog.Color())));
}

void TQELColorsForm::ChangeClick(TObject*) {
  const int index = ColorList->ItemIndex();
  if (index < 0) return;
  TColorDialog dialog(nullptr);
  dialog.SetColor(ColorOf(Colors()->Strings(index)).value_or(clBlack));
  if (!dialog.Execute()) return;
  Colors()->SetStrings(index, ColorToString(dialog.Color()));
  Select(index);
}

void TQELColorsForm::DeleteClick(TObject*) {
  const int index = ColorList->ItemIndex();
  if (index < 0) return;
  Colors()->Delete(index);
  Select(std::min(index, Colors()->Count() - 1));
}

void TQELColorsForm::UpClick(TObject*) { Move(-1); }
void TQELColorsForm::DownClick(TObject*) { Move(1); }

void TQELColorsForm::Move(int by) {
  const int index = ColorList->ItemIndex();
  const int target = index + by;
  if (index < 0 || target < 0 || target >= Colors()->Count()) return;
  Colors()->Move(index, target);
  Select(target);
}

void TQELColorsForm::Select(int index) {
  ColorList->SetItemIndex(index);
  ListClick(ColorList);
}

void TQELColorsForm::ListClick(TObject*) {
  const int index = ColorList->ItemIndex();
  ChangeButton->SetEnabled(index >= 0);
  DeleteButton->SetEnabled(index >= 0);
  UpButton->SetEnabled(index > 0);
  DownButton->SetEnabled(index >= 0 && index < Colors()->Count() - 1);
}

void TQELColorsForm::DrawColor(TObject*, int index, const TRect& rect, TOwnerDrawState) {
  TCanvas& canvas = *ColorList->Canvas();
  canvas.FillRect(rect);
  const std::string line = Colors()->Strings(index);
  const TRect swatch(rect.Left + 2, rect.Top + 2, rect.Left + 2 + SwatchWidth, rect.Bottom - 2);
  canvas.TextOut(swatch.Right + 6, rect.Top + 1, line);
  if (const auto color = ColorOf(line)) {
    canvas.Brush()->SetColor(*color);
    canvas.Pen()->SetColor(clWindowText);
    canvas.Rectangle(swatch);
  }
}

}  // namespace qel
