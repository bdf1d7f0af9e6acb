// Saving the records of TMemoryDataSet, and loading them.
#include <utility>

#include "vcl/db/memorydataset.h"
#include "vcl/db/private/recordfile.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {

std::string TMemoryDataSet::SavedAs(TDataFormat format) {
  if (Active()) CheckBrowseMode();
  if (FieldDefs()->Count() == 0) Refuse("There are no field definitions");
  if (!Active() && Redefined()) Rearrange();
  TSavedRecords saved;
  for (int i = 0; i < FDefined.Count(); ++i) {
    const TFieldDef& field = *FDefined.Items(i);
    saved.Fields.push_back({field.Name(), field.DataType(), field.Size(), field.Required()});
  }
  for (int i = 0; i < FRecords.Count(); ++i) saved.Records.push_back(*FRecords.At(i));
  return format == dfJson ? WriteRecordJson(saved) : WriteRecordText(saved);
}

void TMemoryDataSet::SaveToStream(TStream& stream, TDataFormat format) {
  stream.WriteText(SavedAs(format));
}

void TMemoryDataSet::SaveToFile(const std::string& fileName, TDataFormat format) {
  ReplaceWholeFile(fileName, SavedAs(format));
}

void TMemoryDataSet::LoadFromStream(TStream& stream) {
  const std::string bytes = stream.ReadRest();
  TSavedRecords saved = ReadRecordFile(bytes);
  TFieldDefs fields;
  for (const TSavedField& field : saved.Fields) {
    fields.Add(field.Name, field.DataType, field.Size, field.Required);
  }
  CheckPersistentFields(fields);
  TRecordList records;
  for (const TRecord& record : saved.Records) records.Insert(records.Count(), record);
  Replace(fields, std::move(records));
}

void TMemoryDataSet::LoadFromFile(const std::string& fileName) {
  TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
  try {
    LoadFromStream(file);
  } catch (const EDatabaseError& error) {
    throw EDatabaseError(Concat(fileName, ": ", error.Message()));
  }
}

/// Takes other definitions and records; what then cannot be opened is as before.
void TMemoryDataSet::Replace(const TFieldDefs& fields, TRecordList records) {
  const bool wasActive = Active();
  Close();
  TFieldDefs before;
  before.Assign(FieldDefs());
  TFieldDefs defined;
  defined.Assign(&FDefined);
  std::swap(FRecords, records);
  const TOnFailure restore(
      [&] {
        if (Active()) return;  // It has been opened, and a handler has raised then.
        FieldDefs()->Assign(&before);
        FDefined.Assign(&defined);
        std::swap(FRecords, records);
        if (wasActive) Open();
      },
      this);
  FieldDefs()->Assign(&fields);
  FDefined.Assign(&fields);
  Open();
}

}  // namespace vcl
