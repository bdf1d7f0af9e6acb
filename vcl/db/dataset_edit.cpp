// Changing the records.
#include <utility>

#include "vcl/db/dataset.h"
#include "vcl/db/private/masterlink.h"
#include "vcl/db/private/recordview.h"
#include "vcl/rtl/text.h"

namespace vcl {

void TDataSet::UpdateRecord() {
  if (!Editing()) Refuse("The dataset is not in edit or insert mode");
  DataEvent(deUpdateRecord);
}

void TDataSet::CheckBrowseMode() {
  CheckActive();
  DataEvent(deCheckBrowseMode);
  CheckActive();
  if (!Editing()) return;
  UpdateRecord();
  FModified ? Post() : Cancel();
  CheckActive();
}

/// Tries until it is done or the handler gives up.
void TDataSet::Attempt(const TDataSetErrorEvent& onError, const std::function<void()>& operation) {
  for (;;) {
    try {
      return operation();
    } catch (const EDatabaseError& error) {
      TDataAction action = daFail;
      TWatch watch(this);
      onError(this, error, action);
      if (watch.Gone() || action == daAbort) throw EAbort(error.Message());
      if (action == daFail) throw;
      CheckActive();
    }
  }
}

void TDataSet::Edit() {
  CheckActive();
  if (Editing()) return;
  if (IsEmpty()) return Insert();
  CheckCanModify();
  Fire(BeforeEdit);
  CheckActive();
  if (IsEmpty()) Refuse("There is no record to edit");
  FEdited = FBefore = *ViewAt(FIndex);
  FState = dsEdit;
  FModified = false;
  ShowCurrent();
  DataEvent(deUpdateState);
  DataEvent(deRecordChange);
  Fire(AfterEdit);
}

void TDataSet::Insert() { BeginInsert(false); }
void TDataSet::Append() { BeginInsert(!IsUniDirectional()); }

void TDataSet::BeginInsert(bool atEnd) {
  CheckBrowseMode();
  CheckCanModify();
  Fire(BeforeInsert);
  CheckActive();
  Fire(BeforeScroll);
  CheckActive();
  FEdited.assign(static_cast<std::size_t>(FFieldDefs->Count()), {});
  FillFixed();
  FBefore = FEdited;
  if (atEnd) FIndex = FStore->Count();
  FBof = FEof = false;
  FState = dsInsert;
  ShowCurrent();
  DataEvent(deUpdateState);
  Fire(OnNewRecord);
  FModified = false;
  DataEvent(deDataSetChange);
  Fire(AfterInsert);
  Fire(AfterScroll);
}

void TDataSet::SetRecord(const TRecord& values) {
  if (values.size() > static_cast<std::size_t>(FFields.Count())) {
    Refuse(Concat("A record of ", std::to_string(values.size()), " values is too long for ",
                  std::to_string(FFields.Count()), " fields"));
  }
  for (std::size_t i = 0; i < values.size(); ++i) {
    TField* field = FFields[static_cast<int>(i)];
    if (field->FieldKind() == fkData || !IsNull(values[i])) field->SetValue(values[i]);
  }
  Post();
}

void TDataSet::InsertRecord(const TRecord& values) {
  Insert();
  SetRecord(values);
}

void TDataSet::AppendRecord(const TRecord& values) {
  Append();
  SetRecord(values);
}

void TDataSet::Post() {
  CheckActive();
  if (!Editing()) Refuse("The dataset is not in edit or insert mode");
  UpdateRecord();
  Fire(BeforePost);
  if (!Editing()) return;
  for (TField* field : FFields) field->CheckPosted();
  const bool inserting = FState == dsInsert;
  TRecord record = FEdited;
  // What a filter raises is heard before the record is written.
  if (FView) FView->Accepts(record);
  Attempt(OnPostError,
          [&] { inserting ? InternalInsert(record) : InternalUpdate(FBefore, record); });
  const int place = inserting ? FStore->Insert(FIndex, record) : FStore->Replace(FIndex, record);
  if (place >= 0) FIndex = place;
  Resync();
  Fire(AfterPost);
}

void TDataSet::Cancel() {
  CheckActive();
  if (!Editing()) return;
  const bool inserting = FState == dsInsert;
  Fire(BeforeCancel);
  if (!Editing()) return;
  if (inserting) Fire(BeforeScroll);
  if (!Editing()) return;
  Resync();
  Fire(AfterCancel);
  if (inserting && Active()) Fire(AfterScroll);
}

void TDataSet::Delete() {
  CheckActive();
  if (FState == dsInsert) return Cancel();
  if (IsEmpty()) Refuse("Cannot delete from an empty dataset");
  CheckCanModify();
  Fire(BeforeDelete);
  CheckActive();
  Fire(BeforeScroll);
  CheckActive();
  const TRecord record = FState == dsEdit ? FBefore : *ViewAt(FIndex);
  Attempt(OnDeleteError, [&] { InternalDelete(record); });
  FStore->Erase(FIndex);
  Resync();
  Fire(AfterDelete);
  if (Active()) Fire(AfterScroll);
}

/// Back to dsBrowse, at the current record, or, when that has gone, at the next or else the one
/// before.
void TDataSet::Resync() {
  if (!FStore->At(FIndex) && FIndex > 0 && !IsUniDirectional()) GoTo(FStore->Count() - 1);
  FBof = FEof = FStore->At(FIndex) == nullptr;
  if (FBof && !IsUniDirectional()) FIndex = 0;
  const bool edited = std::exchange(FState, dsBrowse) != dsBrowse;
  FModified = false;
  ShowCurrent();
  if (edited) DataEvent(deUpdateState);
  DataEvent(deDataSetChange);
}

void TDataSet::ClearFields() {
  if (!Editing()) Refuse("The dataset is not in edit or insert mode");
  FEdited.assign(FEdited.size(), {});
  FModified = true;
  DataEvent(deRecordChange);
}

void TDataSet::Refresh() {
  CheckBrowseMode();
  Fire(BeforeRefresh);
  CheckActive();
  InternalRefresh();
  if (FView) FView->Reset();
  if (IsUniDirectional()) FIndex = 0;
  Resync();
  Fire(AfterRefresh);
}

void TDataSet::Write(TField& field, const TFieldValue& value) {
  FEdited[static_cast<std::size_t>(field.FFieldNo)] = value;
  FModified = true;
  TWatch watch(this);
  DataEvent(deFieldChange, &field);
  if (Calculates() && FAutoCalcFields) DataEvent(deRecordChange);
  if (!watch.Gone()) field.OnChange(&field);
}

}  // namespace vcl
