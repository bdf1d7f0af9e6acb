// TListItem: its texts, pictures and state.
#include <algorithm>
#include <utility>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/listview.h"

namespace vcl {

EListViewError::~EListViewError() = default;

/// The texts of the other columns, which tell their item of their changes.
struct TListItem::TSubItems : TStringList {
  explicit TSubItems(TListItem& item) : Item(item) {}

  void Changed() override {
    TStringList::Changed();
    if (!FUpdating) Item.Changed(ctText);
  }
  void SetUpdateState(bool updating) override {
    FUpdating = updating;
    TStringList::SetUpdateState(updating);
  }

  TListItem& Item;
  bool FUpdating = false;
};

const TClass& TListItem::Class() {
  using T = TListItem;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TListItem", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::Caption, &T::SetCaption>("Caption").Default(""),
          Property<&T::Checked, &T::SetChecked>("Checked").Default(false),
          Property<&T::GroupID, &T::SetGroupID>("GroupID").Default(-1),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1),
          Property<&T::Indent, &T::SetIndent>("Indent").Default(0),
          Property<&T::StateIndex, &T::SetStateIndex>("StateIndex").Default(-1),
          Property<&T::SubItems, &T::SetSubItems>("SubItems").StoredIf<&T::HasSubItems>(),
          Property<&T::SubItemImages, &T::SetSubItemImages>("SubItemImages").Default(""),
      });
  return info;
}

TListItem::TListItem(TCollection* items) : TCollectionItem(items) {
  const TListItems* owner = Owner();
  if (owner && owner->Owner()->OwnerData()) {
    throw EListViewError("A list view with OwnerData has no items of its own: set Items.Count");
  }
}

TListItem::TListItem(TListItems& owner, int row)
    : TCollectionItem(nullptr), FRows(&owner), FRow(row) {}

TListItem::~TListItem() {
  TListItems* owner = FRows ? nullptr : Owner();
  if (!owner) return;
  owner->Announce(this);
  owner->Forget(this);
}

void TListItem::Assign(const TPersistent* source) {
  const auto* item = dynamic_cast<const TListItem*>(source);
  if (!item) return TCollectionItem::Assign(source);
  SetCaption(item->FCaption);
  if (item->HasSubItems() || HasSubItems()) SetSubItems(item->SubItems());
  SetSubItemImages(item->SubItemImages());
  SetImageIndex(item->FImageIndex);
  SetStateIndex(item->FStateIndex);
  SetIndent(item->FIndent);
  SetGroupID(item->FGroupID);
  SetChecked(item->FChecked);
  SetData(item->FData);
}

std::string TListItem::DisplayName() const {
  return FCaption.empty() ? TCollectionItem::DisplayName() : FCaption;
}

TListItems* TListItem::Owner() const {
  return FRows ? FRows : static_cast<TListItems*>(Collection());
}

TCustomListView* TListItem::ListView() const {
  const TListItems* owner = Owner();
  return owner ? owner->Owner() : nullptr;
}

int TListItem::Index() const { return FRows ? FRow : TCollectionItem::Index(); }

// ---- What it shows ----

template <class T>
void TListItem::Change(T& field, T value, TItemChange change) {
  if (value == field) return;
  field = std::move(value);
  Changed(change);
}

// An item of no list view, and one that stands for a row, has nobody to tell.
void TListItem::Changed(TItemChange change) {
  TListItems* owner = FRows ? nullptr : Owner();
  if (!owner) return;
  const TWatch watch(this);
  TCollectionItem::Changed(false);
  if (!watch.Gone()) owner->Owner()->ItemChanged(this, change);
}

void TListItem::SetCaption(const std::string& caption) { Change(FCaption, caption, ctText); }
void TListItem::SetImageIndex(int index) { Change(FImageIndex, std::max(index, -1), ctImage); }
void TListItem::SetStateIndex(int index) { Change(FStateIndex, std::max(index, -1), ctState); }
void TListItem::SetIndent(int indent) { Change(FIndent, std::max(indent, 0), ctImage); }
void TListItem::SetGroupID(int id) { Change(FGroupID, std::max(id, -1), ctState); }

void TListItem::SetData(void* data) {
  if (data == std::exchange(FData, data) || FRows) return;
  if (TCustomListView* view = ListView()) view->KeepInPlace(this);
}

bool TListItem::HasSubItems() const { return FSubItems && FSubItems->Count() > 0; }

TStrings* TListItem::SubItems() const {
  // What it does to a const item nobody sees: an empty list is as good as none.
  if (!FSubItems) FSubItems = std::make_unique<TSubItems>(const_cast<TListItem&>(*this));
  return FSubItems.get();
}

void TListItem::SetSubItems(const TStrings* subItems) { SubItems()->Assign(subItems); }

int TListItem::SubItemImage(int subItem) const {
  if (subItem < 0) throw EListError(Concat("There is no subitem ", std::to_string(subItem)));
  const auto place = static_cast<std::size_t>(subItem);
  return place < FSubItemImages.size() ? FSubItemImages[place] : -1;
}

void TListItem::SetSubItemImage(int subItem, int image) {
  if (SubItemImage(subItem) == image) return;
  const auto place = static_cast<std::size_t>(subItem);
  if (place >= FSubItemImages.size()) FSubItemImages.resize(place + 1, -1);
  FSubItemImages[place] = image;
  while (!FSubItemImages.empty() && FSubItemImages.back() == -1) FSubItemImages.pop_back();
  Changed(ctImage);
}

std::string TListItem::SubItemImages() const {
  std::string text;
  for (const int image : FSubItemImages) {
    text += (text.empty() ? "" : ",") + std::to_string(image);
  }
  return text;
}

void TListItem::SetSubItemImages(const std::string& images) {
  std::vector<int> read;
  TStringList numbers;
  numbers.SetCommaText(images);
  for (int i = 0; i < numbers.Count(); ++i) {
    read.push_back(std::max(StrToInt(numbers.Strings(i)), -1));
  }
  while (!read.empty() && read.back() == -1) read.pop_back();
  Change(FSubItemImages, std::move(read), ctImage);
}

// ---- State ----

bool TListItem::HasState(unsigned state) const {
  const TCustomListView* view = ListView();
  return view ? view->ItemHasState(*this, state) : (FState & state) != 0;
}

void TListItem::SetState(unsigned state, bool on) {
  if (HasState(state) == on) return;
  if (TCustomListView* view = ListView()) return view->SetItemState(this, state, on);
  FState = on ? FState | state : FState & ~state;
}

bool TListItem::Selected() const { return HasState(LVIS_SELECTED); }
void TListItem::SetSelected(bool selected) { SetState(LVIS_SELECTED, selected); }
bool TListItem::Focused() const { return HasState(LVIS_FOCUSED); }
void TListItem::SetFocused(bool focused) { SetState(LVIS_FOCUSED, focused); }
bool TListItem::Cut() const { return HasState(LVIS_CUT); }
void TListItem::SetCut(bool cut) { SetState(LVIS_CUT, cut); }
bool TListItem::DropTarget() const { return HasState(LVIS_DROPHILITED); }
void TListItem::SetDropTarget(bool target) { SetState(LVIS_DROPHILITED, target); }

void TListItem::SetChecked(bool checked) {
  if (checked == FChecked) return;
  const TWatch watch(this);
  Change(FChecked, checked, ctState);
  if (watch.Gone() || FRows) return;
  if (TCustomListView* view = ListView()) view->ItemChecked(this);
}

// ---- What can be done with it ----

void TListItem::Delete() {
  if (FRows) throw EListViewError("A row of a list view with OwnerData cannot be deleted");
  if (FAnnounced) return;
  if (TListItems* owner = Owner()) {
    if (!owner->Announce(this)) return;
  }
  delete this;
}

void TListItem::MakeVisible(bool partlyIsEnough) {
  TCustomListView* view = ListView();
  if (!view) return;
  view->HandleNeeded();
  const int row = view->WindowRow(*this);
  if (row >= 0) Send(*view, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), partlyIsEnough);
}

bool TListItem::EditCaption() {
  TCustomListView* view = ListView();
  if (!view || view->ReadOnly()) return false;
  const TWatch watch(this);
  if (view->CanFocus()) view->SetFocus();
  if (watch.Gone()) return false;
  view->HandleNeeded();
  const int row = view->WindowRow(*this);
  return row >= 0 && Send(*view, LVM_EDITLABELW, static_cast<WPARAM>(row)) != 0;
}

void TListItem::CancelEdit() {
  if (TCustomListView* view = ListView()) SendIfAllocated(*view, LVM_CANCELEDITLABEL);
}

void TListItem::Update() {
  if (TCustomListView* view = ListView()) view->UpdateItems(Index(), Index());
}

TRect TListItem::DisplayRect(TDisplayCode code) const {
  TCustomListView* view = ListView();
  if (!view) return {};
  view->HandleNeeded();
  const int row = view->WindowRow(*this);
  RECT rect{};
  rect.left = code;  // The message takes the part from there: LVIR_BOUNDS, ...
  const bool placed = row >= 0 && Send(*view, LVM_GETITEMRECT, static_cast<WPARAM>(row),
                                       reinterpret_cast<LPARAM>(&rect));
  return placed ? TRect(rect) : TRect();
}

}  // namespace vcl
