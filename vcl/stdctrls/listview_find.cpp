// TCustomListView: which items are selected, in sight, at a position, or are looked for.
#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/listview.h"

namespace vcl {

/// The place of the next item that the window has so; -1 for none.
int TCustomListView::NextIndex(int row, UINT flags) const {
  const auto found =
      static_cast<int>(Send(*this, LVM_GETNEXTITEM, static_cast<WPARAM>(row), flags));
  if (found < 0 || FOwnerData || FItems->InOrder()) return found;
  const TListItem* item = ItemOfRow(found);
  return item ? item->Index() : -1;
}

int TCustomListView::ItemIndex() const {
  if (HandleAllocated()) return NextIndex(-1, LVNI_SELECTED);
  if (FOwnerData) return FKeptRows.empty() ? -1 : std::ranges::min(FKeptRows).first;
  for (int i = 0; i < FItems->Count(); ++i) {
    if (FItems->Own(i)->Selected()) return i;
  }
  return -1;
}

int TCustomListView::SelCount() const {
  if (HandleAllocated()) return static_cast<int>(Send(*this, LVM_GETSELECTEDCOUNT));
  int count = 0;
  for (const auto& [first, last] : FKeptRows) count += last - first + 1;
  for (int i = 0; i < FItems->OwnCount(); ++i) count += FItems->Own(i)->Selected();
  return count;
}

TListItem* TCustomListView::ItemFocused() const {
  if (!HandleAllocated() && FOwnerData) return FKeptFocus < 0 ? nullptr : FItems->Row(FKeptFocus);
  return GetNextItem(nullptr, sdAll, {isFocused});
}

TListItem* TCustomListView::DropTarget() const {
  return GetNextItem(nullptr, sdAll, {isDropHilited});
}

TListItem* TCustomListView::TopItem() const {
  if (!HandleAllocated()) return nullptr;
  return ItemOfRow(static_cast<int>(Send(*this, LVM_GETTOPINDEX)));
}

int TCustomListView::VisibleRowCount() const {
  return HandleAllocated() ? static_cast<int>(Send(*this, LVM_GETCOUNTPERPAGE)) : 0;
}

TListItem* TCustomListView::GetItemAt(int x, int y) const {
  if (!HandleAllocated()) return nullptr;
  LVHITTESTINFO test{};
  test.pt = {x, y};
  const bool wholeRow = FRowSelect && FViewStyle == vsReport;
  const UINT message = wholeRow ? LVM_SUBITEMHITTEST : LVM_HITTEST;
  return ItemOfRow(static_cast<int>(Send(*this, message, 0, reinterpret_cast<LPARAM>(&test))));
}

namespace {

UINT FlagsFor(TSearchDirection direction, TItemStates states) {
  static constexpr UINT directions[] = {LVNI_TOLEFT, LVNI_TORIGHT, LVNI_ABOVE, LVNI_BELOW,
                                        LVNI_ALL};
  UINT flags = directions[direction];
  if (states.Has(isCut)) flags |= LVNI_CUT;
  if (states.Has(isDropHilited)) flags |= LVNI_DROPHILITED;
  if (states.Has(isFocused)) flags |= LVNI_FOCUSED;
  if (states.Has(isSelected)) flags |= LVNI_SELECTED;
  return flags;
}

bool HasAll(const TListItem& item, TItemStates states) {
  return (!states.Has(isCut) || item.Cut()) && (!states.Has(isDropHilited) || item.DropTarget()) &&
         (!states.Has(isFocused) || item.Focused()) && (!states.Has(isSelected) || item.Selected());
}

}  // namespace

TListItem* TCustomListView::GetNextItem(TListItem* start, TSearchDirection direction,
                                        TItemStates states) const {
  CheckItem(start);
  if (HandleAllocated()) {
    const int row = NextIndex(start ? WindowRow(*start) : -1, FlagsFor(direction, states));
    return row < 0 || row >= FItems->Count() ? nullptr : FItems->Items(row);
  }
  if (FOwnerData || direction != sdAll) return nullptr;
  for (int i = start ? start->Index() + 1 : 0; i < FItems->Count(); ++i) {
    if (HasAll(*FItems->Own(i), states)) return FItems->Own(i);
  }
  return nullptr;
}

namespace {

/// The first item in the order of a search of which the call says so.
template <class Fits>
TListItem* Find(const TListItems& items, int start, bool inclusive, bool wrap, Fits fits) {
  const int count = items.Count();
  const int first = std::clamp(inclusive ? start : start + 1, 0, count);
  const int tries = wrap ? count : count - first;
  for (int i = 0; i < tries; ++i) {
    TListItem* item = items.Items((first + i) % count);
    if (fits(*item)) return item;
  }
  return nullptr;
}

}  // namespace

TListItem* TCustomListView::FindCaption(int start, const std::string& text, bool partial,
                                        bool inclusive, bool wrap) {
  if (FOwnerData) {
    const TWatch watch(this);
    const int row = DataFind(partial ? ifPartialString : ifExactString, text, {}, nullptr,
                             inclusive ? start : start + 1, sdAll, wrap);
    return watch.Gone() ? nullptr : ItemOfRow(row);
  }
  return Find(*FItems, start, inclusive, wrap, [&](const TListItem& item) {
    const std::string& caption = item.Caption();
    return AnsiSameText(partial ? CutUtf8(caption, text.size()) : caption, text);
  });
}

TListItem* TCustomListView::FindData(int start, void* data, bool inclusive, bool wrap) {
  if (FOwnerData) {
    const TWatch watch(this);
    const int row = DataFind(ifData, {}, {}, data, inclusive ? start : start + 1, sdAll, wrap);
    return watch.Gone() ? nullptr : ItemOfRow(row);
  }
  return Find(*FItems, start, inclusive, wrap,
              [data](const TListItem& item) { return item.Data() == data; });
}

void TCustomListView::Scroll(int dx, int dy) {
  SendIfAllocated(*this, LVM_SCROLL, static_cast<WPARAM>(dx), dy);
}

bool TCustomListView::IsEditing() const {
  if (!HandleAllocated()) return false;
  const auto edit = reinterpret_cast<HWND>(Send(*this, LVM_GETEDITCONTROL));
  return edit && ::IsWindowVisible(edit);
}

int TCustomListView::StringWidth(const std::string& text) const {
  return static_cast<int>(
      Send(*this, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(ToUtf16(text).c_str())));
}

}  // namespace vcl
