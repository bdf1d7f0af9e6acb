// How controls follow a data source: TDataLink with the records that its control shows, and
// TFieldDataLink, which follows one field.
#include <algorithm>
#include <utility>

#include "vcl/db/datasource.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

TDataLink::~TDataLink() {
  if (FDataSource) std::erase(FDataSource->FLinks, this);
}

void TDataLink::SetDataSource(TDataSource* dataSource) {
  if (FDataSource == dataSource) return;
  if (FDataSource) std::erase(FDataSource->FLinks, this);
  FDataSource = dataSource;
  if (FDataSource) FDataSource->FLinks.push_back(this);
  UpdateState();
}

void TDataLink::SetReadOnly(bool readOnly) {
  FReadOnly = readOnly;
  UpdateState();
}

bool TDataLink::Edit() {
  if (!FReadOnly && FDataSource) FDataSource->Edit();
  return FEditing;
}

void TDataLink::UpdateState() {
  const TDataSetState state = FDataSource ? FDataSource->State() : dsInactive;
  const bool active = state != dsInactive;
  const bool editing = !FReadOnly && (state == dsEdit || state == dsInsert);
  const bool activeChanged = std::exchange(FActive, active) != active;
  const bool editingChanged = std::exchange(FEditing, editing) != editing;
  if (activeChanged) FFirst = 0;
  if (activeChanged) ActiveChanged();
  // A handler that frees the link does so by its control, which hears only of one change at a time.
  else if (editingChanged)
    EditingChanged();
}

void TDataLink::DataEvent(TDataEvent event, TField* field, int distance) {
  if (!FActive) return;
  if (event != deUpdateRecord && event != deCheckBrowseMode) KeepCurrentInside();
  switch (event) {
    case deFieldChange: return RecordChanged(field);
    case deRecordChange: return RecordChanged(nullptr);
    case deDataSetChange: return DataSetChanged();
    case deDataSetScroll: return DataSetScrolled(distance);
    case deLayoutChange: return LayoutChanged();
    case deUpdateRecord: return UpdateRecord();
    case deCheckBrowseMode: return CheckBrowseMode();
    case deUpdateState: return;
  }
}

/// Scrolls the records that the control shows so that the current one is among them.
void TDataLink::KeepCurrentInside() {
  const int current = DataSet()->FIndex;
  FFirst = DataSet()->IsUniDirectional()
               ? current
               : std::clamp(FFirst, std::max(0, current - FBufferCount + 1), current);
}

void TDataLink::SetBufferCount(int count) {
  FBufferCount = std::max(1, count);
  if (FActive) KeepCurrentInside();
}

int TDataLink::RecordCount() const {
  if (!FActive) return 0;
  const TDataSet& data = *DataSet();
  if (data.IsUniDirectional()) return data.IsEmpty() ? 0 : 1;
  int count = 0;
  while (count < FBufferCount && data.ViewAt(FFirst + count)) ++count;
  return count;
}

int TDataLink::ActiveRecord() const { return FActive ? DataSet()->FShown - FFirst : 0; }

void TDataLink::SetActiveRecord(int index) {
  if (!FActive || DataSet()->Show(FFirst + index)) return;
  throw EDatabaseError(Concat("There is no record ", std::to_string(index), " to show"));
}

void TDataLink::WithRecord(int number, const std::function<void()>& call) const {
  if (!FActive) return;
  TDataSet& data = *DataSet();
  const int before = data.FShown;
  if (number < 0 || !data.Show(number)) return;
  const TAtEnd back([&] { data.FShown = before; }, &data);
  call();
}

int TDataLink::FindRecord(std::string_view keyFields, const TRecord& values,
                          TLocateOptions options) const {
  return FActive ? DataSet()->FindRecord(keyFields, values, options) : -1;
}

const TClass& TFieldDataLink::Class() {
  static const TClass info =
      Describe<TFieldDataLink, TPersistent>("vcl::TFieldDataLink", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TField* TFieldDataLink::Field() const {
  return Active() && !FFieldName.empty() ? DataSet()->FindField(FFieldName) : nullptr;
}

void TFieldDataLink::SetFieldName(const std::string& fieldName) {
  if (FFieldName == fieldName) return;
  FFieldName = fieldName;
  if (Active()) Reset();
}

void TFieldDataLink::Reset() { RecordChanged(nullptr); }

void TFieldDataLink::ActiveChanged() {
  FModified = false;
  OnActiveChange(this);
}

void TFieldDataLink::RecordChanged(TField* field) {
  if (field && field != Field()) return;
  FModified = false;
  OnDataChange(this);
}

void TFieldDataLink::UpdateData() {
  if (!FModified) return;
  if (Field()) OnUpdateData(this);
  FModified = false;
}

}  // namespace vcl
