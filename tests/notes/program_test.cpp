// The program from outside: two copies, what it remembers, and the ways in which it is ended.
#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/program.h"
#include "tests/vcl/testinput.h"

namespace notes_test {
namespace {

using testing_support::TFolder;
using testing_support::TProgram;
namespace fs = std::filesystem;

constexpr int Patience = 20000;  // Milliseconds.

template <class Condition>
bool Await(Condition condition) {
  const ULONGLONG end = ::GetTickCount64() + Patience;
  while (!condition()) {
    if (::GetTickCount64() >= end) return false;
    ::Sleep(20);
  }
  return true;
}

struct TSearch {
  DWORD Process;
  std::wstring Part;
  HWND Found;
};

BOOL CALLBACK TakeWindow(HWND window, LPARAM param) {
  auto& search = *reinterpret_cast<TSearch*>(param);
  DWORD process = 0;
  wchar_t text[300] = L"";
  ::GetWindowThreadProcessId(window, &process);
  ::GetWindowTextW(window, text, 300);
  const bool wanted = process == search.Process && ::IsWindowVisible(window) &&
                      std::wstring(text).find(search.Part) != std::wstring::npos;
  if (wanted) search.Found = window;
  return !wanted;
}

class TNotes : public TProgram {
 public:
  explicit TNotes(const std::wstring& arguments) : TProgram(L"notes", arguments) {}
  TNotes(const std::wstring& until, const std::wstring& arguments)
      : TProgram(L"test_notes", L"--until " + until + L" " + arguments) {}

  /// The window with that in its caption, in front; null when none comes.
  HWND Window(const std::wstring& part) const {
    TSearch search{ProcessId(), part, nullptr};
    Await([&] {
      ::EnumWindows(&TakeWindow, reinterpret_cast<LPARAM>(&search));
      if (search.Found) ::SetForegroundWindow(search.Found);
      return search.Found && ::GetForegroundWindow() == search.Found;
    });
    ::Sleep(200);  // The focus follows.
    return search.Found;
  }
};

class Notes : public ::testing::Test {
 protected:
  Notes() { Write("old\n"); }
  void Write(const std::string& bytes) const { std::ofstream(Document, std::ios::binary) << bytes; }
  std::string Read() const {
    std::ifstream file(Document, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string Settings() const {
    std::ifstream file(Folder.Path / "settings" / "notes.ini");
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::wstring Arguments(bool document = true) const {
    const std::wstring settings = L" --settings \"" + (Folder.Path / "settings").wstring() + L"\"";
    return document ? L"\"" + Document.wstring() + L"\"" + settings : settings;
  }
  /// Types into a window that shows the document.
  static void Type(std::initializer_list<WORD> keys) {
    for (const WORD key : keys) {
      testinput::SendKey(key, true);
      testinput::SendKey(key, false);
    }
  }
  static void TypeSave() {
    testinput::SendKey(VK_CONTROL, true);
    Type({'S'});
    testinput::SendKey(VK_CONTROL, false);
  }
  /// Starts the program anew, has it bring unsaved text back, and saves that.
  void SaveWhatWasUnsaved() const {
    const TNotes notes(Arguments(false));
    ASSERT_TRUE(notes.Window(L"Confirm"));
    Type({'Y'});
    const HWND window = notes.Window(L"*document.txt");
    ASSERT_TRUE(window);
    TypeSave();
    ASSERT_TRUE(notes.Window(L"document.txt - Notes"));
    EXPECT_TRUE(Await([&] { return Read() == "xyold\n"; })) << Read();
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(notes.ExitCode(Patience), 0u);
  }

  const TFolder Folder;
  const fs::path Document = Folder.Path / L"document.txt";
};

TEST_F(Notes, ASecondStartBringsTheFirstToTheFrontWithItsFile) {
  const fs::path other = Folder.Path / L"another.txt";
  std::ofstream(other) << "x";
  const TNotes first(Arguments());
  const HWND window = first.Window(L"document.txt");
  ASSERT_TRUE(window);
  const HWND cover = ::CreateWindowW(L"STATIC", L"cover", WS_VISIBLE | WS_POPUP, 0, 0, 500, 500,
                                     nullptr, nullptr, nullptr, nullptr);
  ::SetForegroundWindow(cover);
  const TNotes second(L"\"" + other.wstring() + L"\"" + Arguments(false));
  EXPECT_EQ(second.ExitCode(Patience), 0u);
  EXPECT_TRUE(Await([&] { return ::GetForegroundWindow() == window; }));
  ::DestroyWindow(cover);
  EXPECT_EQ(first.Window(L"another.txt"), window);
}

TEST_F(Notes, MinimisedItComesBackWhenItIsStartedAgain) {
  const TNotes first(Arguments());
  const HWND window = first.Window(L"document.txt");
  ASSERT_TRUE(window);
  ::PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  ASSERT_TRUE(Await([&] { return !::IsWindowVisible(window); }));
  const TNotes second(Arguments(false));
  EXPECT_EQ(second.ExitCode(Patience), 0u);
  EXPECT_TRUE(Await([&] { return ::IsWindowVisible(window) != FALSE; }));
  EXPECT_TRUE(Await([&] { return ::GetForegroundWindow() == window; }));
}

TEST_F(Notes, AFileThatIsHandedOverWhileADialogIsUpIsOpenedAfterwards) {
  const fs::path other = Folder.Path / L"another.txt";
  std::ofstream(other) << "x";
  const TNotes first(Arguments());
  const HWND window = first.Window(L"document.txt");
  ASSERT_TRUE(window);
  Type({'X', 'Y'});
  ASSERT_TRUE(first.Window(L"*document.txt"));
  ::PostMessageW(window, WM_CLOSE, 0, 0);
  const HWND dialog = first.Window(L"Confirm");
  ASSERT_TRUE(dialog);
  const TNotes second(L"\"" + other.wstring() + L"\"" + Arguments(false));
  EXPECT_EQ(second.ExitCode(Patience), 0u);
  ASSERT_EQ(first.Window(L"Confirm"), dialog);
  Type({VK_ESCAPE});
  ASSERT_TRUE(Await([&] { return !::IsWindow(dialog); }));
  ASSERT_TRUE(first.Window(L"Confirm")) << "the text would be lost";
  Type({'N'});
  EXPECT_EQ(first.Window(L"another.txt"), window);
}

TEST_F(Notes, PlaceAndRecentFilesComeBack) {
  RECT left{}, back{};
  for (const bool again : {false, true}) {
    const TNotes notes(Arguments(!again));
    const HWND window = notes.Window(again ? L"Untitled" : L"document.txt");
    ASSERT_TRUE(window);
    ::GetWindowRect(window, &back);
    EXPECT_EQ(again, ::EqualRect(&left, &back) != FALSE);
    ::MoveWindow(window, 77, 55, 500, 333, TRUE);
    ::GetWindowRect(window, &left);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(notes.ExitCode(Patience), 0u);
  }
  const std::string settings = Settings();
  EXPECT_NE(settings.find("MRU0=" + Document.string()), std::string::npos) << settings;
}

TEST_F(Notes, ClosingAsksWhatBecomesOfTheText) {
  const TNotes notes(Arguments());
  const HWND window = notes.Window(L"document.txt");
  ASSERT_TRUE(window);
  Type({'X', 'Y'});
  for (const WORD answer : {WORD{VK_ESCAPE}, WORD{'Y'}}) {
    EXPECT_EQ(notes.Window(L"*document.txt"), window);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    ASSERT_TRUE(notes.Window(L"Confirm"));
    EXPECT_EQ(Read(), "old\n");
    Type({answer});
  }
  EXPECT_EQ(notes.ExitCode(Patience), 0u);
  EXPECT_EQ(Read(), "xyold\n");
}

TEST_F(Notes, TheEndOfTheSessionKeepsTheTextForTheNextStart) {
  {
    const TNotes notes(Arguments());
    const HWND window = notes.Window(L"document.txt");
    ASSERT_TRUE(window);
    Type({'X', 'Y'});
    ASSERT_TRUE(notes.Window(L"*document.txt"));
    const HWND application = ::GetWindow(window, GW_OWNER);
    for (const HWND each : {window, application})
      EXPECT_EQ(::SendMessageW(each, WM_QUERYENDSESSION, 0, 0), TRUE);
    ::MoveWindow(window, 77, 55, 500, 333, TRUE);
    ::SendMessageW(application, WM_ENDSESSION, TRUE, 0);
    notes.End();
    EXPECT_NE(Settings().find("TNotesForm_Left=77"), std::string::npos) << Settings();
    EXPECT_EQ(Read(), "old\n");
  }
  SaveWhatWasUnsaved();
}

TEST_F(Notes, AnEndInTheMiddleOfSavingLosesNothing) {
  for (const wchar_t* until : {L"WriteFile", L"FlushFileBuffers", L"MoveFileExW"}) {
    Write("old\n");
    fs::create_directories(Folder.Path / "settings");
    {
      const TNotes notes(until, Arguments());
      ASSERT_TRUE(notes.Window(L"document.txt")) << until;
      Type({'X', 'Y'});
      ASSERT_TRUE(notes.Window(L"*document.txt"));
      TypeSave();
      EXPECT_EQ(notes.ExitCode(Patience), 42u) << until;
      EXPECT_EQ(Read(), "old\n");
    }
    SaveWhatWasUnsaved();
  }
}

}  // namespace
}  // namespace notes_test
