// The explorer tree on real folders.
#include "qel/shell/Qeltexplorertree.h"

#include <filesystem>
#include <iostream>

#include "tests/shell/link.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/standardform.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <shellapi.h>

namespace {

namespace fs = std::filesystem;
using qel::TQELExplorerNode;
using qel::TQELExplorerTree;

class TTree : public TQELExplorerTree {
 public:
  using TQELExplorerTree::RecreateWnd;
  using TQELExplorerTree::TQELExplorerTree;
};

UINT typeOfZ;
UINT WINAPI DriveType(LPCSTR root) { return *root == 'Z' ? typeOfZ : DRIVE_FIXED; }

std::wstring recycled;
int WINAPI Recycle(LPSHFILEOPSTRUCTW operation) {
  recycled = operation->fFlags & FOF_ALLOWUNDO ? operation->pFrom : L"not to the bin";
  fs::remove_all(operation->pFrom);
  return 0;
}

/// Folders named "locked" cannot be read while this is true; and the folders that were looked into.
bool locks = false;
std::string searched;
HANDLE WINAPI FindFirst(LPCWSTR pattern, LPWIN32_FIND_DATAW found) {
  EXPECT_EQ(::GetErrorMode(), UINT{SEM_FAILCRITICALERRORS})
      << "no box for a drive without a medium";
  const fs::path folder = fs::path(pattern).parent_path();
  searched += vcl::ToUtf8(folder.filename().wstring()) + ",";
  if (!locks || folder.filename() != L"locked") return ::FindFirstFileW(pattern, found);
  ::SetLastError(ERROR_ACCESS_DENIED);
  return INVALID_HANDLE_VALUE;
}

/// Where a folder is a Unix system's, each new name is compared with all others there, unless the
/// folder is named in that system's way.
std::wstring Plain(const fs::path& folder) {
  const std::wstring name = UnixName(folder);
  return name.empty() ? folder.wstring() : L"\\\\?\\unix" + name;
}

void MakeMany(const fs::path& folder, int count) {
  const std::wstring start = Plain(folder) + L"\\f";
  for (int i = 0; i < count; ++i) {
    ::CreateDirectoryW((start + std::to_wstring(i)).c_str(), nullptr);
  }
}

void RemoveMany(const fs::path& folder, int count) {
  const std::wstring start = Plain(folder) + L"\\f";
  for (int i = 0; i < count; ++i) ::RemoveDirectoryW((start + std::to_wstring(i)).c_str());
}

/// As a keyboard of any language does.
void TypeCharacter(wchar_t character) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = character;
  for (const DWORD release : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
    input.ki.dwFlags = KEYEVENTF_UNICODE | release;
    ::SendInput(1, &input, sizeof input);
  }
}

class ExplorerTree : public vcl::TStandardForm {
 protected:
  ExplorerTree() {
    wchar_t temp[MAX_PATH];
    ::GetTempPathW(MAX_PATH, temp);
    Root = fs::path(temp) / (L"explorer" + std::to_wstring(::GetCurrentProcessId()));
    Make(L"b");
    Make(L"a/a1/a2");
    Make(L"Äpfel ☃");
    MakeTree();
  }
  ~ExplorerTree() override {
    delete Tree;
    std::error_code ignored;
    fs::remove_all(Root, ignored);
  }

  void MakeTree() {
    Tree = new TTree(&Form);
    Tree->SetBounds(0, 0, 300, 350);
    Tree->SetParent(&Form);
  }
  void Make(const std::wstring& folder) const { fs::create_directories(Root / folder); }
  /// The folder's path as the tree has it.
  std::string Path(const std::wstring& folder = {}) const {
    std::wstring path = (Root / folder).wstring();
    for (wchar_t& each : path) each = each == L'/' ? L'\\' : each;
    return vcl::ToUtf8(path) + (path.ends_with(L'\\') ? "" : "\\");
  }
  TQELExplorerNode* Node(const std::wstring& folder = {}) {
    return Tree->GetNodeFromPath(Path(folder));
  }
  /// The captions of what is below a folder.
  std::string Kids(TQELExplorerNode* node) {
    std::string captions;
    for (int i = 0; i < node->Count(); ++i) captions += node->Item(i)->Text() + ",";
    return captions;
  }
  template <class F>
  std::string Refused(F action) {
    try {
      action();
    } catch (const vcl::EInOutError& error) {
      return error.what();
    }
    return "not refused";
  }

  fs::path Root;
  TTree* Tree = nullptr;
};

TEST_F(ExplorerTree, ShowsTheFoldersOnTheWayToADirectory) {
  ShowForm();
  std::string seen, icons;
  Tree->OnAddDirectory = [&](vcl::TObject*, std::string path, bool& accept) {
    if (path.ends_with("\\b\\")) accept = false;
  };
  Tree->OnChange = [&](vcl::TObject*, vcl::TTreeNode* node) { seen = node->Text(); };
  Tree->OnGetIcon = [&](vcl::TObject*, vcl::TTreeNode* node) { icons += node->Text() + ","; };
  Tree->SetDirectory(" " + Path(L"a/a1") + " ");
  Tree->Repaint();
  EXPECT_NE(icons.find("a1,"), std::string::npos);
  EXPECT_EQ(Tree->Directory(), Path(L"a/a1"));
  EXPECT_EQ(seen, "a1");
  EXPECT_TRUE(Tree->Selected()->IsVisible());
  EXPECT_EQ(Kids(Node()), "a,Äpfel ☃,") << "in order, without what the handler refuses";
  EXPECT_TRUE(Node(L"a/a1")->HasChildren());
  EXPECT_FALSE(Node(L"a/a1/a2")->HasChildren()) << "a look ahead finds none";
  EXPECT_EQ(Refused([&] { Tree->SetDirectory("  "); }), "Invalid Directory Name");
  EXPECT_NE(Refused([&] { Tree->SetDirectory(Path(L"none")); }).find("none"), std::string::npos);
  EXPECT_NE(Refused([&] { Tree->SetDirectory(Path(L"b")); }).find("not shown"), std::string::npos);
  EXPECT_EQ(Tree->Directory(), Path(L"a/a1")) << "what is refused changes nothing";
  Tree->RecreateWnd();
  EXPECT_EQ(Tree->Selected(), Node(L"a/a1"));
}

TEST_F(ExplorerTree, ComesBackFromAFormFile) {
  const auto write = [this] {
    vcl::TMemoryStream file;
    WriteComponentText(file, Tree);
    file.SetPosition(0);
    return file.ReadRest();
  };
  EXPECT_EQ(write().find("Directory"), std::string::npos) << "none was given";
  vcl::TMemoryStream file;
  file.WriteText("object TQELExplorerTree\n  FastLoad = True\n  Directory = '" + Path(L"a/no/no") +
                 "'\nend\n");
  file.SetPosition(0);
  vcl::ReadComponentFile(file, Tree);
  EXPECT_EQ(Tree->Directory(), Path(L"a/no/no")) << "until it is shown";
  ShowForm();
  EXPECT_EQ(Tree->Directory(), Path(L"a"));
  EXPECT_EQ(Tree->Selected(), Node(L"a"));
  file.SetPosition(0);
  vcl::ReadComponentFile(file, Tree);
  EXPECT_EQ(Tree->Directory(), Path(L"a"));
  EXPECT_NE(write().find("  FastLoad = True\n  Directory = '" + Path(L"a") + "'\n"),
            std::string::npos);
}

TEST_F(ExplorerTree, AFolderOfARecycleBinKeepsWhatItHolds) {
  Make(L"Recycled/inside");
  ShowForm();
  TQELExplorerNode* bin = Node(L"Recycled");
  ASSERT_TRUE(bin);
  EXPECT_FALSE(bin->HasChildren());
  EXPECT_EQ(Node(L"Recycled/inside"), nullptr);
}

TEST_F(ExplorerTree, DrivesRememberTheirFolders) {
  ShowForm();
  const auto has = [&](const char* path) { return Tree->GetNodeFromPath(path) != nullptr; };
  ASSERT_TRUE(has("C:\\") && has("Z:\\"));
  Tree->SetDirectory("Z:\\");
  Tree->SetDirectory("C:\\windows\\system32");
  Tree->SetDrive('z');
  EXPECT_EQ(Tree->Directory(), "Z:\\");
  Tree->SetDrive('Z');
  Tree->SetDrive('c');
  EXPECT_TRUE(Tree->Directory().ends_with("system32\\"));
  const char driveOfRoot = Path()[0];
  Make(L"b/gone");
  Tree->SetDirectory(Path(L"b/gone"));
  fs::remove(Root / L"b/gone");
  Tree->SetDrive(driveOfRoot == 'C' ? 'Z' : 'C');
  Tree->SetDrive(driveOfRoot);
  EXPECT_EQ(Tree->Directory(), std::string(1, driveOfRoot) + ":\\");
}

TEST_F(ExplorerTree, DrivesWithoutAMediumAreNotLookedInto) {
  const TImportPatch type("qel.dll", "GetDriveTypeA", &DriveType);
  const TImportPatch search("qel.dll", "FindFirstFileW", &FindFirst);
  searched.clear();
  for (const UINT each : {DRIVE_REMOVABLE, DRIVE_CDROM, DRIVE_REMOTE}) {
    typeOfZ = each;
    EXPECT_TRUE(Tree->GetNodeFromPath("Z:\\")->HasChildren());
    Tree->ReadNew();
  }
  EXPECT_EQ(searched, "");
}

TEST_F(ExplorerTree, RemoteDrivesAreHiddenAndRefusedWithoutNetwork) {
  Tree->SetDirectory("C:\\");
  typeOfZ = DRIVE_REMOTE;
  const TImportPatch remote("qel.dll", "GetDriveTypeA", &DriveType);
  EXPECT_NE(Tree->GetNodeFromPath("Z:\\"), nullptr);
  Tree->SetNetAllow(false);
  EXPECT_EQ(Tree->GetNodeFromPath("Z:\\"), nullptr);
  EXPECT_NE(Refused([&] { Tree->SetDirectory("Z:\\"); }).find("remote"), std::string::npos);
  EXPECT_EQ(Tree->Directory(), "C:\\");
  Tree->SetNetAllow(true);
  Tree->SetDirectory("Z:\\");
  Tree->SetNetAllow(false);
  ASSERT_TRUE(Tree->Selected());
  EXPECT_EQ(static_cast<TQELExplorerNode*>(Tree->Selected())->Folder(), Tree->Directory());
  EXPECT_NE(Tree->Directory()[0], 'Z');
}

TEST_F(ExplorerTree, FoldersThatAreLockedOrVanishAreSkipped) {
  Make(L"a/locked/inside");
  ShowForm();
  Tree->SetFastLoad(true);
  Tree->SetDirectory(Path());
  TQELExplorerNode* a = Node(L"a");
  const UINT errorMode = ::GetErrorMode();
  const TImportPatch search("qel.dll", "FindFirstFileW", &FindFirst);
  locks = true;
  Tree->OnAddDirectory = [&](vcl::TObject*, std::string path, bool&) {
    EXPECT_EQ(vcl::Screen()->Cursor(), vcl::crHourGlass);
    if (path == Path(L"a/locked")) fs::remove_all(Root / L"a/a1");
  };
  a->SetExpanded(true);
  Tree->OnAddDirectory = nullptr;
  testinput::Pump();
  EXPECT_EQ(searched, "a,") << "nothing ahead";
  EXPECT_EQ(::GetErrorMode(), errorMode);
  for (const wchar_t* name : {L"a/locked", L"a/a1"}) {
    if (!Node(name)) continue;  // Whether the system still finds what went while it searched.
    EXPECT_TRUE(Node(name)->HasChildren());
    Node(name)->SetExpanded(true);
    EXPECT_FALSE(Node(name)->Expanded() || Node(name)->HasChildren());
  }
  EXPECT_NE(Refused([&] { Tree->SetDirectory(Path(L"a/a1")); }), "not refused");
  locks = false;
  Tree->ReadNew();
  EXPECT_EQ(Kids(a), "locked,");
  EXPECT_EQ(Kids(Node(L"a/locked")), "inside,");
  Make(L"a/since/then");
  Tree->SetDirectory(Path(L"a/since/then"));
  EXPECT_EQ(Tree->Directory(), Path(L"a/since/then"));
  EXPECT_TRUE(Node(L"b")->HasChildren());
  Tree->SetFastLoad(false);
  EXPECT_FALSE(Node(L"b")->HasChildren());
}

TEST_F(ExplorerTree, MayBeFreedByItsHandlers) {
  const auto free = [&] { delete std::exchange(Tree, nullptr); };
  const std::function<void()> hooks[] = {
      [&] { Tree->OnAddDirectory = [&](vcl::TObject*, std::string, bool&) { free(); }; },
      [&] { Tree->OnChange = [&](vcl::TObject*, vcl::TTreeNode*) { free(); }; },
      [&] { Tree->OnDeleteItem = [&](vcl::TObject*, vcl::TTreeNode*) { free(); }; }};
  ShowForm();
  for (const auto& hook : hooks) {
    Make(L"b/gone");
    Tree->SetDirectory(Path(L"b/gone"));
    fs::remove(Root / L"b/gone");
    Make(L"b/come");
    hook();
    Tree->ReadNew();
    if (Tree) Tree->SetDirectory(Path(L"a/a1"));
    EXPECT_EQ(Tree, nullptr);
    fs::remove(Root / L"b/come");
    MakeTree();
  }
}

TEST_F(ExplorerTree, AHandlerSearchesInPlaceOfTheDisk) {
  ShowForm();
  std::string calls;
  int at = 0;
  Tree->OnFindDirectory = [&](vcl::TObject*, std::string folder, int first,
                              qel::TQELFoundFile& entry, bool& found) {
    if (folder != "C:\\") return;
    static const qel::TQELFoundFile entries[] = {
        {".", FILE_ATTRIBUTE_DIRECTORY}, {"y"}, {"file", FILE_ATTRIBUTE_NORMAL}, {"X"}};
    if (first) at = 0;
    calls += std::to_string(first);
    found = at < 4;
    if (found) entry = entries[at++];
  };
  TQELExplorerNode* drive = Tree->GetNodeFromPath("C:\\");
  EXPECT_TRUE(drive->HasChildren());
  EXPECT_EQ(calls, "10") << "a look ahead ends with the first folder";
  calls.clear();
  drive->SetExpanded(true);
  EXPECT_EQ(calls, "10000");
  EXPECT_EQ(Kids(drive), "X,y,");
  Tree->SetDirectory("c:/y");
  Tree->SetDrive('Z');
  Tree->SetDrive('C');
  EXPECT_EQ(Tree->Directory(), "C:\\y\\") << "remembered, though not on the disk";
}

TEST_F(ExplorerTree, ExpandingAllStopsWhereALinkLeadsBack) {
  const TLink back(Root / L"a/a1/back", Root / L"a");
  const TLink other(Root / L"a/other", Root / L"b");
  const TLink backAgain(Root / L"b/back", Root / L"a");
  ShowForm();
  Tree->OnAddDirectory = [this](vcl::TObject*, std::string path, bool& accept) {
    // All expanded, but not the whole disk, and not for ever.
    accept =
        (path.starts_with(Path()) || Path().starts_with(path)) && path.size() < Path().size() + 50;
  };
  const std::function<void()> actions[] = {[this] { Tree->FullExpand(); },
                                           [this] { Node(L"a")->Expand(true); }};
  for (const auto& action : actions) {
    Tree->FullCollapse();
    action();
    for (const wchar_t* whole : {L"a", L"a/a1", L"a/other"}) EXPECT_TRUE(Node(whole)->Expanded());
    EXPECT_FALSE(Node(L"a/a1/back")->Expanded());
    EXPECT_FALSE(Node(L"a/other/back")->Expanded());
  }
  Node(L"a/a1/back")->Expand(false);
  EXPECT_TRUE(Node(L"a/a1/back")->Expanded()) << "one by one, there is no end";
}

TEST_F(ExplorerTree, ExpandingAllComesToAnEndWhereFoldersHaveNone) {
  std::size_t longest = 0;
  Tree->OnFindDirectory = [&](vcl::TObject*, std::string folder, int first,
                              qel::TQELFoundFile& entry, bool& found) {
    longest = std::max(longest, folder.size());
    found = first && folder.starts_with("C:\\") && folder.size() < 1000;
    entry.Name = "d";
  };
  Tree->GetNodeFromPath("C:\\")->Expand(true);
  EXPECT_GT(longest, 200u);
  EXPECT_LT(longest, 300u);
}

TEST_F(ExplorerTree, ReadingAnewKeepsWhatIsExpandedAndSelected) {
  ShowForm();
  Tree->SetDirectory(Path(L"a/a1"));
  Node(L"a/a1")->SetExpanded(true);
  Make(L"a/a0");
  fs::remove(Root / L"b");
  vcl::TTreeNode* selected = Tree->Selected();
  Key(VK_F5);
  EXPECT_EQ(Tree->Selected(), selected);
  EXPECT_TRUE(Node(L"a/a1")->Expanded());
  EXPECT_EQ(Kids(Node()), "a,Äpfel ☃,");
  EXPECT_EQ(Kids(Node(L"a")), "a0,a1,");
  fs::remove_all(Root / L"a/a1");
  Tree->ReadNew();
  EXPECT_EQ(Tree->Directory(), Path(L"a")) << "the one above the folder that is gone";
}

TEST_F(ExplorerTree, FoldersAreMadeRenamedAndDeleted) {
  ShowForm();
  Tree->SetDirectory(Path());
  TQELExplorerNode* made = Tree->AddPath("c/d");
  ASSERT_TRUE(made);
  EXPECT_EQ(made->Folder(), Path(L"c/d"));
  EXPECT_TRUE(fs::exists(Root / L"c/d"));
  EXPECT_TRUE(made->IsVisible());
  TQELExplorerNode* a = Node(L"a");
  a->Expand(false);
  TQELExplorerNode* inner = Node(L"a/a1");
  Tree->SetSelected(a);
  const auto rename = [this](const wchar_t* name, WORD end) {
    Key(VK_F2);
    ASSERT_TRUE(testinput::PumpUntil([&] { return Tree->IsEditing(); }));
    for (; *name; ++name) TypeCharacter(*name);
    Key(end);
    EXPECT_TRUE(testinput::PumpUntil([&] { return !Tree->IsEditing(); }));
  };
  rename(L"no", VK_ESCAPE);
  rename(L"a?", VK_RETURN);
  EXPECT_EQ(std::exchange(Errors, ""), "'a?' cannot be the name of a folder");
  EXPECT_EQ(a->Text(), "a");
  rename(L"zÄ☃. ", VK_RETURN);
  EXPECT_TRUE(testinput::PumpUntil([&] { return fs::exists(Root / L"zÄ☃/a1/a2"); }));
  EXPECT_EQ(inner->Folder(), Path(L"zÄ☃/a1")) << "what is below has moved with it";
  EXPECT_EQ(Node()->GetLastChild(), a) << "and stands in its place";
  EXPECT_EQ(Tree->Directory(), Path(L"zÄ☃"));
  for (const char* name : {"", "..", "x/y", "b"}) {
    EXPECT_NE(Refused([&] { Tree->RenamePath(a, name); }), "not refused") << name;
  }
  EXPECT_EQ(a->Text(), "zÄ☃");
  const TImportPatch shell("qel.dll", "SHFileOperationW", &Recycle);
  EXPECT_FALSE(Tree->GetNodeFromPath("C:\\")->EditText());
  Tree->SetReadOnly(true);
  Key(VK_F2);
  Key(VK_DELETE);
  EXPECT_FALSE(Tree->IsEditing());
  Tree->SetReadOnly(false);
  const auto deleteAndAnswer = [this](WORD answer) {
    std::thread user([answer] {
      ::Sleep(300);
      testinput::SendKey(answer, true), testinput::SendKey(answer, false);
    });
    Key(VK_DELETE);
    user.join();
    testinput::Pump();
  };
  deleteAndAnswer(VK_ESCAPE);
  EXPECT_EQ(recycled, L"");
  deleteAndAnswer(VK_RETURN);
  EXPECT_EQ(vcl::ToUtf8(recycled) + "\\", Path(L"zÄ☃"));
  EXPECT_EQ(Tree->Directory(), Path());
  EXPECT_EQ(Kids(Node()), "Äpfel ☃,b,c,");
  EXPECT_NE(Refused([&] { Tree->DeletePath(Tree->GetNodeFromPath("C:\\")); }), "not refused");
}

TEST_F(ExplorerTree, AFolderIsChangedWhereverItIsShown) {
  ShowForm();
  auto* desktop = static_cast<TQELExplorerNode*>(Tree->Items()->GetFirstNode());
  auto* below = Tree->GetNodeFromPath(desktop->Folder());
  ASSERT_NE(below, desktop) << "below its drive, too";
  Tree->SetSelected(desktop);
  Tree->AddPath("zz explorer")->SetSelected(true);
  auto* added = static_cast<TQELExplorerNode*>(Tree->Selected());
  EXPECT_EQ(added->Parent(), desktop);
  Tree->AddPath("../aa explorer");
  Tree->RenamePath(added, "Aa explorer 2");
  EXPECT_EQ(added->Parent(), desktop);
  EXPECT_EQ(Kids(below), Kids(desktop));
  EXPECT_NE(Kids(below).find("aa explorer,Aa explorer 2,"), std::string::npos);
  for (const char* name : {"Aa explorer 2", "aa explorer"}) {
    fs::remove(vcl::ToUtf16(desktop->Folder() + name));
  }
}

TEST_F(ExplorerTree, TenThousandFoldersOpenAtOnce) {
  constexpr int many = 10000;
  MakeMany(Root / L"b", many);
  ShowForm();
  Tree->SetDirectory(Path(L"b"));
  testinput::Pump();
  const ULONGLONG start = ::GetTickCount64();
  Tree->Selected()->SetExpanded(true);
  Tree->Repaint();
  const ULONGLONG opened = ::GetTickCount64();
  std::cout << many << " folders: " << opened - start << " ms" << std::endl;
  EXPECT_EQ(Tree->Selected()->Count(), many);
  EXPECT_EQ(Tree->Selected()->Item(2)->Text(), "f10");
  EXPECT_LT(opened - start, 5000u);
  RemoveMany(Root / L"b", many);
  Tree->Selected()->Item(5)->SetExpanded(true);
  EXPECT_FALSE(Tree->Selected()->Item(5)->HasChildren()) << "gone meanwhile";
  const ULONGLONG again = ::GetTickCount64();
  Tree->ReadNew();
  std::cout << "reading anew: " << ::GetTickCount64() - again << " ms" << std::endl;
  EXPECT_EQ(Tree->Selected()->Count(), 0);
}

}  // namespace
