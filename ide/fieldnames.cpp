// The properties that name fields offer the names of the fields there are.
#include "ide/fieldswindow.h"
#include "vcl/db/datasource.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// What a published property of the object refers to; null for none.
TObject* Referred(const TObject& object, const char* property) {
  const TPropInfo* const info = object.ClassType().FindPublished(property);
  if (!info || info->Kind() != TTypeKind::Component) return nullptr;
  return std::get<TObject*>(info->Get(object));
}

const TDataSet* Behind(const TObject* source) {
  const auto* const data = dynamic_cast<const TDataSource*>(source);
  return data ? data->DataSet() : dynamic_cast<const TDataSet*>(source);
}

/// A property that names fields, and the one that refers to where they are: a data source or a data
/// set; without one it is the object itself.
struct TNames {
  const char* Property;
  const char* Reference;
};
constexpr TNames Names[] = {
    {"DataField", "DataSource"},          {"KeyField", "ListSource"},
    {"ListField", "ListSource"},          {"MasterFields", "MasterSource"},
    {"LookupKeyFields", "LookupDataSet"}, {"LookupResultField", "LookupDataSet"},
    {"IndexFieldNames", nullptr},         {"KeyFields", nullptr}};

/// The data set whose fields the property names; null for none.
const TDataSet* DataFor(const TObject& object, const std::string& property) {
  if (const auto* const column = dynamic_cast<const TColumn*>(&object)) {
    const auto* const columns = dynamic_cast<const TDBGridColumns*>(column->Collection());
    return columns ? Behind(columns->Grid()->DataSource()) : nullptr;
  }
  for (const auto& [name, reference] : Names) {
    if (!SameText(property, name)) continue;
    if (reference) return Behind(Referred(object, reference));
    const auto* const field = dynamic_cast<const TField*>(&object);
    return field ? field->DataSet() : dynamic_cast<const TDataSet*>(&object);
  }
  return nullptr;
}

/// The name of a field, or several with semicolons between them: to choose, or to type.
class TFieldNameProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override {
    return {paValueList, paMultiSelect, paRevertable, paSortList};
  }
  void GetValues(const std::function<void(const std::string&)>& each) const override {
    const TDataSet* const data = DataFor(*Edited().front().Object, PropInfo().Name);
    for (const std::string& name : data ? data->FieldNames() : std::vector<std::string>()) {
      each(name);
    }
  }
};

}  // namespace

void RegisterFieldNames() {
  const auto editor = PropertyEditorClass<TFieldNameProperty>("TFieldNameProperty");
  RegisterPropertyEditor("string", &TColumn::Class(), "FieldName", editor);
  for (const TNames& each : Names) {
    RegisterPropertyEditor("string", &TComponent::Class(), each.Property, editor);
  }
}

}  // namespace ide
