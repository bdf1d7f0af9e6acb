// TQELExplorerTree: a tree of the file system's folders.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "qel/core/api.h"
#include "vcl/stdctrls/treeview.h"

namespace qel {

/// Sender, the path of a folder or file, whether it is taken (true before).
using TQELAddFileEvent = vcl::TEvent<vcl::TObject*, std::string, bool&>;

/// What a handler of OnFindDirectory has found.
struct TQELFoundFile {
  std::string Name;
  int Attributes = 0x10;  ///< As the system's FILE_ATTRIBUTE_... say it; a folder's.
};
/// Sender, the folder to look in, 1 for its first entry and 0 for each next one, the entry, whether
/// there was one (false before, which ends the search).
using TQELFindDirectoryEvent = vcl::TEvent<vcl::TObject*, std::string, int, TQELFoundFile&, bool&>;

class TQELExplorerTree;

/// Tells what goes with an explorer tree that another folder is selected
/// (`TQELExplorerTree::RegisterChanges`), however many do, and leaves the tree's events alone.
class QEL_API TQELFolderLink {
 public:
  TQELFolderLink() = default;
  ~TQELFolderLink();
  TQELFolderLink(const TQELFolderLink&) = delete;
  TQELFolderLink& operator=(const TQELFolderLink&) = delete;
  /// The tree that it listens to; null for none, also when the tree has been freed.
  TQELExplorerTree* Sender() const { return FSender; }
  /// Gets the tree, whose Directory is another one.
  vcl::TNotifyEvent OnChange;

 private:
  friend class TQELExplorerTree;
  TQELExplorerTree* FSender = nullptr;
};

/// The node of a folder. The shell is asked for its name and picture when they are first needed,
/// and the disk for whether it has a button.
class QEL_API TQELExplorerNode : public vcl::TTreeNode {
 public:
  explicit TQELExplorerNode(vcl::TTreeNodes* owner) : TTreeNode(owner) {}

  /// The folder's path in capitals, and as it is spelled; both with a backslash at the end.
  const std::string& Path() const { return FPath; }
  const std::string& Folder() const { return FFolder; }
  std::string Text() const override;
  void SetText(const std::string& text) override;
  bool HasChildren() const override;
  void SetHasChildren(bool hasChildren) override;

 private:
  friend class TQELExplorerTree;
  /// By what the disk knows the folder, whatever its path: volume and number.
  using TId = std::pair<std::uint32_t, std::uint64_t>;
  /// Nothing where the disk has none. Asked when it is needed, once for each reading.
  const std::optional<TId>& Id();
  void SetFolder(const std::string& folder);
  void AskShell();
  TQELExplorerTree* Tree() const;

  std::string FFolder;
  std::string FPath;
  std::optional<TId> FId;
  bool FIdKnown = false;
  bool FRead = false;
  bool FShellAsked = false;
  bool FButtonKnown = false;
};

/// A tree view of folders: the desktop, the drives and the user's folders on its top level, below
/// them the folders as they are expanded. F2 and the delete key rename and delete the selected
/// folder unless ReadOnly; F5 reads what is shown anew. Its nodes are TQELExplorerNode.
///
/// A link is a folder like any other. Expanding all stops at one that leads to a folder which it
/// lies in, and 130 levels below the top.
class QEL_API TQELExplorerTree : public vcl::TCustomTreeView {
 public:
  explicit TQELExplorerTree(vcl::TComponent* owner);
  ~TQELExplorerTree() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The selected folder, with a backslash at the end; the program's current one at first.
  const std::string& Directory() const { return FDirectory; }
  /// Selects a folder and reads those on the way to it. Raises EInOutError "Invalid Directory Name"
  /// for an empty name, and EInOutError for a folder that does not exist, is not shown, or is on a
  /// remote drive while Network is off; the selection stays then. From a form file, the folder or
  /// the next one above it that there is.
  void SetDirectory(const std::string& name);
  bool Network() const { return FNetwork; }
  /// False: remote drives are not shown.
  void SetNetAllow(bool network);
  bool FastLoad() const { return FFastLoad; }
  /// True: every folder gets a button until it is expanded; the disk is not asked before.
  void SetFastLoad(bool fastLoad);
  /// The drive of Directory; 0 for a folder on no drive.
  char Drive() const;
  /// Goes to the folder that was last selected on the drive, or to its root when that one is gone.
  void SetDrive(char letter);
  /// The node of a folder; reads the folders on the way. Null when it is not shown.
  TQELExplorerNode* GetNodeFromPath(const std::string& path);
  void FullExpand() override;

  /// Reads anew what has been read before. What is expanded and selected stays so; when a selected
  /// folder is gone, the one above it is selected.
  void ReadNew();
  /// Makes a folder, with those above it, and expands what holds it; a relative name is one below
  /// Directory. Null when a handler keeps it out. Raises EInOutError.
  TQELExplorerNode* AddPath(const std::string& path);
  /// Gives the node's folder another name, without blanks and dots at its end, which the system
  /// drops. Raises EInOutError for one that the system does not take, and for the folders of the
  /// top level.
  void RenamePath(TQELExplorerNode* node, const std::string& name);
  /// Asks the user and puts the folder into the recycle bin. False when he says no. Raises
  /// EInOutError when it cannot be, and for the folders of the top level.
  bool DeletePath(TQELExplorerNode* node);

  /// Has the link hear when another folder is selected, until it is registered elsewhere or freed.
  void RegisterChanges(TQELFolderLink* link);
  void UnRegisterChanges(TQELFolderLink* link);

  /// Whether a folder is shown. Asked also when a look ahead decides about a button.
  TQELAddFileEvent OnAddDirectory;
  /// Searches in place of the disk.
  TQELFindDirectoryEvent OnFindDirectory;
  /// A node is deleted.
  vcl::TTVNodeEvent OnDeleteItem;
  /// A node's picture is about to be shown, ImageIndex being the shell's at first; the handler may
  /// set another.
  vcl::TTVNodeEvent OnGetIcon;

 protected:
  std::unique_ptr<vcl::TTreeNode> CreateNode() override;
  bool CanExpand(vcl::TTreeNode* node) override;
  bool ExpandsInto(vcl::TTreeNode* node) override;
  bool CanEdit(vcl::TTreeNode* node) override;
  void Change(vcl::TTreeNode* node) override;
  void Edit(vcl::TTreeNode* node, std::string text) override;
  void Delete(vcl::TTreeNode* node) override;
  std::string GetText(vcl::TTreeNode* node) override;
  void GetImageIndex(vcl::TTreeNode* node) override;
  void GetSelectedIndex(vcl::TTreeNode* node) override;
  HIMAGELIST NormalImages() const override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void WMPaint(vcl::TMessage& message) override;
  void CreateWnd() override;
  void Loaded() override;

 private:
  friend class TQELExplorerNode;
  void ReadTop();
  std::vector<std::string> TopFolders() const;
  bool Fill(TQELExplorerNode* parent, const std::vector<std::string>& folders);
  bool DropOthers(TQELExplorerNode* parent, const std::vector<std::string>& folders);
  TQELExplorerNode* AddFolder(TQELExplorerNode* parent, vcl::TTreeNode* before,
                              const std::string& folder);
  void DropNode(TQELExplorerNode* node);
  void GetKids(TQELExplorerNode* node);
  bool GetBtn(const TQELExplorerNode* node);
  void ReadAgain(TQELExplorerNode* node);
  std::vector<std::string> FoldersIn(TQELExplorerNode* node);
  void Search(const std::string& folder, const std::function<bool(const std::string& path)>& each);
  bool AskAdd(const std::string& path);
  bool Allowed(const std::string& path) const;
  void GoTo(const std::string& path);
  TQELExplorerNode* ReadAbove(const std::string& path);
  void ReadAll(const std::string& path);
  void GoToNearest(std::string path);
  static void MoveFolder(TQELExplorerNode* node, const std::string& folder);
  void PutInOrder(TQELExplorerNode* node);
  static TQELExplorerNode* First(const vcl::TTreeNodes& nodes, const TQELExplorerNode* parent);
  TQELExplorerNode* ChildOf(const TQELExplorerNode* parent, const std::string& path) const;
  TQELExplorerNode* ReadChild(TQELExplorerNode* parent, const std::string& path);
  bool IsStored() const { return FDirectoryGiven; }
  void TellLinks();

  std::string FDirectory;
  std::vector<TQELFolderLink*> FLinks;
  std::map<char, std::string> FRemembered;  // The last folder of each drive.
  bool FNetwork = true;
  bool FFastLoad = false;
  bool FDirectoryGiven = false;  // By form file or program.
  bool FTopRead = false;
  bool FSearching = false;  // A handler may be in the middle of a search, of which it can have one.
  bool FPainting = false;
  bool FComStarted = false;
};

}  // namespace qel
