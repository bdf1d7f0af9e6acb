// The file operator on real trees.
#include "qel/shell/Qeltfileoperator.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <sstream>

#include "tests/shell/link.h"
#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"

namespace qel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

DWORD refusal;  // What the system is made to say; 0 for nothing.
BOOL WINAPI Copy(LPCWSTR source, LPCWSTR target, LPPROGRESS_ROUTINE progress, LPVOID told,
                 LPBOOL cancel, DWORD flags) {
  if (refusal == 0) return ::CopyFileExW(source, target, progress, told, cancel, flags);
  // As a disk that becomes full in the middle: some of the file is there.
  std::ofstream(fs::path(target), std::ios::binary) << "half";
  return ::SetLastError(refusal), FALSE;
}
/// Another drive for some.
BOOL WINAPI Move(LPCWSTR source, LPCWSTR target, DWORD flags) {
  const bool other = std::wstring(source).find(L".~new") == std::wstring::npos;
  if (other) return ::SetLastError(ERROR_NOT_SAME_DEVICE), FALSE;
  return ::MoveFileExW(source, target, flags);
}

class FileOperator : public vcl::TStandardForm {
 protected:
  FileOperator() {
    refusal = 0;
    Operator.SetOptions({foSilent, foNoConfirmation});
    Operator.SetDestination(Name("to"));
    Write("from/a.txt", "a");
    Write("from/sub/b.txt", "bb");
    Write("from/sub/empty/.keep", "");
  }
  std::string Name(const std::string& inside) const {
    return vcl::ToUtf8((Folder.Path / vcl::ToUtf16(inside)).make_preferred().wstring());
  }
  void Write(const std::string& name, const std::string& text) const {
    const fs::path path = Folder.Path / vcl::ToUtf16(name);
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
  }
  std::string Read(const std::string& name) const {
    std::ifstream in(Folder.Path / vcl::ToUtf16(name), std::ios::binary);
    if (!in) return "none";
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }
  bool There(const std::string& name) const { return fs::exists(Folder.Path / vcl::ToUtf16(name)); }
  bool Do(TQELFileOperatorOperation operation, const std::vector<std::string>& sources) {
    Operator.SetOperation(operation);
    Operator.Source()->Clear();
    for (const std::string& each : sources) Operator.Source()->Add(Name(each));
    return Operator.Execute();
  }
  /// All files below a folder.
  std::vector<std::string> Files(const std::string& folder) const {
    std::vector<std::string> files;
    for (const auto& each : fs::recursive_directory_iterator(Folder.Path / folder)) {
      if (each.is_regular_file()) files.push_back(each.path().filename().string());
    }
    std::ranges::sort(files);
    return files;
  }

  testing_support::TFolder Folder;
  TQELFileOperator Operator{nullptr};
};

TEST_F(FileOperator, CopiesAndMovesTrees) {
  ::SetFileAttributesW((Folder.Path / "from" / "a.txt").c_str(), FILE_ATTRIBUTE_READONLY);
  const auto written = fs::last_write_time(Folder.Path / "from" / "sub" / "b.txt");
  std::vector<std::string> seen;
  int percent = 0;
  Operator.OnProgress = [&](vcl::TObject*, const std::string& path, int done, bool&) {
    seen.push_back(path);
    EXPECT_GE(done, percent);
    percent = done;
  };
  EXPECT_TRUE(Do(foCopy, {"from"})) << Operator.LastError();
  EXPECT_EQ(Read("to/from/sub/b.txt"), "bb");
  EXPECT_TRUE(There("to/from/sub/empty/.keep"));
  EXPECT_EQ(fs::last_write_time(Folder.Path / "to/from/sub/b.txt"), written);
  EXPECT_NE(::GetFileAttributesW((Folder.Path / "to/from/a.txt").c_str()) & FILE_ATTRIBUTE_READONLY,
            0u);
  EXPECT_GE(seen.size(), 6u);
  percent = 0;
  Operator.SetDestination(Name("moved"));
  EXPECT_TRUE(Do(foMove, {"to/from"})) << Operator.LastError();
  EXPECT_FALSE(There("to/from"));
  EXPECT_EQ(Read("moved/from/sub/b.txt"), "bb");
  ::SetFileAttributesW((Folder.Path / "from" / "a.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
  ::SetFileAttributesW((Folder.Path / "moved/from/a.txt").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(FileOperator, ToAnotherDriveTheSourceGoesWhenItHasArrived) {
  const TImportPatch otherDrive("qel.dll", "MoveFileExW", &Move);
  const TImportPatch disk("qel.dll", "CopyFileExW", &Copy);
  EXPECT_TRUE(Do(foMove, {"from"})) << Operator.LastError();
  EXPECT_FALSE(There("from"));
  EXPECT_EQ(Read("to/from/a.txt"), "a");
  refusal = ERROR_DISK_FULL;
  Operator.SetDestination(Name("full"));
  EXPECT_FALSE(Do(foMove, {"to/from"}));
  EXPECT_EQ(Operator.LastErrorCode(), ERROR_DISK_FULL);
  EXPECT_THAT(Operator.LastError(), HasSubstr("a.txt"));
  EXPECT_THAT(Files("to"), ElementsAre(".keep", "a.txt", "b.txt")) << "nothing is lost";
  EXPECT_THAT(Files("full"), ElementsAre()) << "and nothing there by halves";
}

TEST_F(FileOperator, AFileIsReplacedWholeOrNotAtAll) {
  const TImportPatch disk("qel.dll", "CopyFileExW", &Copy);
  Write("to/a.txt", "former");
  refusal = ERROR_DISK_FULL;
  EXPECT_FALSE(Do(foCopy, {"from/a.txt"}));
  EXPECT_EQ(Read("to/a.txt"), "former");
  EXPECT_THAT(Files("to"), ElementsAre("a.txt"));
  int errors = 0;
  Operator.OnError = [&](vcl::TObject*, const std::string&, const std::string&,
                         TQELFileFailure& action) {
    refusal = 0;
    action = ++errors == 1 ? ffRetry : ffAbort;
  };
  EXPECT_TRUE(Do(foCopy, {"from/a.txt"}));
  EXPECT_EQ(Read("to/a.txt"), "a");
  EXPECT_EQ(errors, 1);
  refusal = ERROR_ACCESS_DENIED;
  Operator.OnError = [](vcl::TObject*, const std::string& path, const std::string&,
                        TQELFileFailure& action) {
    EXPECT_TRUE(path.ends_with("a.txt"));
    action = ffSkip;
    refusal = 0;
  };
  EXPECT_TRUE(Do(foCopy, {"from/a.txt", "from/sub"})) << "the rest goes on";
  EXPECT_EQ(Read("to/sub/b.txt"), "bb");
}

TEST_F(FileOperator, NamesThatAreTaken) {
  Write("to/a.txt", "former");
  std::string asked;
  TQELFileConflict answer = fcSkip;
  Operator.OnConflict = [&](vcl::TObject*, const std::string& source, const std::string& target,
                            TQELFileConflict& action) {
    asked = source + ">" + target;
    action = answer;
  };
  EXPECT_TRUE(Do(foCopy, {"from/a.txt"}));
  EXPECT_EQ(asked, Name("from/a.txt") + ">" + Name("to/a.txt"));
  EXPECT_EQ(Read("to/a.txt"), "former");
  answer = fcRename;
  EXPECT_TRUE(Do(foCopy, {"from/a.txt"}));
  EXPECT_TRUE(Do(foCopy, {"from/a.txt"}));
  EXPECT_THAT(Files("to"), ElementsAre("a (2).txt", "a (3).txt", "a.txt"));
  answer = fcAbort;
  EXPECT_FALSE(Do(foMove, {"from/a.txt"}));
  EXPECT_TRUE(Operator.Aborted());
  EXPECT_EQ(Operator.LastError(), "") << "as it was wanted";
  EXPECT_TRUE(There("from/a.txt"));
  Operator.OnConflict = nullptr;
  Operator.SetOptions({foSilent, foNoConfirmation, foRenameOnCollision});
  EXPECT_TRUE(Do(foMove, {"from/a.txt"}));
  EXPECT_EQ(Read("to/a (4).txt"), "a");
  // A file does not give way to a folder.
  Operator.SetOptions({foSilent, foNoConfirmation});
  Write("to/sub", "a file");
  EXPECT_FALSE(Do(foCopy, {"from/sub"}));
  EXPECT_EQ(Read("to/sub"), "a file");
}

TEST_F(FileOperator, RefusesWhatWouldNeverEnd) {
  Operator.SetDestination(Name("from/sub/inner"));
  EXPECT_FALSE(Do(foCopy, {"from"}));
  EXPECT_THAT(Operator.LastError(), HasSubstr("into itself"));
  Operator.SetDestination(Name("to"));
  Operator.Source()->Clear();
  EXPECT_FALSE(Operator.Execute());
  EXPECT_EQ(Operator.LastError(), "There are no files to work on");
  EXPECT_FALSE(Do(foCopy, {"none"}));
  EXPECT_THAT(Operator.LastError(), HasSubstr("none"));
  Operator.SetDestination("");
  EXPECT_FALSE(Do(foCopy, {"from"}));
  Operator.OnProgress = [this](vcl::TObject*, const std::string&, int, bool&) {
    EXPECT_FALSE(Operator.Execute()) << "one at a time";
    Operator.Abort();
  };
  Operator.SetDestination(Name("to"));
  EXPECT_FALSE(Do(foCopy, {"from"}));
  EXPECT_FALSE(There("to/from/sub/b.txt"));
}

TEST_F(FileOperator, WhatLinksLeadToIsNotDeleted) {
  Write("aside/precious.txt", "1");
  {
    const TLink link(Folder.Path / "from" / "sub" / "link", Folder.Path / "aside");
    const TLink loop(Folder.Path / "from" / "loop", Folder.Path / "from");
    Operator.OnError = [](vcl::TObject*, const std::string&, const std::string&,
                          TQELFileFailure& action) { action = ffSkip; };
    EXPECT_TRUE(Do(foCopy, {"from"}));
    EXPECT_EQ(Read("to/from/sub/link/precious.txt"), "1") << "copied as what it leads to";
    EXPECT_FALSE(There("to/from/loop/a.txt")) << "one that leads to what holds it is not";
    EXPECT_TRUE(Do(foDelete, {"from"}));
  }
  EXPECT_EQ(Read("aside/precious.txt"), "1");
  EXPECT_FALSE(There("from/a.txt"));
}

TEST_F(FileOperator, LongAndOddNames) {
  std::string deep = "from/deep";
  for (int i = 0; i < 12; ++i) deep += "/" + std::string(28, static_cast<char>('a' + i));
  const std::wstring exact = L"\\\\?\\" + vcl::ToUtf16(Name(deep));
  for (std::size_t at = vcl::ToUtf16(Name("from")).size() + 4; at != std::wstring::npos;) {
    at = exact.find(L'\\', at + 1);
    ::CreateDirectoryW(exact.substr(0, at).c_str(), nullptr);
  }
  const auto make = [](const std::wstring& name) {
    const HANDLE file =
        ::CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << vcl::ToUtf8(name);
    ::CloseHandle(file);
  };
  make(exact + L"\\file.txt");
  make(L"\\\\?\\" + vcl::ToUtf16(Name("from")) + L"\\dot.");
  Write("from/dot", "another one");
  Write("from/ÄÖ ☃ 😀.txt", "x");
  EXPECT_TRUE(Do(foCopy, {"from"})) << Operator.LastError();
  const auto is = [](const std::wstring& name) {
    return ::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES;
  };
  std::wstring target = exact;
  target.replace(target.find(L"\\from\\"), 6, L"\\to\\from\\");
  EXPECT_TRUE(is(target + L"\\file.txt"));
  EXPECT_TRUE(is(L"\\\\?\\" + vcl::ToUtf16(Name("to/from")) + L"\\dot."));
  EXPECT_EQ(Read("to/from/dot"), "another one");
  EXPECT_EQ(Read("to/from/ÄÖ ☃ 😀.txt"), "x");
  EXPECT_TRUE(Do(foDelete, {"from", "to"})) << Operator.LastError();
  EXPECT_FALSE(There("from"));
  EXPECT_FALSE(There("to"));
}

TEST_F(FileOperator, DeletesAskUnlessTheBinHasThem) {
  Operator.SetOptions({foSilent});
  const auto answer = [this](WORD key) {
    const testinput::TKeysWhen user([this] { return ::GetForegroundWindow() != Form.Handle(); },
                                    {key});
    return Do(foDelete, {"from/a.txt"});
  };
  ShowForm();
  EXPECT_FALSE(answer(VK_ESCAPE));
  EXPECT_TRUE(There("from/a.txt"));
  EXPECT_TRUE(answer(VK_RETURN));
  EXPECT_FALSE(There("from/a.txt"));
  Operator.SetOptions({foSilent, foNoConfirmation, foFilesOnly});
  Write("from/x.log", "");
  Write("from/y.LOG", "");
  Write("from/z.txt", "");
  EXPECT_TRUE(Do(foDelete, {"from/*.log"}));
  EXPECT_THAT(Files("from"), ElementsAre(".keep", "b.txt", "z.txt"));
}

TEST_F(FileOperator, MayBeFreedByItsEvent) {
  auto* other = new TQELFileOperator(nullptr);
  other->SetOptions({foSilent, foNoConfirmation});
  other->Source()->Add(Name("from"));
  other->SetDestination(Name("to"));
  other->OnProgress = [&](vcl::TObject*, const std::string&, int, bool&) {
    delete std::exchange(other, nullptr);
  };
  EXPECT_FALSE(other->Execute());
  EXPECT_EQ(other, nullptr);
}

/// Ends the program that moves or copies at a random moment, again and again, and looks at what is
/// there then. QEL_KILLS says how often.
class EndedInTheMiddle : public FileOperator {
 protected:
  static constexpr std::size_t Size = 300000;
  static constexpr int Count = 12;

  EndedInTheMiddle() {
    for (int i = 0; i < Count; ++i) Write("one/" + Number(i), Whole('a'));
    fs::create_directory(Folder.Path / "two");
  }
  static std::string Number(int i) { return std::to_string(i) + ".txt"; }
  static std::string Whole(char letter) { return std::string(Size, letter); }
  /// Of one letter, as it was written.
  static bool IsWhole(const std::string& text) { return text == Whole(text.front()); }

  void EndAgainAndAgain(const std::wstring& role, const std::function<void()>& check) {
    const char* const wanted = std::getenv("QEL_KILLS");
    const int times = wanted ? std::atoi(wanted) : 8;
    std::minstd_rand random(7);
    for (int i = 0; i < times && !HasFailure(); ++i) {
      fs::remove(Folder.Path / "begun");
      testing_support::TProgram program(
          L"test_shell",
          role + L" \"" + vcl::ToUtf16(Name("one")) + L"\" \"" + vcl::ToUtf16(Name("two")) + L"\"");
      for (int wait = 0; wait < 1000 && !There("begun"); ++wait) ::Sleep(10);
      ASSERT_TRUE(There("begun"));
      ::Sleep(random() % 250);
      program.End();
      check();
    }
  }
};

TEST_F(EndedInTheMiddle, AMoveLosesNoFile) {
  EndAgainAndAgain(L"--move", [this] {
    for (int i = 0; i < Count; ++i) {
      const std::string here = Read("one/" + Number(i)), there = Read("two/" + Number(i));
      EXPECT_TRUE(here == Whole('a') || there == Whole('a')) << i;
      EXPECT_TRUE(here == Whole('a') || here == "none") << i << " is torn";
      EXPECT_TRUE(there == Whole('a') || there == "none") << i << " is torn";
    }
  });
}

TEST_F(EndedInTheMiddle, ACopyLeavesTheOldFileOrTheNewOne) {
  for (int i = 0; i < Count; ++i) Write("two/" + Number(i), Whole('a'));
  EndAgainAndAgain(L"--copy", [this] {
    for (int i = 0; i < Count; ++i) {
      const std::string there = Read("two/" + Number(i));
      EXPECT_TRUE(there.size() == Size && IsWhole(there)) << i << ", " << there.size() << " bytes";
      // The program itself may have been about to write its source.
      Write("one/" + Number(i), Whole('a'));
    }
  });
}

}  // namespace
}  // namespace qel
