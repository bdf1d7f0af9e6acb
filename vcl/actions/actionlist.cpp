// TActionList: its actions, and the keys that execute them.
#include "vcl/actions/actionlist.h"

#include <algorithm>

#include "vcl/graphics/imagelist.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TActionList::Class() {
  using T = TActionList;
  static const TClass info =
      Describe<T, TComponent>("vcl::TActionList", "vcl/actions/actions.h",
                              {
                                  Property<&T::Images, &T::SetImages>("Images"),
                                  Property<&T::State, &T::SetState>("State").Default(asNormal),
                                  Event<&T::OnChange>("OnChange"),
                                  Event<&T::OnExecute>("OnExecute"),
                                  Event<&T::OnUpdate>("OnUpdate"),
                              });
  return info;
}

TActionList::TActionList(TComponent* owner) : TComponent(owner) {}

TActionList::~TActionList() {
  AnnounceEnd();
  OnChange.Clear();
  while (!FActions.empty()) delete FActions.back();
  SetImages(nullptr);
}

TContainedAction* TActionList::Actions(int index) const {
  if (index < 0 || index >= ActionCount()) {
    throw EListError(Concat("A list of ", std::to_string(ActionCount()),
                            " actions has none at index ", std::to_string(index)));
  }
  return FActions[static_cast<std::size_t>(index)];
}

int TActionList::IndexOf(const TContainedAction* action) const {
  const auto found = std::ranges::find(FActions, action);
  return found == FActions.end() ? -1 : static_cast<int>(found - FActions.begin());
}

void TActionList::Add(TContainedAction& action) {
  FActions.push_back(&action);
  action.FActionList = this;
  action.ListChanged();
  OnChange(this);
}

void TActionList::Remove(TContainedAction& action) {
  const TWatch watch(this);
  std::erase(FActions, &action);
  action.FActionList = nullptr;
  if (!action.Destroying()) action.ListChanged();
  if (!watch.Gone()) OnChange(this);
}

void TActionList::Move(TContainedAction& action, int index) {
  Actions(index);  // Refuses a wrong index before anything changes.
  std::erase(FActions, &action);
  FActions.insert(FActions.begin() + index, &action);
  OnChange(this);
}

void TActionList::TellActions() {
  const TWatch watch(this);
  const std::vector<TContainedAction*> actions = FActions;
  for (TContainedAction* each : actions) {
    if (watch.Gone()) return;
    if (IndexOf(each) >= 0) each->ListChanged();
  }
}

void TActionList::SetImages(TImageList* images) {
  if (images == FImages) return;
  if (FImages) FImages->RemoveFreeNotification(this);
  FImages = images;
  if (images) images->FreeNotification(this);
  TellActions();
}

void TActionList::SetState(TActionListState state) {
  if (state == FState) return;
  FState = state;
  TellActions();
}

void TActionList::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FImages) SetImages(nullptr);
}

void TActionList::GetChildren(const std::function<void(TComponent*)>& each, TComponent*) {
  for (TContainedAction* action : FActions) each(action);
}

TCustomAction* TActionList::FindShortCut(TShortCut shortCut) const {
  for (TContainedAction* each : FActions) {
    auto* action = dynamic_cast<TCustomAction*>(each);
    if (action && shortCut != scNone && action->ShortCut() == shortCut) return action;
  }
  return nullptr;
}

bool TActionList::IsShortCut(const MSG& key) {
  if (key.message != WM_KEYDOWN && key.message != WM_SYSKEYDOWN) return false;
  const auto code = static_cast<std::uint16_t>(key.wParam);
  TCustomAction* action = FindShortCut(vcl::ShortCut(code, KeyDataToShiftState(key.lParam)));
  return action && action->Execute();
}

}  // namespace vcl
