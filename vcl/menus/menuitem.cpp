// TMenuItem: its properties, the items inside it, and the system's menu that is made of them.
#include <algorithm>
#include <bitset>

#include "vcl/actions/actionlink.h"
#include "vcl/actions/basicaction.h"
#include "vcl/graphics/handles.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

// Numbers of items are unique in the program, so that a WM_COMMAND needs no look at its window. The
// lowest ones are the system's own for the buttons of dialogs, the highest ones for system menus.
constexpr std::size_t FirstCommand = 0x0100;
constexpr std::size_t EndOfCommands = 0xF000;

std::bitset<EndOfCommands>& UsedCommands() {
  static std::bitset<EndOfCommands> used;
  return used;
}

std::uint16_t TakeCommand() {
  auto& used = UsedCommands();
  std::size_t command = FirstCommand;
  while (command < EndOfCommands && used[command]) ++command;
  if (command == EndOfCommands) throw EOutOfResources("There are too many menu items");
  used.set(command);
  return static_cast<std::uint16_t>(command);
}

}  // namespace

const TClass& TMenuItem::Class() {
  using T = TMenuItem;
  static const TClass info = Describe<TMenuItem, TComponent>(
      "vcl::TMenuItem", "vcl/menus/menus.h",
      {
          Property<&T::Action, &T::SetAction>("Action"),
          Property<&T::Caption, &T::SetCaption>("Caption")
              .Type("TCaption")
              .StoredIf<&T::IsCaptionStored>(),
          Property<&T::Checked, &T::SetChecked>("Checked")
              .Default(false)
              .StoredIf<&T::IsCheckedStored>(),
          Property<&T::Default, &T::SetDefault>("Default").Default(false),
          Property<&T::Enabled, &T::SetEnabled>("Enabled")
              .Default(true)
              .StoredIf<&T::IsEnabledStored>(),
          Property<&T::GroupIndex, &T::SetGroupIndex>("GroupIndex")
              .Default(0)
              .StoredIf<&T::IsGroupIndexStored>(),
          Property<&T::Hint, &T::SetHint>("Hint").StoredIf<&T::IsHintStored>(),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex")
              .Default(-1)
              .StoredIf<&T::IsImageIndexStored>(),
          Property<&T::RadioItem, &T::SetRadioItem>("RadioItem").Default(false),
          Property<&T::ShortCut, &T::SetShortCut>("ShortCut")
              .Default(scNone)
              .StoredIf<&T::IsShortCutStored>(),
          Property<&T::Visible, &T::SetVisible>("Visible")
              .Default(true)
              .StoredIf<&T::IsVisibleStored>(),
          Event<&T::OnClick>("OnClick"),
      });
  return info;
}

TMenuItem::TMenuItem(TComponent* owner) : TComponent(owner), FCommand(TakeCommand()) {}

TMenuItem::~TMenuItem() {
  AnnounceEnd();
  if (FParent) FParent->Remove(this);
  Clear();
  if (FHandle) ::DestroyMenu(FHandle);
  UsedCommands().reset(FCommand);
}

// Properties.

template <class T>
void TMenuItem::Change(T& field, const T& value) {
  if (field == value) return;
  field = value;
  Changed();
}

void TMenuItem::SetCaption(const std::string& caption) { Change(FCaption, caption); }
void TMenuItem::SetImageIndex(int index) { Change(FImageIndex, index); }
void TMenuItem::SetEnabled(bool enabled) { Change(FEnabled, enabled); }
void TMenuItem::SetVisible(bool visible) { Change(FVisible, visible); }
void TMenuItem::SetShortCut(TShortCut shortCut) { Change(FShortCut, shortCut); }

void TMenuItem::SetChecked(bool checked) {
  if (checked && FRadioItem) ClearSiblings(&TMenuItem::FChecked, true);
  Change(FChecked, checked);
}

void TMenuItem::SetDefault(bool isDefault) {
  if (isDefault) ClearSiblings(&TMenuItem::FDefault, false);
  Change(FDefault, isDefault);
}

void TMenuItem::SetRadioItem(bool radioItem) {
  if (radioItem && FChecked) ClearSiblings(&TMenuItem::FChecked, true);
  Change(FRadioItem, radioItem);
}

void TMenuItem::SetGroupIndex(int groupIndex) {
  Change(FGroupIndex, groupIndex);
  if (FChecked && FRadioItem) ClearSiblings(&TMenuItem::FChecked, true);
}

// Takes the mark away from the other items of the menu; with `sameGroup` only from radio items of
// the group.
void TMenuItem::ClearSiblings(bool TMenuItem::*flag, bool sameGroup) {
  if (!FParent) return;
  for (TMenuItem* item : FParent->FItems) {
    const bool concerned = !sameGroup || (item->FRadioItem && item->FGroupIndex == FGroupIndex);
    if (item != this && concerned) item->Change(item->*flag, false);
  }
}

// The items inside.

TMenuItem* TMenuItem::Items(int index) const {
  if (index < 0 || index >= Count()) {
    throw EListError(Concat("A menu of ", std::to_string(Count()), " items has none at index ",
                            std::to_string(index)));
  }
  return FItems[static_cast<std::size_t>(index)];
}

void TMenuItem::Insert(int index, TMenuItem* item) {
  if (item->FParent) {
    throw EInvalidOperation(Concat("The menu item \"", item->FCaption, "\" is in a menu already"));
  }
  for (const TMenuItem* around = this; around; around = around->FParent) {
    if (around == item) {
      throw EInvalidOperation(Concat("The menu item \"", item->FCaption, "\" can't hold itself"));
    }
  }
  if (index < 0 || index > Count()) {
    throw EListError(Concat("A menu of ", std::to_string(Count()),
                            " items can't take one at index ", std::to_string(index)));
  }
  FItems.insert(FItems.begin() + index, item);
  item->FParent = this;
  ItemsChanged();
}

void TMenuItem::Remove(TMenuItem* item) {
  const auto found = std::find(FItems.begin(), FItems.end(), item);
  if (found == FItems.end()) {
    throw EInvalidOperation(Concat("The menu item \"", item->FCaption, "\" is not in this menu"));
  }
  FItems.erase(found);
  item->FParent = nullptr;
  ItemsChanged();
}

void TMenuItem::Delete(int index) { Remove(Items(index)); }

void TMenuItem::Clear() {
  while (!FItems.empty()) delete FItems.back();
}

int TMenuItem::IndexOf(const TMenuItem* item) const {
  const auto found = std::find(FItems.begin(), FItems.end(), item);
  return found == FItems.end() ? -1 : static_cast<int>(found - FItems.begin());
}

int TMenuItem::MenuIndex() const { return FParent ? FParent->IndexOf(this) : -1; }

void TMenuItem::SetMenuIndex(int index) {
  if (!FParent || index == MenuIndex()) return;
  TMenuItem* parent = FParent;
  parent->Items(index);  // Refuses a wrong index before anything changes.
  parent->Remove(this);
  parent->Insert(index, this);
}

TMenu* TMenuItem::GetParentMenu() const {
  const TMenuItem* item = this;
  while (item->FParent) item = item->FParent;
  return item->FMenu;
}

TMenuItem* TMenuItem::Find(const std::function<bool(const TMenuItem&)>& wanted) {
  if (wanted(*this)) return this;
  for (TMenuItem* item : FItems) {
    if (TMenuItem* found = item->Find(wanted)) return found;
  }
  return nullptr;
}

// The system's menu.

HMENU TMenuItem::Handle() {
  if (!FHandle) {
    FHandle = CheckHandle(FMenu ? FMenu->CreateHandle() : ::CreatePopupMenu(), "A menu");
    Fill();
  }
  return FHandle;
}

// The item's own line has changed.
void TMenuItem::Changed() {
  if (FParent) FParent->ItemsChanged();
}

// The lines of the submenu have changed, and perhaps whether it is one.
void TMenuItem::ItemsChanged() {
  if (FHandle) Fill();
  if (FParent && FParent->FHandle) FParent->Fill();
  if (TMenu* menu = GetParentMenu()) menu->MenuChanged();
}

// Fills the menu again in place: it may be on the screen. Lines are removed rather than deleted,
// for the handles of submenus belong to their items.
void TMenuItem::Fill() {
  while (::RemoveMenu(FHandle, 0, MF_BYPOSITION)) {
  }
  for (TMenuItem* item : FItems) {
    if (item->FVisible) item->AppendTo(FHandle);
  }
}

void TMenuItem::AppendTo(HMENU menu) {
  std::wstring text = ToUtf16(FCaption);
  if (FShortCut != scNone) text += L'\t' + ToUtf16(ShortCutToText(FShortCut));
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING;
  info.fType = static_cast<UINT>(IsLine() ? MFT_SEPARATOR : MFT_STRING);
  if (FRadioItem) info.fType |= MFT_RADIOCHECK;
  info.fState = static_cast<UINT>((FEnabled ? MFS_ENABLED : MFS_DISABLED) |
                                  (FChecked ? MFS_CHECKED : 0) | (FDefault ? MFS_DEFAULT : 0));
  info.wID = FCommand;
  info.dwTypeData = text.data();
  if (IsLine()) info.fMask &= ~static_cast<UINT>(MIIM_STRING);
  if (!FItems.empty()) {
    info.fMask |= MIIM_SUBMENU;
    info.hSubMenu = Handle();
  }
  if (HasPicture()) {
    // A bitmap of the item's own would be inverted under the mouse where the system is older.
    info.fMask |= MIIM_BITMAP;
    info.hbmpItem = HBMMENU_CALLBACK;
  }
  ::InsertMenuItemW(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &info);
}

// Choosing.

bool TMenuItem::EnabledWithParents() const {
  for (const TMenuItem* item = this; item; item = item->FParent) {
    if (!item->FEnabled) return false;
  }
  return true;
}

void TMenuItem::Click() {
  if (!EnabledWithParents()) return;
  if (OnClick || !Action()) {
    OnClick(this);
  } else {
    Action()->Execute();
  }
}

// Chooses the item by its shortcut. The menus around it are clicked first, as they are when they
// open, for their handlers may disable it. False when it is disabled.
bool TMenuItem::ChosenByKey() {
  TWatch watch(this);
  std::vector<TMenuItem*> around;
  for (TMenuItem* item = FParent; item && item->FParent; item = item->FParent) {
    around.push_back(item);
  }
  while (!around.empty()) {
    TMenuItem* outermost = around.back();
    around.pop_back();
    outermost->Click();
    // The handler may have rearranged the menu: go on only along items that are still around.
    if (watch.Gone()) return true;
    std::erase_if(around, [this](TMenuItem* item) {
      for (TMenuItem* parent = FParent; parent; parent = parent->FParent) {
        if (parent == item) return false;
      }
      return true;
    });
  }
  UpdateAction();
  if (watch.Gone()) return true;
  if (!EnabledWithParents()) return false;
  Click();
  return true;
}

// The action.

TBasicAction* TMenuItem::Action() const { return FActionLink ? FActionLink->Action() : nullptr; }

void TMenuItem::SetAction(TBasicAction* action) {
  if (action == Action()) return;
  if (!FActionLink) {
    FActionLink = std::make_unique<TActionLink>(
        *this, [this](const TActionChange& change) { FollowAction(change); });
  }
  FActionLink->SetAction(action);
}

void TMenuItem::FollowAction(const TActionChange& change) {
  using T = TMenuItem;
  using V = TActionValues;
  change.Pass(*this, &V::Caption, &T::Caption, &T::SetCaption);
  change.Pass(*this, &V::GroupIndex, &T::GroupIndex, &T::SetGroupIndex);
  change.Pass(*this, &V::Checked, &T::Checked, &T::SetChecked);
  change.Pass(*this, &V::Enabled, &T::Enabled, &T::SetEnabled);
  change.Pass(*this, &V::Hint, &T::Hint, &T::SetHint);
  change.Pass(*this, &V::ImageIndex, &T::ImageIndex, &T::SetImageIndex);
  change.Pass(*this, &V::ShortCut, &T::ShortCut, &T::SetShortCut);
  change.Pass(*this, &V::Visible, &T::Visible, &T::SetVisible);
}

void TMenuItem::UpdateAction() {
  if (Action()) Action()->Update();
}

// The actions of the items inside, before they are seen. Handlers may free them.
void TMenuItem::UpdateActions() {
  std::vector<std::pair<TMenuItem*, TWatch>> items;
  for (TMenuItem* item : FItems) items.emplace_back(item, TWatch(item));
  for (const auto& [item, watch] : items) {
    if (!watch.Gone()) item->UpdateAction();
  }
}

// A value that follows the action's is not written.
template <class T>
bool TMenuItem::IsOwn(T TActionValues::*value, const T& shown) const {
  const TActionValues* values = FActionLink ? FActionLink->Values() : nullptr;
  return !values || values->*value != shown;
}

bool TMenuItem::IsCaptionStored() const { return IsOwn(&TActionValues::Caption, FCaption); }
bool TMenuItem::IsCheckedStored() const { return IsOwn(&TActionValues::Checked, FChecked); }
bool TMenuItem::IsEnabledStored() const { return IsOwn(&TActionValues::Enabled, FEnabled); }
bool TMenuItem::IsGroupIndexStored() const {
  return IsOwn(&TActionValues::GroupIndex, FGroupIndex);
}
bool TMenuItem::IsHintStored() const { return IsOwn(&TActionValues::Hint, FHint); }
bool TMenuItem::IsImageIndexStored() const {
  return IsOwn(&TActionValues::ImageIndex, FImageIndex);
}
bool TMenuItem::IsShortCutStored() const { return IsOwn(&TActionValues::ShortCut, FShortCut); }
bool TMenuItem::IsVisibleStored() const { return IsOwn(&TActionValues::Visible, FVisible); }

// The component.

void TMenuItem::GetChildren(const std::function<void(TComponent*)>& each, TComponent*) {
  for (TMenuItem* item : FItems) each(item);
}

void TMenuItem::SetChildOrder(TComponent* child, int order) {
  auto* item = dynamic_cast<TMenuItem*>(child);
  if (item && item->FParent == this) item->SetMenuIndex(std::clamp(order, 0, Count() - 1));
}

TComponent* TMenuItem::GetParentComponent() const {
  if (FParent && FParent->FMenu) return FParent->FMenu;
  return FParent;
}

void TMenuItem::SetParentComponent(TComponent* parent) {
  TMenuItem* item = dynamic_cast<TMenuItem*>(parent);
  if (auto* menu = dynamic_cast<TMenu*>(parent)) item = menu->Items();
  if (!item && parent) {
    throw EInvalidOperation(Concat("A menu item can't stand in a ", parent->ClassName()));
  }
  if (FParent) FParent->Remove(this);
  if (item) item->Add(this);
}

}  // namespace vcl
