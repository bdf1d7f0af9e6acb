// TCustomListView: the system's list view, its rows and their states.
#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/listview.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {

namespace {

constexpr UINT KeptStates = LVIS_SELECTED | LVIS_FOCUSED;

/// For LVM_SORTITEMS: the window's rows as the items stand.
int CALLBACK CompareOrder(LPARAM first, LPARAM second, LPARAM) {
  return reinterpret_cast<const TListItem*>(first)->Index() -
         reinterpret_cast<const TListItem*>(second)->Index();
}

}  // namespace

void TCustomListView::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_LISTVIEW_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = WC_LISTVIEWA;
  params.ClassStyle &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
  static constexpr DWORD styles[] = {LVS_ICON, LVS_SMALLICON, LVS_LIST, LVS_REPORT};
  // The pictures are not the window's to free.
  params.Style |= styles[FViewStyle] | LVS_SHAREIMAGELISTS | LVS_AUTOARRANGE;
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
  if (!FColumnClick) params.Style |= LVS_NOSORTHEADER;
  if (!FHideSelection) params.Style |= LVS_SHOWSELALWAYS;
  if (!FMultiSelect) params.Style |= LVS_SINGLESEL;
  if (FOwnerData) params.Style |= LVS_OWNERDATA;
  if (!FReadOnly) params.Style |= LVS_EDITLABELS;
  if (!FShowColumnHeaders) params.Style |= LVS_NOCOLUMNHEADER;
}

void TCustomListView::CreateWnd() {
  TWinControl::CreateWnd();
  const TSetFor own(FOwnDoing, true, this);
  Send(*this, LVM_SETUNICODEFORMAT, TRUE);
  SendExtended();
  SendColors();
  Send(*this, WM_SETREDRAW, FALSE);
  FColumnCount = 0;
  FHeaderWaits = false;
  SendColumns();
  SendImages();  // The header, which comes with the columns, gets them, too.
  SendGroups();
  if (FOwnerData) {
    Send(*this, LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
    RowsCounted();
  }
  FItems->FMoved = false;
  for (int i = 0; i < FItems->OwnCount(); ++i) InsertRow(FItems->Own(i), i);
  RestoreStates();
  if (FItems->FHeld > 0) return;
  Send(*this, WM_SETREDRAW, TRUE);
  RestoreTop();
}

void TCustomListView::DestroyWnd() {
  KeepStates();
  const TSetFor own(FOwnDoing, true, this);
  TWinControl::DestroyWnd();
}

DWORD TCustomListView::ExtendedStyle() const {
  DWORD style = LVS_EX_SUBITEMIMAGES;
  if (FCheckboxes) style |= LVS_EX_CHECKBOXES;
  if (FFullDrag) style |= LVS_EX_HEADERDRAGDROP;
  if (FGridLines) style |= LVS_EX_GRIDLINES;
  if (FHotTrack) style |= LVS_EX_TRACKSELECT;
  if (FRowSelect) style |= LVS_EX_FULLROWSELECT;
  return style;
}

void TCustomListView::SendExtended() {
  const TSetFor own(FOwnDoing, true, this);
  SendIfAllocated(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(ExtendedStyle()));
}

void TCustomListView::SendColors() {
  const auto color = static_cast<LPARAM>(ColorToRGB(Color()));
  SendIfAllocated(*this, LVM_SETBKCOLOR, 0, color);
  SendIfAllocated(*this, LVM_SETTEXTBKCOLOR, 0, color);
  SendIfAllocated(*this, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(ColorToRGB(Font()->Color())));
  if (HandleAllocated()) Invalidate();
}

namespace {

HIMAGELIST HandleOf(const TLinkedImages& images) {
  return images.List ? images.List->Handle() : nullptr;
}

}  // namespace

HIMAGELIST TCustomListView::LargePictures() const { return HandleOf(FLargeImages); }
HIMAGELIST TCustomListView::SmallPictures() const { return HandleOf(FSmallImages); }

void TCustomListView::SendImages() {
  if (!HandleAllocated()) return;
  const auto send = [this](WPARAM which, HIMAGELIST pictures) {
    Send(*this, LVM_SETIMAGELIST, which, reinterpret_cast<LPARAM>(pictures));
  };
  send(LVSIL_NORMAL, LargePictures());
  send(LVSIL_SMALL, SmallPictures());
  // The system draws checks of its own.
  if (!FCheckboxes || FStateImages.List) send(LVSIL_STATE, HandleOf(FStateImages));
  if (const auto header = reinterpret_cast<HWND>(Send(*this, LVM_GETHEADER))) {
    ::SendMessageW(header, HDM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(HandleOf(FSmallImages)));
  }
  Invalidate();
}

void TCustomListView::SetRedraw(bool redraw) {
  SendIfAllocated(*this, WM_SETREDRAW, redraw);
  if (redraw) Invalidate();
}

// ---- Rows ----

/// The row of the item in the window; -1 while it is not there.
int TCustomListView::WindowRow(const TListItem& item) const {
  if (!HandleAllocated()) return -1;
  if (item.FRows) return item.FRow;
  if (!item.FInWindow) return -1;
  if (FItems->InOrder()) return item.Index();
  LVFINDINFOW find{};
  find.flags = LVFI_PARAM;
  find.lParam = reinterpret_cast<LPARAM>(&item);
  return static_cast<int>(
      Send(*this, LVM_FINDITEMW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&find)));
}

TListItem* TCustomListView::ItemOfRow(int row) const {
  if (row < 0) return nullptr;
  if (FOwnerData) return row < FItems->Count() ? FItems->Row(row) : nullptr;
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = row;
  if (!Send(*this, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item))) return nullptr;
  return reinterpret_cast<TListItem*>(item.lParam);
}

unsigned TCustomListView::ImageState(const TListItem& item) const {
  const int place = FCheckboxes ? (item.FChecked ? 2 : 1) : item.FStateIndex + 1;
  return INDEXTOSTATEIMAGEMASK(static_cast<unsigned>(place));
}

void TCustomListView::SendRowState(int row, unsigned state, unsigned mask) {
  LVITEMW item{};
  item.state = state;
  item.stateMask = mask;
  Send(*this, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

namespace {

/// What the window asks for when it needs it, and what it has to know before.
LVITEMW AskBack(const TListItem& item, int row) {
  LVITEMW asked{};
  asked.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_INDENT;
  asked.iItem = row;
  asked.pszText = LPSTR_TEXTCALLBACKW;
  asked.iImage = I_IMAGECALLBACK;
  asked.iIndent = item.Indent();
  if (item.GroupID() >= 0) asked.mask |= LVIF_GROUPID;
  asked.iGroupId = item.GroupID();
  return asked;
}

}  // namespace

void TCustomListView::InsertRow(TListItem* item, int row) {
  if (item->FInWindow) return;
  LVITEMW insert = AskBack(*item, row);
  insert.mask |= LVIF_PARAM | LVIF_STATE;
  insert.lParam = reinterpret_cast<LPARAM>(item);
  insert.stateMask = KeptStates | LVIS_CUT | LVIS_DROPHILITED;
  insert.state = item->FState & insert.stateMask;
  item->FInWindow = Send(*this, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)) >= 0;
  if (item->FInWindow) UpdateRow(item);
}

/// Has the window ask anew for what it shows of the item.
void TCustomListView::UpdateRow(TListItem* item) {
  const int row = WindowRow(*item);
  if (row < 0) return;
  const TSetFor own(FOwnDoing, true, this);
  LVITEMW asked = AskBack(*item, row);
  Send(*this, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
  SendRowState(row, ImageState(*item), LVIS_STATEIMAGEMASK);
  const int texts = item->HasSubItems() ? item->SubItems()->Count() : 0;
  for (int i = 1; i <= texts && i < FColumnCount; ++i) {
    asked.mask = LVIF_TEXT | LVIF_IMAGE;
    asked.iSubItem = i;
    Send(*this, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
  }
  if (FViewStyle == vsReport) {
    Send(*this, LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
  } else {
    Send(*this, LVM_UPDATE, static_cast<WPARAM>(row));
  }
}

void TCustomListView::NewlyAdded(const std::vector<TCollectionItem*>& added) {
  const bool events = OnInsert && !Loading();
  std::vector<std::pair<TListItem*, TWatch>> items;
  for (TCollectionItem* each : added) {
    auto* item = static_cast<TListItem*>(each);
    item->FListed = true;
    if (HandleAllocated() || events) items.emplace_back(item, TWatch(item));
  }
  const bool moved = std::exchange(FItems->FMoved, false);
  if (HandleAllocated()) {
    const TSetFor own(FOwnDoing, true, this);
    const auto places = [](const auto& a, const auto& b) {
      return a.first->Index() < b.first->Index();
    };
    // Each stands where it shall when those before it are there.
    std::ranges::sort(items, places);
    for (const auto& [item, watch] : items) InsertRow(item, item->Index());
    if (moved) Send(*this, LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&CompareOrder));
    if (moved) Invalidate();
  }
  const TWatch view(this);
  for (std::size_t i = 0; events && i < items.size() && !view.Gone(); ++i) {
    if (!items[i].second.Gone()) OnInsert(this, items[i].first);
  }
}

void TCustomListView::RemoveRow(TListItem* item) {
  const int row = WindowRow(*item);
  item->FInWindow = false;
  if (item == FTelling) FTelling = nullptr;
  if (row < 0) return;
  const TSetFor own(FOwnDoing, true, this);
  Send(*this, LVM_DELETEITEM, static_cast<WPARAM>(row));
}

void TCustomListView::RemoveRows() {
  const TSetFor own(FOwnDoing, true, this);
  SendIfAllocated(*this, LVM_DELETEALLITEMS);
  for (int i = 0; i < FItems->OwnCount(); ++i) FItems->Own(i)->FInWindow = false;
}

/// The number of rows of OwnerData has changed.
void TCustomListView::RowsCounted() {
  const int count = FItems->Count();
  if (FKeptFocus >= count) FKeptFocus = -1;
  std::erase_if(FKeptRows, [count](TRowRange each) { return each.first >= count; });
  for (TRowRange& each : FKeptRows) each.second = std::min(each.second, count - 1);
  const TSetFor own(FOwnDoing, true, this);
  SendIfAllocated(*this, LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOSCROLL);
}

void TCustomListView::UpdateItems(int first, int last) {
  SendIfAllocated(*this, LVM_REDRAWITEMS, static_cast<WPARAM>(first), last);
}

// ---- States, which the window knows while there is one ----

void TCustomListView::KeepStates() {
  FKeptTop = static_cast<int>(Send(*this, LVM_GETTOPINDEX));
  FColumnOrder = ColumnOrder();
  FKeptRows.clear();
  for (int i = 0; i < FItems->OwnCount(); ++i) {
    FItems->Own(i)->FState &= ~KeptStates;
  }
  const auto each = [this](UINT which, const auto& keep) {
    int row = -1;
    while ((row = static_cast<int>(
                Send(*this, LVM_GETNEXTITEM, static_cast<WPARAM>(row), which))) >= 0) {
      keep(row);
    }
  };
  each(LVNI_SELECTED, [this](int row) {
    if (FOwnerData) return KeepRow(row, true);
    ItemOfRow(row)->FState |= LVIS_SELECTED;
  });
  FKeptFocus = -1;
  each(LVNI_FOCUSED, [this](int row) {
    FKeptFocus = row;
    if (!FOwnerData) ItemOfRow(row)->FState |= LVIS_FOCUSED;
  });
  for (int i = 0; i < FItems->OwnCount(); ++i) FItems->Own(i)->FInWindow = false;
}

/// Those of a new window; the items' own are there already.
void TCustomListView::RestoreStates() {
  if (FOwnerData) {
    for (const TRowRange& each : std::exchange(FKeptRows, {})) {
      for (int row = each.first; row <= each.second; ++row) {
        SendRowState(row, LVIS_SELECTED, LVIS_SELECTED);
      }
    }
    if (FKeptFocus >= 0) SendRowState(FKeptFocus, LVIS_FOCUSED, LVIS_FOCUSED);
  }
}

/// The window that is not painted does not scroll.
void TCustomListView::RestoreTop() {
  if (FKeptTop <= 0 || FKeptTop >= FItems->Count()) return;
  // What is below it is in sight first, so that it comes to stand on top.
  Send(*this, LVM_ENSUREVISIBLE, static_cast<WPARAM>(FItems->Count() - 1));
  Send(*this, LVM_ENSUREVISIBLE, static_cast<WPARAM>(FKeptTop));
}

bool TCustomListView::RowKept(int row) const {
  return std::ranges::any_of(
      FKeptRows, [row](const TRowRange& each) { return each.first <= row && row <= each.second; });
}

void TCustomListView::KeepRow(int row, bool selected) {
  if (RowKept(row) == selected) return;
  if (selected) {
    const bool follows = !FKeptRows.empty() && FKeptRows.back().second == row - 1;
    follows ? void(FKeptRows.back().second = row) : FKeptRows.push_back({row, row});
    return;
  }
  std::vector<TRowRange> left;
  for (const auto& [first, last] : FKeptRows) {
    const bool inside = first <= row && row <= last;
    if (!inside) left.emplace_back(first, last);
    if (inside && first < row) left.emplace_back(first, row - 1);
    if (inside && row < last) left.emplace_back(row + 1, last);
  }
  FKeptRows = std::move(left);
}

bool TCustomListView::ItemHasState(const TListItem& item, unsigned state) const {
  const int row = WindowRow(item);
  if (row >= 0) {
    return (static_cast<UINT>(Send(*this, LVM_GETITEMSTATE, static_cast<WPARAM>(row),
                                   static_cast<LPARAM>(state))) &
            state) != 0;
  }
  if (!item.FRows) return (item.FState & state) != 0;
  return state == LVIS_SELECTED ? RowKept(item.FRow)
                                : state == LVIS_FOCUSED && item.FRow == FKeptFocus;
}

void TCustomListView::SetItemState(TListItem* item, unsigned state, bool on) {
  const int row = WindowRow(*item);
  const bool kept = (state & KeptStates) != 0;
  if (!kept) item->FState = on ? item->FState | state : item->FState & ~state;
  // The window asks and tells by its notifications.
  if (row >= 0) return SendRowState(row, on ? state : 0, state);
  const TWatch watch(item);
  const bool tells = kept && (item->FListed || item->FRows);
  const int ownerRow = item->FRow;
  if (tells && (!CanChange(item, ctState) || watch.Gone())) return;
  const bool alone = on && (state == LVIS_FOCUSED || (state == LVIS_SELECTED && !FMultiSelect));
  if (alone && state == LVIS_SELECTED) DeselectOthers(item);
  if (alone && state == LVIS_FOCUSED) {
    TListItem* former = ItemFocused();
    if (former) former->FState &= ~static_cast<unsigned>(LVIS_FOCUSED);
  }
  if (watch.Gone()) return;
  if (item->FRows && state == LVIS_SELECTED) KeepRow(ownerRow, on);
  if (item->FRows && state == LVIS_FOCUSED) FKeptFocus = on ? ownerRow : -1;
  if (!item->FRows) item->FState = on ? item->FState | state : item->FState & ~state;
  if (!tells) return;
  if (state == LVIS_SELECTED) OnSelectItem(this, item, on);
  if (!watch.Gone()) Change(item, ctState);
}

}  // namespace vcl
