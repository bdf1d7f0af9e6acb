#include "tools/qelref/reference.h"

#include "host/designintf/package.h"
#include "host/designintf/registration.h"
#include "host/rtl/properties.h"
#include "host/rtl/valuetext.h"

namespace qelref {
namespace {

/// The default as a form file would hold it.
std::string DefaultText(const vcl::TPropInfo& prop) {
  const std::string text = vcl::ValueToText(*prop.Type, *prop.DefaultValue);
  return prop.Kind() == vcl::TTypeKind::String ? vcl::FormString(text) : text;
}

TEntry EntryOf(const vcl::TPropInfo& prop) {
  TEntry entry{prop.Name,
               std::string(vcl::KindName(prop.Kind())),
               std::string(prop.TypeName()),
               {},
               prop.Stored != vcl::TPropInfo::TStored::Never};
  if (prop.DefaultValue) entry.Default = DefaultText(prop);
  return entry;
}

TClassReference ReferenceOf(const vcl::TClass& aClass) {
  TClassReference reference{aClass.Name(), aClass.Parent()->Name(), {}, aClass.Unit(), {}};
  const std::string_view page = vcl::PalettePageOf(aClass);
  if (!page.empty()) reference.Page = page;
  for (const vcl::TPropInfo& prop : aClass.Own()) reference.Published.push_back(EntryOf(prop));
  return reference;
}

}  // namespace

std::vector<TClassReference> ReferenceOf(const vcl::TPackage& package) {
  std::vector<TClassReference> references;
  for (const vcl::TClass* aClass : package.Classes()) references.push_back(ReferenceOf(*aClass));
  return references;
}

}  // namespace qelref
