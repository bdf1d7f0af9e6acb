// The base of component editors, the default one, and which editor a component gets.
#include "vcl/designintf/componenteditor.h"

#include <algorithm>

#include "vcl/designintf/registered.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

[[noreturn]] void RefuseVerb(const TComponentEditor& editor, int index) {
  throw EListError(
      Concat(editor.Component().ClassName(), " has no command of the number ", IntToStr(index)));
}

constexpr const char* DefaultEvents[] = {"OnCreate", "OnChange", "OnClick"};

const TPropInfo* DefaultEvent(const TClass& aClass) {
  for (const char* name : DefaultEvents) {
    const TPropInfo* property = aClass.FindPublished(name);
    if (property && property->IsEvent()) return property;
  }
  const auto published = aClass.Published();
  const auto first = std::ranges::find_if(published, &TPropInfo::IsEvent);
  return first == published.end() ? nullptr : *first;
}

}  // namespace

TComponentEditor::~TComponentEditor() = default;

void TComponentEditor::Edit() {
  if (GetVerbCount() > 0) ExecuteVerb(0);
}

std::string TComponentEditor::GetVerb(int index) const { RefuseVerb(*this, index); }

void TComponentEditor::ExecuteVerb(int index) { RefuseVerb(*this, index); }

void TDefaultEditor::Edit() {
  const TPropInfo* event = DefaultEvent(Component().ClassType());
  if (event) MakePropertyEditor(Designer(), {{&Component(), event}})->Edit();
}

std::vector<TComponentEditorEntry>& detail::ComponentEditorEntries() {
  static std::vector<TComponentEditorEntry> entries;
  return entries;
}

void RegisterComponentEditor(const TClass& aClass, const TComponentEditorClass& editor) {
  detail::ComponentEditorEntries().push_back({editor, &aClass});
}

const std::vector<TComponentEditorEntry>& RegisteredComponentEditors() {
  return detail::ComponentEditorEntries();
}

std::unique_ptr<TComponentEditor> MakeComponentEditor(TDesigner& designer, TComponent& component) {
  const TComponentEditorEntry* best = nullptr;
  int nearest = 0;
  for (const TComponentEditorEntry& entry : detail::ComponentEditorEntries()) {
    const int distance = detail::DistanceTo(component.ClassType(), *entry.Class);
    if (distance < 0 || (best && distance > nearest)) continue;
    best = &entry;
    nearest = distance;
  }
  if (best) return best->Editor.Make(designer, component);
  return std::make_unique<TDefaultEditor>(designer, component);
}

}  // namespace vcl
