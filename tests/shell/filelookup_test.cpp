// TQELFileLookup on a real folder: its list, names that are not there, and the dialog.
#include "qel/shell/Qeltfilelookup.h"

#include <fstream>

#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/popuplines.h"
// It needs what stands above.
#include <commdlg.h>

namespace qel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testinput::PumpUntil;
using TLines = std::vector<std::string>;

/// What the dialog was given, and what its user does.
OPENFILENAMEW given;
std::string givenFolder, givenFile, givenTitle;
std::string chosen;
std::function<void()> meanwhile;
BOOL WINAPI Choose(OPENFILENAMEW* data) {
  given = *data;
  givenFolder = data->lpstrInitialDir ? vcl::ToUtf8(data->lpstrInitialDir) : "";
  givenTitle = data->lpstrTitle ? vcl::ToUtf8(data->lpstrTitle) : "";
  givenFile = vcl::ToUtf8(data->lpstrFile);
  if (meanwhile) meanwhile();
  std::wcscpy(data->lpstrFile, vcl::ToUtf16(chosen).c_str());
  data->nFilterIndex = 2;
  return !chosen.empty();
}

class FileLookup : public vcl::TStandardForm {
 protected:
  FileLookup() : Edit(Make<TQELFileLookup>(10, 10)), Other(Make<vcl::TEdit>(10, 300)) {
    fs::create_directories(Folder.Path / "Inner" / "deep");
    fs::create_directories(Folder.Path / L"äpfel");
    for (const char* name : {"b.txt", "a.md", "Inner.txt", "hidden.txt"})
      std::ofstream(Folder.Path / name) << name;
    ::SetFileAttributesW((Folder.Path / "hidden.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
    Root = Folder.Path.string() + "\\";
    Edit->SetWidth(300);
    Edit->OnSelect = [this](vcl::TObject*) { ++Selected; };
    chosen.clear();
    meanwhile = nullptr;
    ShowForm();
    Edit->SetFocus();
  }
  ~FileLookup() override { testinput::MoveMouse({0, 0}); }
  /// What the open list shows, without the folder before it.
  TLines List() const {
    TLines lines;
    for (int i = 0; Edit->DroppedDown() && i < Edit->Items()->Count(); ++i) {
      const std::string item = Edit->Items()->Strings(i);
      lines.push_back(item.starts_with(Root) ? item.substr(Root.size()) : item);
    }
    return lines;
  }
  bool Shows(const TLines& lines) {
    return PumpUntil([&] { return List() == lines; }, 2000);
  }
  void Begin(const std::string& text) {
    Edit->SetText(text);
    Edit->SetSelStart(1000);
  }
  testing_support::TFolder Folder;
  std::string Root;
  TQELFileLookup* Edit;
  vcl::TEdit* Other;
  int Selected = 0;
};

TEST_F(FileLookup, CompletesFoldersAndFiles) {
  Begin(Root);
  Type("i");
  EXPECT_TRUE(Shows({"Inner\\", "Inner.txt"}));
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_TRUE(PumpUntil([this] { return Selected == 1; }));
  EXPECT_EQ(Edit->Text(), Root + "Inner\\");
  Type("d");
  EXPECT_EQ(Edit->Text(), Root + "Inner\\d") << "it goes on behind the folder";
  EXPECT_TRUE(Shows({"Inner\\deep\\"}));
  Key(VK_ESCAPE);
  Begin(Root);
  Key(VK_DOWN);
  EXPECT_TRUE(Shows({"äpfel\\", "Inner\\", "a.md", "b.txt", "Inner.txt"}));
  Key(VK_ESCAPE);
  Edit->SetMatchContains(true);
  Edit->SetFilter("Texts|*.txt;*.log|All|*.*");
  Type("n");
  EXPECT_TRUE(Shows({"Inner\\", "Inner.txt"}));
  Key(VK_BACK);
  EXPECT_TRUE(Shows({"äpfel\\", "Inner\\", "b.txt", "Inner.txt"}));
  Edit->SetFilterIndex(2);
  Type(".");
  EXPECT_TRUE(Shows({"a.md", "b.txt", "Inner.txt"}));
}

TEST_F(FileLookup, KnowsDrivesTheCurrentFolderAndWhatIsNone) {
  Begin("");
  Type("c:");
  EXPECT_TRUE(Shows({"C:\\"})) << testing::PrintToString(List());
  const fs::path former = fs::current_path();
  fs::current_path(Folder.Path);
  Begin("inner");
  Type(".");
  EXPECT_TRUE(Shows({"Inner.txt"}));
  Begin("Inner/");
  Type("d");
  EXPECT_TRUE(Shows({"Inner/deep\\"}));
  fs::current_path(former);
  for (const char* text : {"\\\\", "\\\\server\\", "C:\\no such folder\\", "C:\\<>|\\", "\\"}) {
    Begin(text);
    Type("a");
    EXPECT_THAT(List(), IsEmpty()) << text;
  }
  Edit->OnLookup = [](vcl::TObject*, const std::string&, vcl::TStrings* items) {
    items->SetText("one\r\ntwo\r\n");
  };
  Begin(Root);
  Type("x");
  EXPECT_TRUE(Shows({"one", "two"})) << "the handler's own";
}

TEST_F(FileLookup, TakesBackWhatIsNotThere) {
  const auto leave = [this](const std::string& text) {
    Begin(text);
    Other->SetFocus();
    const std::string left = Edit->Text();
    Edit->SetFocus();
    return left;
  };
  EXPECT_EQ(leave(Root + "none"), Root + "none");
  Edit->SetMustExist(true);
  EXPECT_EQ(leave(Root + "b.txt"), Root + "b.txt");
  EXPECT_EQ(leave(Root + "none"), Root + "b.txt");
  EXPECT_EQ(leave(Root + "Inner"), Root + "Inner");
  EXPECT_EQ(leave(""), "");
  Edit->SetMustExist(false);
  Edit->SetLimitToList(true);
  EXPECT_EQ(leave(Root + "none"), Root + "Inner");
}

TEST_F(FileLookup, TheDialogChooses) {
  const TImportPatch patch("qelhost.dll", "GetOpenFileNameW", &Choose);
  const auto pressButton = [this] {
    testinput::Click(Edit->ClientToScreen({Edit->ClientWidth() - 5, 5}));
  };
  Edit->SetDialogTitle("Which one?");
  Edit->SetFilter("Texts|*.txt|All|*.*");
  Edit->SetMustExist(true);
  Edit->SetText(Root + "b.txt");
  chosen = Root + "a.md";
  pressButton();
  EXPECT_TRUE(PumpUntil([this] { return Selected == 1; }));
  EXPECT_EQ(Edit->Text(), Root + "a.md");
  EXPECT_EQ(Edit->SelLength(), static_cast<int>(Root.size()) + 4);
  EXPECT_EQ(givenTitle, "Which one?");
  EXPECT_EQ(givenFile, Root + "b.txt");
  EXPECT_TRUE(given.Flags & OFN_FILEMUSTEXIST);
  EXPECT_EQ(Edit->FilterIndex(), 2);
  chosen.clear();
  Edit->SetText(Root + "Inner\\");
  Edit->SetMustExist(false);
  testinput::TypeKey(VK_F4, {VK_SHIFT});
  EXPECT_EQ(Edit->Text(), Root + "Inner\\");
  EXPECT_EQ(givenFolder + givenFile, Root + "Inner\\");
  EXPECT_FALSE(given.Flags & OFN_FILEMUSTEXIST);
  EXPECT_EQ(Selected, 1);
  chosen = Root + "a.md";
  Edit->SetReadOnly(true);
  testinput::TypeKey(VK_F4, {VK_SHIFT});
  pressButton();
  EXPECT_EQ(Selected, 1);
  Edit->SetReadOnly(false);
  meanwhile = [this] { delete std::exchange(Edit, nullptr); };
  pressButton();
  EXPECT_TRUE(PumpUntil([this] { return !Edit; }));
}

}  // namespace
}  // namespace qel
