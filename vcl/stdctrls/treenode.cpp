// TTreeNode: its place among the others, what it shows, its state.
#include <cstring>
#include <utility>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/treenodes.h"
#include "vcl/stdctrls/treeview.h"

namespace vcl {

ETreeViewError::~ETreeViewError() = default;

const TClass& TTreeNode::Class() {
  static const TClass info =
      Describe<TTreeNode, TPersistent>("vcl::TTreeNode", "vcl/stdctrls/comctrls.h", {});
  return info;
}

TCustomTreeView* TTreeNode::TreeView() const { return FOwner->Owner(); }

HTREEITEM TTreeNode::ItemId() const { return TreeView()->HandleAllocated() ? FItem : nullptr; }

void TTreeNode::Assign(const TPersistent* source) {
  const auto* node = dynamic_cast<const TTreeNode*>(source);
  if (!node) return TPersistent::Assign(source);
  SetText(node->Text());
  SetData(node->FData);
  SetImageIndex(node->FImageIndex);
  SetSelectedIndex(node->FSelectedIndex);
  SetStateIndex(node->FStateIndex);
  SetHasChildren(node->FHasChildren);
}

// ---- Place ----

TTreeNode* TTreeNode::Parent() const { return FParent == FOwner->FRoot.get() ? nullptr : FParent; }

TTreeNode* TTreeNode::GetNext() const {
  if (FFirst) return FFirst;
  const TTreeNode* node = this;
  while (node && !node->FNext) node = node->FParent;
  return node ? node->FNext : nullptr;
}

TTreeNode* TTreeNode::GetPrev() const {
  if (!FPrev) return Parent();
  TTreeNode* node = FPrev;
  while (node->FLast) node = node->FLast;
  return node;
}

TTreeNode* TTreeNode::GetNextVisible() const {
  if (FExpanded || !FFirst) return GetNext();
  const TTreeNode* node = this;
  while (node && !node->FNext) node = node->FParent;
  return node ? node->FNext : nullptr;
}

TTreeNode* TTreeNode::GetPrevVisible() const {
  if (!FPrev) return Parent();
  TTreeNode* node = FPrev;
  while (node->FExpanded && node->FLast) node = node->FLast;
  return node;
}

int TTreeNode::Level() const {
  int level = 0;
  for (const TTreeNode* each = Parent(); each; each = each->Parent()) ++level;
  return level;
}

int TTreeNode::AbsoluteIndex() const {
  int index = 0;
  for (const TTreeNode* each = GetPrev(); each; each = each->GetPrev()) ++index;
  return index;
}

int TTreeNode::Index() const {
  int index = 0;
  for (const TTreeNode* each = FPrev; each; each = each->FPrev) ++index;
  return index;
}

TTreeNode* TTreeNode::Item(int index) const {
  if (index < 0 || index >= FCount) {
    throw EListError(Concat("Child index ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(FCount)));
  }
  TTreeNode* child = FFirst;
  while (index-- > 0) child = child->FNext;
  return child;
}

int TTreeNode::IndexOf(const TTreeNode* child) const {
  return child && child->FParent == this ? child->Index() : -1;
}

bool TTreeNode::HasAsParent(const TTreeNode* node) const {
  const TTreeNode* each = Parent();
  while (each && each != node) each = each->Parent();
  return node && each;
}

bool TTreeNode::IsVisible() const {
  const TTreeNode* each = Parent();
  while (each && each->FExpanded) each = each->Parent();
  return !each;
}

// ---- What it shows ----

void TTreeNode::Changed() {
  if (this != FOwner->FRoot.get()) TreeView()->NodeChanged(this);
}

void TTreeNode::SetText(const std::string& text) {
  if (text == FText) return;
  FText = text;
  Changed();
  FOwner->Resort(this);
}

void TTreeNode::SetData(void* data) {
  if (data == FData) return;
  FData = data;
  FOwner->Resort(this);
}

// ---- State ----

void TTreeNode::SetExpanded(bool expanded) { TreeView()->SetExpanded(this, expanded); }

void TTreeNode::Expand(bool recurse) {
  TWatch watch(this);
  SetExpanded(true);
  if (!recurse || watch.Gone()) return;
  for (TTreeNode* child = FFirst; child;) {
    TWatch childWatch(child);
    if (TreeView()->ExpandsInto(child)) child->Expand(true);
    if (watch.Gone() || childWatch.Gone()) return;
    child = child->FNext;
  }
}

void TTreeNode::Collapse(bool recurse) {
  TWatch watch(this);
  SetExpanded(false);
  if (!recurse || watch.Gone()) return;
  for (TTreeNode* child = FFirst; child;) {
    TWatch childWatch(child);
    child->Collapse(true);
    if (watch.Gone() || childWatch.Gone()) return;
    child = child->FNext;
  }
}

bool TTreeNode::Selected() const { return TreeView()->Selected() == this; }

void TTreeNode::SetSelected(bool selected) {
  if (selected != Selected()) TreeView()->SetSelected(selected ? this : nullptr);
}

// ---- Actions ----

void TTreeNode::MoveTo(TTreeNode* destination, TNodeAttachMode mode) {
  if (destination == this || (destination && destination->HasAsParent(this))) {
    throw ETreeViewError(Concat("Node '", Text(), "' cannot be moved to itself or below itself"));
  }
  FOwner->Check(this);
  FOwner->Check(destination);
  FOwner->Move(this, FOwner->PlaceOf(destination, mode));
}

void TTreeNode::Delete() { FOwner->Delete(this); }
void TTreeNode::DeleteChildren() { FOwner->DeleteBelow(this); }
void TTreeNode::AlphaSort() { FOwner->SortChildren(this, false); }

void TTreeNode::MakeVisible() {
  TWatch watch(this);
  for (TTreeNode* each = Parent(); each; each = each->Parent()) {
    if (!each->FExpanded) each->SetExpanded(true);
    if (watch.Gone()) return;
  }
  SendIfAllocated(*TreeView(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(FItem));
}

TRect TTreeNode::DisplayRect(bool textOnly) const {
  TreeView()->HandleNeeded();
  RECT rect{};
  // NOLINTNEXTLINE(bugprone-sizeof-expression): the handle itself is copied.
  std::memcpy(&rect, &FItem, sizeof FItem);  // The message takes its item from there.
  const LRESULT inSight =
      Send(*TreeView(), TVM_GETITEMRECT, textOnly, reinterpret_cast<LPARAM>(&rect));
  return inSight ? TRect(rect) : TRect();
}

bool TTreeNode::EditText() {
  TCustomTreeView* tree = TreeView();
  if (tree->ReadOnly()) return false;
  TWatch watch(this);
  if (tree->CanFocus()) tree->SetFocus();
  tree->HandleNeeded();
  return !watch.Gone() && Send(*tree, TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(FItem)) != 0;
}

void TTreeNode::EndEdit(bool cancel) { SendIfAllocated(*TreeView(), TVM_ENDEDITLABELNOW, cancel); }

}  // namespace vcl
