// Opening and closing, fields, events and what data links hear.
#include "vcl/db/dataset.h"

#include <algorithm>
#include <utility>

#include "vcl/db/datasource.h"
#include "vcl/db/private/masterlink.h"
#include "vcl/db/private/recordview.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TDataSet::Class() {
  using T = TDataSet;
  static const TClass info = Describe<T, TComponent>(
      "vcl::TDataSet", "vcl/db/db.h",
      {
          Property<&T::Active, &T::SetActive>("Active").Default(false).Unpublished(),
          Property<&T::AutoCalcFields, &T::SetAutoCalcFields>("AutoCalcFields")
              .Default(true)
              .Unpublished(),
          Property<&T::FieldDefs, &T::SetFieldDefs>("FieldDefs").Unpublished(),
          Property<&T::Filter, &T::SetFilter>("Filter").Default("").Unpublished(),
          Property<&T::FilterOptions, &T::SetFilterOptions>("FilterOptions")
              .Default(TFilterOptions())
              .Unpublished(),
          Property<&T::Filtered, &T::SetFiltered>("Filtered").Default(false).Unpublished(),
          Property<&T::MasterSource, &T::SetMasterSource>("MasterSource").Unpublished(),
          Event<&T::BeforeOpen>("BeforeOpen").Unpublished(),
          Event<&T::AfterOpen>("AfterOpen").Unpublished(),
          Event<&T::BeforeClose>("BeforeClose").Unpublished(),
          Event<&T::AfterClose>("AfterClose").Unpublished(),
          Event<&T::BeforeInsert>("BeforeInsert").Unpublished(),
          Event<&T::AfterInsert>("AfterInsert").Unpublished(),
          Event<&T::BeforeEdit>("BeforeEdit").Unpublished(),
          Event<&T::AfterEdit>("AfterEdit").Unpublished(),
          Event<&T::BeforePost>("BeforePost").Unpublished(),
          Event<&T::AfterPost>("AfterPost").Unpublished(),
          Event<&T::BeforeCancel>("BeforeCancel").Unpublished(),
          Event<&T::AfterCancel>("AfterCancel").Unpublished(),
          Event<&T::BeforeDelete>("BeforeDelete").Unpublished(),
          Event<&T::AfterDelete>("AfterDelete").Unpublished(),
          Event<&T::BeforeScroll>("BeforeScroll").Unpublished(),
          Event<&T::AfterScroll>("AfterScroll").Unpublished(),
          Event<&T::BeforeRefresh>("BeforeRefresh").Unpublished(),
          Event<&T::AfterRefresh>("AfterRefresh").Unpublished(),
          Event<&T::OnCalcFields>("OnCalcFields").Unpublished(),
          Event<&T::OnDeleteError>("OnDeleteError").Unpublished(),
          Event<&T::OnEditError>("OnEditError").Unpublished(),
          Event<&T::OnFilterRecord>("OnFilterRecord").Unpublished(),
          Event<&T::OnNewRecord>("OnNewRecord").Unpublished(),
          Event<&T::OnPostError>("OnPostError").Unpublished(),
      });
  return info;
}

TDataSet::TDataSet(TComponent* owner)
    : TComponent(owner),
      FFieldDefs(std::make_unique<TFieldDefs>()),
      FMasterLink(
          std::make_unique<TMasterLink>([this] { FollowMaster(); }, [this] { PostForMaster(); })) {}

TDataSet::~TDataSet() {
  AnnounceEnd();
  while (!FSources.empty()) FSources.back()->SetDataSet(nullptr);
  while (FFields.Count() > 0) delete FFields[FFields.Count() - 1];
}

void TDataSet::Refuse(std::string_view message) const {
  throw EDatabaseError(Name().empty() ? std::string(message) : Concat(Name(), ": ", message));
}

void TDataSet::CheckActive() const {
  if (!Active()) Refuse("Cannot perform this operation on a closed dataset");
  if (FBusy == dsCalcFields) Refuse("Cannot perform this operation while fields are calculated");
  if (FBusy == dsFilter) Refuse("Cannot perform this operation while records are filtered");
}

void TDataSet::CheckInactive() const {
  if (Active()) Refuse("Cannot perform this operation on an open dataset");
}

void TDataSet::CheckCanModify() const {
  if (!CanModify()) Refuse("Cannot modify a read-only dataset");
}

void TDataSet::Fire(const TDataSetNotifyEvent& event) {
  TWatch watch(this);
  event(this);
  if (watch.Gone()) throw EAbort("The data set was freed by a handler");
}

void TDataSet::SetActive(bool active) {
  if (Loading()) {
    FOpenWhenLoaded = active;
  } else if (active != Active()) {
    active ? DoOpen() : DoClose();
  }
}

void TDataSet::Loaded() {
  TComponent::Loaded();
  if (!std::exchange(FOpenWhenLoaded, false)) return;
  try {
    Open();
  } catch (...) {
    // Data that cannot be had must not keep a designer from showing the form.
    if (!Designing()) throw;
    BaseApplication().HandleCurrentException(this);
  }
}

std::vector<std::string> TDataSet::FieldNames() const {
  std::vector<std::string> names;
  for (const TField* field : FFields) names.push_back(field->FieldName());
  for (int i = 0; FFields.Count() == 0 && i < FFieldDefs->Count(); ++i) {
    names.push_back(FFieldDefs->Items(i)->Name());
  }
  return names;
}

void TDataSet::UpdateFieldDefs() {
  if (Active() || FFieldDefs->Count() > 0) return;
  const TAtEnd shut([this] { Shut(); }, this);
  InternalOpen();
}

void TDataSet::DoOpen() {
  Fire(BeforeOpen);
  {
    const TOnFailure shut([this] { Shut(); }, this);
    FRecords = &InternalOpen();
    MakeFields();
    FMasterValues = MasterValues();
    UseView(MakeView());
    FIndex = 0;
    FBof = true;
    FEof = FStore->At(0) == nullptr;
  }
  FState = dsBrowse;
  ShowCurrent();
  DataEvent(deUpdateState);
  Fire(AfterOpen);
  if (Active() && !IsEmpty()) Fire(AfterScroll);
}

void TDataSet::DoClose() {
  CheckActive();
  Fire(BeforeClose);
  if (!Active()) return;
  FState = dsInactive;
  DataEvent(deUpdateState);
  Shut();
  Fire(AfterClose);
}

void TDataSet::Shut() noexcept {
  FState = dsInactive;
  FModified = false;
  FBof = FEof = true;
  FreeMadeFields();
  FView.reset();
  FFixed.clear();
  FRecords = FStore = nullptr;
  InternalClose();
}

void TDataSet::MakeFields() {
  FFieldsMade = FFields.Count() == 0;
  for (int i = 0; FFieldsMade && i < FFieldDefs->Count(); ++i) {
    const TFieldDef& definition = *FFieldDefs->Items(i);
    TField* field = NewField(definition.DataType(), this);
    if (!field) Refuse(Concat("Field '", definition.Name(), "' is of an unknown type"));
    field->SetFieldName(definition.Name());
    field->SetSize(definition.Size());
    field->SetRequired(definition.Required());
    field->SetReadOnly(definition.ReadOnly());
    field->SetDataSet(this);
  }
  const int stored = FFieldDefs->Count();
  int calculated = 0;
  for (TField* field : FFields) {
    field->FFieldNo = field->FFieldKind == fkData ? FFieldDefs->IndexOf(field->FieldName())
                                                  : stored + calculated++;
    if (field->FFieldNo < 0) Refuse(Concat("Field '", field->FieldName(), "' not found"));
  }
  FCalculated.assign(static_cast<std::size_t>(calculated), {});
  FCalculatedAt = -1;
}

void TDataSet::CheckPersistentFields(const TFieldDefs& definitions) const {
  for (const TField* field : FFields) {
    if (FFieldsMade || field->FieldKind() != fkData) continue;
    if (definitions.IndexOf(field->FieldName()) < 0) {
      Refuse(Concat("Field '", field->FieldName(), "' not found"));
    }
  }
}

void TDataSet::FreeMadeFields() {
  for (TField* field : FFields) {
    field->FFieldNo = -1;
    field->FFound.clear();
  }
  while (FFieldsMade && FFields.Count() > 0) delete FFields[FFields.Count() - 1];
  FFieldsMade = false;
}

TField* TDataSet::FieldByName(std::string_view name) const {
  if (TField* field = FindField(name)) return field;
  Refuse(Concat("Field '", name, "' not found"));
}

void TDataSet::SetFieldValues(std::string_view name, const TFieldValue& value) {
  FieldByName(name)->SetValue(value);
}

void TDataSet::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  for (TField* field : FFields) {
    if (!FFieldsMade && field->Owner() == root) each(field);
  }
}

void TDataSet::DataEvent(TDataEvent event, TField* field, int distance) {
  if (event != deFieldChange || FAutoCalcFields) FCalculatedAt = -1;
  // While controls are disabled they hear nothing; EnableControls tells them at the end.
  if (FDisableCount > 0) return;
  TWatch watch(this);
  const std::vector<TDataSource*> sources = FSources;
  for (TDataSource* source : sources) {
    if (watch.Gone()) break;
    // A handler may have disconnected the source or freed it.
    if (std::ranges::find(FSources, source) != FSources.end()) {
      source->DataEvent(event, field, distance);
    }
  }
  if (watch.Gone()) throw EAbort("The data set was freed by a handler");
}

void TDataSet::DisableControls() {
  if (FDisableCount++ == 0) FStateBefore = FState;
}

void TDataSet::EnableControls() {
  if (FDisableCount == 0 || --FDisableCount > 0) return;
  if (FStateBefore != FState) DataEvent(deUpdateState);
  if (FStateBefore != dsInactive && Active()) DataEvent(deDataSetChange);
}

}  // namespace vcl
