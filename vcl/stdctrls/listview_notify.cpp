// TCustomListView: what the window asks and tells, the mouse and the keyboard.
#include <utility>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/listview.h"

namespace vcl {

TListItem* TCustomListView::ItemOf(int row, LPARAM param) const {
  return FOwnerData ? ItemOfRow(row) : row < 0 ? nullptr : reinterpret_cast<TListItem*>(param);
}

// ---- What the window asks ----

namespace {

std::string TextOf(const TListItem& item, int column) {
  if (column == 0) return item.Caption();
  const TStrings* texts = item.SubItems();
  return column <= texts->Count() ? texts->Strings(column - 1) : std::string();
}

int ShownImage(int index) { return index < 0 ? I_IMAGENONE : index; }

}  // namespace

/// Tells what the window is about to show.
void TCustomListView::TellItem(LPARAM told) {
  LVITEMW& asked = reinterpret_cast<NMLVDISPINFOW*>(told)->item;
  TListItem* item = ItemOf(asked.iItem, asked.lParam);
  if (!item) return;
  const TSetFor telling(FTelling, item, this);
  if ((asked.mask & LVIF_TEXT) && asked.cchTextMax > 0) {
    ::lstrcpynW(asked.pszText, ToUtf16(TextOf(*item, asked.iSubItem)).c_str(), asked.cchTextMax);
  }
  if (asked.mask & LVIF_INDENT) asked.iIndent = item->Indent();
  if (asked.mask & LVIF_STATE) asked.state |= ImageState(*item) & asked.stateMask;
  if (!(asked.mask & LVIF_IMAGE)) return;
  if (asked.iSubItem == 0) {
    GetImageIndex(item);
    if (FTelling) asked.iImage = ShownImage(item->ImageIndex());
    return;
  }
  int image = item->SubItemImage(asked.iSubItem - 1);
  OnGetSubItemImage(this, item, asked.iSubItem - 1, image);
  asked.iImage = ShownImage(image);
}

/// The user types the beginning of a caption.
void TCustomListView::FindRow(TMessage& message) {
  const auto& told = *reinterpret_cast<const NMLVFINDITEMW*>(message.LParam);
  const UINT flags = told.lvfi.flags;
  const bool text = (flags & (LVFI_STRING | LVFI_PARTIAL)) != 0;
  const TItemFind find = flags & LVFI_PARAM       ? ifData
                         : flags & LVFI_NEARESTXY ? ifNearest
                         : flags & LVFI_PARTIAL   ? ifPartialString
                                                  : ifExactString;
  message.Result = DataFind(find, text && told.lvfi.psz ? ToUtf8(told.lvfi.psz) : std::string(),
                            told.lvfi.pt, reinterpret_cast<void*>(told.lvfi.lParam), told.iStart,
                            sdAll, (flags & LVFI_WRAP) != 0);
}

// ---- What the window tells ----

/// Keeps an event until the window has done with the message that brought it: a handler may free
/// the list view, and with it the window.
void TCustomListView::Later(int row, TListItem* item, std::function<void(TListItem*)> tell) {
  if (FOwnerData) item = nullptr;
  FPending.push_back({FOwnerData ? row : -1, item, TWatch(item), std::move(tell)});
}

void TCustomListView::DefaultHandler(TMessage& message) {
  TWatch watch(this);
  {
    const TSetFor inside(FInWindow, true, this);
    TWinControl::DefaultHandler(message);
  }
  // What the header told waits for a message of its own.
  if (watch.Gone() || FInWindow || (FHeaderWaits && message.Msg != WM_NULL)) return;
  FHeaderWaits = false;
  while (!watch.Gone() && !FPending.empty()) {
    const TPending next = std::move(FPending.front());
    FPending.erase(FPending.begin());
    if (!next.Watch.Gone()) next.Tell(next.Row >= 0 ? ItemOfRow(next.Row) : next.Item);
  }
}

void TCustomListView::NotifyOfChanging(TMessage& message) {
  const auto& told = *reinterpret_cast<const NMLISTVIEW*>(message.LParam);
  const UINT changed = (told.uOldState ^ told.uNewState) & (LVIS_SELECTED | LVIS_FOCUSED);
  if (!(told.uChanged & LVIF_STATE) || changed == 0) return;
  TListItem* item = ItemOf(told.iItem, told.lParam);
  message.Result = item && !CanChange(item, ctState);
}

void TCustomListView::NotifyOfCheck(TListItem* item, unsigned state) {
  const bool checked = (state & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2U);
  if (!item || checked == std::exchange(item->FChecked, checked)) return;
  Later(-1, item, [this](TListItem* one) { ItemChecked(one); });
}

void TCustomListView::NotifyOfChange(LPARAM message) {
  const auto& told = *reinterpret_cast<const NMLISTVIEW*>(message);
  const UINT changed = told.uOldState ^ told.uNewState;
  if (!(told.uChanged & LVIF_STATE) || changed == 0) return;
  TListItem* item = FOwnerData || told.iItem < 0 ? nullptr : ItemOf(told.iItem, told.lParam);
  if ((changed & LVIS_STATEIMAGEMASK) && FCheckboxes) NotifyOfCheck(item, told.uNewState);
  if (changed & LVIS_SELECTED) {
    const bool selected = (told.uNewState & LVIS_SELECTED) != 0;
    Later(told.iItem, item,
          [this, selected](TListItem* one) { OnSelectItem(this, one, selected); });
  }
  Later(told.iItem, item, [this](TListItem* one) { Change(one, ctState); });
}

void TCustomListView::NotifyOfEdit(TMessage& message) {
  const auto& told = *reinterpret_cast<const NMLVDISPINFOW*>(message.LParam);
  TListItem* item = ItemOf(told.item.iItem, told.item.lParam);
  if (told.hdr.code == static_cast<UINT>(LVN_BEGINLABELEDITW)) {
    message.Result = !item || !CanEdit(item);
  } else if (item && told.item.pszText) {
    // The window needs not keep the text: it asks for it.
    const int row = told.item.iItem;
    Later(row, item, [this, row, text = ToUtf8(told.item.pszText)](TListItem* one) {
      const TWatch watch(this);
      if (one) Edit(one, text);
      if (!watch.Gone() && FOwnerData) UpdateItems(row, row);
    });
  }
}

void TCustomListView::NotifyOfClick(TMessage& message) {
  const auto& told = *reinterpret_cast<const NMITEMACTIVATE*>(message.LParam);
  FClicked = FPressing;
  // The release that is made up for it asks for the context menu.
  if (told.hdr.code == static_cast<UINT>(NM_RCLICK)) message.Result = FPressing;
  if (!FOwnerData || !FCheckboxes || told.hdr.code != static_cast<UINT>(NM_CLICK)) return;
  LVHITTESTINFO test{};
  test.pt = told.ptAction;
  const auto row = static_cast<int>(Send(*this, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&test)));
  if (row >= 0 && (test.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON) CheckRow(row);
}

/// The checks of rows are the program's: OnItemChecked gets the row as the user wants it.
void TCustomListView::CheckRow(int row) {
  Later(row, nullptr, [this, row](TListItem* item) {
    if (!item) return;
    const TWatch watch(this);
    item->FChecked = !item->FChecked;
    OnItemChecked(this, item);
    if (!watch.Gone()) UpdateItems(row, row);
  });
}

void TCustomListView::NotifyFromWindow(TMessage& message) {
  auto* header = reinterpret_cast<NMHDR*>(message.LParam);
  switch (header->code) {
    case static_cast<UINT>(LVN_GETDISPINFOW): return TellItem(message.LParam);
    case static_cast<UINT>(NM_CUSTOMDRAW): return CustomDraw(message);
    default: break;
  }
  if (FOwnDoing || Destroying() || ControlState().Has(csDestroyingHandle)) return;
  switch (header->code) {
    case static_cast<UINT>(LVN_ITEMCHANGING): return NotifyOfChanging(message);
    case static_cast<UINT>(LVN_ITEMCHANGED): return NotifyOfChange(message.LParam);
    case static_cast<UINT>(LVN_ODSTATECHANGED):
      return Later(-1, nullptr, [this](TListItem*) { Change(nullptr, ctState); });
    case static_cast<UINT>(LVN_ODFINDITEMW): return FindRow(message);
    case static_cast<UINT>(LVN_ODCACHEHINT): {
      const auto& hint = *reinterpret_cast<const NMLVCACHEHINT*>(header);
      return OnDataHint(this, hint.iFrom, hint.iTo);
    }
    case static_cast<UINT>(LVN_BEGINLABELEDITW):
    case static_cast<UINT>(LVN_ENDLABELEDITW): return NotifyOfEdit(message);
    case static_cast<UINT>(LVN_COLUMNCLICK): {
      const int place = reinterpret_cast<const NMLISTVIEW*>(header)->iSubItem;
      return Later(-1, nullptr, [this, place](TListItem*) {
        if (place < FColumns->Count()) HeaderClick(FColumns->Items(place));
      });
    }
    case static_cast<UINT>(LVN_BEGINDRAG):
      return Later(-1, nullptr, [this](TListItem*) {
        if (::GetKeyState(VK_LBUTTON) < 0) BeginItemDrag();
      });
    case static_cast<UINT>(NM_CLICK):
    case static_cast<UINT>(NM_RCLICK): return NotifyOfClick(message);
    default: return;
  }
}

// ---- The mouse and the keyboard ----

/// The window may wait for the button's release while it handles the press, and keeps it to itself:
/// it is made up then, so that the control's events come as everywhere.
void TCustomListView::PressButton(TMessage& message, UINT release) {
  TWatch watch(this);
  FClicked = false;
  {
    const TSetFor pressing(FPressing, true, this);
    TWinControl::Dispatch(message);
  }
  if (watch.Gone()) return;
  const bool up = ::GetKeyState(release == WM_LBUTTONUP ? VK_LBUTTON : VK_RBUTTON) >= 0;
  if (FClicked && up) Perform(release, 0, message.LParam);
}

// The window says when the mouse has moved so far that the items are dragged.
void TCustomListView::BeginAutoDrag(TMessage& press) { Dispatch(press); }

void TCustomListView::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TWinControl::KeyDown(key, shift);
  if (watch.Gone() || key != VK_SPACE || !FOwnerData || !FCheckboxes) return;
  const int row = NextIndex(-1, LVNI_FOCUSED);
  if (row >= 0) CheckRow(row);
}

namespace {

/// Paints the header, which is a window of its own, with a list view that is painted on another
/// context than its window's.
void PaintHeader(TCustomListView& view, WPARAM context) {
  const auto header = reinterpret_cast<HWND>(Send(view, LVM_GETHEADER));
  if (!header || !::IsWindowVisible(header)) return;
  RECT place;
  ::GetWindowRect(header, &place);
  ::MapWindowPoints(nullptr, view.Handle(), reinterpret_cast<POINT*>(&place), 2);
  const auto dc = reinterpret_cast<HDC>(context);
  POINT origin;
  ::OffsetViewportOrgEx(dc, place.left, place.top, &origin);
  ::SendMessageW(header, WM_ERASEBKGND, context, 0);
  ::SendMessageW(header, WM_PAINT, context, 0);
  ::SetViewportOrgEx(dc, origin.x, origin.y, nullptr);
}

}  // namespace

void TCustomListView::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case CN_NOTIFY: return NotifyFromWindow(message);
    case WM_NOTIFY: return NotifyFromHeader(message);
    case WM_LBUTTONDOWN: return PressButton(message, WM_LBUTTONUP);
    case WM_RBUTTONDOWN: return PressButton(message, WM_RBUTTONUP);
    case CM_WANTSPECIALKEY:
      // Enter and Escape end the editing of a text, not the dialog.
      if (IsEditing() && message.WParam != VK_TAB) {
        message.Result = 1;
        return;
      }
      break;
    default: break;
  }
  TWatch watch(this);
  TWinControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == CM_COLORCHANGED || message.Msg == CM_FONTCHANGED) SendColors();
  if (message.Msg == WM_SIZE) FitColumns();
  if (message.Msg == WM_PAINT && message.WParam != 0) PaintHeader(*this, message.WParam);
}

}  // namespace vcl
