// What becomes of the user's work when the program is killed, and when files can't be written or
// are written by others.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"
#include "tests/support/importpatch.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* FormText =
    "object Kept: TKept\n  Left = 40\n  Top = 30\n  Caption = 'Kept form'\n  ClientHeight = 200\n"
    "  ClientWidth = 300\n  object Button1: TButton\n    Left = 16\n    Top = 16\n    Width = 80\n"
    "    Height = 24\n    Caption = 'Button1'\n    TabOrder = 0\n  end\nend\n";

class KilledDesigner : public UnstartedDesigner {
 protected:
  struct TWanted {
    DWORD Process;
    std::wstring Text;
    HWND Found = nullptr;
  };
  static BOOL CALLBACK TakeWanted(HWND window, LPARAM parameter) {
    auto& wanted = *reinterpret_cast<TWanted*>(parameter);
    wchar_t caption[64] = L"";
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    ::InternalGetWindowText(window, caption, 64);
    if (process == wanted.Process && wanted.Text == caption) wanted.Found = window;
    return wanted.Found == nullptr;
  }
  /// The window of the other process that has the text.
  static HWND Find(DWORD process, const wchar_t* text) {
    TWanted wanted{process, text};
    ::EnumChildWindows(::GetDesktopWindow(), &TakeWanted, reinterpret_cast<LPARAM>(&wanted));
    return wanted.Found;
  }
  bool FileHas(const char* name, const char* text) {
    return Read(name).find(text) != std::string::npos;
  }
};

TEST_F(KilledDesigner, OffersTheFormsThatItHadOpen) {
  Write("kept.dfm", FormText);
  Write("designer.ini", "[Designer]\nAutosaveSeconds=1\n");
  {
    const testing_support::TProgram program(
        L"designer",
        ToUtf16("--settings \"" + File("designer.ini") + "\" \"" + File("kept.dfm") + "\""));
    HWND form = nullptr;
    ASSERT_TRUE(PumpUntil(
        [&] { return (form = Find(program.ProcessId(), L"Kept form")) && ::IsWindowVisible(form); },
        20000));
    PumpFor(500);
    RECT place{};
    ::GetWindowRect(form, &place);
    Click({static_cast<int>(place.right) - 30, static_cast<int>(place.bottom) - 30});
    TypeKey(VK_TAB);
    TypeKey(VK_RIGHT, {VK_CONTROL});
    TypeKey('C', {VK_CONTROL});
    TypeKey('N', {VK_CONTROL});
    TypeKey('V', {VK_CONTROL});
    EXPECT_TRUE(PumpUntil([&] { return FileHas("designer.ini", "\n2="); }, 20000))
        << Read("designer.ini");
    program.End();
    EXPECT_EQ(program.ExitCode(), 99u);
  }
  EXPECT_EQ(Read("kept.dfm"), FormText);
  {
    TBoxAnswer yes(IDYES, 2);
    Start();
    yes.Wait();
    EXPECT_THAT(yes.Texts(), ElementsAre(HasSubstr("kept.dfm"), HasSubstr("Unsaved")));
  }
  EXPECT_TRUE(FileHas("designer.ini", "\n2=")) << "for the case that this one is killed at once";
  EXPECT_THAT(Tabs(), ElementsAre("kept.dfm *", "Form1 *"));
  EXPECT_EQ(UnstartedDesigner::Find("Button1")->Left(), 17);
  EXPECT_EQ(Document().FileName(), "");
  TypeKey(VK_F6, {VK_CONTROL});
  EXPECT_THAT(Document().Text(), HasSubstr("Left = 17"));
  TypeKey('S', {VK_CONTROL});
  EXPECT_EQ(Read("kept.dfm"), Document().Text());
  EXPECT_FALSE(TFormDocument::HasAutosave(File("kept.dfm")));
  // What is running is none of the lost.
  EXPECT_THAT(TRecovery(TSettings(File("designer.ini"))).TakeLost(), ElementsAre());
}

TEST_F(UnstartedDesigner, KeepsACopyAlsoWhenItRunsForTheFirstTime) {
  Start("not there\\yet\\designer.ini");
  Place("TLabel", At(160, 40), At(160, 40));
  It().Try([&] { Document().Autosave(); });
  EXPECT_THAT(Messages(), ElementsAre());
  EXPECT_TRUE(TFormDocument::HasAutosave(Document().Copied())) << Document().Copied();
}

BOOL WINAPI WriteToFullDisk(HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED) {
  *written = 0;
  ::SetLastError(ERROR_DISK_FULL);
  return FALSE;
}

std::string ClassOf(HWND window) {
  char name[16] = "";
  ::GetClassNameA(window, name, sizeof name);
  return name;
}

class Files : public Designer {
 protected:
  Files() {
    Write("kept.dfm", FormText);
    Window->Open(File("kept.dfm"));
    Place("TLabel", At(160, 40), At(160, 40));
  }
};

TEST_F(Files, ThatCannotBeWrittenLeaveFormAndFileAsTheyAre) {
  const auto refused = [&](const char* what) {
    Window->MessageList().Items()->Clear();
    TBoxAnswer box(IDOK);
    TypeKey('S', {VK_CONTROL});
    EXPECT_TRUE(box.Wait()) << what;
    EXPECT_THAT(box.Text(), HasSubstr("kept.dfm cannot be saved")) << what;
    EXPECT_THAT(Messages(), ElementsAre(HasSubstr("kept.dfm cannot be saved"))) << what;
    EXPECT_EQ(Read("kept.dfm"), FormText) << what;
    EXPECT_TRUE(Document().Modified()) << what;
  };
  const std::wstring name = ToUtf16(File("kept.dfm"));
  ::SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_READONLY);
  refused("read-only");
  ::SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
  {
    const TImportPatch patch("qelhost.dll", "WriteFile", &WriteToFullDisk);
    refused("the disk is full");
    // The same of copies is told once.
    Document().SetCopyName("");
    for (int i = 0; i < 2; ++i) It().Try([&] { Document().Autosave(); });
    EXPECT_EQ(Messages().size(), 2u);
    // Ending asks, and goes on when the changes can't be saved.
    TBoxAnswer yes(IDYES, 2);
    EXPECT_FALSE(Window->CloseQuery());
    yes.Wait();
    EXPECT_THAT(yes.Texts(), ElementsAre(HasSubstr("Save the changes"), HasSubstr("kept.dfm")));
  }
  TypeKey('S', {VK_CONTROL});
  EXPECT_EQ(Read("kept.dfm"), Document().Text());
  EXPECT_THAT(Tabs(), ElementsAre("kept.dfm"));
}

TEST_F(Files, ThatOthersChangeAreNotOverwrittenUnasked) {
  const std::string other =
      std::string(FormText).replace(std::string(FormText).find("Kept form"), 9, "Of others");
  const std::string mine = Document().Text();
  const auto change = [&] {
    PumpFor(20);
    Write("kept.dfm", other);
  };
  const auto comeBack = [] {
    for (const WPARAM active : {FALSE, TRUE}) {
      ::SendMessageW(Application()->Handle(), WM_ACTIVATEAPP, active, 0);
    }
  };
  const auto answer = [](int button, const std::function<void()>& act) {
    TBoxAnswer box(button);
    act();
    EXPECT_TRUE(box.Wait());
    EXPECT_THAT(box.Text(), HasSubstr("kept.dfm was changed by another program"));
  };
  change();
  answer(IDNO, [] { TypeKey('S', {VK_CONTROL}); });
  EXPECT_EQ(Read("kept.dfm"), other);
  {
    const TKeysWhen enter([] { return ClassOf(::GetForegroundWindow()) == "#32770"; }, {VK_RETURN});
    TypeKey('S', {VK_CONTROL});
  }
  EXPECT_EQ(Read("kept.dfm"), other) << "what is chosen unseen loses nothing";
  answer(IDNO, comeBack);
  EXPECT_EQ(Document().Text(), mine);
  comeBack();  // It is asked once.
  TypeKey('S', {VK_CONTROL});
  EXPECT_EQ(Read("kept.dfm"), mine);
  EXPECT_FALSE(Document().Modified());
  comeBack();
  change();
  answer(IDYES, comeBack);
  EXPECT_EQ(Document().Text(), other);
  EXPECT_FALSE(Document().Modified());
  // A file that is gone makes the form one that has to be saved.
  std::filesystem::remove(Folder.Path / "kept.dfm");
  comeBack();
  EXPECT_THAT(Messages(), ElementsAre(HasSubstr("kept.dfm is no longer there")));
  EXPECT_THAT(Tabs(), ElementsAre("kept.dfm *"));
}

}  // namespace
}  // namespace ide
