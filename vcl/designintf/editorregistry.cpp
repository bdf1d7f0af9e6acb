// Which editor is for which property and which component.
#include <algorithm>
#include <limits>
#include <tuple>

#include "vcl/designintf/registered.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// A class type counts by its name and by those of its ancestors; -1 for another type.
int TypeDistance(const TPropInfo& property, std::string_view type) {
  if (SameText(property.TypeName(), type)) return 0;
  if (!property.Type->ClassOf) return -1;
  int distance = 1;
  for (const TClass* each = &property.Type->ClassOf(); each; each = each->Parent(), ++distance) {
    if (SameText(each->Name(), type)) return distance;
  }
  return -1;
}

/// How well an entry fits; the greater is the better. Null is the farthest of all classes.
using TFitness = std::tuple<bool, int, int>;

TFitness FitnessOf(const TPropertyEditorEntry& entry, const TClass& aClass,
                   const TPropInfo& property) {
  const int classDistance =
      entry.Class ? detail::DistanceTo(aClass, *entry.Class) : std::numeric_limits<int>::max();
  return {!entry.Property.empty(), -classDistance, -TypeDistance(property, entry.Type)};
}

bool SameType(const TPropInfo& a, const TPropInfo& b) {
  if (a.IsEvent() || b.IsEvent()) return a.IsEvent() && b.IsEvent() && *a.Signature == *b.Signature;
  return a.Kind() == b.Kind() && a.TypeName() == b.TypeName();
}

/// The property of all objects that the first one's is; fewer when one of the others has none.
TEditedProperties SharedProperty(const std::vector<TObject*>& objects, const TPropInfo& first) {
  TEditedProperties edited{{objects.front(), &first}};
  const auto& editor = EditorClassOf(objects.front()->ClassType(), first);
  for (auto each = objects.begin() + 1; each != objects.end(); ++each) {
    const TClass& aClass = (*each)->ClassType();
    const TPropInfo* property = aClass.FindPublished(first.Name);
    if (!property || !SameType(first, *property)) break;
    if (EditorClassOf(aClass, *property).Make != editor.Make) break;
    edited.push_back({*each, property});
  }
  return edited;
}

}  // namespace

int detail::DistanceTo(const TClass& aClass, const TClass& ancestor) {
  int distance = 0;
  for (const TClass* each = &aClass; each; each = each->Parent(), ++distance) {
    if (each == &ancestor) return distance;
  }
  return -1;
}

std::vector<TPropertyEditorEntry>& detail::PropertyEditorEntries() {
  static std::vector<TPropertyEditorEntry> entries;
  return entries;
}

bool TPropertyEditorEntry::Fits(const TClass& aClass, const TPropInfo& property) const {
  return (!Class || aClass.InheritsFrom(*Class)) &&
         (Property.empty() || SameText(Property, property.Name)) &&
         TypeDistance(property, Type) >= 0;
}

void RegisterPropertyEditor(const std::string& type, const TClass* aClass,
                            const std::string& property, const TPropertyEditorClass& editor) {
  detail::PropertyEditorEntries().push_back({editor, type, aClass, property});
}

const std::vector<TPropertyEditorEntry>& RegisteredPropertyEditors() {
  return detail::PropertyEditorEntries();
}

const TPropertyEditorClass& EditorClassOf(const TClass& aClass, const TPropInfo& property) {
  const TPropertyEditorEntry* best = nullptr;
  TFitness fitness;
  for (const TPropertyEditorEntry& entry : detail::PropertyEditorEntries()) {
    if (!entry.Fits(aClass, property)) continue;
    const TFitness own = FitnessOf(entry, aClass, property);
    if (best && own < fitness) continue;
    best = &entry;
    fitness = own;
  }
  return best ? best->Editor : detail::StandardEditor(aClass, property);
}

std::unique_ptr<TPropertyEditor> MakePropertyEditor(TDesigner& designer, TEditedProperties edited) {
  if (edited.empty()) return std::make_unique<TPropertyEditor>(designer, std::move(edited));
  const TEditedProperty first = edited.front();
  const auto& editor = EditorClassOf(first.Object->ClassType(), *first.Property);
  return editor.Make(designer, std::move(edited));
}

TPropertyEditors PropertiesOf(TDesigner& designer, const std::vector<TObject*>& objects,
                              const std::function<bool(const TPropInfo&)>& wanted) {
  TPropertyEditors editors;
  if (objects.empty()) return editors;
  for (const TPropInfo* property : objects.front()->ClassType().Published()) {
    if (!wanted(*property)) continue;
    TEditedProperties edited = SharedProperty(objects, *property);
    if (edited.size() < objects.size()) continue;
    auto editor = MakePropertyEditor(designer, std::move(edited));
    if (objects.size() == 1 || editor->Offers(paMultiSelect)) editors.push_back(std::move(editor));
  }
  return editors;
}

}  // namespace vcl
