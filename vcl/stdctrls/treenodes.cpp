// TTreeNodes: adding, moving, ordering and deleting nodes.
#include "vcl/stdctrls/treenodes.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/windowmessages.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/treeview.h"

namespace vcl {

const TClass& TTreeNodes::Class() {
  static const TClass info =
      Describe<TTreeNodes, TPersistent>("vcl::TTreeNodes", "vcl/stdctrls/comctrls.h", {});
  return info;
}

TTreeNodes::TTreeNodes(TCustomTreeView* owner)
    : FOwner(owner), FRoot(std::make_unique<TTreeNode>(this)) {
  FRoot->FExpanded = true;
}

TTreeNodes::~TTreeNodes() {
  while (FRoot->FFirst) Free(FRoot->FFirst);
}

TTreeNode* TTreeNodes::Item(int index) const {
  if (index < 0 || index >= FCount) {
    throw EListError(Concat("Node index ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(FCount), " nodes"));
  }
  const bool onTheWay = FLastFound && FLastIndex <= index;
  TTreeNode* node = onTheWay ? FLastFound : FRoot->FFirst;
  for (int i = onTheWay ? FLastIndex : 0; i < index; ++i) node = node->GetNext();
  FLastFound = node;
  FLastIndex = index;
  return node;
}

TTreeNode* TTreeNodes::GetNode(HTREEITEM item) const {
  if (!item || !FOwner->HandleAllocated()) return nullptr;
  TVITEMW asked{};
  asked.mask = TVIF_PARAM | TVIF_HANDLE;
  asked.hItem = item;
  if (!Send(*FOwner, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked))) return nullptr;
  return reinterpret_cast<TTreeNode*>(asked.lParam);
}

// ---- Adding ----

TTreeNode* TTreeNodes::Add(TTreeNode* sibling, const std::string& text) {
  return AddNode(sibling, naAdd, text, nullptr);
}
TTreeNode* TTreeNodes::AddFirst(TTreeNode* sibling, const std::string& text) {
  return AddNode(sibling, naAddFirst, text, nullptr);
}
TTreeNode* TTreeNodes::AddChild(TTreeNode* parent, const std::string& text) {
  return AddNode(parent, naAddChild, text, nullptr);
}
TTreeNode* TTreeNodes::AddChildFirst(TTreeNode* parent, const std::string& text) {
  return AddNode(parent, naAddChildFirst, text, nullptr);
}
TTreeNode* TTreeNodes::Insert(TTreeNode* sibling, const std::string& text) {
  return AddNode(sibling, naInsert, text, nullptr);
}
TTreeNode* TTreeNodes::AddObject(TTreeNode* sibling, const std::string& text, void* data) {
  return AddNode(sibling, naAdd, text, data);
}
TTreeNode* TTreeNodes::AddObjectFirst(TTreeNode* sibling, const std::string& text, void* data) {
  return AddNode(sibling, naAddFirst, text, data);
}
TTreeNode* TTreeNodes::AddChildObject(TTreeNode* parent, const std::string& text, void* data) {
  return AddNode(parent, naAddChild, text, data);
}
TTreeNode* TTreeNodes::AddChildObjectFirst(TTreeNode* parent, const std::string& text, void* data) {
  return AddNode(parent, naAddChildFirst, text, data);
}
TTreeNode* TTreeNodes::InsertObject(TTreeNode* sibling, const std::string& text, void* data) {
  return AddNode(sibling, naInsert, text, data);
}

void TTreeNodes::Check(const TTreeNode* node) const {
  if (!node) return;
  if (node->FOwner != this) {
    throw ETreeViewError(
        Concat("Node '", node->Text(), "' is not one of tree view '", FOwner->Name(), "'"));
  }
  if (node->FDeleting) throw ETreeViewError(Concat("Node '", node->Text(), "' is being deleted"));
}

TTreeNode* TTreeNodes::AddNode(TTreeNode* relative, TNodeAttachMode mode, const std::string& text,
                               void* data) {
  Check(relative);
  std::unique_ptr<TTreeNode> made = FOwner->CreateNode();
  made->FText = text;
  made->FData = data;
  TTreeNode* node = made.get();
  TPlace place = PlaceOf(relative, mode);
  if (FOwner->Sorted() && FUpdateCount == 0) place = SortedPlace(place.Parent, node);
  Attach(made.release(), place);
  return node;
}

/// Takes over a new node.
void TTreeNodes::Attach(TTreeNode* node, TPlace place) {
  ++FCount;
  Link(node, place);
  FOwner->InsertItem(node);
}

TTreeNodes::TPlace TTreeNodes::PlaceOf(TTreeNode* relative, TNodeAttachMode mode) const {
  const bool child = mode == naAddChild || mode == naAddChildFirst;
  TTreeNode* base = relative ? relative : FRoot.get();
  TTreeNode* parent = child || !relative ? base : relative->FParent;
  if (mode == naAddFirst || mode == naAddChildFirst) return {parent, parent->FFirst};
  return {parent, mode == naInsert ? relative : nullptr};
}

/// Behind the last one that does not come after it.
TTreeNodes::TPlace TTreeNodes::SortedPlace(TTreeNode* parent, TTreeNode* node) const {
  TTreeNode* before = nullptr;
  for (TTreeNode* each = parent->FLast; each; each = each->FPrev) {
    if (each == node) continue;
    if (FOwner->Compare(each, node) <= 0) break;
    before = each;
  }
  return {parent, before};
}

void TTreeNodes::Link(TTreeNode* node, TPlace place) {
  TTreeNode* parent = place.Parent;
  node->FParent = parent;
  node->FNext = place.Before;
  node->FPrev = place.Before ? place.Before->FPrev : parent->FLast;
  (node->FPrev ? node->FPrev->FNext : parent->FFirst) = node;
  (node->FNext ? node->FNext->FPrev : parent->FLast) = node;
  FLastFound = nullptr;
  if (++parent->FCount == 1) parent->SetHasChildren(true);
}

void TTreeNodes::Unlink(TTreeNode* node) {
  TTreeNode* parent = node->FParent;
  (node->FPrev ? node->FPrev->FNext : parent->FFirst) = node->FNext;
  (node->FNext ? node->FNext->FPrev : parent->FLast) = node->FPrev;
  FLastFound = nullptr;
  --parent->FCount;
}

// ---- Moving and ordering ----

void TTreeNodes::Move(TTreeNode* node, TPlace place) {
  if (place.Before == node) return;
  TTreeNode* former = node->FParent;
  Unlink(node);
  Link(node, place);
  FOwner->Reinsert(node);
  FOwner->NodesGone(former);
}

/// Puts a node whose text or data has changed in its place.
void TTreeNodes::Resort(TTreeNode* node) {
  if (!FOwner->Sorted() || FUpdateCount > 0 || !node->FParent) return;
  const TPlace place = SortedPlace(node->FParent, node);
  if (place.Before != node->FNext) Move(node, place);
}

void TTreeNodes::SortChildren(TTreeNode* parent, bool recurse) {
  std::vector<TTreeNode*> children;
  for (TTreeNode* each = parent->FFirst; each; each = each->FNext) children.push_back(each);
  if (recurse) {
    for (TTreeNode* each : children) SortChildren(each, true);
  }
  if (children.size() < 2) return;
  std::ranges::stable_sort(
      children, [this](TTreeNode* a, TTreeNode* b) { return FOwner->Compare(a, b) < 0; });
  TTreeNode* previous = nullptr;
  for (TTreeNode* each : children) {
    each->FOrder = previous ? previous->FOrder + 1 : 0;
    each->FPrev = previous;
    (previous ? previous->FNext : parent->FFirst) = each;
    previous = each;
  }
  previous->FNext = nullptr;
  parent->FLast = previous;
  FLastFound = nullptr;
  FOwner->NodesSorted(parent);
}

void TTreeNodes::BeginUpdate() {
  if (FUpdateCount++ == 0) FOwner->SetRedraw(false);
}

void TTreeNodes::EndUpdate() {
  if (FUpdateCount == 0 || --FUpdateCount > 0) return;
  // What was added meanwhile was not put in order one by one.
  if (FOwner->Sorted()) SortChildren(FRoot.get(), true);
  FOwner->SetRedraw(true);
}

// ---- Deleting ----

/// Tells that a node and all below it go, children first. A handler may delete and add others; what
/// it raises keeps no node from going.
void TTreeNodes::Announce(TTreeNode* node, const TWatch& tree) {
  node->FDeleting = true;
  for (TTreeNode* child = node->FFirst; child; child = child->FNext) {
    if (!child->FDeleting) Announce(child, tree);
    if (tree.Gone()) return;
  }
  try {
    FOwner->Delete(node);
  } catch (...) {
    Application()->HandleCurrentException(tree.Gone() ? nullptr : FOwner);
  }
}

/// For a handler of OnDeletion: what holds a node that is going cannot go before it, unless the
/// whole tree goes.
void TTreeNodes::CheckNoneBelowGoes(const TTreeNode* parent) const {
  if (FOwner->Destroying()) return;
  for (const TTreeNode* each = parent->FFirst; each; each = each->FNext) {
    if (each->FDeleting) {
      throw ETreeViewError(Concat("A node below it, '", each->Text(), "', is being deleted"));
    }
    CheckNoneBelowGoes(each);
  }
}

void TTreeNodes::Free(TTreeNode* node) {
  for (TTreeNode* each = node;;) {
    while (each->FFirst) each = each->FFirst;
    const bool last = each == node;
    TTreeNode* parent = each->FParent;
    FOwner->Forget(each);
    Unlink(each);
    --FCount;
    delete each;
    if (last) return;
    each = parent;
  }
}

void TTreeNodes::Delete(TTreeNode* node) {
  if (!node || node->FDeleting) return;
  Check(node);
  CheckNoneBelowGoes(node);
  TWatch watch(FOwner);
  Announce(node, watch);
  if (watch.Gone()) return;
  TTreeNode* parent = node->FParent;
  FOwner->RemoveItem(node);
  Free(node);
  FOwner->NodesGone(parent);
}

void TTreeNodes::DeleteBelow(TTreeNode* parent) {
  CheckNoneBelowGoes(parent);
  TWatch watch(FOwner);
  for (TTreeNode* each = parent->FFirst; each; each = each->FNext) {
    if (!each->FDeleting) Announce(each, watch);
    if (watch.Gone()) return;
  }
  FOwner->RemoveItemsBelow(parent);
  while (parent->FFirst) Free(parent->FFirst);
  FOwner->NodesGone(parent);
}

void TTreeNodes::Clear() {
  const TUpdating updating(*this, FOwner);
  DeleteBelow(FRoot.get());
}

}  // namespace vcl
