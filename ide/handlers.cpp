// THandlers: the handlers that a form's events name, and renaming them.
#include "ide/handlers.h"

#include <algorithm>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

using TEach = std::function<void(const TPropInfo&, TEventBase&)>;

/// What of a property is a part of the object; null for a reference and for no object.
TObject* PartOf(TObject& object, const TPropInfo& property) {
  if (property.IsEvent() || !property.Type->ClassOf) return nullptr;
  TObject* inner = std::get<TObject*>(property.Get(object));
  const auto* component = dynamic_cast<const TComponent*>(inner);
  return component && component->Owner() != &object ? nullptr : inner;
}

}  // namespace

void EachEvent(TObject& object, const TEach& each) {
  for (const TPropInfo* property : object.ClassType().Published()) {
    if (property->IsEvent()) {
      each(*property, property->EventOf(object));
    } else if (TObject* part = PartOf(object, *property)) {
      EachEvent(*part, each);
    }
  }
  auto* collection = dynamic_cast<TCollection*>(&object);
  for (int i = 0; collection && i < collection->Count(); ++i)
    EachEvent(*collection->Items(i), each);
}

void EachOfForm(TComponent& root, const std::function<void(TComponent&)>& each) {
  each(root);
  for (int i = 0; i < root.ComponentCount(); ++i) {
    TComponent& component = *root.Components(i);
    component.Inline() ? EachOfForm(component, each) : each(component);
  }
}

void EachEventOfForm(TComponent& root, const TEach& each) {
  EachOfForm(root, [&](TComponent& component) { EachEvent(component, each); });
}

namespace {

bool IsInFrame(const TComponent& component, const TComponent& root) {
  return &component != &root && component.Owner() != &root;
}

}  // namespace

std::map<std::string, const TPropInfo*> THandlers::All(TComponent& root) const {
  std::map<std::string, const TPropInfo*> all = FAdded;
  all.insert(FInherited.begin(), FInherited.end());
  EachOfForm(root, [&](TComponent& component) {
    EachEvent(component, [&](const TPropInfo& property, TEventBase& event) {
      const std::string& name = event.HandlerName();
      const bool own = !IsInFrame(component, root) || !IsOfFrame || !IsOfFrame(component, name);
      if (!name.empty() && own) all.emplace(name, &property);
    });
  });
  return all;
}

const TPropInfo* THandlers::Find(TComponent& root, const std::string& name) const {
  for (const auto& [each, event] : All(root)) {
    if (SameText(each, name)) return event;
  }
  return nullptr;
}

void THandlers::Rename(TComponent& root, const std::string& name, const std::string& newName) {
  EachEventOfForm(root, [&](const TPropInfo&, TEventBase& event) {
    if (SameText(event.HandlerName(), name)) event.SetHandlerName(newName);
  });
  const auto added =
      std::ranges::find_if(FAdded, [&](const auto& each) { return SameText(each.first, name); });
  if (added == FAdded.end()) return;
  const TPropInfo* event = added->second;
  FAdded.erase(added);
  FAdded[newName] = event;
}

}  // namespace ide
