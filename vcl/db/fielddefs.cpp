// TFieldDef and TFieldDefs: the fields that a data set is going to have.
#include "vcl/db/fielddefs.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

EDatabaseError::~EDatabaseError() = default;

const TClass& TFieldDef::Class() {
  using T = TFieldDef;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TFieldDef", "vcl/db/db.h",
      {
          Property<&T::Name, &T::SetName>("Name"),
          Property<&T::DataType, &T::SetDataType>("DataType").Default(ftUnknown),
          Property<&T::Required, &T::SetRequired>("Required").Default(false),
          Property<&T::Size, &T::SetSize>("Size").Default(0),
      });
  return info;
}

void TFieldDef::SetName(const std::string& name) {
  FName = name;
  Changed(false);
}

void TFieldDef::SetDataType(TFieldType dataType) {
  FDataType = dataType;
  Changed(false);
}

void TFieldDef::SetSize(int size) {
  if (size < 0) {
    throw EArgumentOutOfRangeException(
        Concat("Field '", FName, "' cannot have a size of ", std::to_string(size)));
  }
  FSize = size;
  Changed(false);
}

void TFieldDef::SetRequired(bool required) {
  FRequired = required;
  Changed(false);
}

void TFieldDef::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TFieldDef*>(source);
  if (!other) return TCollectionItem::Assign(source);
  FName = other->FName;
  FDataType = other->FDataType;
  FSize = other->FSize;
  FRequired = other->FRequired;
  FReadOnly = other->FReadOnly;
  Changed(false);
}

const TClass& TFieldDefs::Class() {
  static const TClass info =
      Describe<TFieldDefs, TCollection>("vcl::TFieldDefs", "vcl/db/db.h", {});
  return info;
}

TFieldDef* TFieldDefs::Add(const std::string& name, TFieldType dataType, int size, bool required) {
  const TUpdating updating(*this);
  auto* definition = static_cast<TFieldDef*>(TCollection::Add());
  definition->SetName(name);
  definition->SetDataType(dataType);
  definition->SetSize(size);
  definition->SetRequired(required);
  return definition;
}

int TFieldDefs::IndexOf(std::string_view name) const {
  for (int i = 0; i < Count(); ++i) {
    if (SameText(Items(i)->Name(), name)) return i;
  }
  return -1;
}

}  // namespace vcl
