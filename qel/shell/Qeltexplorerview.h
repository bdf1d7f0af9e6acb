// TQELExplorerView: the files and folders of a folder.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "qel/shell/Qeltexplorertree.h"
#include "vcl/stdctrls/listview.h"

namespace qel {

/// What a list of files is in the order of.
enum TQELExplorerViewSortColumn { evName, evSize, evType, evDate };

/// Sender, the path of the file that is to be opened, whether the handler has done so.
using TQELOpenFileEvent = vcl::TEvent<vcl::TObject*, const std::string&, bool&>;

/// A list view of a folder's files and folders, with the columns name, size, type and date, and
/// with the shell's names of types, pictures and menu. It follows an explorer tree and leads it,
/// and sees what happens to the folder.
///
/// Return and a double click open, Backspace goes up, F2 renames, the delete key puts into the
/// recycle bin, F5 reads anew, Ctrl+A selects all; Ctrl+C, Ctrl+X and Ctrl+V copy, cut and paste
/// files. Errors of what the user does are raised, so that the application shows them.
class QEL_API TQELExplorerView : public vcl::TCustomListView {
 public:
  explicit TQELExplorerView(vcl::TComponent* owner);
  ~TQELExplorerView() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the view says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  const std::string& Folder() const { return FFolder; }
  /// The folder that is shown, with a backslash at its end; empty for none. One that cannot be read
  /// leaves the former one.
  void SetFolder(const std::string& folder);
  TQELExplorerTree* Tree() const { return FTree; }
  /// The explorer tree whose folder is shown, and which goes along when another one is opened here;
  /// null for none. Its own events stay the program's.
  void SetTree(TQELExplorerTree* tree);
  const std::string& Mask() const { return FMask; }
  /// Masks of the files that are shown, such as "*.txt;*.md"; empty for all. Folders always are.
  void SetMask(const std::string& mask);
  bool ShowHidden() const { return FShowHidden; }
  /// True: hidden files and folders are shown, too.
  void SetShowHidden(bool showHidden);
  TQELExplorerViewSortColumn SortColumn() const { return FSortColumn; }
  /// What the files and the folders, which come first, are in the order of. A click on a header
  /// sets it, a second click turns the order round.
  void SetSortColumn(TQELExplorerViewSortColumn column);
  bool SortDescending() const { return FSortDescending; }
  /// True: the greatest, the latest, or what begins with Z comes first.
  void SetSortDescending(bool descending);
  bool WatchChanges() const { return FWatchChanges; }
  /// True: what other programs change is shown by itself.
  void SetWatchChanges(bool watch);
  bool DragFiles() const { return FDragFiles; }
  /// True: files can be dragged out with the mouse, to any program.
  void SetDragFiles(bool drag) { FDragFiles = drag; }
  bool TakeFiles() const;
  /// True: files that are dropped here are copied or moved into the folder, or into the folder
  /// under the mouse.
  void SetTakeFiles(bool take);
  const std::string& NewFolderName() const { return FNewFolderName; }
  /// What a new folder is called; others that are there get a number behind it.
  void SetNewFolderName(const std::string& name) { FNewFolderName = name; }

  /// Shows another folder. Raises EInOutError for one that cannot be read; the former one stays.
  void GoTo(const std::string& folder);
  /// Shows the folder above; false for a root.
  bool GoUp();
  /// Reads the folder anew. The selection stays with the names; when the folder is gone, the next
  /// one above it that is there is shown.
  void ReadNew();
  /// The name of the row's file or folder. Raises EListError outside.
  const std::string& NameOf(int row) const;
  bool IsFolder(int row) const;
  /// The row of that name, without case; -1 for none.
  int RowOf(const std::string& name) const;
  /// The selected files and folders with their paths, folders without a backslash.
  std::vector<std::string> SelectedPaths() const;
  /// Selects what has that name, and nothing else; false when it is not shown.
  bool SelectName(const std::string& name);

  /// Opens what the keyboard is at: a folder here, a file by OnOpenFile, else by the shell. Raises
  /// EInOutError.
  void OpenFocused();
  /// Gives the row's file or folder another name. Raises EInOutError; the name is as before then.
  void Rename(int row, const std::string& name);
  /// Asks and puts the selected ones into the recycle bin. False when the user says no. Raises
  /// EInOutError.
  bool DeleteSelected();
  /// Makes a folder, selects it and has the user name it. Raises EInOutError.
  void NewFolder();
  /// Puts the selected files on the clipboard, to be copied or, where `cut`, moved by whoever
  /// pastes them.
  void CopyToClipboard(bool cut = false);
  /// Copies or moves the clipboard's files into the folder. Raises EInOutError.
  void PasteFromClipboard();
  /// Shows the shell's menu of the selected files at that position of the screen.
  void ShowShellMenuAt(vcl::TPoint screen);

  /// Another folder is shown.
  vcl::TNotifyEvent OnFolderChange;
  /// Whether a file or a folder is shown.
  TQELAddFileEvent OnAddFile;
  /// A file is to be opened.
  TQELOpenFileEvent OnOpenFile;

 protected:
  void Data(vcl::TListItem* item) override;
  void GetImageIndex(vcl::TListItem* item) override;
  int DataFind(vcl::TItemFind find, const std::string& text, vcl::TPoint position, void* data,
               int start, vcl::TSearchDirection direction, bool wrap) override;
  bool CanEdit(vcl::TListItem* item) override;
  void Edit(vcl::TListItem* item, std::string text) override;
  void HeaderClick(vcl::TListColumn* column) override;
  void BeginItemDrag() override;
  HIMAGELIST LargePictures() const override;
  HIMAGELIST SmallPictures() const override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void DblClick() override;
  void Dispatch(vcl::TMessage& message) override;
  void CreateWnd() override;
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  struct TRow;
  struct TRows;
  struct TDrop;
  class TKept;
  void Read(const std::string& folder);
  void ReadIfLive();
  void FollowTree();
  void LeadTree();
  void Sort();
  void MarkColumn();
  void Show();
  bool CommandKey(std::uint16_t key, vcl::TShiftState shift);
  void Transfer(const std::vector<std::string>& paths, const std::string& folder, bool move);
  std::string FolderAt(vcl::TPoint position) const;

  std::unique_ptr<TQELAbout> FAbout;
  std::unique_ptr<TRows> FRows;
  std::unique_ptr<TDrop> FDrop;
  TQELFolderLink FTreeLink;
  TQELExplorerTree* FTree = nullptr;
  std::string FFolder, FMask;
  std::string FNewFolderName = "New folder";
  TQELExplorerViewSortColumn FSortColumn = evName;
  bool FShowHidden = false;
  bool FSortDescending = false;
  bool FWatchChanges = true;
  bool FDragFiles = true;
  bool FComStarted = false;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELExplorerViewSortColumn>{
    "TQELExplorerViewSortColumn", "evName evSize evType evDate"};
