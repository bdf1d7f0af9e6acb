// TComponent: owning, naming, free notification, what a form file asks of it; and TWatch.
#include "vcl/rtl/component.h"

#include <algorithm>
#include <limits>
#include <mutex>
#include <unordered_map>
#include <unordered_set>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filer.h"
#include "vcl/rtl/private/livecomponents.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/reader.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/writer.h"

namespace vcl {

namespace {

/// All of them. It outlives the components that end with the program.
struct TLive {
  std::mutex Mutex;
  std::unordered_set<const TComponent*> Components;
};
TLive& Live() {
  static auto& live = *new TLive;
  return live;
}

}  // namespace

bool detail::FindComponent(const std::function<bool(const TComponent&)>& wanted) {
  const std::scoped_lock lock(Live().Mutex);
  return std::ranges::any_of(Live().Components,
                             [&](const TComponent* each) { return wanted(*each); });
}

const TClass& TComponent::Class() {
  static const TClass info = Describe<TComponent, TPersistent>(
      "vcl::TComponent", "vcl/rtl/component.h",
      {
          // The name stands in the heading of the component's part of the file.
          Property<&TComponent::Name, &TComponent::SetName>("Name")
              .Type("TComponentName")
              .Stored(false),
          Property<&TComponent::Tag, &TComponent::SetTag>("Tag").Default(0),
      });
  return info;
}

/// The owned components that have names, by those in capitals.
struct TComponent::TNames {
  explicit TNames(const std::vector<TComponent*>& components) {
    for (TComponent* each : components) Add(each);
  }
  void Add(TComponent* component) {
    if (!component->Name().empty()) ByName.emplace(UpperCase(component->Name()), component);
  }
  void Remove(const TComponent* component) {
    const auto found = ByName.find(UpperCase(component->Name()));
    if (found != ByName.end() && found->second == component) ByName.erase(found);
  }

  std::unordered_map<std::string, TComponent*> ByName;
};

TComponent::TComponent(TComponent* owner) {
  if (owner) owner->InsertComponent(this);
  const std::scoped_lock lock(Live().Mutex);
  Live().Components.insert(this);
}

TComponent::~TComponent() {
  AnnounceEnd();
  DestroyComponents();
  if (FOwner) FOwner->RemoveComponent(this);
  const std::scoped_lock lock(Live().Mutex);
  Live().Components.erase(this);
}

void TComponent::AnnounceEnd() {
  if (FEndAnnounced) return;
  FEndAnnounced = true;
  MarkDestroying();
  // A listener may ask again or take back what it asked while the news goes round.
  while (!FFreeNotifies.empty()) {
    TComponent* listener = FFreeNotifies.back();
    RemoveFreeNotification(listener);
    listener->Notification(this, opRemove);
  }
  if (FOwner) FOwner->Notification(this, opRemove);
}

void TComponent::MarkDestroying() {
  Include(csDestroying);
  for (TComponent* component : FComponents) component->MarkDestroying();
}

void TComponent::SetName(const std::string& name) {
  if (name == FName) return;
  if (!name.empty() && !IsValidIdent(name)) {
    throw EComponentError(Concat("'", Shown(name), "' is not a valid component name"));
  }
  if (FOwner) FOwner->ValidateRename(this, FName, name);
  ValidateRename(nullptr, FName, name);
  PutName(name);
}

void TComponent::PutName(const std::string& name) {
  TNames* const names = FOwner ? FOwner->FNames.get() : nullptr;
  if (names) names->Remove(this);
  FName = name;
  if (names) names->Add(this);
}

void TComponent::ValidateRename(TComponent* component, const std::string&,
                                const std::string& newName) {
  if (!component || newName.empty()) return;
  const TComponent* holder = FindComponent(newName);
  if (holder && holder != component) {
    throw EComponentError(Concat("A component named ", newName, " already exists"));
  }
}

TComponent* TComponent::Components(int index) const {
  if (index < 0 || index >= ComponentCount()) {
    throw EListError(Concat("Component index ", std::to_string(index), " is out of bounds: ",
                            Name(), " has ", std::to_string(ComponentCount())));
  }
  return FComponents[static_cast<std::size_t>(index)];
}

int TComponent::ComponentIndex() const {
  if (!FOwner) return -1;
  return static_cast<int>(std::ranges::find(FOwner->FComponents, this) -
                          FOwner->FComponents.begin());
}

void TComponent::SetComponentIndex(int index) {
  if (!FOwner) return;
  auto& siblings = FOwner->FComponents;
  std::erase(siblings, this);
  const int last = static_cast<int>(siblings.size());
  siblings.insert(siblings.begin() + std::clamp(index, 0, last), this);
}

TComponent* TComponent::FindComponent(std::string_view name) const {
  if (name.empty()) return nullptr;
  constexpr std::size_t many = 16;
  if (FComponents.size() < many) {
    const auto found = std::ranges::find_if(
        FComponents, [&](const TComponent* each) { return SameText(each->Name(), name); });
    return found == FComponents.end() ? nullptr : *found;
  }
  if (!FNames) FNames = std::make_unique<TNames>(FComponents);
  const auto found = FNames->ByName.find(UpperCase(name));
  return found == FNames->ByName.end() ? nullptr : found->second;
}

void TComponent::InsertComponent(TComponent* component) {
  ValidateRename(component, {}, component->Name());
  if (component->FOwner) component->FOwner->RemoveComponent(component);
  FComponents.push_back(component);
  component->FOwner = this;
  if (FNames) FNames->Add(component);
  if (Designing()) component->SetDesigning(true);
  Notification(component, opInsert);
}

void TComponent::RemoveComponent(TComponent* component) {
  if (component->FOwner != this) return;
  if (!component->FEndAnnounced) Notification(component, opRemove);
  if (FNames) FNames->Remove(component);
  // From the end, where the components stand that an ending owner frees.
  const auto found = std::find(FComponents.rbegin(), FComponents.rend(), component);
  FComponents.erase(std::next(found).base());
  component->FOwner = nullptr;
}

void TComponent::DestroyComponents() {
  while (!FComponents.empty()) delete FComponents.back();
}

void TComponent::SetDesignPosition(int left, int top) {
  constexpr int lowest = std::numeric_limits<std::int16_t>::min();
  constexpr int highest = std::numeric_limits<std::int16_t>::max();
  FDesignLeft = static_cast<std::int16_t>(std::clamp(left, lowest, highest));
  FDesignTop = static_cast<std::int16_t>(std::clamp(top, lowest, highest));
}

TKeptData& TComponent::Keep() {
  if (!FKept) FKept = std::make_unique<TKeptData>();
  return *FKept;
}

const std::string& TComponent::FileClassName() const {
  return FKept && !FKept->ClassName.empty() ? FKept->ClassName : ClassName();
}

void TComponent::SetDesigning(bool designing) {
  designing ? Include(csDesigning) : Exclude(csDesigning);
  for (TComponent* component : FComponents) component->SetDesigning(designing);
}

void TComponent::FreeNotification(TComponent* component) {
  if (!component || component == this || std::ranges::count(FFreeNotifies, component) > 0) return;
  FFreeNotifies.push_back(component);
  // The asker is told to this one in turn, so that a dead asker is never called.
  component->FreeNotification(this);
}

void TComponent::RemoveFreeNotification(TComponent* component) {
  if (std::erase(FFreeNotifies, component) > 0) component->RemoveFreeNotification(this);
}

void TComponent::GetChildren(const std::function<void(TComponent*)>&, TComponent*) {}

/// What owns components passes the news on to them.
bool TComponent::HearsOnlyAsked() const {
  return FAskingClass && FComponents.empty() && *FAskingClass == typeid(*this);
}

void TComponent::Notification(TComponent* component, TOperation operation) {
  if (operation == opRemove) RemoveFreeNotification(component);
  // What leaves without an end has not told those that asked.
  const bool leaves = operation == opRemove && !component->FEndAnnounced;
  // Indexed, because a component may free another when it hears the news.
  for (std::size_t i = FComponents.size(); i-- > 0;) {
    if (i >= FComponents.size()) continue;
    TComponent* const each = FComponents[i];
    if (leaves || !each->HearsOnlyAsked()) each->Notification(component, operation);
  }
}

void TComponent::Loaded() { Exclude(csLoading); }

void TComponent::ReadState(TReader& reader) { reader.ReadData(this); }

void TComponent::WriteState(TWriter& writer) { writer.WriteData(this); }

void TComponent::DefineProperties(TFiler& filer) {
  TPersistent::DefineProperties(filer);
  if (HasParent()) return;
  DefinePosition(filer, "Left", FDesignLeft);
  DefinePosition(filer, "Top", FDesignTop);
}

void TComponent::DefinePosition(TFiler& filer, const char* name, std::int16_t& coordinate) {
  filer.DefineProperty(
      name,
      [&coordinate](TReader& reader) {
        coordinate = static_cast<std::int16_t>(reader.ReadInteger());
      },
      [&coordinate](TWriter& writer) { writer.WriteInteger(coordinate); }, coordinate != 0);
}

}  // namespace vcl
