// Reading the reference from a package's classes, property by property.
#include "tools/qelref/reference.h"

#include "vcl/designintf/package.h"
#include "vcl/designintf/registration.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/valuetext.h"

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

TReference ReferenceOf(const vcl::TPackage& package) {
  TReference reference;
  for (const auto& [page, classes] : vcl::RegisteredComponents()) {
    reference.Pages.push_back({page, {}});
    for (const vcl::TClass* each : classes) reference.Pages.back().Classes.push_back(each->Name());
  }
  AddEditors(reference, package);
  for (const vcl::TClass* each : package.Classes()) {
    reference.Classes.push_back(ReferenceOf(*each));
  }
  return reference;
}

}  // namespace qelref
