// TCustomListView: its settings, its selection, the order of its items, and its events.
#include "vcl/stdctrls/listview.h"

#include <utility>

#include "vcl/controls/controlcanvas.h"
#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

TCustomListView::TCustomListView(TComponent* owner)
    : TWinControl(owner),
      FItems(std::make_unique<TListItems>(this)),
      FColumns(std::make_unique<TListColumns>()),
      FGroups(std::make_unique<TListGroups>()),
      FCanvas(std::make_unique<TControlCanvas>()),
      FDrawnFont(std::make_unique<TFont>()) {
  // The window captures the mouse itself, and lets it go, while it handles a press.
  SetControlStyle(ControlStyle() - TControlStyle{csCaptureMouse, csSetCaption});
  SetBounds(0, 0, 250, 150);
  SetTabStop(true);
  SetParentColor(false);
  FCanvas->SetControl(this);
  FColumns->OnUpdate = [this](TCollectionItem* column) { ColumnsChanged(column); };
  FGroups->OnUpdate = [this](TCollectionItem*) { SendGroups(); };
  for (TLinkedImages* each : {&FLargeImages, &FSmallImages, &FStateImages}) {
    each->Link.OnChange = [this](TObject*) { SendImages(); };
  }
}

TCustomListView::~TCustomListView() {
  AnnounceEnd();
  FColumns->OnUpdate = nullptr;
  FGroups->OnUpdate = nullptr;
  if (!FOwnerData) FItems->Clear();
}

TCanvas* TCustomListView::Canvas() const { return FCanvas.get(); }

// ---- Settings ----

/// What the window takes as a style.
template <class T>
void TCustomListView::ChangeStyle(T& field, T value, DWORD style, bool on) {
  if (value == field) return;
  field = value;
  if (!HandleAllocated()) return;
  const auto now = static_cast<DWORD>(::GetWindowLongW(Handle(), GWL_STYLE));
  ::SetWindowLongW(Handle(), GWL_STYLE, static_cast<LONG>(on ? now | style : now & ~style));
  Invalidate();
}

/// What the window takes as one of its own extended styles.
void TCustomListView::ChangeExtended(bool& field, bool value) {
  if (value == field) return;
  field = value;
  SendExtended();
}

/// What a window only takes when it is made.
void TCustomListView::ChangeWindow(bool& field, bool value) {
  if (value == field) return;
  // The rows and the selection are of the old kind until the window is gone.
  const bool shown = HandleAllocated();
  if (shown) DestroyHandle();
  field = value;
  if (shown) UpdateControlState();
}

void TCustomListView::SetBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  RecreateWnd();
}

void TCustomListView::SetCheckboxes(bool checkboxes) {
  ChangeExtended(FCheckboxes, checkboxes);
  SendImages();
  for (int i = 0; i < FItems->OwnCount(); ++i) UpdateRow(FItems->Own(i));
}
void TCustomListView::SetColumnClick(bool click) {
  if (click == FColumnClick) return;
  FColumnClick = click;
  RecreateWnd();
}
void TCustomListView::SetFullDrag(bool drag) { ChangeExtended(FFullDrag, drag); }
void TCustomListView::SetGridLines(bool lines) { ChangeExtended(FGridLines, lines); }
void TCustomListView::SetGroupView(bool groups) {
  FGroupView = groups;
  SendIfAllocated(*this, LVM_ENABLEGROUPVIEW, groups);
}
void TCustomListView::SetHideSelection(bool hide) {
  ChangeStyle(FHideSelection, hide, LVS_SHOWSELALWAYS, !hide);
}
void TCustomListView::SetHotTrack(bool track) { ChangeExtended(FHotTrack, track); }
void TCustomListView::SetReadOnly(bool readOnly) {
  ChangeStyle(FReadOnly, readOnly, LVS_EDITLABELS, !readOnly);
}
void TCustomListView::SetRowSelect(bool rowSelect) { ChangeExtended(FRowSelect, rowSelect); }
void TCustomListView::SetShowColumnHeaders(bool show) {
  ChangeStyle(FShowColumnHeaders, show, LVS_NOCOLUMNHEADER, !show);
}

void TCustomListView::SetMultiSelect(bool multiSelect) {
  if (multiSelect == FMultiSelect) return;
  const TWatch watch(this);
  if (!multiSelect) DeselectOthers(Selected());
  if (!watch.Gone()) ChangeWindow(FMultiSelect, multiSelect);
}

void TCustomListView::SetOwnerData(bool ownerData) {
  if (ownerData == FOwnerData) return;
  const TWatch watch(this);
  FItems->Clear();
  if (watch.Gone()) return;
  FKeptRows.clear();
  FKeptFocus = -1;
  ChangeWindow(FOwnerData, ownerData);
}

void TCustomListView::SetViewStyle(TViewStyle style) {
  if (style == FViewStyle) return;
  FViewStyle = style;
  if (!HandleAllocated()) return;
  const auto now = static_cast<DWORD>(::GetWindowLongW(Handle(), GWL_STYLE));
  const DWORD others = now & ~static_cast<DWORD>(LVS_TYPEMASK);
  static constexpr DWORD styles[] = {LVS_ICON, LVS_SMALLICON, LVS_LIST, LVS_REPORT};
  ::SetWindowLongW(Handle(), GWL_STYLE, static_cast<LONG>(others | styles[style]));
  FitColumns();
  Invalidate();
}

void TCustomListView::SetLargeImages(TImageList* images) {
  if (FLargeImages.Take(images, *this)) SendImages();
}
void TCustomListView::SetSmallImages(TImageList* images) {
  if (FSmallImages.Take(images, *this)) SendImages();
}
void TCustomListView::SetStateImages(TImageList* images) {
  if (FStateImages.Take(images, *this)) SendImages();
}

void TCustomListView::Notification(TComponent* component, TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation != opRemove) return;
  if (component == FLargeImages.List) SetLargeImages(nullptr);
  if (component == FSmallImages.List) SetSmallImages(nullptr);
  if (component == FStateImages.List) SetStateImages(nullptr);
}

void TCustomListView::ChangeScale(int m, int d) {
  TWinControl::ChangeScale(m, d);
  const TUpdating once(*FColumns, this);
  for (int i = 0; i < FColumns->Count(); ++i) {
    TListColumn* column = FColumns->Items(i);
    const int width = ScaleMeasure(column->Width(), m, d);
    const int least = ScaleMeasure(column->MinWidth(), m, d);
    const int most = ScaleMeasure(column->MaxWidth(), m, d);
    column->SetMinWidth(least);
    column->SetMaxWidth(most);
    column->SetWidth(width);
  }
}

// ---- Selection ----

void TCustomListView::CheckItem(const TListItem* item) const {
  if (!item || item->Owner() == FItems.get()) return;
  throw EListViewError(
      Concat("Item '", Shown(item->Caption()), "' is not one of list view '", Name(), "'"));
}

TListItem* TCustomListView::Selected() const {
  const int index = ItemIndex();
  return index < 0 ? nullptr : FItems->Items(index);
}

/// The item with none is all.
void TCustomListView::DeselectOthers(const TListItem* item) {
  const int keep = item ? item->Index() : -1;
  const TWatch watch(this);
  if (HandleAllocated()) {
    int row = -1;
    while (!watch.Gone() &&
           (row = static_cast<int>(
                Send(*this, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED))) >= 0) {
      if (row != keep) SendRowState(row, 0, LVIS_SELECTED);
    }
    return;
  }
  if (FOwnerData) {
    std::erase_if(FKeptRows, [keep](TRowRange each) { return each != TRowRange{keep, keep}; });
    return;
  }
  for (int i = 0; !watch.Gone() && i < FItems->Count(); ++i) {
    if (i != keep) FItems->Own(i)->SetSelected(false);
  }
}

void TCustomListView::SetSelected(TListItem* item) {
  CheckItem(item);
  SetItemIndex(item ? item->Index() : -1);
}

void TCustomListView::SetItemIndex(int index) {
  const TWatch watch(this);
  DeselectOthers(index < 0 ? nullptr : FItems->Items(index));
  if (watch.Gone() || index < 0 || index >= FItems->Count()) return;
  TListItem* item = FItems->Items(index);
  const TWatch kept(item);
  item->SetSelected(true);
  if (watch.Gone() || kept.Gone()) return;
  // A handler may have asked for other rows.
  if (FOwnerData) item = FItems->Row(index);
  item->SetFocused(true);
}

void TCustomListView::ClearSelection() { SetItemIndex(-1); }

void TCustomListView::SelectAll() {
  if (!FMultiSelect) return;
  if (HandleAllocated()) return SendRowState(-1, LVIS_SELECTED, LVIS_SELECTED);
  const TWatch watch(this);
  if (FOwnerData && FItems->Count() > 0) FKeptRows = {{0, FItems->Count() - 1}};
  for (int i = 0; !watch.Gone() && i < FItems->OwnCount(); ++i) FItems->Own(i)->SetSelected(true);
}

void TCustomListView::SetItemFocused(TListItem* item) {
  CheckItem(item);
  if (item) return item->SetFocused(true);
  if (TListItem* focused = ItemFocused()) focused->SetFocused(false);
}

void TCustomListView::SetDropTarget(TListItem* item) {
  CheckItem(item);
  const TWatch watch(item);
  if (TListItem* former = DropTarget()) former->SetDropTarget(false);
  if (item && !watch.Gone()) item->SetDropTarget(true);
}

// ---- Order ----

void TCustomListView::SetSortType(TSortType type) {
  if (type == FSortType) return;
  FSortType = type;
  if (Sorted()) AlphaSort();
}

bool TCustomListView::AlphaSort() {
  return CustomSort([this](TListItem* a, TListItem* b) { return Compare(a, b); });
}

bool TCustomListView::CustomSort(const std::function<int(TListItem*, TListItem*)>& compare) {
  const TWatch watch(this);
  const bool sorted = !FOwnerData && FItems->Sort(compare);
  if (sorted && !watch.Gone()) ItemsChanged();
  return sorted;
}

int TCustomListView::Compare(TListItem* first, TListItem* second) {
  if (!OnCompare) return AnsiCompareText(first->Caption(), second->Caption());
  int order = 0;
  OnCompare(this, first, second, 0, order);
  return order;
}

/// Of an item whose text or data has changed.
void TCustomListView::KeepInPlace(TListItem* item) {
  if (!Sorted()) return;
  if (!FItems->FNew.empty() || FItems->FHeld > 0) {
    FItems->FUnsorted = true;
    return;
  }
  const TWatch watch(this);
  FItems->PutInPlace(item);
  if (!watch.Gone()) ItemsChanged();
}

// ---- What the items tell ----

/// Items have come or go, or stand at other places.
void TCustomListView::ItemsChanged() {
  if (Destroying()) return;
  const TWatch watch(this);
  const bool several = FItems->FNew.size() != 1;
  if (Sorted() && (FItems->FUnsorted || !FItems->FNew.empty())) {
    const bool all = std::exchange(FItems->FUnsorted, false) || several;
    if (all) {
      FItems->Sort([this](TListItem* a, TListItem* b) { return Compare(a, b); });
    } else {
      FItems->PutInPlace(static_cast<TListItem*>(FItems->FNew.front()));
    }
  }
  if (watch.Gone()) return;
  const std::vector<TCollectionItem*> added = std::exchange(FItems->FNew, {});
  NewlyAdded(added);
}

void TCustomListView::ItemChanged(TListItem* item, TItemChange change) {
  // What is set while the window asks for it is what it gets.
  if (item == FTelling) return;
  UpdateRow(item);
  if (!item->FListed || Loading()) return;
  const TWatch watch(item);
  if (change == ctText) KeepInPlace(item);
  if (!watch.Gone()) Change(item, change);
}

void TCustomListView::ItemChecked(TListItem* item) {
  if (item->FListed && !Loading()) OnItemChecked(this, item);
}

// ---- Events ----

bool TCustomListView::CanChange(TListItem* item, TItemChange change) {
  bool allow = true;
  OnChanging(this, item, change, allow);
  return allow;
}

void TCustomListView::Change(TListItem* item, TItemChange change) { OnChange(this, item, change); }

bool TCustomListView::CanEdit(TListItem* item) {
  bool allow = !FReadOnly;
  if (allow) OnEditing(this, item, allow);
  return allow;
}

void TCustomListView::Edit(TListItem* item, std::string text) {
  const TWatch watch(item);
  OnEdited(this, item, text);
  if (!watch.Gone()) item->SetCaption(text);
}

void TCustomListView::Delete(TListItem* item) { OnDeletion(this, item); }
void TCustomListView::Data(TListItem* item) { OnData(this, item); }
void TCustomListView::GetImageIndex(TListItem* item) { OnGetImageIndex(this, item); }
void TCustomListView::HeaderClick(TListColumn* column) { OnColumnClick(this, column); }

int TCustomListView::DataFind(TItemFind find, const std::string& text, TPoint position, void* data,
                              int start, TSearchDirection direction, bool wrap) {
  int row = -1;
  OnDataFind(this, find, text, position, data, start, direction, wrap, row);
  return row;
}

void TCustomListView::BeginItemDrag() {
  if (DragMode() == dmAutomatic) BeginDrag(true);
}

void TCustomListView::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arList;
  info.SystemItems = true;
}

}  // namespace vcl
