// TQELExplorerTree: the folder it is at, its settings, and the texts and pictures of its nodes.
#include "qel/shell/Qeltexplorertree.h"

#include <objbase.h>

#include <algorithm>
#include <cctype>
#include <utility>

#include "qel/shell/private/folders.h"
#include "qel/shell/private/hourglass.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"

namespace qel {

// The header that has no system's header repeats its number.
static_assert(FILE_ATTRIBUTE_DIRECTORY == 0x10);

using vcl::TTreeNode;

const vcl::TClass& TQELExplorerTree::Class() {
  using T = TQELExplorerTree;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomTreeView>(
      "qel::TQELExplorerTree", "qel/shell/Qeltexplorertree.h",
      {
          Property<&T::Network, &T::SetNetAllow>("Network").Default(true),
          Property<&T::FastLoad, &T::SetFastLoad>("FastLoad").Default(false),
          Property<&T::Directory, &T::SetDirectory>("Directory").StoredIf<&T::IsStored>(),
          Inherit("Align"),
          Inherit("BorderStyle"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("HideSelection"),
          Inherit("Indent"),
          Inherit("ParentColor").Default(false),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ReadOnly"),
          Inherit("RightClickSelect"),
          Inherit("ShowButtons"),
          Inherit("ShowHint"),
          Inherit("ShowLines"),
          Inherit("ShowRoot"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Event<&T::OnAddDirectory>("OnAddDirectory")
              .Type("TQELAddFileEvent", "vcl::TObject* sender, std::string path, bool& add"),
          Event<&T::OnFindDirectory>("OnFindDirectory")
              .Type("TQELFindDirectoryEvent",
                    "vcl::TObject* sender, std::string folder, int first, qel::TQELFoundFile& "
                    "found, bool& exists"),
          Event<&T::OnDeleteItem>("OnDeleteItem")
              .Type("TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node"),
          Event<&T::OnGetIcon>("OnGetIcon")
              .Type("TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node"),
          Inherit("OnChange"),
          Inherit("OnChanging"),
          Inherit("OnClick"),
          Inherit("OnCollapsed"),
          Inherit("OnCollapsing"),
          Inherit("OnDblClick"),
          Inherit("OnDragDrop"),
          Inherit("OnDragOver"),
          Inherit("OnEdited"),
          Inherit("OnEditing"),
          Inherit("OnEndDrag"),
          Inherit(FocusEvents),
          Inherit("OnExpanded"),
          Inherit("OnExpanding"),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELExplorerTree::TQELExplorerTree(vcl::TComponent* owner) : TCustomTreeView(owner) {
  // The shell's functions want it.
  FComStarted = SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  if (!Designing()) FDirectory = folders::Normalized(".");
}

TQELExplorerTree::~TQELExplorerTree() {
  AnnounceEnd();
  for (TQELFolderLink* link : std::exchange(FLinks, {})) link->FSender = nullptr;
  Items()->Clear();  // OnDeleteItem hears of them.
  if (FComStarted) ::CoUninitialize();
}

std::unique_ptr<TTreeNode> TQELExplorerTree::CreateNode() {
  return std::make_unique<TQELExplorerNode>(Items());
}

void TQELExplorerTree::CreateWnd() {
  ReadTop();
  TCustomTreeView::CreateWnd();
  if (Designing()) return;
  if (Selected()) return Selected()->MakeVisible();
  if (!FDirectory.empty()) GoToNearest(FDirectory);
}

void TQELExplorerTree::Loaded() {
  TCustomTreeView::Loaded();
  if (!Designing() && !FDirectory.empty() && FTopRead) GoToNearest(FDirectory);
}

// ---- Where it is ----

void TQELExplorerTree::SetDirectory(const std::string& name) {
  const std::string path = folders::Normalized(name);
  if (path.empty()) throw vcl::EInOutError("Invalid Directory Name");
  if (Loading() || Designing()) {
    FDirectory = path;
    FDirectoryGiven = true;
    return;
  }
  if (!OnFindDirectory && !folders::Exists(path)) {
    vcl::RaiseOSError<vcl::EInOutError>(ERROR_PATH_NOT_FOUND, "There is no folder '", path, "'");
  }
  if (!Allowed(path)) {
    throw vcl::EInOutError(
        vcl::Concat("Folder '", path, "' is on a remote drive, and Network is off"));
  }
  vcl::TWatch watch(this);
  GoTo(path);
  if (!watch.Gone()) FDirectoryGiven = true;
}

bool TQELExplorerTree::Allowed(const std::string& path) const {
  return FNetwork || folders::DriveType(path) != DRIVE_REMOTE;
}

void TQELExplorerTree::GoTo(const std::string& path) {
  vcl::TWatch watch(this);
  const std::string root = path.substr(0, folders::RootSize(path));
  // A server's share, or a drive that has come since.
  if (!root.empty() && !GetNodeFromPath(root)) AddFolder(nullptr, nullptr, root);
  TQELExplorerNode* node = GetNodeFromPath(path);
  if (!node && !watch.Gone()) node = ReadAbove(path);
  if (watch.Gone()) return;
  if (!node) throw vcl::EInOutError(vcl::Concat("Folder '", path, "' is not shown"));
  SetSelected(node);
}

/// The node of a folder that may have come since those above it were read.
TQELExplorerNode* TQELExplorerTree::ReadAbove(const std::string& path) {
  vcl::TWatch watch(this);
  TQELExplorerNode* node = nullptr;
  for (std::string above = path; !node && !(above = folders::ParentOf(above)).empty();) {
    node = GetNodeFromPath(above);
    if (watch.Gone()) return nullptr;
  }
  if (node) ReadAll(node->Path());
  return watch.Gone() ? nullptr : GetNodeFromPath(path);
}

/// The folder, or the next one above it that is there and may be shown; none at all changes
/// nothing.
void TQELExplorerTree::GoToNearest(std::string path) {
  vcl::TWatch watch(this);
  TQELExplorerNode* node = nullptr;
  for (; !path.empty() && !node; path = folders::ParentOf(path)) {
    if (Allowed(path)) node = GetNodeFromPath(path);
    if (watch.Gone()) return;
  }
  if (!node) return;
  if (node != Selected()) return SetSelected(node);
  FDirectory = node->Folder();  // Nothing else would tell.
  TellLinks();
}

void TQELExplorerTree::Change(TTreeNode* node) {
  if (node && !Loading()) {
    const auto* folder = static_cast<TQELExplorerNode*>(node);
    FDirectory = folder->Folder();
    if (Drive()) FRemembered[Drive()] = folder->Path();
  }
  const vcl::TWatch watch(this);
  TCustomTreeView::Change(node);
  if (!watch.Gone()) TellLinks();
}

// ---- Who goes with it ----

TQELFolderLink::~TQELFolderLink() {
  if (FSender) FSender->UnRegisterChanges(this);
}

void TQELExplorerTree::RegisterChanges(TQELFolderLink* link) {
  if (link->FSender) link->FSender->UnRegisterChanges(link);
  link->FSender = this;
  FLinks.push_back(link);
}

void TQELExplorerTree::UnRegisterChanges(TQELFolderLink* link) {
  if (std::erase(FLinks, link) > 0) link->FSender = nullptr;
}

/// What hears may free others that do, and the tree.
void TQELExplorerTree::TellLinks() {
  const vcl::TWatch watch(this);
  for (TQELFolderLink* link : std::vector(FLinks)) {
    if (watch.Gone()) return;
    if (std::ranges::find(FLinks, link) != FLinks.end()) link->OnChange(this);
  }
}

char TQELExplorerTree::Drive() const {
  if (FDirectory.size() < 2 || FDirectory[1] != ':') return 0;
  return static_cast<char>(std::toupper(static_cast<unsigned char>(FDirectory[0])));
}

void TQELExplorerTree::SetDrive(char letter) {
  letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  if (letter == Drive()) return;
  const std::string root = std::string(1, letter) + ":\\";
  const auto found = FRemembered.find(letter);
  const auto isThere = [this](const std::string& path) {
    // What a handler finds need not be on the disk.
    return OnFindDirectory ? GetNodeFromPath(path) != nullptr : folders::Exists(path);
  };
  SetDirectory(found != FRemembered.end() && isThere(found->second) ? found->second : root);
}

TQELExplorerNode* TQELExplorerTree::GetNodeFromPath(const std::string& path) {
  const THourGlass wait;
  ReadTop();
  const std::string wanted = folders::UpperCased(folders::Normalized(path));
  TQELExplorerNode* node = nullptr;
  for (std::size_t end = folders::RootSize(wanted); end > 0 && end <= wanted.size();) {
    node = ReadChild(node, wanted.substr(0, end));
    if (!node || end == wanted.size()) return node;
    end = wanted.find('\\', end) + 1;
  }
  return nullptr;
}

// ---- Settings ----

void TQELExplorerTree::SetNetAllow(bool network) {
  if (network == FNetwork) return;
  FNetwork = network;
  if (FTopRead) ReadNew();
}

void TQELExplorerTree::SetFastLoad(bool fastLoad) {
  if (fastLoad == FFastLoad) return;
  FFastLoad = fastLoad;
  if (FTopRead) ReadNew();
}

HIMAGELIST TQELExplorerTree::NormalImages() const {
  return Images() ? TCustomTreeView::NormalImages() : folders::SystemImages(CurrentPPI());
}

/// The window measures all nodes of a folder when it is expanded, of which few come into sight: the
/// folder's own name is near enough then.
std::string TQELExplorerTree::GetText(TTreeNode* node) {
  const auto* folder = static_cast<TQELExplorerNode*>(node);
  return FPainting || folder->FShellAsked ? node->Text() : folders::NameOf(folder->Folder());
}

void TQELExplorerTree::WMPaint(vcl::TMessage& message) {
  const vcl::TSetFor painting(FPainting, true, this);
  TCustomTreeView::WMPaint(message);
}

void TQELExplorerTree::GetImageIndex(TTreeNode* node) {
  static_cast<TQELExplorerNode*>(node)->AskShell();
  OnGetIcon(this, node);
}

void TQELExplorerTree::GetSelectedIndex(TTreeNode* node) {
  node->SetSelectedIndex(node->ImageIndex());
}

void TQELExplorerTree::Delete(TTreeNode* node) {
  TCustomTreeView::Delete(node);
  OnDeleteItem(this, node);
}

}  // namespace qel
