// Fields that are in no record: looked up in other data sets and calculated by OnCalcFields.
#include "vcl/db/dataset.h"
#include "vcl/db/private/looking.h"
#include "vcl/db/private/masterlink.h"
#include "vcl/db/private/recordview.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

/// The value of a calculated field in the record that the fields show.
const TFieldValue& TDataSet::Calculated(int fieldNo) const {
  if (FBusy != dsCalcFields && (FLooking || FCalculatedAt != FShown)) Calculate();
  return FCalculated[static_cast<std::size_t>(fieldNo - FFieldDefs->Count())];
}

const TFieldValue& TDataSet::CalculatedIn(const TRecord& record, int fieldNo) const {
  Look(record, [&] { Calculated(fieldNo); });
  return FCalculated[static_cast<std::size_t>(fieldNo - FFieldDefs->Count())];
}

void TDataSet::Calculate() const {
  FCalculated.assign(FCalculated.size(), {});
  FCalculatedAt = -1;
  if (!Shown()) return;
  const TSetFor busy(FBusy, dsCalcFields, this);
  for (TField* field : FFields) {
    if (field->FFieldKind != fkLookup) continue;
    FCalculated[static_cast<std::size_t>(field->FFieldNo - FFieldDefs->Count())] = field->LookUp();
  }
  auto* self = const_cast<TDataSet*>(this);
  self->Fire(OnCalcFields);
  FCalculatedAt = FLooking ? -1 : FShown;
}

void TDataSet::WriteCalculated(const TField& field, const TFieldValue& value) {
  if (FBusy != dsCalcFields || field.FFieldKind != fkCalculated) {
    Refuse(Concat("Field '", field.FieldName(), "' can only be ",
                  field.FFieldKind == fkLookup ? "looked up" : "written by OnCalcFields"));
  }
  FCalculated[static_cast<std::size_t>(field.FFieldNo - FFieldDefs->Count())] = value;
}

}  // namespace vcl
