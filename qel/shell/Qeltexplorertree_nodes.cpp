// TQELExplorerTree: reading folders, and the nodes that show them.
#include <shlobj.h>

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "qel/shell/Qeltexplorertree.h"
#include "qel/shell/private/folders.h"
#include "qel/shell/private/hourglass.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {

using vcl::TOnFailure;
using vcl::TSetFor;
using vcl::TTreeNode;
using vcl::TUpdating;
using vcl::TWatch;

// ---- The node ----

TQELExplorerTree* TQELExplorerNode::Tree() const {
  return static_cast<TQELExplorerTree*>(TreeView());
}

void TQELExplorerNode::SetFolder(const std::string& folder) {
  FFolder = folder;
  FPath = folders::UpperCased(folder);
  FShellAsked = false;
  FIdKnown = false;
}

const std::optional<TQELExplorerNode::TId>& TQELExplorerNode::Id() {
  if (!std::exchange(FIdKnown, true)) FId = folders::IdOf(FFolder);
  return FId;
}

void TQELExplorerNode::AskShell() {
  if (FShellAsked) return;
  FShellAsked = true;
  const folders::TAppearance shown = folders::Appearance(FFolder);
  SetImageIndex(shown.Icon);
  TTreeNode::SetText(shown.Name);
}

std::string TQELExplorerNode::Text() const {
  // What is shown is asked for late, which changes nothing that can be seen from outside.
  const_cast<TQELExplorerNode*>(this)->AskShell();
  return TTreeNode::Text();
}

void TQELExplorerNode::SetText(const std::string& text) {
  FShellAsked = true;
  TTreeNode::SetText(text);
}

bool TQELExplorerNode::HasChildren() const {
  auto* self = const_cast<TQELExplorerNode*>(this);
  if (!FButtonKnown) {
    // Known from here on, so that a handler that raises does so once.
    self->TTreeNode::SetHasChildren(true);
    // In a handler's search there is no room for another one.
    if (Tree()->FSearching) return true;
    self->FButtonKnown = true;
    self->SetHasChildren(Tree()->GetBtn(this));
  }
  return TTreeNode::HasChildren();
}

void TQELExplorerNode::SetHasChildren(bool hasChildren) {
  FButtonKnown = true;
  TTreeNode::SetHasChildren(hasChildren);
}

// ---- The top level ----

std::vector<std::string> TQELExplorerTree::TopFolders() const {
  std::vector<std::string> wanted{folders::Special(CSIDL_DESKTOPDIRECTORY)};
  const std::vector<std::string> drives = folders::Drives();
  std::ranges::copy(drives, std::back_inserter(wanted));
  for (int folder : {CSIDL_PERSONAL, CSIDL_MYPICTURES, CSIDL_MYMUSIC, CSIDL_MYVIDEO}) {
    wanted.push_back(folders::Special(folder));
  }
  // What was gone to by name stays.
  for (TTreeNode* each = Items()->GetFirstNode(); each; each = each->GetNextSibling()) {
    wanted.push_back(static_cast<TQELExplorerNode*>(each)->Folder());
  }
  std::vector<std::string> shown;
  for (const std::string& each : wanted) {
    // A drive without a medium is shown, a folder that is not there is not.
    const bool drive = std::ranges::find(drives, each) != drives.end();
    const bool there = drive || folders::Exists(each);
    const bool twice = std::ranges::find(shown, each) != shown.end();
    if (!each.empty() && there && !twice && Allowed(each)) shown.push_back(each);
  }
  return shown;
}

void TQELExplorerTree::ReadTop() {
  if (std::exchange(FTopRead, true)) return;
  Fill(nullptr, TopFolders());
}

// ---- Filling ----

TQELExplorerNode* TQELExplorerTree::First(const vcl::TTreeNodes& nodes,
                                          const TQELExplorerNode* parent) {
  return static_cast<TQELExplorerNode*>(parent ? parent->GetFirstChild() : nodes.GetFirstNode());
}

TQELExplorerNode* TQELExplorerTree::ChildOf(const TQELExplorerNode* parent,
                                            const std::string& path) const {
  TQELExplorerNode* node = First(*Items(), parent);
  while (node && node->Path() != path) {
    node = static_cast<TQELExplorerNode*>(node->GetNextSibling());
  }
  return node;
}

TQELExplorerNode* TQELExplorerTree::AddFolder(TQELExplorerNode* parent, TTreeNode* before,
                                              const std::string& folder) {
  auto* node = static_cast<TQELExplorerNode*>(before ? Items()->Insert(before, {})
                                                     : Items()->AddChild(parent, {}));
  node->SetFolder(folder);
  return node;
}

/// Takes a folder out that is gone. What was selected in it gives way to what held it, or stands
/// beside it.
void TQELExplorerTree::DropNode(TQELExplorerNode* node) {
  TWatch watch(node);
  const TTreeNode* selected = Selected();
  if (selected && (selected == node || selected->HasAsParent(node))) {
    TTreeNode* beside = node->GetPrevSibling() ? node->GetPrevSibling() : node->GetNextSibling();
    SetSelected(node->Parent() ? node->Parent() : beside);
  }
  if (!watch.Gone()) node->Delete();
}

/// Makes the nodes below the parent those of the folders, in their order. Nodes that are there stay
/// as they are. False when a handler has deleted others than those that go, or the tree.
bool TQELExplorerTree::Fill(TQELExplorerNode* parent, const std::vector<std::string>& folders) {
  if (!DropOthers(parent, folders)) return false;
  TTreeNode* place = First(*Items(), parent);
  for (const std::string& each : folders) {
    auto* there = static_cast<TQELExplorerNode*>(place);
    if (there && there->Path() == folders::UpperCased(each)) {
      place = place->GetNextSibling();
    } else {
      AddFolder(parent, place, each);
    }
  }
  return true;
}

bool TQELExplorerTree::DropOthers(TQELExplorerNode* parent,
                                  const std::vector<std::string>& folders) {
  std::unordered_set<std::string> wanted;
  for (const std::string& each : folders) wanted.insert(folders::UpperCased(each));
  const TWatch tree(this);
  const TWatch parentWatch(parent);
  for (TQELExplorerNode* each = First(*Items(), parent); each;) {
    auto* next = static_cast<TQELExplorerNode*>(each->GetNextSibling());
    const TWatch nextWatch(next);
    if (!wanted.contains(each->Path())) DropNode(each);
    if (tree.Gone() || parentWatch.Gone() || nextWatch.Gone()) return false;
    each = next;
  }
  return true;
}

void TQELExplorerTree::GetKids(TQELExplorerNode* node) {
  if (Designing() || node->FRead) return;
  TWatch watch(node);
  node->DeleteChildren();
  if (watch.Gone()) return;
  node->FRead = true;
  const TOnFailure unread([node] { node->FRead = false; }, node);
  const std::vector<std::string> folders = FoldersIn(node);
  if (watch.Gone()) return;
  Fill(node, folders);
}

TQELExplorerNode* TQELExplorerTree::ReadChild(TQELExplorerNode* parent, const std::string& path) {
  if (parent) {
    TWatch watch(parent);
    GetKids(parent);
    if (watch.Gone()) return nullptr;
  }
  return ChildOf(parent, path);
}

bool TQELExplorerTree::AskAdd(const std::string& path) {
  static constexpr std::string_view bin = "\\recycled\\";
  // What a recycle bin holds is not shown, only the bin itself.
  const std::string lower = vcl::UpperCase(path);
  const std::size_t at = lower.find(vcl::UpperCase(bin));
  if (at != std::string::npos && path.size() - at > bin.size()) return false;
  bool accept = true;
  OnAddDirectory(this, path, accept);
  return accept;
}

/// Calls `each` with the folders in the folder that are to be shown, until it answers false.
void TQELExplorerTree::Search(const std::string& folder,
                              const std::function<bool(const std::string& path)>& each) {
  const folders::TNoErrorBoxes quiet;
  const TWatch tree(this);
  const TSetFor searching(FSearching, true, this);
  const auto offer = [&](const std::string& name) {
    const std::string path = folder + name + "\\";
    const bool accepted = AskAdd(path);
    return !tree.Gone() && (!accepted || each(path));
  };
  if (!OnFindDirectory) return folders::Scan(folder, offer);
  for (int first = 1;; first = 0) {
    TQELFoundFile entry;
    bool found = false;
    OnFindDirectory(this, folder, first, entry, found);
    if (!found || tree.Gone()) return;
    const bool shown =
        (entry.Attributes & FILE_ATTRIBUTE_DIRECTORY) && entry.Name != "." && entry.Name != "..";
    if (shown && !offer(entry.Name)) return;
  }
}

std::vector<std::string> TQELExplorerTree::FoldersIn(TQELExplorerNode* node) {
  const std::string folder = node->Folder();  // A handler may delete the node.
  node->FIdKnown = false;
  std::vector<std::string> found;
  Search(folder, [&found](const std::string& path) {
    found.push_back(path);
    return true;
  });
  folders::Sort(found);
  return found;
}

/// Whether the folder gets a button. A drive that may have no medium, or is far away, is not asked.
bool TQELExplorerTree::GetBtn(const TQELExplorerNode* node) {
  if (Designing()) return false;
  if (node->FRead) return node->Count() > 0;
  const UINT type = folders::DriveType(node->Folder());
  if (FFastLoad || type == DRIVE_REMOTE || type == DRIVE_REMOVABLE || type == DRIVE_CDROM) {
    return true;
  }
  bool any = false;
  Search(node->Folder(), [&any](const std::string&) {
    any = true;
    return false;
  });
  return any;
}

// ---- Expanding, reading again ----

bool TQELExplorerTree::CanExpand(TTreeNode* node) {
  TWatch watch(node);
  {
    const THourGlass wait;
    const TUpdating hold(*Items(), this);
    // The new nodes' buttons are looked for when they come into sight.
    GetKids(static_cast<TQELExplorerNode*>(node));
  }
  return !watch.Gone() && TCustomTreeView::CanExpand(node);
}

bool TQELExplorerTree::ExpandsInto(TTreeNode* node) {
  // A usual path has no room for more folders.
  constexpr int maxLevel = MAX_PATH / 2;
  if (node->Level() > maxLevel) return false;
  const auto id = static_cast<TQELExplorerNode*>(node)->Id();
  if (!id) return true;
  for (TTreeNode* each = node->Parent(); each; each = each->Parent()) {
    if (static_cast<TQELExplorerNode*>(each)->Id() == id) return false;
  }
  return true;
}

void TQELExplorerTree::FullExpand() {
  const THourGlass wait;
  TCustomTreeView::FullExpand();
}

void TQELExplorerTree::ReadAgain(TQELExplorerNode* node) {
  TWatch watch(node);
  if (!node->FRead) {
    node->FButtonKnown = false;
    return;
  }
  const std::vector<std::string> folders = FoldersIn(node);
  if (watch.Gone() || !Fill(node, folders)) return;
  node->SetHasChildren(node->Count() > 0);
  for (TTreeNode* each = node->GetFirstChild(); each; each = each->GetNextSibling()) {
    TWatch child(each);
    ReadAgain(static_cast<TQELExplorerNode*>(each));
    if (watch.Gone() || child.Gone()) return;
  }
}

/// Reads a folder anew wherever it is shown: below its drive, and where a folder of the user's has
/// it on the top level.
void TQELExplorerTree::ReadAll(const std::string& path) {
  const TUpdating hold(*Items(), this);
  for (TTreeNode* each = Items()->GetFirstNode(); each; each = each->GetNext()) {
    auto* node = static_cast<TQELExplorerNode*>(each);
    if (node->Path() != path) continue;
    TWatch watch(node);
    ReadAgain(node);
    if (watch.Gone()) return;
  }
}

void TQELExplorerTree::ReadNew() {
  const THourGlass wait;
  const TUpdating hold(*Items(), this);
  FTopRead = true;
  if (!Fill(nullptr, TopFolders())) return;
  for (TTreeNode* each = Items()->GetFirstNode(); each; each = each->GetNextSibling()) {
    TWatch watch(each);
    ReadAgain(static_cast<TQELExplorerNode*>(each));
    if (watch.Gone()) return;
  }
}

}  // namespace qel
