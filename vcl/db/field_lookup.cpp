// Fields whose values are found in another data set.
#include "vcl/db/dataset.h"
#include "vcl/rtl/text.h"

namespace vcl {

void TField::SetFieldKind(TFieldKind kind) {
  if (FDataSet) FDataSet->CheckInactive();
  FFieldKind = kind;
}

template <class T>
void TField::SetForLookup(T& property, const T& value) {
  if (FDataSet) FDataSet->CheckInactive();
  property = value;
}

void TField::SetKeyFields(const std::string& names) { SetForLookup(FKeyFields, names); }
void TField::SetLookupKeyFields(const std::string& names) { SetForLookup(FLookupKeyFields, names); }
void TField::SetLookupResultField(const std::string& name) {
  SetForLookup(FLookupResultField, name);
}
void TField::SetLookupCache(bool cache) { SetForLookup(FLookupCache, cache); }

void TField::SetLookupDataSet(TDataSet* dataSet) {
  if (FLookupDataSet == dataSet) return;
  if (dataSet && dataSet == FDataSet) {
    throw EDatabaseError(
        Concat("Field '", FFieldName, "' cannot look up its values in its own data set"));
  }
  if (FDataSet) FDataSet->CheckInactive();
  if (FLookupDataSet) FLookupDataSet->RemoveFreeNotification(this);
  FLookupDataSet = dataSet;
  if (dataSet) dataSet->FreeNotification(this);
}

void TField::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FLookupDataSet) FLookupDataSet = nullptr;
}

/// The value for the record that the data set's fields show.
TFieldValue TField::LookUp() {
  if (!FLookupDataSet || !FLookupDataSet->Active()) return {};
  TRecord key;
  for (const TField* field : FDataSet->FieldList(FKeyFields)) key.push_back(field->Value());
  const auto found = FFound.find(key);
  if (found != FFound.end()) return found->second;
  const TRecord values = FLookupDataSet->Lookup(FLookupKeyFields, key, FLookupResultField);
  TFieldValue value = values.empty() ? TFieldValue() : Convert(values[0]);
  if (FLookupCache) FFound.emplace(std::move(key), value);
  return value;
}

}  // namespace vcl
