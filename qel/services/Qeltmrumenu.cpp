// TQELMRUMenu: the list of files, keeping it, and its lines in the menu.
#include "qel/services/Qeltmrumenu.h"

#include <algorithm>
#include <exception>

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"

namespace qel {

namespace {

constexpr const char* StoreSection = "MRU Items";

/// Calls `use` with each of the items of the class TQELMRUItem, the last one first; it may free
/// what it is given, and others with it.
template <class Count, class ItemAt, class Use>
void ForEachOwnItem(Count count, ItemAt itemAt, Use use) {
  for (int i = count() - 1; i >= 0; i = std::min(i, count()) - 1) {
    if (auto* item = dynamic_cast<TQELMRUItem*>(itemAt(i))) use(item);
  }
}

/// The name in a store's line "MRU0=name"; it may hold a "=" itself.
std::string FileOf(const std::string& line) {
  const std::size_t sign = line.find('=');
  return sign == std::string::npos ? line : line.substr(sign + 1);
}

}  // namespace

const vcl::TClass& TQELMRUItem::Class() {
  static const vcl::TClass info =
      vcl::Describe<TQELMRUItem, TMenuItem>("qel::TQELMRUItem", "qel/services/Qeltmrumenu.h", {});
  return info;
}

const vcl::TClass& TQELMRUMenu::Class() {
  using T = TQELMRUMenu;
  using namespace vcl;
  // The constructor sets AsSubMenu, whose declared default is false: forms were designed with what
  // comes of that, see SetAsSubMenu.
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELMRUMenu", "qel/services/Qeltmrumenu.h",
      {
          Property<&T::MaxItems, &T::SetMaxItems>("MaxItems").Default(10),
          Property<&T::RemoveOnClick, &T::SetRemoveOnClick>("RemoveOnClick").Default(true),
          Property<&T::AsSubMenu, &T::SetAsSubMenu>("AsSubMenu").Default(false),
          Property<&T::Separator, &T::SetSeparator>("Separator").Default(true),
          Property<&T::SubMenuname, &T::SetSubMenuname>("SubMenuname"),
          Event<&T::OnItemClick>("OnItemClick")
              .Type("TQELMRUItemClick", "vcl::TObject* sender, std::string fileName"),
          // Who reads the property by its table may look at the item itself.
          Property<&T::LiveMenu, &T::SetAttachToMenu>("AttachToMenu"),
          ReadOnly<&T::MRUStore>("MRUStore"),
          Property<&T::Numbering, &T::SetNumbering>("Numbering"),
      });
  return info;
}

TQELMRUMenu::TQELMRUMenu(vcl::TComponent* owner)
    : TQELComponent(owner), FMRUStore(std::make_unique<TQELDataStore>()) {
  FMRUStore->Registry()->SetSection(StoreSection);
  FMRUStore->Inifile()->SetSection(StoreSection);
}

TQELMRUMenu::~TQELMRUMenu() {
  AnnounceEnd();
  try {
    SaveAtEnd();
  } catch (...) {
    vcl::BaseApplication().HandleCurrentException(nullptr);
  }
  // The items, which would call this component.
  DestroyComponents();
}

void TQELMRUMenu::Loaded() {
  TQELComponent::Loaded();
  if (Designing()) return;
  // A store that can't be read now is no reason to do without the form.
  try {
    Load();
  } catch (const vcl::EIniFileException&) {
    FMRUStore->OnError(FMRUStore.get());
  } catch (const vcl::ERegistryException&) {
    FMRUStore->OnError(FMRUStore.get());
  }
}

// At run time the reference is kept, as handlers may compare with it; but from now on it is never
// followed.
void TQELMRUMenu::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation != vcl::opRemove || component != FAttachToMenu || FMenuGone) return;
  RemoveAllItems();
  FMenuGone = true;
  if (Designing()) FAttachToMenu = nullptr;
}

// The list.

// A new name goes to the end and an old one to the beginning, where the next one too many is
// deleted: this order is the component's own, on purpose.
void TQELMRUMenu::Insert(const std::string& fileName) {
  const int index = FFiles.IndexOf(fileName);
  if (index >= 0) {
    FFiles.Move(index, 0);
  } else {
    FFiles.Add(fileName);
    while (FFiles.Count() > FMaxItems) FFiles.Delete(0);
  }
  PopulateMenu();
}

void TQELMRUMenu::Delete(const std::string& fileName) {
  const int index = FFiles.IndexOf(fileName);
  if (index < 0) return;
  FFiles.Delete(index);
  PopulateMenu();
}

void TQELMRUMenu::Clear() {
  RemoveAllItems();
  FFiles.Clear();
  if (!FMRUStore->Enabled()) return;
  vcl::TStringList unread;
  if (FUnread) ReadStored(unread);
  WriteAll();
}

bool TQELMRUMenu::Load() {
  if (!FMRUStore->Enabled()) return false;
  vcl::TStringList names;
  if (!ReadStored(names)) return true;
  // MaxItems is not looked at: it holds from the next change of the list on.
  FFiles.Assign(&names);
  PopulateMenu();
  return true;
}

/// The names in the order that the store gives them in, whatever their values' numbers. False, and
/// the component perhaps freed by OnError, when there is no section or no place to read.
bool TQELMRUMenu::ReadStored(vcl::TStringList& names) {
  const vcl::TOnFailure unread([this] { FUnread = true; }, this);
  const TQELDataStore::TStrictReading strict(*FMRUStore, this);
  vcl::TStringList lines;
  lines.AddObject({}, this);
  FMRUStore->ReadStrs(lines);
  const bool untouched = lines.IndexOfObject(this) >= 0;
  if (untouched) return false;
  FUnread = false;
  for (int i = 0; i < lines.Count(); ++i) names.Add(FileOf(lines.Strings(i)));
  return true;
}

bool TQELMRUMenu::Save() {
  if (!FMRUStore->Enabled()) return false;
  if (FUnread) {
    TakeInUnread();
    PopulateMenu();
  }
  WriteAll();
  return true;
}

/// Puts what is stored before the names that have come since.
void TQELMRUMenu::TakeInUnread() {
  vcl::TStringList names;
  ReadStored(names);
  for (int i = 0; i < FFiles.Count(); ++i) {
    if (names.IndexOf(FFiles.Strings(i)) < 0) names.Add(FFiles.Strings(i));
  }
  FFiles.Assign(&names);
}

// Without names of its own the list has nothing to add to what could not be read.
void TQELMRUMenu::SaveAtEnd() {
  if (Designing() || !FMRUStore->Enabled() || (FUnread && FFiles.Count() == 0)) return;
  if (FUnread) TakeInUnread();
  WriteAll();
}

void TQELMRUMenu::WriteAll() {
  FMRUStore->Erase();
  std::exception_ptr refused;
  for (int i = 0; i < FFiles.Count(); ++i) {
    try {
      FMRUStore->WriteStr("MRU" + std::to_string(i), FFiles.Strings(i));
    } catch (...) {
      // A name with a line break, perhaps; the others need not be lost with it.
      if (!refused) refused = std::current_exception();
    }
  }
  if (refused) std::rethrow_exception(refused);
}

// The menu.

vcl::TMenuItem* TQELMRUMenu::Container() const {
  vcl::TMenuItem* const menu = LiveMenu();
  return menu && menu->Count() == 0 ? menu->Parent() : menu;
}

void TQELMRUMenu::PopulateMenu() {
  RemoveAllItems();
  vcl::TMenuItem* const container = Container();
  if (!container || FFiles.Count() == 0) return;
  int position = container == FAttachToMenu ? container->Count() : FAttachToMenu->MenuIndex();
  if (FSeparator) AddItem(container, position++, "-", 0);
  if (!FAsSubMenu) return AddNames(container, position);
  AddNames(AddItem(container, position, FSubMenuname, 0), 0);
}

// Without numbers a caption is the bare name, so that an "&" in it is not seen but marks a letter,
// and a name "-" is a line.
void TQELMRUMenu::AddNames(vcl::TMenuItem* container, int position) {
  for (int i = 0; i < FFiles.Count(); ++i) {
    const std::string number = FNumbering ? "&" + std::to_string(i + 1) + " " : "";
    TQELMRUItem* item = AddItem(container, position + i, number + FFiles.Strings(i), i + 1);
    item->OnClick = {this, &TQELMRUMenu::MRUClicked};
  }
}

TQELMRUItem* TQELMRUMenu::AddItem(vcl::TMenuItem* container, int position,
                                  const std::string& caption, int number) {
  // Owned by this component, which they call, so that they go when it goes.
  auto* item = new TQELMRUItem(this, number);
  item->SetCaption(caption);
  container->Insert(position, item);
  return item;
}

void TQELMRUMenu::RemoveAllItems() {
  if (!FAttachToMenu) return;
  const auto discard = [this](TQELMRUItem* item) { Discard(item); };
  if (vcl::TMenuItem* const container = Container()) {
    ForEachOwnItem([=] { return container->Count(); }, [=](int i) { return container->Items(i); },
                   discard);
  }
  // Items of a menu that was changed so that another one is the container now would stand for
  // wrong names.
  ForEachOwnItem([this] { return ComponentCount(); }, [this](int i) { return Components(i); },
                 discard);
}

/// Frees the item; while a click is handled, that of the clicked one or of another, later.
void TQELMRUMenu::Discard(TQELMRUItem* item) {
  if (FClicks == 0) {
    delete item;
    return;
  }
  if (item->Parent()) item->Parent()->Remove(item);
  if (item->Owner() != this) InsertComponent(item);
}

void TQELMRUMenu::FreeDiscarded() {
  ForEachOwnItem([this] { return ComponentCount(); }, [this](int i) { return Components(i); },
                 [](TQELMRUItem* item) {
                   if (!item->Parent()) delete item;
                 });
}

void TQELMRUMenu::MRUClicked(vcl::TObject* sender) {
  auto* item = dynamic_cast<TQELMRUItem*>(sender);
  const int index = item ? item->Number() - 1 : -1;
  if (index < 0 || index >= FFiles.Count()) return;
  ++FClicks;
  const auto clicked = [this] {
    if (--FClicks == 0) FreeDiscarded();
  };
  const vcl::TAtEnd handled(clicked, this);
  const std::string fileName = FFiles.Strings(index);
  if (FRemoveOnClick) {
    FFiles.Delete(index);
    PopulateMenu();
  }
  OnItemClick(sender, fileName);
}

// Properties.

void TQELMRUMenu::SetMaxItems(std::uint8_t maxItems) {
  if (maxItems < FMaxItems) {
    while (FFiles.Count() > maxItems) FFiles.Delete(FFiles.Count() - 1);
    PopulateMenu();
  }
  FMaxItems = maxItems;
}

void TQELMRUMenu::SetAttachToMenu(vcl::TMenuItem* menu) {
  RemoveAllItems();
  if (vcl::TMenuItem* const former = LiveMenu()) former->RemoveFreeNotification(this);
  FAttachToMenu = menu;
  FMenuGone = false;
  if (menu) menu->FreeNotification(this);
  PopulateMenu();
}

void TQELMRUMenu::SetAsSubMenu(bool asSubMenu) {
  if (asSubMenu == FAsSubMenu) return;
  FAsSubMenu = asSubMenu;
  PopulateMenu();
}

void TQELMRUMenu::SetSeparator(bool separator) {
  if (separator == FSeparator) return;
  FSeparator = separator;
  PopulateMenu();
}

void TQELMRUMenu::SetSubMenuname(const std::string& name) {
  if (name == FSubMenuname) return;
  FSubMenuname = name;
  if (FAsSubMenu) PopulateMenu();
}

}  // namespace qel
