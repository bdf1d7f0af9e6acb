// TDBCheckBox: which values check it, and what it writes.
#include "vcl/dbctrls/dbcheckbox.h"

#include <string_view>

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// True when one of the texts with semicolons between them is the wanted one, but for case.
bool Lists(std::string_view texts, std::string_view wanted) {
  for (std::size_t begin = 0; begin <= texts.size();) {
    const std::size_t end = std::min(texts.find(';', begin), texts.size());
    if (SameText(Trim(texts.substr(begin, end - begin)), wanted)) return true;
    begin = end + 1;
  }
  return false;
}

std::string First(const std::string& texts) {
  return std::string(Trim(std::string_view(texts).substr(0, texts.find(';'))));
}

}  // namespace

const TClass& TDBCheckBox::Class() {
  using T = TDBCheckBox;
  static const TClass info = Describe<T, TCustomCheckBox>(
      "vcl::TDBCheckBox", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Alignment"),
          Inherit("AllowGrayed"),
          Inherit("Caption"),
          Inherit("Color"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("ParentColor"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Property<&T::ValueChecked, &T::SetValueChecked>("ValueChecked").Default("True"),
          Property<&T::ValueUnchecked, &T::SetValueUnchecked>("ValueUnchecked").Default("False"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

void TDBCheckBox::SetValueChecked(const std::string& values) {
  FChecked = values;
  ShowNow();
}

void TDBCheckBox::SetValueUnchecked(const std::string& values) {
  FUnchecked = values;
  ShowNow();
}

TCheckBoxState TDBCheckBox::FieldState() const {
  const TField* const field = Field();
  if (!field) return cbUnchecked;
  if (field->IsNull()) return cbGrayed;
  if (field->DataType() == ftBoolean) return field->AsBoolean() ? cbChecked : cbUnchecked;
  for (const std::string& text : {field->AsString(), field->DisplayText()}) {
    if (Lists(FChecked, text)) return cbChecked;
    if (Lists(FUnchecked, text)) return cbUnchecked;
  }
  return cbGrayed;
}

void TDBCheckBox::ShowField() { SetState(FieldState()); }

void TDBCheckBox::WriteField() {
  TField& field = *Field();
  if (State() == cbGrayed) return field.Clear();
  if (field.DataType() == ftBoolean) return field.SetAsBoolean(Checked());
  field.SetAsString(First(Checked() ? FChecked : FUnchecked));
}

/// What the record brings with it is no click.
void TDBCheckBox::Click() {
  if (!ShowingField()) TFieldEditor::Click();
}

void TDBCheckBox::Toggle() {
  const TWatch watch(this);
  {
    const TSetFor holding(Holding(), true, this);
    if (!EditField()) return;
  }
  Link().Modified();
  if (!watch.Gone()) TFieldEditor::Toggle();
}

}  // namespace vcl
