// What the package's editors offer: each is made for an object of the package and asked.
#include <iterator>
#include <memory>

#include "tools/qelref/reference.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/designintf/package.h"
#include "vcl/designintf/propertyeditor.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace qelref {
namespace {

using namespace vcl;

/// A designer without a form: nothing is edited here.
class TNoDesigner : public TDesigner {
 public:
  void Modified() override {}
  TComponent& Root() const override { return *FRoot; }
  std::string UniqueName(const std::string& className) const override { return className; }
  std::string NameProblem(const TComponent&, const std::string&) const override { return {}; }
  std::vector<std::string> MethodNames(const TPropInfo&) const override { return {}; }
  bool MethodExists(const std::string&) const override { return false; }
  void CreateMethod(const std::string&, const TPropInfo&) override {}
  void RenameMethod(const std::string&, const std::string&) override {}
  void ShowMethod(const std::string&) override {}
  std::vector<std::string> ComponentNames(const TClass&) const override { return {}; }
  TComponent* FindComponent(const std::string&) const override { return nullptr; }
  std::string NameOf(const TComponent& component) const override { return component.Name(); }
  std::vector<TPersistent*> Selection() const override { return {}; }
  void SetSelection(const std::vector<TPersistent*>&) override {}
  bool ShowNonVisual() const override { return true; }
  void SetShowNonVisual(bool) override {}
  void ShowCollection(TPersistent&, TCollection&, const std::string&) override {}

 private:
  std::unique_ptr<TComponent> FRoot = std::make_unique<TComponent>(nullptr);
};

/// In the order of TPropertyAttribute.
constexpr const char* AttributeNames[] = {
    "value list",  "sub-properties", "dialog",    "multi-select",
    "auto-update", "sorted list",    "read-only", "revertable",
};
static_assert(std::size(AttributeNames) == paRevertable + 1);

std::vector<std::string> NamesOf(const TPropertyAttributes& attributes) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < std::size(AttributeNames); ++i) {
    if (attributes.Has(static_cast<TPropertyAttribute>(i))) names.push_back(AttributeNames[i]);
  }
  return names;
}

bool CanBeMade(const TClass& aClass) {
  const TMaker& maker = aClass.Maker();
  return maker.Component || maker.Item || maker.Plain;
}

std::unique_ptr<TObject> Make(const TClass& aClass) {
  const TMaker& maker = aClass.Maker();
  if (maker.Component) return std::unique_ptr<TObject>(maker.Component(nullptr));
  return std::unique_ptr<TObject>(maker.Item ? maker.Item(nullptr) : maker.Plain());
}

/// A class of the package and its property that the editor can be asked about.
struct TSample {
  const TClass* Class = nullptr;
  const TPropInfo* Property = nullptr;
};

/// A property that the entry is for; where the package has none, any other of its type, which the
/// editor has the same to offer for.
TSample SampleFor(const TPropertyEditorEntry& entry, const TPackage& package) {
  TSample other;
  for (const TClass* each : package.Classes()) {
    if (!CanBeMade(*each)) continue;
    for (const TPropInfo* property : each->Published()) {
      if (entry.Fits(*each, *property)) return {each, property};
      if (!other.Class && SameText(property->TypeName(), entry.Type)) other = {each, property};
    }
  }
  return other;
}

std::vector<std::string> AttributesOf(const TPropertyEditorEntry& entry, const TPackage& package) {
  const auto [aClass, property] = SampleFor(entry, package);
  if (!aClass) {
    throw EPropertyError(Concat("No class has a property of the type ", entry.Type));
  }
  TNoDesigner designer;
  const auto object = Make(*aClass);
  return NamesOf(entry.Editor.Make(designer, {{object.get(), property}})->GetAttributes());
}

std::vector<std::string> VerbsOf(const TComponentEditorEntry& entry, const TPackage& package) {
  std::vector<std::string> verbs;
  for (const TClass* each : package.Classes()) {
    if (!each->InheritsFrom(*entry.Class) || !each->Maker().Component) continue;
    TNoDesigner designer;
    const std::unique_ptr<TComponent> component(each->Maker().Component(nullptr));
    const auto editor = entry.Editor.Make(designer, *component);
    for (int i = 0; i < editor->GetVerbCount(); ++i) verbs.push_back(editor->GetVerb(i));
    break;
  }
  return verbs;
}

}  // namespace

void AddEditors(TReference& reference, const TPackage& package) {
  for (const TPropertyEditorEntry& each : RegisteredPropertyEditors()) {
    reference.PropertyEditors.push_back({std::string(each.Editor.Name), each.Type,
                                         each.Class ? each.Class->Name() : std::string(),
                                         each.Property, AttributesOf(each, package)});
  }
  for (const TComponentEditorEntry& each : RegisteredComponentEditors()) {
    reference.ComponentEditors.push_back(
        {std::string(each.Editor.Name), each.Class->Name(), VerbsOf(each, package)});
  }
}

}  // namespace qelref
