// TQELFolderBrowser: what it asks of the system, and the system's dialog for real.
#include <gmock/gmock.h>

#include <filesystem>
#include <memory>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

// Behind win32.h, on which it stands.
#include <shlobj.h>

namespace qel {
namespace {

struct TAsked {
  UINT Flags = 0;
  std::wstring Title;
  bool HasRoot = false;
  std::function<void(const BROWSEINFOW&)> Meanwhile;
};
TAsked Asked;

LPITEMIDLIST WINAPI Browse(BROWSEINFOW* info) {
  Asked.Flags = info->ulFlags;
  Asked.Title = info->lpszTitle;
  Asked.HasRoot = info->pidlRoot != nullptr;
  if (Asked.Meanwhile) Asked.Meanwhile(*info);
  return nullptr;
}

class FolderBrowser : public testing::Test {
 protected:
  FolderBrowser() : Browser(new TQELFolderBrowser(nullptr)) { Asked = {}; }
  ~FolderBrowser() override { Asked = {}; }
  testing_support::TFolder Folder;
  std::unique_ptr<TQELFolderBrowser> Browser;
};

TEST_F(FolderBrowser, AsksTheSystemForWhatIsSet) {
  const TImportPatch patch("qel.dll", "SHBrowseForFolderW", &Browse);
  Browser->SetTitle("Where?");
  Browser->SetFolder("C:\\");
  EXPECT_FALSE(Browser->Execute());
  EXPECT_EQ(Asked.Title, L"Where?");
  EXPECT_FALSE(Asked.HasRoot);
  EXPECT_EQ(
      Asked.Flags & (BIF_NEWDIALOGSTYLE | BIF_EDITBOX | BIF_BROWSEINCLUDEFILES | BIF_VALIDATE), 0u);
  EXPECT_EQ(Browser->Folder(), "C:\\") << "cancelled";
  EXPECT_EQ(Browser->LastError(), "");
  Browser->SetOptions({fbNewFolder, fbFiles, fbValidate});
  Browser->SetRoot(Folder.Path.string());
  Browser->Execute();
  EXPECT_TRUE(Asked.HasRoot);
  EXPECT_EQ(
      Asked.Flags & (BIF_NEWDIALOGSTYLE | BIF_EDITBOX | BIF_BROWSEINCLUDEFILES | BIF_VALIDATE),
      UINT{BIF_NEWDIALOGSTYLE | BIF_EDITBOX | BIF_BROWSEINCLUDEFILES | BIF_VALIDATE});
  Asked.Title.clear();
  Browser->SetRoot("C:\\there is no such folder");
  EXPECT_FALSE(Browser->Execute());
  EXPECT_EQ(Asked.Title, L"") << "nothing is shown";
  EXPECT_EQ(Browser->LastError(), "The folder \"C:\\there is no such folder\" is not there");
}

TEST_F(FolderBrowser, MayBeFreedByWhatIsSelected) {
  const TImportPatch patch("qel.dll", "SHBrowseForFolderW", &Browse);
  int errors = 0;
  vcl::Application()->OnException = [&](auto*, const std::exception&) { ++errors; };
  Asked.Meanwhile = [](const BROWSEINFOW& info) {
    info.lpfn(nullptr, BFFM_SELCHANGED, 0, info.lParam);
  };
  Browser->OnSelection = [](vcl::TObject*, const std::string&, bool&, std::string&) {
    throw vcl::Exception("No");
  };
  EXPECT_FALSE(Browser->Execute());
  EXPECT_EQ(errors, 1) << "is not thrown through the system";
  vcl::Application()->OnException.Clear();
  Browser->OnSelection = [this](vcl::TObject*, const std::string&, bool&, std::string&) {
    Browser.reset();
  };
  EXPECT_FALSE(Browser.get()->Execute());
  EXPECT_EQ(Browser, nullptr);
}

/// Puts a dialog of the system's where the parameter points.
BOOL CALLBACK FindDialog(HWND window, LPARAM found) {
  wchar_t name[20] = L"";
  ::GetClassNameW(window, name, 20);
  if (std::wstring(name) != L"#32770") return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

TEST_F(FolderBrowser, TheDialogIsTheSystems) {
  const std::string chosen = (Folder.Path / "chosen").string();
  std::filesystem::create_directory(chosen);
  Browser->SetRoot(Folder.Path.string());
  Browser->SetFolder(chosen);
  Browser->SetTitle("Where to?");
  std::string selected;
  Browser->OnSelection = [&](vcl::TObject*, const std::string& folder, bool& ok, std::string&) {
    selected = folder;
    ok = folder == chosen;
  };
  HWND dialog = nullptr;
  vcl::TTimer presser(nullptr);
  presser.SetInterval(50);
  presser.OnTimer = [&](vcl::TObject*) {
    if (dialog || selected != chosen) return;
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindDialog, reinterpret_cast<LPARAM>(&dialog));
    ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  };
  EXPECT_TRUE(Browser->Execute());
  EXPECT_NE(dialog, nullptr);
  EXPECT_EQ(Browser->Folder(), chosen);
}

}  // namespace
}  // namespace qel
