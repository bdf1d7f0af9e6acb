// Packages and programs that the designer starts: what fails is told, and the designer goes on.
#include <gmock/gmock.h>

#include <cstdlib>

#include "tests/ide/designerfixture.h"

namespace ide {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class DesignersPackages : public Designer {
 protected:
  ~DesignersPackages() override { ::_putenv("SAMPLE_PACKAGE_FAILS="); }

  /// Loads a package by the window of packages, where an error is shown; returns the error.
  std::string Load(const std::string& fileName) {
    const auto type = [fileName] {
      for (const wchar_t unit : ToUtf16(fileName)) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wScan = static_cast<WORD>(unit);
        input.ki.dwFlags = KEYEVENTF_UNICODE;
        ::SendInput(1, &input, sizeof input);
      }
      SendKeys("Enter");
    };
    KeysInDialogs("Alt+C P", {{"Packages", [] { SendKeys("Alt+L"); }},
                              {"Open", type},
                              {"Error", [] { SendKeys("Enter"); }},
                              {"Packages", [] { SendKeys("Esc"); }}});
    return Packages.Entries().back()->Error;
  }
};

TEST_F(DesignersPackages, WhatFailsIsToldAndLeavesNothingBehind) {
  OpenForm(" object A: TButton\n end\n");
  const std::string before = Document().Text();
  const std::string folder = ProgramFolder() + "\\";
  const auto pages = RegisteredComponents().size();
  Write("broken.dll", "This is no library.");
  EXPECT_THAT(Load(File("broken.dll")), HasSubstr("broken.dll cannot be loaded"));
  EXPECT_THAT(Load(folder + "qelhost.dll"), HasSubstr("no entry point named Register"));
  ::_putenv("SAMPLE_PACKAGE_FAILS=1");
  EXPECT_THAT(Load(folder + "samplepackage.dll"), HasSubstr("half-way"));
  ::_putenv("SAMPLE_PACKAGE_FAILS=");
  EXPECT_EQ(RegisteredComponents().size(), pages);
  EXPECT_EQ(GetClass("TSample"), nullptr);
  // Another package with classes of the same names.
  std::filesystem::copy_file(folder + "samplepackage.dll", Folder.Path / "twin.dll");
  EXPECT_EQ(Packages.Load(folder + "samplepackage.dll").Error, "");
  EXPECT_THAT(Packages.Load(folder + ".\\samplepackage.dll").Error, HasSubstr("loaded already"));
  EXPECT_THAT(Load(File("twin.dll")), HasSubstr("TSample is registered already"));
  EXPECT_EQ(RegisteredComponents().size(), pages + 1);
  // What is removed is not asked for again.
  KeysInDialogs("Alt+C P",
                {{"Packages", [] { SendKeys("Down Down Down Down Down Down Alt+R Esc"); }}});
  EXPECT_THAT(Read("designer.ini"), AllOf(HasSubstr("samplepackage.dll"), Not(HasSubstr("twin"))));
  It().Add(FindClass("TSample"));
  EXPECT_TRUE(Find<TComponent>("Sample1"));
  It().Undo();
  EXPECT_EQ(Document().Text(), before);
}

/// The program's window with that beginning of its caption, once there is one that can be used.
HWND WindowOf(const std::wstring& caption) {
  struct TSearch {
    std::wstring Caption;
    HWND Found;
  } search{caption, nullptr};
  const auto check = [](HWND window, LPARAM param) CALLBACK -> BOOL {
    auto& wanted = *reinterpret_cast<TSearch*>(param);
    wchar_t text[200] = L"";
    ::GetWindowTextW(window, text, 200);
    const bool same = std::wstring_view(text).starts_with(wanted.Caption);
    if (same && ::IsWindowVisible(window) && ::IsWindowEnabled(window)) wanted.Found = window;
    return !wanted.Found;
  };
  PumpUntil([&] {
    ::EnumWindows(check, reinterpret_cast<LPARAM>(&search));
    return search.Found != nullptr;
  });
  return search.Found;
}

TEST(DesignerProgram, RunsThePreviewFromItsMenu) {
  const TFolder folder;
  std::ofstream(folder.Path / "shown.dfm")
      << "object F: TF\n  Left = 40\n  Top = 30\n  Caption = 'Previewed form'\n"
         "  object B: TQELButton\n    Left = 8\n    Top = 8\n  end\nend\n";
  const testing_support::TProgram designer(
      L"designer", L"--settings \"" + (folder.Path / "d.ini").wstring() + L"\" \"" +
                       (folder.Path / "shown.dfm").wstring() + L"\"");
  const HWND window = WindowOf((folder.Path / "shown.dfm").wstring());
  ASSERT_TRUE(window);
  ::SetForegroundWindow(window);
  ASSERT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == window; }));
  PumpFor(200);
  TypeKey('R', {VK_MENU});
  TypeKey('P');
  const HWND preview = WindowOf(L"Previewed form");
  ASSERT_TRUE(preview);
  DWORD process = 0;
  ::GetWindowThreadProcessId(preview, &process);
  EXPECT_NE(process, designer.ProcessId());
  EXPECT_NE(::FindWindowExW(preview, nullptr, L"TQELButton", nullptr), nullptr);
  ::PostMessageW(preview, WM_CLOSE, 0, 0);
  EXPECT_TRUE(PumpUntil([&] { return !::IsWindow(preview); }));
  ::PostMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_EQ(designer.ExitCode(), 0u);
}

}  // namespace
}  // namespace ide
