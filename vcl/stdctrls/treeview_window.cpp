// TCustomTreeView: the system's tree view, its items and what it tells.
#include <utility>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/commoncontrols.h"
#include "vcl/stdctrls/treeview.h"

namespace vcl {

namespace {

/// What the window asks for when it needs it.
void AskBack(TVITEMW& item, const TTreeNode& node) {
  item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_STATE;
  item.pszText = LPSTR_TEXTCALLBACKW;
  item.iImage = I_IMAGECALLBACK;
  item.iSelectedImage = I_IMAGECALLBACK;
  item.cChildren = I_CHILDRENCALLBACK;
  item.stateMask = TVIS_STATEIMAGEMASK;
  item.state = INDEXTOSTATEIMAGEMASK(node.StateIndex() > 0 ? node.StateIndex() : 0);
}

}  // namespace

void TCustomTreeView::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_TREEVIEW_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = WC_TREEVIEWA;
  params.ClassStyle &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
  if (!FHideSelection) params.Style |= TVS_SHOWSELALWAYS;
  if (!FReadOnly) params.Style |= TVS_EDITLABELS;
  if (FShowButtons) params.Style |= TVS_HASBUTTONS;
  if (FShowLines) params.Style |= TVS_HASLINES;
  if (FShowRoot) params.Style |= TVS_LINESATROOT;
}

void TCustomTreeView::CreateWnd() {
  TWinControl::CreateWnd();
  const TSetFor own(FOwnDoing, true, this);
  Send(*this, TVM_SETUNICODEFORMAT, TRUE);
  Send(*this, TVM_SETINDENT, static_cast<WPARAM>(FIndent));
  SendColors();
  SendImages();
  Send(*this, WM_SETREDRAW, FALSE);
  InsertItemsBelow(FItems->FRoot.get());
  if (FSelected) SelectItem(FSelected);
  if (FTop) SetTopItem(FTop);
  if (FItems->FUpdateCount == 0) Send(*this, WM_SETREDRAW, TRUE);
}

void TCustomTreeView::DestroyWnd() {
  FTop = TopItem();
  const TSetFor own(FOwnDoing, true, this);
  TWinControl::DestroyWnd();
}

void TCustomTreeView::SendColors() {
  SendIfAllocated(*this, TVM_SETBKCOLOR, 0, static_cast<LPARAM>(ColorToRGB(Color())));
  SendIfAllocated(*this, TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(ColorToRGB(Font()->Color())));
}

void TCustomTreeView::SendImages() {
  if (!HandleAllocated()) return;
  const HIMAGELIST states = HandleFor(FStateImages.List);
  Send(*this, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(NormalImages()));
  Send(*this, TVM_SETIMAGELIST, TVSIL_STATE, reinterpret_cast<LPARAM>(states));
}

void TCustomTreeView::SetRedraw(bool redraw) {
  SendIfAllocated(*this, WM_SETREDRAW, redraw);
  if (redraw) Invalidate();
}

// ---- Items ----

void TCustomTreeView::InsertItem(TTreeNode* node) {
  if (!HandleAllocated()) return;
  TVINSERTSTRUCTW insert{};
  AskBack(insert.item, *node);
  insert.item.mask |= TVIF_PARAM;
  insert.item.lParam = reinterpret_cast<LPARAM>(node);
  insert.hParent = node->Parent() ? node->FParent->FItem : TVI_ROOT;
  insert.hInsertAfter = node->FPrev ? node->FPrev->FItem : TVI_FIRST;
  if (!node->FNext) insert.hInsertAfter = TVI_LAST;  // Found without a search.
  node->FItem = reinterpret_cast<HTREEITEM>(
      Send(*this, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

void TCustomTreeView::InsertItemsBelow(TTreeNode* parent) {
  for (TTreeNode* node = parent->FFirst; node; node = node->FNext) node->FItem = nullptr;
  for (TTreeNode* node = parent->FFirst; node; node = node->FNext) {
    // Those behind it are not there yet.
    TTreeNode* const next = std::exchange(node->FNext, nullptr);
    InsertItem(node);
    node->FNext = next;
    InsertItemsBelow(node);
    if (node->FExpanded) ExpandItem(node);
  }
}

void TCustomTreeView::RemoveItem(TTreeNode* node) {
  if (!HandleAllocated() || !node->FItem) return;
  const TSetFor own(FOwnDoing, true, this);
  Send(*this, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(node->FItem));
}

void TCustomTreeView::RemoveItemsBelow(TTreeNode* parent) {
  if (parent != FItems->FRoot.get()) {
    for (TTreeNode* each = parent->FFirst; each; each = each->FNext) RemoveItem(each);
    return;
  }
  const TSetFor own(FOwnDoing, true, this);
  SendIfAllocated(*this, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
}

void TCustomTreeView::ExpandItem(const TTreeNode* node) {
  const TSetFor own(FOwnDoing, true, this);
  SendIfAllocated(*this, TVM_EXPAND, node->FExpanded ? TVE_EXPAND : TVE_COLLAPSE,
                  reinterpret_cast<LPARAM>(node->FItem));
}

void TCustomTreeView::SelectItem(const TTreeNode* node) {
  Send(*this, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node ? node->FItem : nullptr));
}

void TCustomTreeView::Reinsert(TTreeNode* node) {
  if (!HandleAllocated()) return;
  const TSetFor own(FOwnDoing, true, this);
  RemoveItem(node);
  InsertItem(node);
  InsertItemsBelow(node);
  if (node->FExpanded) ExpandItem(node);
  if (FSelected) SelectItem(FSelected);
  // Selecting a node brings it into sight.
  for (TTreeNode* each = FSelected ? FSelected->Parent() : nullptr; each; each = each->Parent()) {
    each->FExpanded = true;
  }
}

void TCustomTreeView::NodeChanged(TTreeNode* node) {
  if (!HandleAllocated() || !node->FItem || node == FTelling) return;
  TVITEMW item{};
  AskBack(item, *node);
  item.mask |= TVIF_HANDLE;
  item.hItem = node->FItem;
  if (!node->FFirst) item.stateMask |= TVIS_EXPANDED | TVIS_EXPANDEDONCE;
  Send(*this, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

int CALLBACK TCustomTreeView::CompareOrder(LPARAM first, LPARAM second, LPARAM) {
  return reinterpret_cast<const TTreeNode*>(first)->FOrder -
         reinterpret_cast<const TTreeNode*>(second)->FOrder;
}

void TCustomTreeView::NodesSorted(TTreeNode* parent) {
  TVSORTCB sort{};
  sort.hParent = parent == FItems->FRoot.get() ? TVI_ROOT : parent->FItem;
  sort.lpfnCompare = &CompareOrder;
  SendIfAllocated(*this, TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(&sort));
}

void TCustomTreeView::NodesGone(TTreeNode* parent) {
  if (!parent->FFirst && parent != FItems->FRoot.get()) {
    parent->FExpanded = false;
    parent->SetHasChildren(false);
  }
  SelectionMayHaveMoved();
}

void TCustomTreeView::Forget(const TTreeNode* node) {
  if (node == FTop) FTop = nullptr;
  if (node == FTelling) FTelling = nullptr;
  if (node != FSelected) return;
  FSelected = nullptr;
  FSelectionGone = true;
}

/// The window selects another node in place of one that goes, or is hidden.
void TCustomTreeView::SelectionMayHaveMoved() {
  if (Destroying()) return;
  TTreeNode* selected = HandleAllocated() ? NodeFromWindow(TVGN_CARET) : FSelected;
  if (!std::exchange(FSelectionGone, false) && selected == FSelected) return;
  FSelected = selected;
  Change(selected);
}

TTreeNode* TCustomTreeView::NodeFromWindow(UINT which) const {
  if (!HandleAllocated()) return nullptr;
  return FItems->GetNode(reinterpret_cast<HTREEITEM>(Send(*this, TVM_GETNEXTITEM, which)));
}

TTreeNode* TCustomTreeView::TopItem() const {
  return HandleAllocated() ? NodeFromWindow(TVGN_FIRSTVISIBLE) : FTop;
}

void TCustomTreeView::SetTopItem(TTreeNode* node) {
  FItems->Check(node);
  FTop = node;
  if (!node) return;
  SendIfAllocated(*this, TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(node->FItem));
}

TTreeNode* TCustomTreeView::DropTarget() const { return NodeFromWindow(TVGN_DROPHILITE); }

void TCustomTreeView::SetDropTarget(TTreeNode* node) {
  FItems->Check(node);
  SendIfAllocated(*this, TVM_SELECTITEM, TVGN_DROPHILITE,
                  reinterpret_cast<LPARAM>(node ? node->FItem : nullptr));
}

TTreeNode* TCustomTreeView::GetNodeAt(int x, int y) const {
  TVHITTESTINFO test{};
  test.pt = {x, y};
  Send(*this, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&test));
  return FItems->GetNode(test.hItem);
}

bool TCustomTreeView::IsEditing() const {
  if (!HandleAllocated()) return false;
  const auto edit = reinterpret_cast<HWND>(Send(*this, TVM_GETEDITCONTROL));
  return edit && ::IsWindowVisible(edit);
}

// ---- Notifications ----

namespace {

TTreeNode* NodeOf(const TVITEMW& item) {
  return item.hItem ? reinterpret_cast<TTreeNode*>(item.lParam) : nullptr;
}

}  // namespace

/// Tells what the window is about to show.
void TCustomTreeView::TellItem(NMTVDISPINFOW& asked) {
  TVITEMW& item = asked.item;
  TTreeNode* node = NodeOf(item);
  if (!node) return;
  const TSetFor telling(FTelling, node, this);
  if (item.mask & TVIF_TEXT) {
    ::lstrcpynW(item.pszText, ToUtf16(GetText(node)).c_str(), item.cchTextMax);
  }
  if (item.mask & TVIF_CHILDREN) item.cChildren = node->HasChildren();
  if (item.mask & TVIF_IMAGE) {
    GetImageIndex(node);
    if (FTelling) item.iImage = node->ImageIndex();
  }
  if (FTelling && (item.mask & TVIF_SELECTEDIMAGE)) {
    GetSelectedIndex(node);
    if (FTelling) item.iSelectedImage = node->SelectedIndex();
  }
}

/// Keeps an event until the window has done with the message that brought it: a handler may free
/// the tree, and with it the window.
void TCustomTreeView::Later(TTreeNode* node, std::function<void()> tell) {
  FPending.push_back({TWatch(node), std::move(tell)});
}

void TCustomTreeView::DefaultHandler(TMessage& message) {
  TWatch watch(this);
  {
    const TSetFor inside(FInWindow, true, this);
    TWinControl::DefaultHandler(message);
  }
  if (watch.Gone() || FInWindow) return;
  while (!watch.Gone() && !FPending.empty()) {
    const TPending next = std::move(FPending.front());
    FPending.erase(FPending.begin());
    if (!next.Node.Gone()) next.Tell();
  }
}

void TCustomTreeView::NotifyOfSelection(const NMTREEVIEWW& told, TMessage& message) {
  TTreeNode* node = NodeOf(told.itemNew);
  if (told.hdr.code == static_cast<UINT>(TVN_SELCHANGINGW)) {
    message.Result = !CanChange(node);
  } else {
    FSelected = node;
    FSelectionGone = false;
    Later(node, [this, node] { Change(node); });
  }
}

void TCustomTreeView::NotifyOfExpansion(const NMTREEVIEWW& told, TMessage& message) {
  TTreeNode* node = NodeOf(told.itemNew);
  if (!node) return;
  const bool expand = told.action == TVE_EXPAND || (told.action == TVE_TOGGLE && !node->FExpanded);
  if (told.hdr.code == static_cast<UINT>(TVN_ITEMEXPANDINGW)) {
    TWatch watch(node);
    // A node that a handler has deleted is not to be expanded any more.
    message.Result = !(expand ? CanExpand(node) : CanCollapse(node)) || watch.Gone();
    return;
  }
  node->FExpanded = expand && node->FFirst;
  Later(node, [this, node, expand] { expand ? Expand(node) : Collapse(node); });
}

void TCustomTreeView::NotifyOfEdit(const NMTVDISPINFOW& told, TMessage& message) {
  TTreeNode* node = NodeOf(told.item);
  if (told.hdr.code == static_cast<UINT>(TVN_BEGINLABELEDITW)) {
    message.Result = !node || !CanEdit(node);
  } else if (node && told.item.pszText) {
    // The window needs not keep the text: it asks for it.
    Later(node, [this, node, text = ToUtf8(told.item.pszText)] { Edit(node, text); });
  }
}

void TCustomTreeView::NotifyFromWindow(TMessage& message) {
  auto* header = reinterpret_cast<NMHDR*>(message.LParam);
  if (header->code == static_cast<UINT>(TVN_GETDISPINFOW)) {
    return TellItem(*reinterpret_cast<NMTVDISPINFOW*>(header));
  }
  if (FOwnDoing || Destroying() || ControlState().Has(csDestroyingHandle)) return;
  const auto& tree = *reinterpret_cast<const NMTREEVIEWW*>(header);
  switch (header->code) {
    case static_cast<UINT>(TVN_SELCHANGINGW):
    case static_cast<UINT>(TVN_SELCHANGEDW): return NotifyOfSelection(tree, message);
    case static_cast<UINT>(TVN_ITEMEXPANDINGW):
    case static_cast<UINT>(TVN_ITEMEXPANDEDW): return NotifyOfExpansion(tree, message);
    case static_cast<UINT>(TVN_BEGINLABELEDITW):
    case static_cast<UINT>(TVN_ENDLABELEDITW):
      return NotifyOfEdit(*reinterpret_cast<const NMTVDISPINFOW*>(header), message);
    case static_cast<UINT>(TVN_BEGINDRAGW):
      FDragWanted = true;
      return SetSelected(NodeOf(tree.itemNew));
    case static_cast<UINT>(NM_CLICK): FClicked = true; return;
    case static_cast<UINT>(NM_RCLICK):
      FClicked = true;
      message.Result = 1;  // The release that is made up for it asks for the context menu.
      return;
    default: return;
  }
}

// ---- The mouse and the keyboard ----

/// The window waits for the button's release or the mouse's move while it handles the press, and
/// keeps the release to itself: it is made up here, so that the control's events come as
/// everywhere.
void TCustomTreeView::PressButton(TMessage& message, UINT release) {
  TWatch watch(this);
  FClicked = FDragWanted = false;
  const auto style = static_cast<DWORD>(::GetWindowLongW(Handle(), GWL_STYLE));
  const DWORD others = style & ~static_cast<DWORD>(TVS_DISABLEDRAGDROP);
  const DWORD wanted = DragMode() == dmAutomatic ? others : others | TVS_DISABLEDRAGDROP;
  if (wanted != style) ::SetWindowLongW(Handle(), GWL_STYLE, static_cast<LONG>(wanted));
  if (release == WM_RBUTTONUP && FRightClickSelect) {
    if (TTreeNode* node = GetNodeAt(message.XPos(), message.YPos())) SetSelected(node);
  }
  if (watch.Gone()) return;
  TWinControl::Dispatch(message);
  if (watch.Gone()) return;
  const bool up = ::GetKeyState(release == WM_LBUTTONUP ? VK_LBUTTON : VK_RBUTTON) >= 0;
  if (FClicked && up) Perform(release, 0, message.LParam);
}

void TCustomTreeView::BeginAutoDrag(TMessage& press) {
  TWatch watch(this);
  Dispatch(press);
  if (watch.Gone() || press.Msg == WM_LBUTTONDBLCLK) return;
  if (FDragWanted && FSelected && ::GetKeyState(VK_LBUTTON) < 0) BeginDrag(true);
}

void TCustomTreeView::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case CN_NOTIFY: return NotifyFromWindow(message);
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
}

}  // namespace vcl
