// TQELDBStickyLabel: its table.
#include "qel/dbcontrols/Qeltdbstickylabel.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELDBStickyLabel::Class() {
  using T = TQELDBStickyLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TQELStickyLabel>(
      "qel::TQELDBStickyLabel", "qel/dbcontrols/Qeltdbstickylabel.h",
      {
          ReadOnly<&T::Caption>("Caption").Type("TCaption"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("ShowAccelChar").Default(false),
      });
  return info;
}

TQELDBStickyLabel::TQELDBStickyLabel(vcl::TComponent* owner) : TQELFieldLabel(owner) {
  HearOnlyAsked<TQELDBStickyLabel>();
}

}  // namespace qel
