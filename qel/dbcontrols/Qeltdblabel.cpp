// TQELDBLabel: its table.
#include "qel/dbcontrols/Qeltdblabel.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELDBLabel::Class() {
  using T = TQELDBLabel;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELLabel>("qel::TQELDBLabel", "qel/dbcontrols/Qeltdblabel.h",
                             {
                                 ReadOnly<&T::Caption>("Caption").Type("TCaption"),
                                 Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
                                 Property<&T::DataSource, &T::SetDataSource>("DataSource"),
                                 Inherit("ShowAccelChar").Default(false),
                             });
  return info;
}

TQELDBLabel::TQELDBLabel(vcl::TComponent* owner) : TQELFieldLabel(owner) {
  HearOnlyAsked<TQELDBLabel>();
}

}  // namespace qel
