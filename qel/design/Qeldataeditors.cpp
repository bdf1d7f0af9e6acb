// Where the choice of field names comes from: the data set behind a data source.
#include "qel/design/Qeldataeditors.h"

#include "vcl/db/dataset.h"
#include "vcl/db/datasource.h"

namespace qel {
namespace {

/// Those of the data set behind the holder's data source, if it has all that.
void AddFieldNames(const vcl::TObject& holder, const std::string& sourceName, vcl::TStrings& list) {
  const vcl::TPropInfo* property = holder.ClassType().FindPublished(sourceName);
  if (!property || property->Kind() != vcl::TTypeKind::Component) return;
  const auto* source =
      dynamic_cast<const vcl::TDataSource*>(std::get<vcl::TObject*>(property->Get(holder)));
  if (!source || !source->DataSet()) return;
  for (const std::string& name : source->DataSet()->FieldNames()) list.Add(name);
}

constexpr int MostInside = 4;  // Objects in objects; they might hold each other.

/// The object that publishes the collection: this one, or one inside it; null for none.
const vcl::TObject* OwnerIn(const vcl::TObject& object, const vcl::TCollection* wanted,
                            int inside = 0) {
  const vcl::TObject* owner = nullptr;
  const auto look = [&](const vcl::TObject* part) {
    if (part && !owner && inside < MostInside) owner = OwnerIn(*part, wanted, inside + 1);
  };
  for (const vcl::TPropInfo* each : object.ClassType().Published()) {
    const bool collection = each->Kind() == vcl::TTypeKind::Collection;
    if (each->IsEvent() || !(collection || each->Kind() == vcl::TTypeKind::Class)) continue;
    const vcl::TObject* part = std::get<vcl::TObject*>(each->Get(object));
    if (part == wanted) return &object;
    look(part);
  }
  const auto* items = dynamic_cast<const vcl::TCollection*>(&object);
  for (int i = 0; items && i < items->Count(); ++i) look(items->Items(i));
  return owner;
}

/// The same among the form and its components. The collection itself does not know.
const vcl::TObject* OwnerOf(const vcl::TCollection* wanted, const vcl::TComponent& root) {
  if (!wanted) return nullptr;
  const vcl::TObject* owner = OwnerIn(root, wanted);
  for (int i = 0; i < root.ComponentCount() && !owner; ++i) {
    owner = OwnerIn(*root.Components(i), wanted);
  }
  return owner;
}

}  // namespace

void TQELDBStringProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  vcl::TStringList list;
  GetValueList(list);
  for (int i = 0; i < list.Count(); ++i) each(list.Strings(i));
}

void TQELDataFieldProperty::GetValueList(vcl::TStrings& list) const {
  AddFieldNames(*Edited().front().Object, GetDataSourcePropName(), list);
}

void TQELItemDataFieldProperty::GetValueList(vcl::TStrings& list) const {
  const auto* item = dynamic_cast<const vcl::TCollectionItem*>(Edited().front().Object);
  const vcl::TObject* owner = item ? OwnerOf(item->Collection(), Designer().Root()) : nullptr;
  if (owner) AddFieldNames(*owner, GetDataSourcePropName(), list);
}

}  // namespace qel
