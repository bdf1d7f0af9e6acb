// The explorer view on real folders.
#include "qel/shell/Qeltexplorerview.h"

#include <filesystem>
#include <fstream>

#include "tests/support/importpatch.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"
#include "vcl/transfer/clipboard.h"
#include "vcl/transfer/dataobject.h"
// They need what stands above.
#include <ole2.h>
#include <shellapi.h>

namespace {

namespace fs = std::filesystem;
using qel::TQELExplorerTree;
using qel::TQELExplorerView;
using testinput::PumpUntil;

class TView : public TQELExplorerView {
 public:
  using TQELExplorerView::RecreateWnd;
  using TQELExplorerView::TQELExplorerView;
};

std::wstring operated;
UINT operation;
int WINAPI Operate(LPSHFILEOPSTRUCTW asked) {
  operation = asked->wFunc;
  operated.clear();
  for (const wchar_t* each = asked->pFrom; *each; each += std::wcslen(each) + 1) {
    operated += fs::path(each).filename().wstring() + L",";
    fs::remove_all(each);
  }
  if (asked->pTo) operated += L"to " + fs::path(asked->pTo).wstring();
  return 0;
}

std::wstring opened;
HINSTANCE WINAPI Execute(HWND, LPCWSTR, LPCWSTR file, LPCWSTR, LPCWSTR, INT) {
  opened = fs::path(file).filename().wstring();
  return reinterpret_cast<HINSTANCE>(INT_PTR{33});
}

class ExplorerView : public vcl::TStandardForm {
 protected:
  ExplorerView() {
    wchar_t temp[MAX_PATH];
    ::GetTempPathW(MAX_PATH, temp);
    Root = fs::path(temp) / (L"view" + std::to_wstring(::GetCurrentProcessId()));
    fs::create_directories(Root / L"inner" / L"deep");
    fs::create_directories(Root / L"Äpfel ☃");
    Write(L"big.txt", 5000);
    Write(L"a.md", 10);
    Write(L"Zebra.txt", 100);
    View = new TView(&Form);
    View->SetBounds(0, 0, 480, 300);
    View->SetParent(&Form);
  }
  ~ExplorerView() override {
    delete View;
    std::error_code ignored;
    fs::remove_all(Root, ignored);
  }
  void Write(const wchar_t* name, std::size_t size) const {
    std::ofstream(Root / name, std::ios::binary) << std::string(size, 'x');
  }
  std::string Path(const std::wstring& inside = {}) const {
    const std::string path = vcl::ToUtf8((Root / inside).wstring());
    return path.ends_with('\\') ? path : path + "\\";
  }
  /// The names as they are shown.
  std::string Names() const {
    std::string names;
    for (int i = 0; i < View->Items()->Count(); ++i)
      names += View->Items()->Items(i)->Caption() + ",";
    return names;
  }
  std::string SelectedNames() const {
    std::string names;
    for (const std::string& each : View->SelectedPaths()) names += each.substr(Path().size()) + ",";
    return names;
  }

  fs::path Root;
  TView* View = nullptr;
};

TEST_F(ExplorerView, ShowsAFoldersEntriesInEachOrder) {
  Write(L"hidden.txt", 1);
  ::SetFileAttributesW((Root / L"hidden.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
  View->SetFolder(Path());
  ShowForm();
  EXPECT_EQ(View->Folder(), Path());
  EXPECT_EQ(Names(), "Äpfel ☃,inner,a.md,big.txt,Zebra.txt,");
  const vcl::TListItem* big = View->Items()->Items(View->RowOf("BIG.TXT"));
  EXPECT_EQ(big->SubItems()->Strings(0), "5 KB");
  EXPECT_NE(big->SubItems()->Strings(2), "");
  View->SetSortColumn(qel::evSize);
  EXPECT_EQ(Names(), "Äpfel ☃,inner,a.md,Zebra.txt,big.txt,");
  View->SelectName("Zebra.txt");
  // A second click on the header turns the order round; what is selected stays so.
  const auto click = [&] { Click(*View, View->Columns()->Items(0)->Width() + 10, 8); };
  click();
  EXPECT_TRUE(View->SortDescending());
  EXPECT_EQ(Names(), "inner,Äpfel ☃,big.txt,Zebra.txt,a.md,");
  EXPECT_EQ(SelectedNames(), "Zebra.txt,");
  EXPECT_EQ(View->Columns()->Items(1)->SortMark(), vcl::smDown);
  View->SetSortDescending(false);
  View->SetSortColumn(qel::evName);
  View->SetMask("*.txt");
  View->SetShowHidden(true);
  EXPECT_EQ(Names(), "Äpfel ☃,inner,big.txt,hidden.txt,Zebra.txt,") << "folders always";
  View->OnAddFile = [](vcl::TObject*, std::string path, bool& add) {
    if (path.ends_with("inner\\") || path.ends_with("big.txt")) add = false;
  };
  View->ReadNew();
  EXPECT_EQ(Names(), "Äpfel ☃,hidden.txt,Zebra.txt,");
  EXPECT_EQ(SelectedNames(), "Zebra.txt,");
  View->RecreateWnd();
  EXPECT_EQ(Names(), "Äpfel ☃,hidden.txt,Zebra.txt,");
}

TEST_F(ExplorerView, GoesWhereKeysAndTheMouseLead) {
  const TImportPatch noProgram("qel.dll", "ShellExecuteW", Execute);
  View->SetFolder(Path());
  ShowForm();
  View->SetFocus();
  int told = 0;
  View->OnFolderChange = [&](vcl::TObject*) { ++told; };
  View->SelectName("inner");
  Key(VK_RETURN);
  EXPECT_EQ(View->Folder(), Path(L"inner"));
  Key(VK_BACK);
  EXPECT_EQ(View->Folder(), Path());
  EXPECT_EQ(SelectedNames(), "inner,") << "where it came from";
  EXPECT_EQ(told, 2);
  View->SetFolder(Path(L"none"));
  EXPECT_EQ(View->Folder(), Path()) << "one that is not there leaves the former one";
  EXPECT_THROW(View->GoTo(Path(L"none")), vcl::EInOutError);
  EXPECT_EQ(Names(), "Äpfel ☃,inner,a.md,big.txt,Zebra.txt,");
  View->SelectName("a.md");
  Key(VK_RETURN);
  EXPECT_EQ(opened, L"a.md");
  std::string offered;
  View->OnOpenFile = [&](vcl::TObject*, const std::string& path, bool& handled) {
    offered = path;
    handled = true;
  };
  opened.clear();
  Key(VK_RETURN);
  EXPECT_EQ(offered, Path() + "a.md");
  EXPECT_EQ(opened, L"");
  Type("z");
  EXPECT_EQ(SelectedNames(), "Zebra.txt,") << "typing the beginning of a name";
  KeyWith(VK_CONTROL, 'A');
  EXPECT_EQ(View->SelCount(), 5);
}

TEST_F(ExplorerView, ATreeAndAViewGoTogether) {
  auto* tree = new TQELExplorerTree(&Form);
  tree->SetBounds(0, 300, 480, 90);
  tree->SetParent(&Form);
  int changes = 0;
  tree->OnChange = [&](vcl::TObject*, vcl::TTreeNode*) { ++changes; };
  ShowForm();
  tree->SetDirectory(Path());
  View->SetTree(tree);
  TView other(&Form);
  other.SetParent(&Form);
  other.SetTree(tree);
  EXPECT_EQ(View->Folder(), Path());
  const int former = changes;
  tree->SetDirectory(Path(L"inner"));
  EXPECT_EQ(View->Folder(), Path(L"inner"));
  EXPECT_EQ(other.Folder(), Path(L"inner")) << "any number of views";
  View->GoTo(Path(L"inner\\deep"));
  EXPECT_EQ(tree->Directory(), Path(L"inner\\deep"));
  EXPECT_EQ(other.Folder(), Path(L"inner\\deep"));
  EXPECT_EQ(changes, former + 2) << "the tree's own events stay the program's";
  delete tree;
  EXPECT_EQ(View->Tree(), nullptr);
  View->GoUp();
  EXPECT_EQ(View->Folder(), Path(L"inner"));
}

TEST_F(ExplorerView, NamesAreEditedAndFoldersMade) {
  View->SetFolder(Path());
  ShowForm();
  View->SetFocus();
  View->SelectName("a.md");
  Key(VK_F2);
  ASSERT_TRUE(View->IsEditing());
  KeyWith(VK_CONTROL, 'A');
  Type("b");
  Key(VK_RETURN);
  EXPECT_TRUE(fs::exists(Root / L"b"));
  EXPECT_FALSE(fs::exists(Root / L"a.md"));
  EXPECT_EQ(SelectedNames(), "b,");
  const auto refused = [&](const char* name) {
    try {
      View->Rename(View->RowOf("b"), name);
    } catch (const vcl::EInOutError& error) {
      return std::string(error.what());
    }
    return std::string();
  };
  EXPECT_EQ(refused("x?"), "'x?' cannot be the name of a file");
  EXPECT_NE(refused("big.txt").find("big.txt"), std::string::npos) << "the name is taken";
  EXPECT_EQ(fs::file_size(Root / L"big.txt"), 5000u);
  View->NewFolder();
  EXPECT_TRUE(View->IsEditing());
  Key(VK_ESCAPE);
  View->NewFolder();
  Key(VK_ESCAPE);
  EXPECT_TRUE(fs::exists(Root / L"New folder (2)"));
  EXPECT_EQ(SelectedNames(), "New folder (2),");
}

TEST_F(ExplorerView, DeletesPastesAndTakesFiles) {
  const TImportPatch bin("qel.dll", "SHFileOperationW", Operate);
  operated.clear();
  View->SetFolder(Path());
  ShowForm();
  View->SetFocus();
  View->SelectName("a.md");
  View->Items()->Items(View->RowOf("big.txt"))->SetSelected(true);
  {
    const testinput::TKeysWhen yes([&] { return ::GetForegroundWindow() != Form.Handle(); },
                                   {VK_RETURN});
    Key(VK_DELETE);
    EXPECT_TRUE(PumpUntil([] { return !operated.empty(); }));
  }
  EXPECT_EQ(operated, L"a.md,big.txt,");
  EXPECT_EQ(operation, UINT{FO_DELETE});
  EXPECT_EQ(Names(), "Äpfel ☃,inner,Zebra.txt,");
  View->SelectName("Zebra.txt");
  KeyWith(VK_CONTROL, 'X');
  View->SetFolder(Path(L"inner"));
  KeyWith(VK_CONTROL, 'V');
  EXPECT_TRUE(fs::exists(Root / L"inner" / L"Zebra.txt"));
  EXPECT_FALSE(fs::exists(Root / L"Zebra.txt"));
  EXPECT_EQ(Names(), "deep,Zebra.txt,");
  Write(L"other.txt", 7);
  // A file from another folder comes over a folder's row.
  auto* target = static_cast<IDropTarget*>(::GetPropW(View->Handle(), L"OleDropTargetInterface"));
  ASSERT_TRUE(target);
  vcl::TDataObject data;
  data.SetFiles({Path() + "other.txt"});
  IDataObject* given = data.Interface();
  const vcl::TRect row = View->Items()->Items(0)->DisplayRect(vcl::drLabel);
  const vcl::TPoint at = View->ClientToScreen({row.Left + 2, row.Top + 2});
  const auto drop = [&](DWORD keys) {
    DWORD effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    target->DragEnter(given, keys, {at.X, at.Y}, &effect);
    const DWORD offered = effect;
    effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    target->Drop(given, keys, {at.X, at.Y}, &effect);
    return offered;
  };
  EXPECT_EQ(drop(MK_LBUTTON | MK_CONTROL), DWORD{DROPEFFECT_COPY});
  EXPECT_TRUE(fs::exists(Root / L"inner" / L"deep" / L"other.txt"));
  EXPECT_TRUE(fs::exists(Root / L"other.txt"));
  fs::remove(Root / L"inner" / L"deep" / L"other.txt");
  EXPECT_EQ(drop(MK_LBUTTON), DWORD{DROPEFFECT_MOVE}) << "on one drive";
  EXPECT_FALSE(fs::exists(Root / L"other.txt"));
  given->Release();
}

TEST_F(ExplorerView, SeesWhatOthersChange) {
  View->SetFolder(Path(L"inner"));
  ShowForm();
  View->SelectName("deep");
  std::ofstream(Root / L"inner" / L"new.txt") << "x";
  EXPECT_TRUE(PumpUntil([&] { return View->RowOf("new.txt") >= 0; }));
  EXPECT_TRUE(View->Items()->Items(View->RowOf("deep"))->Selected());
  fs::remove(Root / L"inner" / L"new.txt");
  EXPECT_TRUE(PumpUntil([&] { return View->RowOf("new.txt") < 0; }));
  View->SetWatchChanges(false);
  fs::remove_all(Root / L"inner");
  View->ReadNew();
  EXPECT_EQ(View->Folder(), Path()) << "the next one above that is there";
}

TEST_F(ExplorerView, FreedInItsOwnEvents) {
  View->SetFolder(Path());
  ShowForm();
  View->OnFolderChange = [&](vcl::TObject*) { delete std::exchange(View, nullptr); };
  View->GoTo(Path(L"inner"));
  EXPECT_EQ(View, nullptr);
  View = new TView(&Form);
  View->SetParent(&Form);
  View->OnAddFile = [&](vcl::TObject*, std::string, bool&) { delete std::exchange(View, nullptr); };
  View->SetFolder(Path());
  EXPECT_EQ(View, nullptr);
}

}  // namespace
