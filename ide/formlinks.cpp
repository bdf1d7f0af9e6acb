// TFormLinks: references of a form to others: noted, fulfilled when those come, and renamed.
#include "ide/formlinks.h"

#include <algorithm>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formformat.h"
#include "vcl/rtl/keptdata.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

const TComponent& TopOf(const TComponent& component) {
  return component.Owner() ? TopOf(*component.Owner()) : component;
}

/// A property that refers to a component, and the component or item with which a form file keeps
/// it.
struct TReference {
  TObject* Keeper;
  std::string Name;  // As the keeper has it: "Hint.Background".
  TObject* Holder;
  const TPropInfo* Prop;

  TComponent* Target() const {
    return dynamic_cast<TComponent*>(std::get<TObject*>(Prop->Get(*Holder)));
  }
  TKeptData& Keep() const {
    if (auto* item = dynamic_cast<TCollectionItem*>(Keeper)) return item->Keep();
    return dynamic_cast<TComponent&>(*Keeper).Keep();
  }
  /// What is kept of it; null for nothing.
  TKeptProperty* Kept() const {
    const auto* item = dynamic_cast<TCollectionItem*>(Keeper);
    if (!(item ? item->Kept() : dynamic_cast<TComponent&>(*Keeper).Kept())) return nullptr;
    const auto found = std::ranges::find_if(Keep().Properties, [this](const TKeptProperty& each) {
      return SameText(each.Name, Name) && !each.Value.empty() &&
             each.Value.front() == static_cast<char>(TValueType::vaIdent);
    });
    return found == Keep().Properties.end() ? nullptr : &*found;
  }
  void Drop() const {
    if (const TKeptProperty* kept = Kept()) {
      Keep().Properties.erase(Keep().Properties.begin() + (kept - Keep().Properties.data()));
    }
  }
  void Keep(const std::string& target) const {
    constexpr std::size_t longest = 255;
    if (target.size() > longest) return;
    TKeptProperty kept{Name, {static_cast<char>(TValueType::vaIdent)}, Name};
    kept.Value += static_cast<char>(target.size());
    kept.Value += target;
    Drop();
    Keep().Properties.push_back(std::move(kept));
  }
};

/// The name in what is kept: a length byte stands in front of it.
std::string_view TargetName(const TKeptProperty& kept) {
  return std::string_view(kept.Value).substr(2);
}

using TEach = std::function<void(const TReference&)>;

void Walk(TObject& keeper, TObject& object, const std::string& prefix, const TEach& each) {
  for (const TPropInfo* prop : object.ClassType().Published()) {
    if (prop->IsEvent() || !prop->Type->ClassOf) continue;
    if (prop->Type->ClassOf().InheritsFrom(TComponent::Class()) && !prop->ReadOnly()) {
      each({&keeper, prefix + prop->Name, &object, prop});
      continue;
    }
    TObject* inner = std::get<TObject*>(prop->Get(object));
    const auto* component = dynamic_cast<TComponent*>(inner);
    if (!inner || (component && component->Owner() != &object)) continue;
    auto* items = dynamic_cast<TCollection*>(inner);
    for (int i = 0; items && i < items->Count(); ++i) {
      Walk(*items->Items(i), *items->Items(i), {}, each);
    }
    if (!items) Walk(keeper, *inner, Concat(prefix, prop->Name, "."), each);
  }
}

void EachReference(TComponent& root, const TEach& each) {
  Walk(root, root, {}, each);
  for (int i = 0; i < root.ComponentCount(); ++i) {
    Walk(*root.Components(i), *root.Components(i), {}, each);
  }
}

}  // namespace

std::string FullNameOf(const TComponent& component) {
  if (!component.Owner()) return component.Name();
  return Concat(FullNameOf(*component.Owner()), ".", component.Name());
}

TComponent* FindByFullName(const std::vector<TComponent*>& forms, std::string_view name) {
  const std::size_t dot = name.find('.');
  const auto form = std::ranges::find_if(
      forms, [&](const TComponent* each) { return SameText(each->Name(), name.substr(0, dot)); });
  if (form == forms.end()) return nullptr;
  return dot == std::string_view::npos ? *form : (*form)->FindComponent(name.substr(dot + 1));
}

void TFormLinks::Begin(TComponent& root) {
  FLinked.clear();
  EachReference(root, [](const TReference& each) {
    // What follows nothing but itself is at the property's own place.
    if (TKeptProperty* kept = each.Kept()) kept->After = each.Name;
  });
}

void TFormLinks::Note(TComponent& root, const TForms& others) {
  EachReference(root, [&](const TReference& each) {
    const TComponent* target = each.Target();
    const auto linked = FLinked.find({each.Keeper, each.Name});
    const TKeptProperty* kept = each.Kept();
    if (target && &TopOf(*target) != &root) {
      if (kept && linked != FLinked.end() && linked->second == target) return;
      each.Keep(FullNameOf(*target));
      FLinked[{each.Keeper, each.Name}] = target;
    } else if (target ||
               (linked != FLinked.end() && kept && FindByFullName(others, TargetName(*kept)))) {
      each.Drop();
      if (linked != FLinked.end()) FLinked.erase(linked);
    }
  });
}

bool TFormLinks::Resolve(TComponent& root, const TForms& others) {
  bool any = !FLinked.empty();
  EachReference(root, [&](const TReference& each) {
    const TKeptProperty* kept = each.Kept();
    if (!kept || each.Target()) return;
    any = true;
    TComponent* target = FindByFullName(others, TargetName(*kept));
    if (!target || !target->InheritsFrom(each.Prop->Type->ClassOf())) return;
    try {
      each.Prop->Set(*each.Holder, static_cast<TObject*>(target));
    } catch (const Exception&) {
      return;  // It refuses this one; the name stays in the file.
    }
    if (each.Target()) FLinked[{each.Keeper, each.Name}] = target;
  });
  return any;
}

void TFormLinks::TakeNames(TComponent& root, const TComponent& target) {
  EachReference(root, [&](const TReference& each) {
    const TComponent* refers = each.Target();
    if (refers && &TopOf(*refers) == &target) each.Keep(FullNameOf(*refers));
  });
}

}  // namespace ide
