// Details: records that belong to the current one of another data set.
#include <utility>

#include "vcl/db/dataset.h"
#include "vcl/db/private/masterlink.h"
#include "vcl/db/private/recordview.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

TDataSource* TDataSet::MasterSource() const { return FMasterLink->DataSource(); }

void TDataSet::SetMasterSource(TDataSource* source) {
  if (source && source->DataSet() == this) Refuse("A dataset cannot be its own master");
  FMasterLink->SetDataSource(source);
}

TDataSet* TDataSet::Master() const {
  return FMasterLink->Active() && FMasterLink->DataSet() != this ? FMasterLink->DataSet() : nullptr;
}

TRecord TDataSet::MasterValues() {
  TRecord values;
  const TDataSet* master = FMasterFields.empty() ? nullptr : Master();
  if (!master) return values;
  for (const TField* field : master->FieldList(FMasterFields)) values.push_back(field->Value());
  return values;
}

/// The values that the master's record gives to the first fields of the order.
std::vector<TDataSet::TFixed> TDataSet::MasterRange(const std::vector<TField*>& fields) {
  // A query chooses its records on its own.
  const TRecord values = TDataSet::MasterValues();
  if (values.size() > fields.size()) {
    Refuse(Concat("IndexFieldNames has fewer fields than MasterFields, '", FMasterFields, "'"));
  }
  std::vector<TFixed> range;
  for (std::size_t i = 0; i < values.size(); ++i) {
    range.push_back(
        {static_cast<std::size_t>(fields[i]->FieldNo()), fields[i]->Convert(values[i])});
  }
  return range;
}

/// A new record is one of the master's.
void TDataSet::FillFixed() {
  for (const auto& [place, value] : FFixed) FEdited[place] = value;
}

// Two that were masters of each other would call each other for ever, but for FFollowing.

void TDataSet::PostForMaster() {
  if (!Editing() || FFollowing) return;
  const TSetFor following(FFollowing, true, this);
  CheckBrowseMode();
}

void TDataSet::FollowMaster() {
  if (!Active() || FFollowing) return;
  if (Master()) return ChooseDetails();
  if (FMasterFields.empty()) return;
  // The master may be going just now, where nothing can be raised.
  TWatch watch(this);
  try {
    ChooseDetails();
  } catch (...) {
    BaseApplication().HandleCurrentException(watch.Gone() ? nullptr : this);
  }
}

void TDataSet::ChooseDetails() {
  const TSetFor following(FFollowing, true, this);
  TRecord values = MasterValues();
  if (values == FMasterValues) return;
  CheckBrowseMode();
  Fire(BeforeScroll);
  CheckActive();
  InternalFollow();
  UseView(MakeView());
  FMasterValues = std::move(values);
  FIndex = 0;
  Resync();
  Fire(AfterScroll);
}

}  // namespace vcl
