// TQELDriveCombo, TQELFolderListbox and TQELFileCombo, one leading the next, on real folders.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"

namespace qel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

DWORD present;
DWORD WINAPI DrivesPresent() { return present; }
UINT WINAPI Removable(LPCSTR) { return DRIVE_REMOVABLE; }

class FileLists : public vcl::TStandardForm {
 protected:
  FileLists() {
    for (const wchar_t* folder : {L"inner/deep", L"Änder", L"b"})
      std::filesystem::create_directories(Temp.Path / folder);
    for (const char* file : {"b.txt", "A.txt", "c.doc", "inner/only.txt"})
      std::ofstream(Temp.Path / file) << "x";
    Drives->SetBounds(10, 10, 200, 30);
    Folders->SetBounds(10, 50, 200, 200);
    Files->SetBounds(10, 260, 200, 30);
    Drives->SetFolderList(Folders);
    Folders->SetFileList(Files);
    Folders->SetFolder(Path());
    ShowForm();
  }
  /// The folders can be removed when nobody watches them.
  ~FileLists() override {
    delete Drives;
    delete Folders;
    delete Files;
  }
  std::string Path(const std::string& inner = {}) const {
    return (Temp.Path / inner).make_preferred().string();
  }
  static std::vector<std::string> Lines(const vcl::TCustomListControl& list) {
    std::vector<std::string> lines;
    for (int i = 0; i < list.Items()->Count(); ++i) lines.push_back(list.Items()->Strings(i));
    return lines;
  }
  /// What is below the folder that is shown.
  std::vector<std::string> Inner() const {
    std::vector<std::string> lines = Lines(*Folders);
    const auto depth = std::ranges::count(Folders->Folder(), '\\');
    lines.erase(lines.begin(), lines.begin() + depth);
    return lines;
  }
  void Choose(const std::string& folder) {
    Folders->SetItemIndex(Folders->Items()->IndexOf(folder));
    Folders->SetFocus();
  }
  static BOOL CALLBACK Tell(HWND window, LPARAM what) {
    ::SendMessageW(window, WM_DEVICECHANGE, static_cast<WPARAM>(what), 0);
    return TRUE;
  }
  static void TellOfDevices(LPARAM what) {
    ::EnumThreadWindows(::GetCurrentThreadId(), &Tell, what);
  }

  testing_support::TFolder Temp;
  vcl::TRecreatable<TQELDriveCombo>* Drives = Make<TQELDriveCombo>(0, 0);
  vcl::TRecreatable<TQELFolderListbox>* Folders = Make<TQELFolderListbox>(0, 0);
  vcl::TRecreatable<TQELFileCombo>* Files = Make<TQELFileCombo>(0, 0);
};

TEST_F(FileLists, ShowFoldersAndFilesByTheAlphabet) {
  EXPECT_THAT(Inner(), ElementsAre("Änder", "b", "inner"));
  EXPECT_EQ(Folders->Selected(), Path()) << "the folder itself, above those in it";
  EXPECT_THAT(Lines(*Files), ElementsAre("A.txt", "b.txt", "c.doc"));
  Files->SetMask("*.doc;b*");
  EXPECT_THAT(Lines(*Files), ElementsAre("b.txt", "c.doc"));
  EXPECT_EQ(Files->Filename(), "");
  Files->SetFilename(Path("inner\\only.txt"));
  EXPECT_EQ(Files->Folder(), Path("inner") + "\\");
  EXPECT_THAT(Lines(*Files), IsEmpty());
  Files->SetMask("");
  Files->SetFilename("only.txt");
  EXPECT_EQ(Files->Filename(), Path("inner\\only.txt"));
  Files->SetFolder("Q:\\none");
  EXPECT_THAT(Lines(*Files), IsEmpty());
}

TEST_F(FileLists, GoDownAndUp) {
  int changes = 0;
  Folders->OnFolderChange = [&](vcl::TObject*) { ++changes; };
  Choose("inner");
  EXPECT_EQ(Files->Folder(), Path()) << "only selected yet";
  Key(VK_RETURN);
  EXPECT_EQ(Folders->Folder(), Path("inner") + "\\");
  EXPECT_THAT(Inner(), ElementsAre("deep"));
  EXPECT_THAT(Lines(*Files), ElementsAre("only.txt"));
  Key(VK_BACK);
  EXPECT_EQ(Folders->Folder(), Path());
  EXPECT_EQ(Folders->Selected(), Path("inner") + "\\") << "where it came from";
  EXPECT_EQ(changes, 2);
  const vcl::TRect line = Folders->ItemRect(Folders->Items()->IndexOf("b"));
  Click(*Folders, 60, line.Top + 5);
  testinput::LeftDown();
  testinput::LeftUp();
  EXPECT_TRUE(testinput::PumpUntil([&] { return Folders->Folder() == Path("b") + "\\"; }));
  Folders->SetFolder("Q:\\none");
  EXPECT_EQ(Folders->Folder(), Path("b") + "\\") << "refused";
  Folders->SetFolder("C:");
  EXPECT_FALSE(Folders->GoUp());
  Folders->SetFolder("");
  EXPECT_THAT(Lines(*Folders), IsEmpty());
  EXPECT_THAT(Lines(*Files), IsEmpty());
}

TEST_F(FileLists, SeeWhatChangesOnTheDisk) {
  std::filesystem::create_directories(Temp.Path / "new");
  std::ofstream(Temp.Path / "new.txt") << "x";
  EXPECT_TRUE(testinput::PumpUntil([&] {
    return Folders->Items()->IndexOf("new") >= 0 && Files->Items()->IndexOf("new.txt") >= 0;
  }));
}

TEST_F(FileLists, GoUpFromWhatIsGone) {
  // Of a drive that can be taken out nothing is held open.
  const TImportPatch patch("qel.dll", "GetDriveTypeA", &Removable);
  Folders->SetFolder(Path("inner\\deep"));
  std::filesystem::remove_all(Temp.Path / "inner");
  Folders->Refresh();
  EXPECT_EQ(Folders->Folder(), Path()) << "the next one above that is there";
  EXPECT_EQ(Files->Folder(), Path());
}

TEST_F(FileLists, TheDriveLeads) {
  const int lines = Drives->Items()->Count();
  ASSERT_GT(lines, 0);
  Drives->SetDrive("c");
  EXPECT_EQ(Drives->Drive(), "C:\\");
  EXPECT_EQ(Folders->Folder(), Path()) << "on it already";
  Drives->SetDrive("no drive");
  EXPECT_EQ(Drives->Drive(), "C:\\");
  present = 1u << 2 | 1u << 16;
  const TImportPatch patch("qel.dll", "GetLogicalDrives", &DrivesPresent);
  TellOfDevices(0x8000);
  EXPECT_EQ(Drives->Items()->Count(), 2);
  EXPECT_EQ(Drives->ItemIndex(), 0);
  Drives->SetFocus();
  Key(VK_DOWN);
  EXPECT_EQ(Drives->Drive(), "C:\\") << "Q: has nothing that can be read";
  EXPECT_EQ(Drives->ItemIndex(), 0);
  Drives->SetDrive("Q:\\some\\folder");
  EXPECT_EQ(Drives->ItemIndex(), 1);
  present = 1u << 2;
  TellOfDevices(0x8004);
  EXPECT_EQ(Drives->Items()->Count(), 1);
  EXPECT_EQ(Drives->Drive(), "Q:\\") << "kept until it comes";
  EXPECT_EQ(Drives->ItemIndex(), -1);
}

TEST_F(FileLists, LinksEndWithWhatTheyLeadTo) {
  delete std::exchange(Files, nullptr);
  EXPECT_EQ(Folders->FileList(), nullptr);
  Folders->OnFolderChange = [this](vcl::TObject*) { delete std::exchange(Folders, nullptr); };
  Choose("b");
  Key(VK_RETURN);
  EXPECT_EQ(Folders, nullptr) << "freed in its event";
  EXPECT_EQ(Drives->FolderList(), nullptr);
  Folders = Make<TQELFolderListbox>(10, 50);
  Folders->OnFolderChange = [this](vcl::TObject*) { delete std::exchange(Drives, nullptr); };
  Drives->SetFolderList(Folders);
  Drives->SetDrive("C:");
  EXPECT_EQ(Drives, nullptr);
  EXPECT_EQ(Folders->Folder(), "C:\\");
}

TEST_F(FileLists, AreReadWithTheirForm) {
  vcl::TForm form(nullptr);
  vcl::RegisterClasses(
      {&TQELDriveCombo::Class(), &TQELFolderListbox::Class(), &TQELFileCombo::Class()});
  vcl::TStringStream file(
      "object Form1: TForm\n object Drives: TQELDriveCombo\n Drive = 'C:\\'\n FolderList = List\n "
      "end\n object List: TQELFolderListbox\n Folder = '" +
      Path() +
      "'\n FileList = Files\n end\n object Files: TQELFileCombo\n Mask = '*.doc'\n end\nend\n");
  vcl::ReadComponentFile(file, &form);
  const auto* files = dynamic_cast<TQELFileCombo*>(form.FindComponent("Files"));
  ASSERT_TRUE(files);
  EXPECT_THAT(Lines(*files), ElementsAre("c.doc"));
}

}  // namespace
}  // namespace qel
