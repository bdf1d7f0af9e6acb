// TDBEdit: what it publishes.
#include "vcl/dbctrls/dbedit.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TDBEdit::Class() {
  using T = TDBEdit;
  static const TClass info = Describe<T, TCustomMaskEdit>(
      "vcl::TDBEdit", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("AutoSelect"),
          Inherit("AutoSize"),
          Inherit("BorderStyle"),
          Inherit("CharCase"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField"),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PasswordChar"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
      });
  return info;
}

void TDBEdit::ShowField() {
  const TField* const field = Field();
  SetEditMask(field && Inside() ? field->EditMask() : std::string());
  TFieldTextEditor::ShowField();
}

void TDBEdit::WriteField() {
  ValidateEdit();
  TFieldTextEditor::WriteField();
}

}  // namespace vcl
