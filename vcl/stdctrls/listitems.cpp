// TListItems: adding, ordering and deleting items, and the rows of OwnerData.
#include "vcl/stdctrls/listitems.h"

#include <algorithm>
#include <list>
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/listview.h"

namespace vcl {

namespace {

constexpr int MostRows = 100'000'000;

}  // namespace

TListItems::TListItems(TCustomListView* owner)
    : TCollection(TListItem::Class()), FOwner(owner), FRowItem(new TListItem(*this, -1)) {}

TListItems::~TListItems() { TCollection::Clear(); }

void TListItems::Assign(const TPersistent* source) {
  if (FOwner->OwnerData()) {
    throw EListViewError(
        Concat("List view '", FOwner->Name(), "' has OwnerData, and no items of its own"));
  }
  TCollection::Assign(source);
}

// ---- Counting and finding ----

int TListItems::Count() const { return FOwner->OwnerData() ? FRows : OwnCount(); }

void TListItems::SetCount(int count) {
  if (!FOwner->OwnerData() || count < 0 || count > MostRows) {
    throw EListViewError(Concat("List view '", FOwner->Name(), "' cannot have ",
                                std::to_string(count), " rows",
                                FOwner->OwnerData() ? "" : ": it has no OwnerData"));
  }
  FRows = count;
  FOwner->RowsCounted();
}

TListItem* TListItems::Items(int index) const {
  if (!FOwner->OwnerData()) return Own(index);
  if (index < 0 || index >= FRows) {
    throw EListError(Concat("Row ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(FRows)));
  }
  return Row(index);
}

/// Fills the item that stands for rows, for this one.
TListItem* TListItems::Row(int row) const {
  TListItem* item = FRowItem.get();
  item->FRow = row;
  item->FCaption.clear();
  if (item->FSubItems) item->SubItems()->Clear();
  item->FSubItemImages.clear();
  item->FImageIndex = item->FStateIndex = -1;
  item->FIndent = 0;
  item->FChecked = false;
  item->FData = nullptr;
  FOwner->Data(item);
  return item;
}

int TListItems::IndexOf(const TListItem* item) const {
  return item && item->Owner() == this ? item->Index() : -1;
}

// ---- Adding ----

TListItem* TListItems::AddItem(const std::string& caption) {
  const TUpdating updating(static_cast<TCollection&>(*this), FOwner);
  TListItem* item = Add();
  item->SetCaption(caption);
  return item;
}

void TListItems::ItemChanged(TCollectionItem* item, TCollectionChange change) {
  ++FRevision;
  if (change == TCollectionChange::Joined) return FNew.push_back(item);
  if (static_cast<TListItem*>(item)->FInWindow) FMoved = true;
}

void TListItems::Update(TCollectionItem* item) {
  TCollection::Update(item);
  if (!item && !FSorting) FOwner->ItemsChanged();
}

void TListItems::BeginUpdate() {
  TCollection::BeginUpdate();
  if (FHeld++ == 0) FOwner->SetRedraw(false);
}

void TListItems::EndUpdate() {
  const TWatch watch(FOwner);
  TCollection::EndUpdate();
  if (!watch.Gone() && FHeld > 0 && --FHeld == 0) FOwner->SetRedraw(true);
}

// ---- Ordering ----

/// True when the items stand in order then. Equal ones stay as they stood; a handler that adds or
/// deletes items, or frees the list view, ends it.
bool TListItems::Sort(const std::function<int(TListItem*, TListItem*)>& compare) {
  if (FSorting) return false;
  const TWatch watch(FOwner);
  const int revision = FRevision;
  const auto whole = [&] { return !watch.Gone() && revision == FRevision; };
  // Unlike those of arrays, a list's sort stays inside whatever the calls answer.
  std::list<TCollectionItem*> order;
  for (int i = 0; i < OwnCount(); ++i) order.push_back(Own(i));
  const TSetFor sorting(FSorting, true, FOwner);
  order.sort([&](TCollectionItem* a, TCollectionItem* b) {
    return whole() && compare(static_cast<TListItem*>(a), static_cast<TListItem*>(b)) < 0;
  });
  if (!whole()) return false;
  FMoved = true;
  Arrange({order.begin(), order.end()});
  return true;
}

/// Puts one item in its place among the others, which stand in order: behind its equals.
void TListItems::PutInPlace(TListItem* item) {
  if (FSorting) return;
  const TWatch watch(FOwner);
  const TSetFor sorting(FSorting, true, FOwner);
  const int now = item->Index();
  const int revision = FRevision;
  int low = 0;
  int high = OwnCount() - 1;
  while (low < high) {
    const int middle = (low + high) / 2;
    TListItem* other = Own(middle < now ? middle : middle + 1);
    const bool before = FOwner->Compare(item, other) < 0;
    if (watch.Gone() || revision != FRevision) return;
    before ? high = middle : low = middle + 1;
  }
  item->SetIndex(low);
}

// ---- Deleting ----

/// Tells that an item goes. What a handler raises keeps none from going. False when it has freed
/// the list view.
bool TListItems::Announce(TListItem* item) {
  if (std::exchange(item->FAnnounced, true)) return true;
  const TWatch watch(FOwner);
  try {
    FOwner->Delete(item);
  } catch (...) {
    Application()->HandleCurrentException(watch.Gone() ? nullptr : FOwner);
  }
  return !watch.Gone();
}

void TListItems::Forget(TListItem* item) {
  ++FRevision;
  FOwner->RemoveRow(item);
  if (item->FListed) return;
  const auto found = std::find(FNew.rbegin(), FNew.rend(), item);
  if (found != FNew.rend()) FNew.erase(std::next(found).base());
}

void TListItems::Delete(int index) { Items(index)->Delete(); }

void TListItems::Clear() {
  if (FOwner->OwnerData()) return SetCount(0);
  for (int i = 0; i < OwnCount(); ++i) {
    if (!Announce(Own(i))) return;
  }
  FOwner->RemoveRows();
  TCollection::Clear();
}

}  // namespace vcl
