// TQELExplorerView: what the user does with files: opening, naming, deleting, dragging, pasting.
#include <algorithm>
#include <cstring>

#include "qel/shell/Qeltexplorerview.h"
#include "qel/shell/Qeltfileoperator.h"
#include "qel/shell/private/explorerdrop.h"
#include "qel/shell/private/explorerrows.h"
#include "qel/shell/private/shellmenu.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/transfer/clipboard.h"
#include "vcl/transfer/dragout.h"
// It needs what stands above.
#include <shellapi.h>

namespace qel {

using vcl::TWatch;

// ---- What is selected ----

std::vector<std::string> TQELExplorerView::SelectedPaths() const {
  std::vector<std::string> paths;
  for (const vcl::TListItem* each = nullptr;
       (each = GetNextItem(const_cast<vcl::TListItem*>(each), vcl::sdAll, {vcl::isSelected}));) {
    paths.push_back(FFolder + NameOf(each->Index()));
  }
  return paths;
}

bool TQELExplorerView::SelectName(const std::string& name) {
  const int row = RowOf(name);
  if (row < 0) return false;
  const TWatch watch(this);
  ClearSelection();
  if (watch.Gone()) return false;
  vcl::TListItem* item = Items()->Items(row);
  item->SetSelected(true);
  if (watch.Gone()) return false;
  SetItemFocused(item);
  if (!watch.Gone()) item->MakeVisible(false);
  return true;
}

// ---- Opening ----

void TQELExplorerView::OpenFocused() {
  const vcl::TListItem* item = ItemFocused();
  if (!item) return;
  const int row = item->Index();
  const std::string path = FFolder + NameOf(row);
  if (IsFolder(row)) return GoTo(path);
  const TWatch watch(this);
  bool handled = false;
  OnOpenFile(this, path, handled);
  if (handled || watch.Gone()) return;
  const auto result = reinterpret_cast<INT_PTR>(
      ::ShellExecuteW(Handle(), nullptr, vcl::ToUtf16(path).c_str(), nullptr,
                      vcl::ToUtf16(FFolder).c_str(), SW_SHOWNORMAL));
  constexpr INT_PTR succeeded = 32;  // What is greater is no error.
  if (result <= succeeded) vcl::RaiseLastOSError<vcl::EInOutError>("Cannot open '", path, "'");
}

void TQELExplorerView::DblClick() {
  const TWatch watch(this);
  TCustomListView::DblClick();
  if (!watch.Gone() && Selected()) OpenFocused();
}

// ---- Names ----

bool TQELExplorerView::CanEdit(vcl::TListItem* item) {
  return !FFolder.empty() && TCustomListView::CanEdit(item);
}

void TQELExplorerView::Edit(vcl::TListItem* item, std::string text) {
  const TWatch watch(this);
  const int row = item->Index();
  OnEdited(this, item, text);
  if (!watch.Gone() && row < Items()->Count() && text != NameOf(row)) Rename(row, text);
}

void TQELExplorerView::Rename(int row, const std::string& name) {
  folders::CheckName(name, IsFolder(row) ? "a folder" : "a file");
  const std::string kept = name.substr(0, name.find_last_not_of(" .") + 1);
  const std::string former = FFolder + NameOf(row);
  if (!vcl::RenameFile(former, FFolder + kept)) {
    vcl::RaiseLastOSError<vcl::EInOutError>("Cannot rename '", former, "' to '", kept, "'");
  }
  const TWatch watch(this);
  ReadNew();
  if (!watch.Gone()) SelectName(kept);
}

void TQELExplorerView::NewFolder() {
  std::string name = FNewFolderName;
  const auto taken = [this](const std::string& path) {
    return vcl::FileExists(path) || vcl::DirectoryExists(path);
  };
  for (int number = 2; taken(FFolder + name); ++number) {
    name = vcl::Concat(FNewFolderName, " (", std::to_string(number), ")");
  }
  folders::CheckName(name, "a folder");
  folders::Make(FFolder + name);
  const TWatch watch(this);
  ReadNew();
  if (watch.Gone() || !SelectName(name) || watch.Gone()) return;
  if (!ReadOnly() && ItemFocused()) ItemFocused()->EditCaption();
}

bool TQELExplorerView::DeleteSelected() {
  const std::vector<std::string> paths = SelectedPaths();
  if (paths.empty()) return false;
  const std::string what =
      paths.size() == 1 ? vcl::Concat("'", paths.front(), "'")
                        : vcl::Concat("these ", std::to_string(paths.size()), " files and folders");
  const TWatch watch(this);
  const auto answer = vcl::MessageDlg(vcl::Concat("Put ", what, " into the recycle bin?"),
                                      vcl::mtConfirmation, {vcl::mbYes, vcl::mbNo});
  if (answer != vcl::mrYes || watch.Gone()) return false;
  const bool done = folders::Recycle(paths, Handle());
  if (!watch.Gone()) ReadNew();
  return done;
}

// ---- To and from other programs ----

namespace {

/// The shell's format that says whether files on the clipboard are to be copied or moved.
vcl::TTransferFormat EffectFormat() {
  static const vcl::TTransferFormat format = vcl::RegisterTransferFormat("Preferred DropEffect");
  return format;
}

constexpr DWORD CopyEffect = 5, MoveEffect = 2;  // Copying, or linking; moving.

std::string EffectBytes(DWORD effect) {
  return {reinterpret_cast<const char*>(&effect), sizeof effect};
}

bool IsMove(const std::optional<std::string>& bytes) {
  DWORD effect = 0;
  if (bytes && bytes->size() >= sizeof effect) std::memcpy(&effect, bytes->data(), sizeof effect);
  return (effect & MoveEffect) != 0;
}

bool SameFolder(const std::string& one, const std::string& other) {
  return folders::UpperCased(one) == folders::UpperCased(other);
}

}  // namespace

void TQELExplorerView::Transfer(const std::vector<std::string>& paths, const std::string& folder,
                                bool move) {
  const TWatch watch(this);
  TQELFileOperator work(nullptr);
  for (const std::string& each : paths) work.Source()->Add(each);
  work.SetDestination(folder);
  work.SetOperation(move ? foMove : foCopy);
  // A copy into its own folder is another file.
  const bool here = SameFolder(vcl::ExtractFilePath(paths.front()), folder);
  if (here) work.SetOptions(work.Options() + TQELFileOperatorOptions{foRenameOnCollision});
  const bool done = work.Execute();
  if (!watch.Gone()) ReadNew();
  if (!done && !work.LastError().empty()) throw vcl::EInOutError(work.LastError());
}

void TQELExplorerView::CopyToClipboard(bool cut) {
  const std::vector<std::string> paths = SelectedPaths();
  if (paths.empty()) return;
  vcl::TDataObject data;
  data.SetFiles(paths);
  data.SetBytes(EffectFormat(), EffectBytes(cut ? MoveEffect : CopyEffect));
  vcl::Clipboard()->Put(data);
}

void TQELExplorerView::PasteFromClipboard() {
  const std::vector<std::string> paths = vcl::Clipboard()->Files();
  if (paths.empty() || FFolder.empty()) return;
  const bool move = IsMove(vcl::Clipboard()->Bytes(EffectFormat()));
  const TWatch watch(this);
  Transfer(paths, FFolder, move);
  if (move) vcl::Clipboard()->Clear();
}

void TQELExplorerView::BeginItemDrag() {
  const std::vector<std::string> paths = SelectedPaths();
  if (!FDragFiles || paths.empty()) return TCustomListView::BeginItemDrag();
  vcl::TDataObject data;
  data.SetFiles(paths);
  const TWatch watch(this);
  const vcl::TDropEffect done =
      vcl::BeginOleDrag(this, data, {vcl::deCopy, vcl::deMove, vcl::deLink});
  if (!watch.Gone() && done != vcl::deNone) ReadNew();
}

TQELExplorerView::TDrop::TDrop(TQELExplorerView& view) : View(view) {
  Target.SetKinds({vcl::dkFiles});
  const auto ask = [this](vcl::TObject*, const vcl::TDropInfo& info, vcl::TDropEffect& effect) {
    effect = EffectOf(info);
  };
  Target.OnDragEnter = ask;
  Target.OnDragOver = ask;
  Target.OnDrop = [this](vcl::TObject*, const vcl::TDropInfo& info, vcl::TDropEffect& effect) {
    effect = EffectOf(info);
    const bool move = effect == vcl::deMove;
    const std::vector<std::string> files = info.Data.Files();
    // What is moved here is away already: the source has nothing to delete.
    if (move) effect = vcl::deNone;
    View.Transfer(files, View.FolderAt(info.Position), move);
  };
}

void TQELExplorerView::TDrop::Attach() {
  Target.SetControl(Take && !View.Designing() && View.HandleAllocated() ? &View : nullptr);
}

vcl::TDropEffect TQELExplorerView::TDrop::EffectOf(const vcl::TDropInfo& info) const {
  const std::vector<std::string> files = info.Data.Files();
  const std::string folder = View.FolderAt(info.Position);
  if (files.empty() || folder.empty()) return vcl::deNone;
  const auto lies = [&](const std::string& file) {
    return SameFolder(vcl::ExtractFilePath(file), folder) || SameFolder(file + "\\", folder);
  };
  const bool copy = info.Shift.Has(vcl::ssCtrl);
  if (std::ranges::any_of(files, lies) && !copy) return vcl::deNone;
  const bool sameDrive =
      SameFolder(vcl::ExtractFileDrive(files.front()), vcl::ExtractFileDrive(folder));
  const bool move = !copy && (info.Shift.Has(vcl::ssShift) || sameDrive);
  if (move && info.Allowed.Has(vcl::deMove)) return vcl::deMove;
  return info.Allowed.Has(vcl::deCopy) ? vcl::deCopy : vcl::deNone;
}

/// The folder of the row at that place, or the view's.
std::string TQELExplorerView::FolderAt(vcl::TPoint position) const {
  const vcl::TListItem* item = GetItemAt(position.X, position.Y);
  if (!item || !IsFolder(item->Index())) return FFolder;
  return FFolder + NameOf(item->Index()) + "\\";
}

void TQELExplorerView::ShowShellMenuAt(vcl::TPoint screen) {
  if (FFolder.empty()) return;
  std::vector<std::string> names;
  for (const std::string& path : SelectedPaths()) names.push_back(vcl::ExtractFileName(path));
  const TWatch watch(this);
  const TShellCommand command = ShowShellMenu(*this, FFolder, names, screen);
  if (watch.Gone()) return;
  if (command == TShellCommand::Rename && ItemFocused()) ItemFocused()->EditCaption();
}

void TQELExplorerView::Dispatch(vcl::TMessage& message) {
  const bool menu = message.Msg == WM_CONTEXTMENU && !PopupMenu() && !Designing() &&
                    reinterpret_cast<HWND>(message.WParam) == Handle();
  if (!menu) return TCustomListView::Dispatch(message);
  vcl::TPoint at{message.XPos(), message.YPos()};
  if (message.LParam == -1) {
    const vcl::TListItem* item = ItemFocused();
    const vcl::TRect row = item ? item->DisplayRect(vcl::drLabel) : vcl::TRect{};
    at = ClientToScreen({row.Left, row.Bottom});
  }
  message.Result = 1;
  ShowShellMenuAt(at);
}

// ---- Keys ----

void TQELExplorerView::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const TWatch watch(this);
  TCustomListView::KeyDown(key, shift);
  if (watch.Gone() || key == 0 || IsEditing() || FFolder.empty()) return;
  const std::uint16_t pressed = key;
  if (CommandKey(pressed, shift) && !watch.Gone()) key = 0;
}

/// Does what the key is for; false for a key of no command.
bool TQELExplorerView::CommandKey(std::uint16_t key, vcl::TShiftState shift) {
  const bool plain = shift == vcl::TShiftState{};
  const bool ctrl = shift == vcl::TShiftState{vcl::ssCtrl};
  vcl::TListItem* item = ItemFocused();
  if (plain && key == VK_RETURN && item) return OpenFocused(), true;
  if (plain && key == VK_BACK) return GoUp(), true;
  if (plain && key == VK_F5) return ReadNew(), true;
  if (ctrl && key == 'A') return SelectAll(), true;
  if (ctrl && key == 'C') return CopyToClipboard(), true;
  if (ReadOnly()) return false;
  if (plain && key == VK_F2 && item) return item->EditCaption(), true;
  if (plain && key == VK_DELETE) return DeleteSelected(), true;
  if (ctrl && key == 'X') return CopyToClipboard(true), true;
  if (ctrl && key == 'V') return PasteFromClipboard(), true;
  return false;
}

}  // namespace qel
