// TSelection: what is selected, and forgetting what is freed.
#include "ide/selection.h"

#include <algorithm>

namespace ide {

using namespace vcl;

std::vector<TComponent*> TSelection::Components() const {
  std::vector<TComponent*> components;
  for (TPersistent* each : FAll) {
    if (auto* component = dynamic_cast<TComponent*>(each)) components.push_back(component);
  }
  return components;
}

bool TSelection::Contains(const TPersistent* object) const {
  return std::ranges::count(FAll, object) > 0;
}

void TSelection::Set(const std::vector<TPersistent*>& objects) {
  std::vector<TPersistent*> once;
  for (TPersistent* each : objects) {
    if (each && std::ranges::count(once, each) == 0) once.push_back(each);
  }
  if (once == FAll) return;
  for (TComponent* each : Components()) each->RemoveFreeNotification(this);
  FAll = std::move(once);
  ++FChanges;
  for (TComponent* each : Components()) each->FreeNotification(this);
  if (OnChange) OnChange();
}

void TSelection::Toggle(TPersistent* object) {
  std::vector<TPersistent*> objects = FAll;
  if (std::erase(objects, object) == 0) objects.push_back(object);
  Set(objects);
}

void TSelection::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation != opRemove) return;
  // It is no longer whole: compared only.
  if (std::erase(FAll, static_cast<TPersistent*>(component)) > 0 && OnChange) OnChange();
}

}  // namespace ide
