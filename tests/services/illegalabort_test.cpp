// TQELIllegalAbort: which of the programs that were noted have not ended properly.
#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <set>

#include "qel/qel.h"
#include "tests/support/program.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

class IllegalAbort : public testing::Test {
 protected:
  IllegalAbort() {
    Form.SetName("Form1");
    Start();
  }
  /// As the program's next start does.
  void Start() {
    Told.clear();
    Abort.reset();
    Abort = std::make_unique<TQELIllegalAbort>(&Form);
    Abort->OnIllegalAbort = [this](vcl::TObject*, vcl::TDateTime time, int process) {
      Told += vcl::FormatDateTime("yyyy ", time) + std::to_string(process) + " ";
      if (Act) Act();
    };
    const auto file = (Folder.Path / "runs.ini").string();
    ReadForm(
        "object Abort1: TQELIllegalAbort\n AbortStore.Enabled = True\n"
        " AbortStore.Datatype = sIniFile\n AbortStore.Inifile.Filename = '" +
            file + "'\nend\n",
        Abort.get());
  }
  void Note(int process, std::int64_t made) {
    Abort->AbortStore()->WriteStr("Form1.Abort1_Run" + std::to_string(process),
                                  std::to_string(made));
  }
  std::vector<std::string> Notes() {
    vcl::TStringList lines;
    Abort->AbortStore()->ReadStrs(lines);
    return Lines(lines);
  }
  static std::int64_t MadeAt(HANDLE process) {
    FILETIME made{}, other{};
    ::GetProcessTimes(process, &made, &other, &other, &other);
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(made.dwHighDateTime) << 32 |
                                     made.dwLowDateTime);
  }
  /// Those of this thread.
  static std::set<HWND> Windows() {
    std::set<HWND> windows;
    const auto add = [](HWND window, LPARAM set) WINAPI -> BOOL {
      reinterpret_cast<std::set<HWND>*>(set)->insert(window);
      return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&windows));
    return windows;
  }
  static constexpr std::int64_t Year2020 = 132'300'000'000'000'000;
  testing_support::TFolder Folder;
  vcl::TForm Form{nullptr};
  std::string Told;
  std::function<void()> Act;
  std::unique_ptr<TQELIllegalAbort> Abort;
};

TEST_F(IllegalAbort, TellsOfThoseThatRunNoMore) {
  EXPECT_EQ(Told, "");
  ASSERT_EQ(Notes().size(), 1u);
  const std::string own = Notes().front();
  EXPECT_EQ(own, "Form1.Abort1_Run" + std::to_string(::GetCurrentProcessId()) + "=" +
                     std::to_string(MadeAt(::GetCurrentProcess())));
  Note(0x7FFFFFF0, Year2020);
  Abort->AbortStore()->WriteStr("Form2.Abort1_Run4", "1");
  Abort->AbortStore()->WriteStr("Form1.Abort1_Runx", "1");
  Start();
  EXPECT_EQ(Told, "2020 2147483632 ");
  Start();
  EXPECT_EQ(Told, "") << "once";
  EXPECT_EQ(Notes().size(), 3u) << "what is another one's stays";
}

TEST_F(IllegalAbort, TellsAKilledOneFromOneThatRuns) {
  const testing_support::TProgram other(L"test_services", L"--copy Stranger 1 aNone");
  const HANDLE process = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, other.ProcessId());
  const auto id = static_cast<int>(other.ProcessId());
  Note(id, MadeAt(process));
  Start();
  EXPECT_EQ(Told, "") << "it runs";
  other.End();
  EXPECT_NE(other.ExitCode(), DWORD{STILL_ACTIVE});
  Start();
  EXPECT_THAT(Told, testing::EndsWith(" " + std::to_string(id) + " "));
  ::CloseHandle(process);
  Note(static_cast<int>(::GetCurrentProcessId()), Year2020);
  Abort->AbortStore()->SetEnabled(false);  // It keeps the note, as a crash does.
  Start();
  EXPECT_EQ(Told, "2020 " + std::to_string(::GetCurrentProcessId()) + " ")
      << "the number is now another process's";
}

TEST_F(IllegalAbort, AnEndOfTheSessionIsAProperEnd) {
  Abort.reset();
  const std::set<HWND> before = Windows();
  Start();
  EXPECT_EQ(Told, "");
  std::vector<HWND> own;
  std::ranges::set_difference(Windows(), before, std::back_inserter(own));
  ASSERT_EQ(own.size(), 1u);
  ::SendMessageW(own.front(), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(Notes().size(), 1u) << "another program has kept the session";
  ::SendMessageW(own.front(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(Notes().size(), 0u);
}

TEST_F(IllegalAbort, MayBeFreedByItsEvent) {
  Note(0x7FFFFFF0, Year2020);
  Note(0x7FFFFFF4, Year2020);
  Act = [this] { Abort.reset(); };
  Start();
  EXPECT_EQ(Told, "2020 2147483632 ");
  EXPECT_EQ(Abort, nullptr);
}

}  // namespace
}  // namespace qel
