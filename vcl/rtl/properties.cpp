// Lines of published-property tables: setting a property's value with its checks, and whether a
// form file needs it.
#include "vcl/rtl/properties.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

void CheckOrdinal(const TPropInfo& prop, std::int64_t value) {
  if (value >= prop.Type->Min && value <= prop.Type->Max) return;
  throw EPropertyError(
      Concat(std::to_string(value), " is not a value of ", prop.Name, ": ", prop.TypeName()));
}

void CheckClass(const TPropInfo& prop, const TObject* value) {
  if (!value || value->InheritsFrom(prop.Type->ClassOf())) return;
  throw EPropertyError(Concat("A ", value->ClassName(), " cannot be the value of ", prop.Name, ": ",
                              prop.TypeName()));
}

}  // namespace

const TTypeInfo& detail::EventTypeInfo() {
  static const TTypeInfo info{TTypeKind::Event, "TEvent"};
  return info;
}

std::size_t TPropInfo::ValueIndex() const {
  switch (Kind()) {
    case TTypeKind::Float: return 1;
    case TTypeKind::String: return 2;
    case TTypeKind::Class:
    case TTypeKind::Component:
    case TTypeKind::Collection: return 3;
    case TTypeKind::Integer:
    case TTypeKind::Enumeration:
    case TTypeKind::Set:
    case TTypeKind::Char:
    case TTypeKind::Color:
    case TTypeKind::Event:
    case TTypeKind::Boolean:
    default: return 0;
  }
}

void TPropInfo::Set(TObject& object, const TValue& value) const {
  if (!Setter) throw EPropertyError(Concat("Property ", Name, " is read-only"));
  if (value.index() != ValueIndex()) {
    throw EPropertyError(
        Concat("Property ", Name, " takes no such value: it is a ", KindName(Kind())));
  }
  if (value.index() == 0) CheckOrdinal(*this, std::get<0>(value));
  if (value.index() == 3) CheckClass(*this, std::get<3>(value));
  Setter(object, value);
}

bool TPropInfo::IsStored(const TObject& object) const {
  return Stored == TStored::Asked ? AskStored(object) : Stored == TStored::Always;
}

bool TPropInfo::NeedsWriting(const TObject& object) const {
  if (IsEvent() || ReadOnly() || !IsStored(object)) return false;
  const TValue value = Get(object);
  if (const auto* reference = std::get_if<TObject*>(&value)) return *reference != nullptr;
  const bool hasDefault = DefaultValue && (!AskDefault || AskDefault(object));
  return !hasDefault || *DefaultValue != value;
}

}  // namespace vcl
