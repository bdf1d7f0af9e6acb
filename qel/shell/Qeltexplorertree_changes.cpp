// TQELExplorerTree: folders that the user makes, renames and deletes.
#include <algorithm>

#include "qel/shell/Qeltexplorertree.h"
#include "qel/shell/private/folders.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

void CheckNotOnTop(const TQELExplorerNode* node, const char* what) {
  if (node->Parent()) return;
  throw vcl::EInOutError(vcl::Concat("'", node->Folder(), "' cannot be ", what));
}

}  // namespace

TQELExplorerNode* TQELExplorerTree::AddPath(const std::string& path) {
  std::string given(vcl::Trim(path));
  const bool absolute = given.find(':') == 1 || given.starts_with("\\") || given.starts_with("/");
  const std::string folder = folders::Normalized(absolute ? given : FDirectory + given);
  if (given.empty() || folder.empty()) throw vcl::EInOutError("Invalid Directory Name");
  folders::Make(folder);
  vcl::TWatch watch(this);
  TQELExplorerNode* made = ReadAbove(folder);
  if (watch.Gone() || !made) return nullptr;
  // Where the user is, if the folder that holds it is shown twice.
  auto* here = static_cast<TQELExplorerNode*>(Selected());
  const std::string above = folders::UpperCased(folders::ParentOf(folder));
  if (here && here->Path() == above) made = ReadChild(here, made->Path());
  if (!made) return nullptr;
  vcl::TWatch madeWatch(made);
  made->MakeVisible();
  return madeWatch.Gone() ? nullptr : made;
}

void TQELExplorerTree::RenamePath(TQELExplorerNode* node, const std::string& name) {
  CheckNotOnTop(node, "renamed");
  folders::CheckName(name, "a folder");
  const std::string kept = name.substr(0, name.find_last_not_of(" .") + 1);
  const std::string folder = folders::ParentOf(node->Folder()) + kept + "\\";
  folders::Rename(node->Folder(), folder);
  MoveFolder(node, folder);
  node->AskShell();
  vcl::TWatch watch(node);
  PutInOrder(node);
  if (watch.Gone()) return;
  vcl::TTreeNode* selected = Selected();
  if (selected && (selected == node || selected->HasAsParent(node))) Change(selected);
  if (!watch.Gone()) ReadAll(static_cast<TQELExplorerNode*>(node->Parent())->Path());
}

/// The folder is somewhere else, and with it all below it.
void TQELExplorerTree::MoveFolder(TQELExplorerNode* node, const std::string& folder) {
  const bool asked = node->FShellAsked;
  node->SetFolder(folder);
  if (asked) node->AskShell();
  for (vcl::TTreeNode* each = node->GetFirstChild(); each; each = each->GetNextSibling()) {
    auto* child = static_cast<TQELExplorerNode*>(each);
    MoveFolder(child, folder + folders::NameOf(child->Folder()) + "\\");
  }
}

/// Puts a node that has another name where it belongs among those beside it.
void TQELExplorerTree::PutInOrder(TQELExplorerNode* node) {
  auto* parent = static_cast<TQELExplorerNode*>(node->Parent());
  std::vector<std::string> order;
  for (vcl::TTreeNode* each = parent->GetFirstChild(); each; each = each->GetNextSibling()) {
    order.push_back(static_cast<TQELExplorerNode*>(each)->Folder());
  }
  folders::Sort(order);
  const auto next = std::ranges::find(order, node->Folder()) + 1;
  vcl::TTreeNode* place =
      next == order.end() ? nullptr : ChildOf(parent, folders::UpperCased(*next));
  if (place == node->GetNextSibling()) return;
  place ? node->MoveTo(place, vcl::naInsert) : node->MoveTo(parent, vcl::naAddChild);
}

bool TQELExplorerTree::DeletePath(TQELExplorerNode* node) {
  CheckNotOnTop(node, "deleted");
  const std::string question = vcl::Concat("Put the folder '", node->Folder(),
                                           "' and all it contains into the recycle bin?");
  vcl::TWatch watch(node);
  if (vcl::MessageDlg(question, vcl::mtConfirmation, {vcl::mbYes, vcl::mbNo}) != vcl::mrYes) {
    return false;
  }
  if (watch.Gone()) return false;
  vcl::TWatch tree(this);
  const std::string parent = static_cast<TQELExplorerNode*>(node->Parent())->Path();
  if (!folders::Recycle({node->Folder()}, Handle())) return false;
  if (!tree.Gone()) ReadAll(parent);
  return true;
}

bool TQELExplorerTree::CanEdit(vcl::TTreeNode* node) {
  return node->Parent() && TCustomTreeView::CanEdit(node);
}

void TQELExplorerTree::Edit(vcl::TTreeNode* node, std::string text) {
  vcl::TWatch watch(node);
  OnEdited(this, node, text);
  if (!watch.Gone() && text != node->Text()) {
    RenamePath(static_cast<TQELExplorerNode*>(node), text);
  }
}

void TQELExplorerTree::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  vcl::TWatch watch(this);
  TCustomTreeView::KeyDown(key, shift);
  if (watch.Gone() || shift != vcl::TShiftState{}) return;
  auto* node = static_cast<TQELExplorerNode*>(Selected());
  if (key == VK_F5) return ReadNew();
  if (ReadOnly() || !node || !node->Parent()) return;
  if (key == VK_F2) node->EditText();
  if (key == VK_DELETE) DeletePath(node);
}

}  // namespace qel
