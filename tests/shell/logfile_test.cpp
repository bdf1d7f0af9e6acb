// TQELLogFile: what becomes of entries of several threads and programs, full files and refusals.
#include <gmock/gmock.h>

#include <fstream>
#include <map>
#include <sstream>

#include "tests/shell/logprogram.h"
#include "tests/vcl/testinput.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using TLines = std::vector<std::string>;

class LogFile : public testing::Test {
 protected:
  LogFile() {
    Log->SetTimeFormat("");
    Log->SetLogFile(Name("a.log"));
  }
  ~LogFile() override { Log.reset(); }
  std::string Name(const std::string& file) const { return (Folder.Path / file).string(); }
  static std::string Contents(const fs::path& file) {
    std::ostringstream all;
    all << std::ifstream(file, std::ios::binary).rdbuf();
    return all.str();
  }
  static TLines LinesOf(const std::string& contents) {
    TLines lines;
    std::istringstream all(contents);
    for (std::string line; std::getline(all, line);) {
      if (line.empty() || line.back() != '\r') line = "torn: " + line + "\r";
      lines.push_back(line.substr(0, line.size() - 1));
    }
    return lines;
  }
  TLines Lines(const std::string& file = "a.log") const {
    return LinesOf(Contents(Folder.Path / file));
  }
  /// The log's files by their numbers; the one that is written to comes last.
  std::map<int, fs::path> Files() const {
    std::map<int, fs::path> files;
    for (const auto& each : fs::directory_iterator(Folder.Path)) {
      const std::string middle = each.path().stem().extension().string();
      files[middle.empty() ? 1'000'000 : std::stoi(middle.substr(1))] = each.path();
    }
    return files;
  }
  testing_support::TFolder Folder;
  std::unique_ptr<TQELLogFile> Log = std::make_unique<TQELLogFile>(nullptr);
};

TEST_F(LogFile, AnEntryIsALine) {
  Log->SetLogFile(Name("new") + "/Übersicht.log");
  EXPECT_TRUE(Log->Add(llInfo, "größer"));
  EXPECT_TRUE(Log->Add(llError, "one\r\ntwo\tthree" + std::string(1, '\0') + "\x1b["));
  EXPECT_THAT(LinesOf(Contents(Folder.Path / "new" / L"Übersicht.log")),
              ElementsAre("INFO größer", "ERROR one\\r\\ntwo\tthree\\x00\\x1b["));
  Log->SetLogFile(Name("a.log"));
  Log->SetTimeFormat("yyyy");
  Log->SetLevel(llWarning);
  EXPECT_FALSE(Log->Add(llDebug, "no"));
  EXPECT_FALSE(Log->Add(llInfo, "no"));
  EXPECT_TRUE(Log->Add(llWarning, ""));
  EXPECT_THAT(Lines(), ElementsAre(vcl::FormatDateTime("yyyy", vcl::Now()) + " WARNING "));
  Log->SetLogFile("");
  EXPECT_FALSE(Log->Add(llError, "nowhere"));
  EXPECT_TRUE(Log->Flush());
  EXPECT_EQ(Log->LastError(), "");
}

TEST_F(LogFile, OfManyThreadsAndProgramsLosesNothing) {
  Log.reset();
  const int threads = 4;
  const int entries = 1500;
  TLogPlan plan{Name("a.log"), threads, entries, 64};
  std::vector<std::unique_ptr<testing_support::TProgram>> programs;
  for (const char* name : {"A", "B", "C"}) {
    plan.Name = name;
    programs.push_back(
        std::make_unique<testing_support::TProgram>(L"test_shell", CommandLine(plan)));
  }
  for (const auto& each : programs) EXPECT_EQ(each->ExitCode(), 0u);
  std::map<std::string, int> next;
  const auto files = Files();
  EXPECT_GT(files.size(), 5u);
  for (const auto& [number, file] : files) {
    EXPECT_LE(fs::file_size(file), 64u * 1024) << file;
    for (const std::string& line : LinesOf(Contents(file))) {
      // "2026-11-23 06:30:00.000 INFO A0 12 xxx"
      ASSERT_GT(line.size(), 31u) << line;
      const std::string text = line.substr(29);
      const std::string thread = text.substr(0, text.find(' '));
      ASSERT_EQ(text, TLogPlan::Text(thread, next[thread])) << file;
      ++next[thread];
    }
  }
  EXPECT_EQ(next.size(), 3u * threads);
  for (const auto& [thread, count] : next) EXPECT_EQ(count, entries) << thread;
}

TEST_F(LogFile, OfAKilledProgramHasWhatWasWrittenThrough) {
  Log.reset();
  for (const char end : {'k', 'x'}) {
    const std::string file = std::string(1, end) + ".log";
    const testing_support::TProgram program(L"test_shell",
                                            CommandLine({Name(file), 3, 200, 0, end}));
    EXPECT_EQ(program.ExitCode(), 7u);
    EXPECT_EQ(Lines(file).size(), end == 'x' ? 601u : 600u);
  }
}

TEST_F(LogFile, AFullFileGetsANumber) {
  Log->SetMaxSize(1);
  const std::string text(400, 't');
  const auto add = [&](const std::string& mark) { EXPECT_TRUE(Log->Add(llInfo, mark + text)); };
  std::ofstream(Folder.Path / "a.7.log") << "of before";
  std::ofstream(Folder.Path / "a.x.log") << "another's";
  std::ofstream(Folder.Path / "a.9.log2") << "another's";
  for (const char* mark : {"1", "2", "3", "4", "5"}) add(mark);
  EXPECT_THAT(Lines("a.8.log"), ElementsAre("INFO 1" + text, "INFO 2" + text));
  EXPECT_THAT(Lines("a.9.log"), ElementsAre("INFO 3" + text, "INFO 4" + text));
  EXPECT_THAT(Lines(), ElementsAre("INFO 5" + text));
  Log->SetMaxFiles(2);
  Log->SetMaxFiles(-1);
  Log->SetMaxSize(-1);
  EXPECT_EQ(Log->MaxFiles(), 2);
  const std::string large(3000, 'l');
  EXPECT_TRUE(Log->Add(llInfo, large));
  EXPECT_THAT(Lines(), ElementsAre("INFO " + large)) << "it has a file of its own";
  EXPECT_THAT(Lines("a.10.log"), ElementsAre("INFO 5" + text));
  for (const char* file : {"a.7.log", "a.8.log", "a.9.log"})
    EXPECT_FALSE(fs::exists(Name(file))) << file;
  EXPECT_TRUE(fs::exists(Name("a.x.log")));
  EXPECT_TRUE(fs::exists(Name("a.9.log2")));
  {
    const std::ifstream reader(Name("a.log"));  // Which lets nobody rename the file.
    add("6");
  }
  EXPECT_THAT(Lines(), ElementsAre("INFO " + large, "INFO 6" + text));
  Log->SetMaxFiles(1);
  add("7");
  EXPECT_THAT(Lines(), ElementsAre("INFO 7" + text));
}

TEST_F(LogFile, GoesOnWithWhatIsThere) {
  std::ofstream(Folder.Path / "a.log", std::ios::binary) << "whole\r\nha";
  TQELLogFile other(nullptr);
  other.SetTimeFormat("");
  other.SetLogFile(Name("./A.LOG"));
  EXPECT_TRUE(Log->Add(llInfo, "1"));
  EXPECT_TRUE(other.Add(llInfo, "2"));
  EXPECT_TRUE(Log->Add(llInfo, "3"));
  EXPECT_THAT(Lines(), ElementsAre("whole", "ha", "INFO 1", "INFO 2", "INFO 3"));
  fs::rename(Name("a.log"), Name("moved"));
  EXPECT_TRUE(Log->Add(llInfo, "4"));
  EXPECT_THAT(Lines(), ElementsAre("INFO 4"));
  EXPECT_TRUE(other.Add(llInfo, "5"));
  EXPECT_THAT(Lines(), ElementsAre("INFO 4", "INFO 5"));
}

TEST_F(LogFile, KeepsWhatCannotBeWritten) {
  TLines errors;
  Log->OnError = [&](vcl::TObject* sender, const std::string& why) {
    EXPECT_EQ(sender, Log.get());
    errors.push_back(why);
  };
  fs::create_directory(Name("a.log"));
  EXPECT_FALSE(Log->Add(llInfo, "1"));
  std::thread([this] { EXPECT_FALSE(Log->Add(llError, "2")); }).join();
  EXPECT_THAT(errors, IsEmpty()) << "it is the main thread that tells";
  EXPECT_TRUE(testinput::PumpUntil([&] { return !errors.empty(); }));
  testinput::Pump();
  EXPECT_THAT(errors, ElementsAre(Log->LastError()));
  EXPECT_THAT(Log->LastError(), HasSubstr("a.log' cannot be written: "));
  // What is too much is dropped, and nothing of a line.
  const std::string large(100'000, 'l');
  for (int i = 0; i < 20; ++i) EXPECT_FALSE(Log->Add(llError, large));
  fs::remove(Name("a.log"));
  EXPECT_TRUE(Log->Flush());
  EXPECT_EQ(Log->LastError(), "");
  const TLines lines = Lines();
  ASSERT_EQ(lines.size(), 12u);
  EXPECT_EQ(lines[0] + lines[1], "INFO 1ERROR 2");
  EXPECT_EQ(lines.back(), "ERROR " + large);
  // The next time it fails it may be freed.
  fs::rename(Name("a.log"), Name("b.log"));
  fs::create_directory(Name("a.log"));
  Log->OnError = [&](vcl::TObject*, const std::string&) { Log.reset(); };
  EXPECT_FALSE(Log->Add(llError, "3"));
  EXPECT_TRUE(testinput::PumpUntil([&] { return !Log; }));
}

TEST_F(LogFile, HasTheApplicationsErrors) {
  vcl::Application()->OnException = [](vcl::TObject*, const std::exception&) {};
  const auto raise = [](const std::string& text) {
    vcl::Application()->HandleException(nullptr, vcl::Exception(text));
  };
  raise("before");
  Log->SetLogExceptions(true);
  raise("told\nof");
  vcl::Application()->HandleException(nullptr, vcl::EAbort("silent"));
  vcl::TForm form(nullptr);
  form.SetDesigning(true);
  auto* const designed = new TQELLogFile(&form);
  designed->SetLogFile(Name("designed.log"));
  designed->SetLogExceptions(true);
  EXPECT_FALSE(designed->Add(llError, "nothing"));
  raise("last");
  vcl::Application()->OnException.Clear();
  EXPECT_THAT(Lines(), ElementsAre("ERROR told\\nof", "ERROR last"));
  EXPECT_FALSE(fs::exists(Name("designed.log")));
}

}  // namespace
}  // namespace qel
