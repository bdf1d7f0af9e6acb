// TCustomListView: columns, their header, and groups.
#include <algorithm>
#include <numeric>
#include <utility>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/listview.h"
#include "vcl/stdctrls/private/headerfit.h"

namespace vcl {

namespace {

HWND HeaderOf(const TCustomListView& view) {
  return view.HandleAllocated() ? reinterpret_cast<HWND>(Send(view, LVM_GETHEADER)) : nullptr;
}

std::vector<int> InPlace(int count) {
  std::vector<int> order(static_cast<std::size_t>(count));
  std::iota(order.begin(), order.end(), 0);
  return order;
}

}  // namespace

// ---- Columns ----

void TCustomListView::ColumnsChanged(TCollectionItem* item) {
  if (!HandleAllocated()) return;
  const TSetFor own(FOwnDoing, true, this);
  item ? SendColumn(static_cast<const TListColumn&>(*item), LVM_SETCOLUMNW) : SendColumns();
  FitColumns();
}

/// The window's columns one by one; what they show it asks for.
void TCustomListView::SendColumns() {
  const TSetFor fitting(FFitting, true, this);
  const int count = FColumns->Count();
  // What the user has dragged since is the window's to say; other columns begin anew.
  if (FColumnCount > 0) {
    FColumnOrder = FColumnCount == count ? ColumnOrder() : std::vector<int>();
  }
  while (FColumnCount > count) Send(*this, LVM_DELETECOLUMN, static_cast<WPARAM>(--FColumnCount));
  const bool more = FColumnCount < count;
  for (int i = 0; i < count; ++i) {
    SendColumn(*FColumns->Items(i), i < FColumnCount ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW);
  }
  FColumnCount = count;
  for (int i = 0; more && i < FItems->OwnCount(); ++i) UpdateRow(FItems->Own(i));
  if (static_cast<int>(FColumnOrder.size()) == count && count > 0) {
    Send(*this, LVM_SETCOLUMNORDERARRAY, static_cast<WPARAM>(count),
         reinterpret_cast<LPARAM>(FColumnOrder.data()));
  }
  // A header that is being designed has no life of its own.
  if (const HWND header = HeaderOf(*this); header && Designing()) ::EnableWindow(header, FALSE);
  Invalidate();
}

void TCustomListView::SendColumn(const TListColumn& column, UINT message) {
  const TSetFor fitting(FFitting, true, this);
  static constexpr int formats[] = {LVCFMT_LEFT, LVCFMT_RIGHT, LVCFMT_CENTER};
  std::wstring caption = ToUtf16(column.Caption());
  LVCOLUMNW sent{};
  sent.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
  sent.fmt = formats[column.Alignment()];
  sent.cx = column.Width();
  sent.pszText = caption.data();
  sent.iSubItem = column.Index();
  if (column.ImageIndex() >= 0) {
    sent.mask |= LVCF_IMAGE;
    sent.fmt |= LVCFMT_IMAGE | LVCFMT_COL_HAS_IMAGES;
    sent.iImage = column.ImageIndex();
  }
  Send(*this, message, static_cast<WPARAM>(column.Index()), reinterpret_cast<LPARAM>(&sent));
  SendMark(column);
}

void TCustomListView::SendMark(const TListColumn& column) {
  const HWND header = HeaderOf(*this);
  if (!header) return;
  const auto place = static_cast<WPARAM>(column.Index());
  HDITEMW item{};
  item.mask = HDI_FORMAT;
  ::SendMessageW(header, HDM_GETITEMW, place, reinterpret_cast<LPARAM>(&item));
  item.fmt = (item.fmt & ~(HDF_SORTUP | HDF_SORTDOWN)) | SortMarkFormat(column.SortMark());
  ::SendMessageW(header, HDM_SETITEMW, place, reinterpret_cast<LPARAM>(&item));
}

/// Gives the columns with AutoSize what the others leave.
void TCustomListView::FitColumns() {
  if (FFitting || !HandleAllocated() || FViewStyle != vsReport) return;
  const TSetFor fitting(FFitting, true, this);
  THeaderFit::Share(*FColumns, ClientWidth(), [this](const THeaderItem& column) {
    Send(*this, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column.Index()),
         MAKELPARAM(column.Width(), 0));
  });
}

std::vector<int> TCustomListView::ColumnOrder() const {
  const int count = FColumns->Count();
  std::vector<int> order = InPlace(count);
  if (HandleAllocated() && count == FColumnCount && count > 0) {
    Send(*this, LVM_GETCOLUMNORDERARRAY, static_cast<WPARAM>(count),
         reinterpret_cast<LPARAM>(order.data()));
  } else if (FColumnOrder.size() == order.size()) {
    order = FColumnOrder;
  }
  return order;
}

void TCustomListView::SetColumnOrder(const std::vector<int>& order) {
  std::vector<int> sorted = order;
  std::ranges::sort(sorted);
  if (sorted != InPlace(FColumns->Count())) {
    throw EListError("An order of columns names each column of the list view once");
  }
  FColumnOrder = order;
  if (!HandleAllocated()) return;
  Send(*this, LVM_SETCOLUMNORDERARRAY, order.size(), reinterpret_cast<LPARAM>(FColumnOrder.data()));
  Invalidate();
}

// ---- The header ----

TListColumn* TCustomListView::ColumnAt(TPoint header) const {
  HDHITTESTINFO test{};
  test.pt = header;
  ::SendMessageW(HeaderOf(*this), HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&test));
  const bool hit = test.iItem >= 0 && test.iItem < FColumns->Count();
  return hit ? FColumns->Items(test.iItem) : nullptr;
}

/// The header goes on after what it tells: the events come when it has done, by a message that is
/// none.
void TCustomListView::NotifyFromHeader(TMessage& message) {
  const auto& told = *reinterpret_cast<const NMHDR*>(message.LParam);
  if (told.hwndFrom != HeaderOf(*this)) return TWinControl::Dispatch(message);
  const auto code = told.code;
  const TWatch watch(this);
  {
    const TSetFor inside(FInWindow, true, this);
    TWinControl::Dispatch(message);
    if (watch.Gone() || Designing() || ControlState().Has(csDestroyingHandle)) return;
    switch (code) {
      case static_cast<UINT>(HDN_ITEMCHANGEDW):
      case static_cast<UINT>(HDN_ITEMCHANGEDA): HeaderSized(message); break;
      case static_cast<UINT>(HDN_ENDDRAG):
        Later(-1, nullptr, [this](TListItem*) { OnColumnDragged(this); });
        break;
      case static_cast<UINT>(NM_RCLICK): {
        POINT at;
        ::GetCursorPos(&at);
        const TPoint here = ScreenToClient(at);
        ::ScreenToClient(HeaderOf(*this), &at);
        TListColumn* column = ColumnAt(at);
        Later(-1, nullptr,
              [this, column, here](TListItem*) { OnColumnRightClick(this, column, here); });
        break;
      }
      default: break;
    }
  }
  if (!FPending.empty() && !std::exchange(FHeaderWaits, true)) {
    ::PostMessageW(Handle(), WM_NULL, 0, 0);
  }
}

void TCustomListView::HeaderSized(TMessage& message) {
  const auto& told = *reinterpret_cast<const NMHEADERW*>(message.LParam);
  const bool sized = told.pitem && (told.pitem->mask & HDI_WIDTH);
  if (!sized || FFitting || told.iItem < 0 || told.iItem >= FColumns->Count()) return;
  TListColumn* column = FColumns->Items(told.iItem);
  const int width = column->Limited(told.pitem->cxy);
  const bool refused = width != told.pitem->cxy;
  if (width == column->Width() && !refused) return;
  THeaderFit::SetWidth(*column, width);
  if (refused) {
    const TSetFor fitting(FFitting, true, this);
    Send(*this, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(told.iItem), MAKELPARAM(width, 0));
  }
  FitColumns();
  const int place = told.iItem;
  Later(-1, nullptr, [this, place](TListItem*) {
    if (place < FColumns->Count()) OnColumnResized(this, FColumns->Items(place));
  });
}

// ---- Groups ----

void TCustomListView::SendGroups() {
  if (!HandleAllocated()) return;
  const TSetFor own(FOwnDoing, true, this);
  Send(*this, LVM_REMOVEALLGROUPS);
  static constexpr UINT aligns[] = {LVGA_HEADER_LEFT, LVGA_HEADER_RIGHT, LVGA_HEADER_CENTER};
  for (int i = 0; i < FGroups->Count(); ++i) {
    const TListGroup* group = FGroups->Items(i);
    std::wstring header = ToUtf16(group->Header());
    LVGROUP sent{};
    sent.cbSize = sizeof sent;
    sent.mask = LVGF_HEADER | LVGF_GROUPID | LVGF_ALIGN;
    sent.pszHeader = header.data();
    sent.cchHeader = static_cast<int>(header.size());
    sent.iGroupId = group->GroupID();
    sent.uAlign = aligns[group->HeaderAlign()];
    Send(*this, LVM_INSERTGROUP, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&sent));
  }
  Send(*this, LVM_ENABLEGROUPVIEW, FGroupView);
  // Those that stand in a group which is new.
  for (int i = 0; i < FItems->OwnCount(); ++i) {
    if (FItems->Own(i)->GroupID() >= 0) UpdateRow(FItems->Own(i));
  }
}

}  // namespace vcl
