// TQELDBOfficeEdit: its table, and emptying the field.
#include "qel/dbcontrols/Qeltdbofficeedit.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELDBOfficeEdit::Class() {
  using T = TQELDBOfficeEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TQELOfficeEdit>(
      "qel::TQELDBOfficeEdit", "qel/dbcontrols/Qeltdbofficeedit.h",
      {
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          vcl::ReadOnly<&T::Text>("Text").Type("TCaption"),
      });
  return info;
}

TQELDBOfficeEdit::TQELDBOfficeEdit(vcl::TComponent* owner) : TQELFieldEdit(owner) {
  HearOnlyAsked<TQELDBOfficeEdit>();
}

void TQELDBOfficeEdit::ClearClick() {
  if (EditField()) TQELFieldEdit::ClearClick();
}

}  // namespace qel
