// TMemoryDataSet: records in memory, rearranged when the field definitions have changed.
#include "vcl/db/memorydataset.h"

#include "vcl/db/private/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TMemoryDataSet::Class() {
  using T = TMemoryDataSet;
  static const TClass info = Describe<T, TDataSet>(
      "vcl::TMemoryDataSet", "vcl/db/db.h",
      {Inherit("FieldDefs"), Inherit(DataSetView),
       Property<&T::IndexFieldNames, &T::SetIndexFieldNames>("IndexFieldNames").Default(""),
       Property<&T::MasterFields, &T::SetMasterFields>("MasterFields").Default(""),
       Inherit("Active"), Inherit(DataSetEvents)});
  return info;
}

TMemoryDataSet::~TMemoryDataSet() {
  AnnounceEnd();
  Shut();
}

TRecordStore& TMemoryDataSet::InternalOpen() {
  if (FieldDefs()->Count() == 0) Refuse("There are no field definitions");
  if (Redefined()) Rearrange();
  return FRecords;
}

bool TMemoryDataSet::Redefined() {
  if (FDefined.Count() != FieldDefs()->Count()) return true;
  for (int i = 0; i < FDefined.Count(); ++i) {
    const TFieldDef& now = *FieldDefs()->Items(i);
    if (FDefined.IndexOf(now.Name()) != i || FDefined.Items(i)->DataType() != now.DataType()) {
      return true;
    }
  }
  return false;
}

void TMemoryDataSet::Rearrange() {
  for (int i = 0; i < FRecords.Count(); ++i) {
    const TRecord& before = *FRecords.At(i);
    TRecord record(static_cast<std::size_t>(FieldDefs()->Count()));
    for (std::size_t field = 0; field < record.size(); ++field) {
      const TFieldDef& now = *FieldDefs()->Items(static_cast<int>(field));
      const int place = FDefined.IndexOf(now.Name());
      if (place < 0 || FDefined.Items(place)->DataType() != now.DataType()) continue;
      record[field] = before[static_cast<std::size_t>(place)];
    }
    FRecords.Replace(i, record);
  }
  FDefined.Assign(FieldDefs());
}

void TMemoryDataSet::EmptyTable() {
  if (Active()) CheckBrowseMode();
  FRecords.Clear();
  if (Active()) Refresh();
}

}  // namespace vcl
