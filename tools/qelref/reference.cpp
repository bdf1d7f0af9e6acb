// Reading the reference from the classes, property by property.
#include "tools/qelref/reference.h"

#include "vcl/designintf/package.h"
#include "vcl/designintf/registration.h"
#include "vcl/designintf/sentences.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/valuetext.h"

namespace qelref {
namespace {

/// The default as a form file would hold it.
std::string DefaultText(const vcl::TPropInfo& prop) {
  const std::string text = vcl::ValueToText(*prop.Type, *prop.DefaultValue);
  return prop.Kind() == vcl::TTypeKind::String ? vcl::FormString(text) : text;
}

TEntry EntryOf(const vcl::TClass& aClass, const vcl::TPropInfo& prop) {
  TEntry entry{prop.Name,
               std::string(vcl::KindName(prop.Kind())),
               std::string(prop.TypeName()),
               {},
               prop.Stored != vcl::TPropInfo::TStored::Never,
               vcl::Sentences().Of(aClass, prop.Name)};
  if (prop.DefaultValue) entry.Default = DefaultText(prop);
  return entry;
}

TClassReference ReferenceOf(const vcl::TClass& aClass) {
  TClassReference reference;
  reference.Name = aClass.Name();
  if (aClass.Parent()) reference.Ancestor = aClass.Parent()->Name();
  reference.Unit = aClass.Unit();
  reference.Header = aClass.Header();
  reference.Sentence = vcl::Sentences().Of(aClass);
  const std::string_view page = vcl::PalettePageOf(aClass);
  if (!page.empty()) reference.Page = page;
  for (const vcl::TPropInfo& prop : aClass.Own()) {
    reference.Published.push_back(EntryOf(aClass, prop));
  }
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
  for (const vcl::TClass* each : LibraryClasses()) {
    reference.Classes.push_back(ReferenceOf(*each));
    reference.Classes.back().FromLibrary = true;
  }
  return reference;
}

std::string WithoutSentence(const TReference& reference) {
  std::string names;
  for (const TClassReference& aClass : reference.Classes) {
    if (aClass.Sentence.empty()) names += aClass.Name + "\n";
    for (const TEntry& entry : aClass.Published) {
      if (entry.Sentence.empty()) names += aClass.Name + "." + entry.Name + "\n";
    }
  }
  return names;
}

}  // namespace qelref
