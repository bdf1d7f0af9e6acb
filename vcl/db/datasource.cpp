// TDataSource: hands on what happens to its data set, to its events and to the links behind it.
#include "vcl/db/datasource.h"

#include <algorithm>

#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TDataSource::Class() {
  using T = TDataSource;
  static const TClass info =
      Describe<T, TComponent>("vcl::TDataSource", "vcl/db/db.h",
                              {
                                  Property<&T::AutoEdit, &T::SetAutoEdit>("AutoEdit").Default(true),
                                  Property<&T::DataSet, &T::SetDataSet>("DataSet"),
                                  Property<&T::Enabled, &T::SetEnabled>("Enabled").Default(true),
                                  Event<&T::OnStateChange>("OnStateChange"),
                                  Event<&T::OnDataChange>("OnDataChange"),
                                  Event<&T::OnUpdateData>("OnUpdateData"),
                              });
  return info;
}

TDataSource::TDataSource(TComponent* owner) : TComponent(owner) {}

TDataSource::~TDataSource() {
  AnnounceEnd();
  OnStateChange = nullptr;
  SetDataSet(nullptr);
  while (!FLinks.empty()) FLinks.back()->SetDataSource(nullptr);
}

TDataSetState TDataSource::State() const {
  return FEnabled && FDataSet ? FDataSet->FState : dsInactive;
}

void TDataSource::SetDataSet(TDataSet* dataSet) {
  if (FDataSet == dataSet) return;
  if (FDataSet) {
    std::erase(FDataSet->FSources, this);
    FDataSet->RemoveFreeNotification(this);
  }
  FDataSet = nullptr;
  UpdateState();
  FDataSet = dataSet;
  if (!dataSet) return;
  dataSet->FSources.push_back(this);
  dataSet->FreeNotification(this);
  UpdateState();
}

void TDataSource::SetEnabled(bool enabled) {
  FEnabled = enabled;
  UpdateState();
}

void TDataSource::Edit() {
  if (FAutoEdit && State() == dsBrowse) FDataSet->Edit();
}

void TDataSource::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FDataSet) SetDataSet(nullptr);
}

/// Calls for each link that is still there when its turn comes; a handler may free any.
template <class Call>
void TDataSource::ForLinks(const Call& call) {
  TWatch watch(this);
  const std::vector<TDataLink*> links = FLinks;
  for (TDataLink* link : links) {
    if (watch.Gone()) return;
    if (std::ranges::find(FLinks, link) != FLinks.end()) call(*link);
  }
}

void TDataSource::UpdateState() {
  if (FState == State()) return;
  FState = State();
  TWatch watch(this);
  ForLinks([](TDataLink& link) { link.UpdateState(); });
  if (!watch.Gone()) OnStateChange(this);
}

void TDataSource::DataEvent(TDataEvent event, TField* field, int distance) {
  if (event == deUpdateState) return UpdateState();
  if (FState == dsInactive) return;
  TWatch watch(this);
  ForLinks([&](TDataLink& link) { link.DataEvent(event, field, distance); });
  if (!watch.Gone() && event != deCheckBrowseMode) FireEvent(event, field);
}

void TDataSource::FireEvent(TDataEvent event, TField* field) {
  event == deUpdateRecord ? OnUpdateData(this) : OnDataChange(this, field);
}

}  // namespace vcl
