// Where the choice of field names comes from: the data set behind a data source.
#include "qel/design/Qeldataeditors.h"

#include "qel/data/Qeltdbascii.h"
#include "vcl/db/dataset.h"
#include "vcl/db/datasource.h"

namespace qel {
namespace {

/// Those of the open data set, else those that it is going to have.
void AddFieldNames(const vcl::TDataSet& data, vcl::TStrings& list) {
  if (data.FieldCount() > 0) {
    for (int i = 0; i < data.FieldCount(); ++i) list.Add(data.Fields()[i]->FieldName());
    return;
  }
  const vcl::TFieldDefs& definitions = *data.FieldDefs();
  for (int i = 0; i < definitions.Count(); ++i) list.Add(definitions.Items(i)->Name());
}

/// Those of the data set behind the holder's data source, if it has all that.
void AddFieldNames(const vcl::TObject& holder, const std::string& sourceName, vcl::TStrings& list) {
  const vcl::TPropInfo* property = holder.ClassType().FindPublished(sourceName);
  if (!property || property->Kind() != vcl::TTypeKind::Component) return;
  const auto* source =
      dynamic_cast<const vcl::TDataSource*>(std::get<vcl::TObject*>(property->Get(holder)));
  if (source && source->DataSet()) AddFieldNames(*source->DataSet(), list);
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
  const auto* field = dynamic_cast<const TQELADField*>(Edited().front().Object);
  if (field && field->Owner()) AddFieldNames(*field->Owner(), GetDataSourcePropName(), list);
}

}  // namespace qel
