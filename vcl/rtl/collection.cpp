// TCollection and TCollectionItem: adding, ordering and freeing items, and telling of changes.
#include "vcl/rtl/collection.h"

#include <algorithm>
#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TCollectionItem::Class() {
  static const TClass info =
      Describe<TCollectionItem, TPersistent>("vcl::TCollectionItem", "vcl/rtl/collection.h", {});
  return info;
}

TCollectionItem::TCollectionItem(TCollection* collection) {
  if (collection) collection->Attach(this);
}

TKeptData& TCollectionItem::Keep() {
  if (!FKept) FKept = std::make_unique<TKeptData>();
  return *FKept;
}

TCollectionItem::~TCollectionItem() {
  if (FCollection) FCollection->Detach(this);
}

// Items seldom move far: it is looked for on both sides of its last place.
int TCollectionItem::Index() const {
  if (!FCollection) return -1;
  const auto& items = FCollection->FItems;
  std::size_t up = std::min(FPlace, items.size() - 1);
  for (std::size_t down = up;; ++up) {
    if (up < items.size() && items[up] == this) break;
    if (items[down] == this) {
      up = down;
      break;
    }
    if (down > 0) --down;
  }
  FPlace = up;
  return static_cast<int>(up);
}

void TCollectionItem::SetIndex(int index) {
  if (!FCollection || index == Index()) return;
  FCollection->CheckIndex(index, FCollection->Count());
  auto& items = FCollection->FItems;
  items.erase(items.begin() + Index());
  items.insert(items.begin() + index, this);
  FPlace = static_cast<std::size_t>(index);
  FCollection->ItemChanged(this, TCollectionChange::Moved);
  Changed(true);
}

void TCollectionItem::Changed(bool allItems) {
  if (FCollection) FCollection->Changed(allItems ? nullptr : this);
}

const TClass& TCollection::Class() {
  static const TClass info =
      Describe<TCollection, TPersistent>("vcl::TCollection", "vcl/rtl/collection.h", {});
  return info;
}

TCollection::TCollection(const TClass& itemClass) : FItemClass(itemClass) {
  if (itemClass.Maker().Item) return;
  throw EArgumentOutOfRangeException(Concat(itemClass.Name(), " is no class of items"));
}

TCollection::~TCollection() {
  OnUpdate = nullptr;
  FUpdateCount = 1;
  while (!FItems.empty()) delete FItems.back();
}

void TCollection::CheckIndex(int index, int count) const {
  if (index >= 0 && index < count) return;
  throw EListError(Concat("Item index ", std::to_string(index), " is out of bounds: there are ",
                          std::to_string(Count())));
}

TCollectionItem* TCollection::Items(int index) const {
  CheckIndex(index, Count());
  return FItems[static_cast<std::size_t>(index)];
}

// The item joins the list before its class's part is made; the news waits until it is whole.
TCollectionItem* TCollection::Add() {
  const TUpdating updating(*this);
  return static_cast<TCollectionItem*>(FItemClass.Maker().Item(this));
}

TCollectionItem* TCollection::Insert(int index) {
  CheckIndex(index, Count() + 1);
  const TUpdating updating(*this);
  TCollectionItem* item = Add();
  item->SetIndex(index);
  return item;
}

void TCollection::Delete(int index) { delete Items(index); }

void TCollection::Clear() {
  const TUpdating updating(*this);
  while (!FItems.empty()) delete FItems.back();
}

TCollectionItem* TCollection::FindItemID(int id) const {
  const auto found = std::ranges::find(FItems, id, &TCollectionItem::ID);
  return found == FItems.end() ? nullptr : *found;
}

void TCollection::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TCollection*>(source);
  if (!other) return TPersistent::Assign(source);
  if (other == this) return;
  // Copies are made beside the old items, so that a copy that fails leaves those as they were.
  std::vector<std::unique_ptr<TCollectionItem>> copies;
  for (const TCollectionItem* item : other->FItems) {
    copies.emplace_back(static_cast<TCollectionItem*>(FItemClass.Maker().Item(nullptr)));
    copies.back()->Assign(item);
  }
  const TUpdating updating(*this);
  Clear();
  for (auto& copy : copies) Attach(copy.release());
}

void TCollection::EndUpdate() {
  if (FUpdateCount > 0 && --FUpdateCount > 0) return;
  if (FChangedMeanwhile) Changed(nullptr);
}

void TCollection::Update(TCollectionItem* item) {
  if (OnUpdate) OnUpdate(item);
}

void TCollection::Attach(TCollectionItem* item) {
  FItems.push_back(item);
  item->FCollection = this;
  item->FID = FNextID++;
  item->FPlace = FItems.size() - 1;
  ItemChanged(item, TCollectionChange::Joined);
  Changed(nullptr);
}

void TCollection::Detach(TCollectionItem* item) {
  FItems.erase(FItems.begin() + item->Index());
  item->FCollection = nullptr;
  Changed(nullptr);
}

void TCollection::Arrange(std::vector<TCollectionItem*> order) {
  FItems = std::move(order);
  for (std::size_t i = 0; i < FItems.size(); ++i) FItems[i]->FPlace = i;
  Changed(nullptr);
}

void TCollection::Changed(TCollectionItem* item) {
  FChangedMeanwhile = FUpdateCount > 0;
  if (!FChangedMeanwhile) Update(item);
}

}  // namespace vcl
