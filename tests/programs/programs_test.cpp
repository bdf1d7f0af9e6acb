// Every program comes up, shows what it is, and ends when it is told to.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/program.h"

namespace {

using testing_support::TFolder;
using testing_support::TOutputFile;
using testing_support::TProgram;

/// The names that the build gives, and whether each has a window.
struct TListed {
  std::string Name;
  bool Window;
};

std::vector<TListed> Split(const char* names, bool window) {
  std::vector<TListed> listed;
  std::istringstream words(names);
  for (std::string word; words >> word;) listed.push_back({word, window});
  return listed;
}

std::vector<TListed> AllPrograms() {
  auto all = Split(WINDOW_PROGRAMS, true);
  const auto others = Split(CONSOLE_PROGRAMS, false);
  all.insert(all.end(), others.begin(), others.end());
  return all;
}

/// The first window of a process that can be seen and has a caption.
struct TSearch {
  DWORD Process;
  HWND Found = nullptr;
};

BOOL CALLBACK TakeWindow(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<TSearch*>(parameter);
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  const bool wanted =
      process == search.Process && ::IsWindowVisible(window) && ::GetWindowTextLengthW(window) > 0;
  if (wanted) search.Found = window;
  return !wanted;
}

HWND WindowOf(const TProgram& program) {
  TSearch search{program.ProcessId()};
  const ULONGLONG end = ::GetTickCount64() + testing_support::Patience;
  while (!search.Found && ::GetTickCount64() < end && program.ExitCode(50) == STILL_ACTIVE) {
    ::EnumWindows(&TakeWindow, reinterpret_cast<LPARAM>(&search));
  }
  return search.Found;
}

std::string TextOf(HWND window) {
  char text[1024] = "";
  ::GetWindowTextA(window, text, sizeof text);
  return text;
}

bool IsBox(HWND window) {
  wchar_t name[16] = L"";
  ::GetClassNameW(window, name, 16);
  return std::wstring_view(name) == L"#32770";
}

/// What a box says; the number is that of its text.
std::string BoxText(HWND box) { return TextOf(::GetDlgItem(box, 0xFFFF)); }

class EachProgram : public testing::TestWithParam<TListed> {
 protected:
  /// It keeps its settings and files where nothing is yet.
  EachProgram() {
    ::SetEnvironmentVariableW(L"APPDATA", Folder.Path.c_str());
    std::filesystem::current_path(Folder.Path);
  }
  ~EachProgram() override { std::filesystem::current_path(Former); }

  static void ExpectWindow(const std::wstring& name) {
    const TProgram program(name, L"");
    const HWND window = WindowOf(program);
    ASSERT_TRUE(window) << "exit code " << program.ExitCode(0);
    if (IsBox(window) && BoxText(window).find("SQLSTATE") != std::string::npos) {
      GTEST_SKIP() << "the system has no driver for its files: " << BoxText(window);
    }
    EXPECT_FALSE(IsBox(window)) << BoxText(window);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.ExitCode(), 0u) << TextOf(window);
  }
  void ExpectOutput(const std::wstring& name) const {
    const auto file = Folder.Path / "output";
    {
      const TOutputFile output(file);
      const TProgram program(name, name == L"qelref" ? L"--markdown" : L"", output.Handle());
      // One that measures does so for minutes, and says at once what.
      const ULONGLONG end = ::GetTickCount64() + testing_support::Patience;
      while (program.ExitCode(100) == STILL_ACTIVE && ::GetTickCount64() < end &&
             std::filesystem::file_size(file) == 0) {
      }
      EXPECT_TRUE(program.ExitCode(0) == STILL_ACTIVE || program.ExitCode(0) == 0u);
    }
    EXPECT_GT(std::filesystem::file_size(file), 0u);
  }

  const std::filesystem::path Former = std::filesystem::current_path();
  const TFolder Folder;
};

TEST_P(EachProgram, ComesUpAndEnds) {
  const std::wstring name = vcl::ToUtf16(GetParam().Name);
  GetParam().Window ? ExpectWindow(name) : ExpectOutput(name);
}

INSTANTIATE_TEST_SUITE_P(Listed, EachProgram, testing::ValuesIn(AllPrograms()),
                         [](const auto& each) { return each.param.Name; });

}  // namespace
