// TQELFileExecute: what other programs are given, what they write, and waiting for them.
#include "qel/shell/Qeltfileexecute.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/testinput.h"
#include "vcl/rtl/utf16.h"
#include "vcl/vcl.h"
// It needs what stands above.
#include <shellapi.h>

namespace qel {
namespace {

using testing::HasSubstr;

std::wstring opened;
DWORD refusal = 0;
BOOL WINAPI Open(SHELLEXECUTEINFOW* info) {
  opened = std::wstring(info->lpVerb ? info->lpVerb : L"(none)") + L"|" + info->lpFile + L"|" +
           (info->lpParameters ? info->lpParameters : L"(none)") + L"|" +
           std::to_wstring(info->nShow);
  info->hProcess = nullptr;
  ::SetLastError(refusal);
  return refusal == 0;
}

class FileExecute : public testing::Test {
 protected:
  FileExecute() {
    opened.clear();
    refusal = 0;
    Renew();
  }
  void Renew() {
    std::array<wchar_t, 1024> self{};
    ::GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size()));
    Made = std::make_unique<TQELFileExecute>(nullptr);
    Made->SetFilename(vcl::ToUtf8(self.data()));
    Made->SetWait(wmPumping);
    Made->SetTimeout(30000);
    Made->OnFinished = [this](vcl::TObject*) { ++Finished; };
    Made->OnOutput = [this](vcl::TObject*, const std::string& line) { Told.push_back(line); };
  }
  bool Play(const std::string& role, const std::vector<std::string>& arguments = {}) {
    Made->Parameters()->Clear();
    Made->Parameters()->Add("--child");
    Made->Parameters()->Add(role);
    for (const std::string& each : arguments) Made->Parameters()->Add(each);
    Told.clear();
    return Made->Execute();
  }
  std::unique_ptr<TQELFileExecute> Made;
  std::vector<std::string> Told;
  int Finished = 0;
};

/// Of the characters that command lines are about.
std::vector<std::string> RandomArguments(int count) {
  static const std::vector<std::string> pieces = {
      "\"", "\\", " ", "\t", "a", "", "\xC3\xBC", "%", "^", "&", "'", "\xF0\x9F\x98\x80"};
  std::mt19937 random(20);
  std::vector<std::string> arguments = {"", "a b", "\\\\", "c:\\a b\\", "say \"no\"", "\\\"", "\""};
  while (static_cast<int>(arguments.size()) < count) {
    std::string& made = arguments.emplace_back();
    for (auto length = random() % 9; length > 0; --length) made += pieces[random() % pieces.size()];
  }
  return arguments;
}

TEST_F(FileExecute, ArgumentsComeAsTheyAre) {
  const char* asked = std::getenv("ARGUMENT_LISTS");
  const int lists = asked ? std::atoi(asked) : 1;
  constexpr int each = 400;
  const std::vector<std::string> all = RandomArguments(each * lists);
  for (int i = 0; i < lists; ++i) {
    const std::vector<std::string> given(all.begin() + i * each, all.begin() + (i + 1) * each);
    Made->SetCaptureOutput(true);
    ASSERT_TRUE(Play("arguments", given)) << Made->LastError();
    EXPECT_EQ(Told, given);
    EXPECT_EQ(Made->ExitCode(), 7);
  }
  EXPECT_EQ(Finished, lists);
  // By the shell, too, with what is passed unchanged behind them.
  const testing_support::TFolder folder;
  const auto file = folder.Path / "said";
  ::SetEnvironmentVariableW(L"SHELL_TEST", file.c_str());
  Made->SetCaptureOutput(false);
  Made->SetRawParameters("un\"chan\"ged  \"as it is\"");
  for (const auto wait : {wmPumping, wmBlocking}) {
    Made->SetWait(wait);
    ASSERT_TRUE(Play("write", {"a \"b\"", "", "c\\"})) << Made->LastError();
    EXPECT_EQ(Made->ExitCode(), 8);
    std::stringstream said;
    said << std::ifstream(file, std::ios::binary).rdbuf();
    EXPECT_EQ(said.str(), "a \"b\"\r\n\r\nc\\\r\nunchanged\r\nas it is\r\n");
  }
  EXPECT_EQ(Finished, lists + 2);
  Made->SetCaptureOutput(true);
  EXPECT_TRUE(Play("arguments"));
  EXPECT_EQ(Told, (std::vector<std::string>{"unchanged", "as it is"}));
}

TEST_F(FileExecute, OutputComesAsLinesInUtf8) {
  Made->SetCaptureOutput(true);
  std::wstring console(1, L'\0');
  ::MultiByteToWideChar(CP_OEMCP, 0, "\x81", 1, console.data(), 1);
  EXPECT_TRUE(Play("mixed"));
  EXPECT_EQ(Told, (std::vector<std::string>{"gr\xC3\xBCn", "", vcl::ToUtf8(console), "end"}));
  EXPECT_EQ(Made->Output()->Count(), 4);
  Made->SetOutputEncoding(oeUtf8);
  EXPECT_TRUE(Play("mixed"));
  EXPECT_EQ(Told.at(2), "\xEF\xBF\xBD");
  EXPECT_EQ(Made->Output()->Count(), 4) << "of the last program only";
  Made->SetOutputEncoding(oeUtf16);
  EXPECT_TRUE(Play("utf16"));
  EXPECT_EQ(Told, (std::vector<std::string>{"\xE0\xA8\x8A", "b"})) << "U+0A0A ends no line";
}

TEST_F(FileExecute, WaitsNoLongerThanItMay) {
  for (const bool capture : {true, false}) {
    Renew();
    Made->SetCaptureOutput(capture);
    Made->SetTimeout(-1);
    EXPECT_EQ(Made->Timeout(), 30000);
    Made->SetTimeout(50);
    for (const auto wait : {wmPumping, wmBlocking}) {
      Finished = 0;
      Made->SetWait(wait);
      EXPECT_FALSE(Play("sleep"));
      EXPECT_EQ(Made->LastErrorCode(), WAIT_TIMEOUT);
      EXPECT_TRUE(Made->Running());
      EXPECT_FALSE(Made->Execute());
      EXPECT_THAT(Made->LastError(), HasSubstr("is running"));
      Made->Terminate(5);
      EXPECT_TRUE(testinput::PumpUntil([this] { return Finished == 1; }));
      EXPECT_FALSE(Made->Running());
      EXPECT_EQ(Made->ExitCode(), 5);
    }
    Made->SetWait(wmNone);
    EXPECT_TRUE(Play("arguments"));
    EXPECT_TRUE(testinput::PumpUntil([this] { return Finished == 2; }));
  }
}

TEST_F(FileExecute, MayBeFreedByWhatItTells) {
  for (const bool capture : {true, false}) {
    for (const bool atOutput : {true, false}) {
      Renew();
      Made->SetCaptureOutput(capture);
      (atOutput && capture)
          ? Made->OnOutput = [this](vcl::TObject*, const std::string&) { Made.reset(); }
          : Made->OnOutput = nullptr;
      if (!atOutput || !capture) Made->OnFinished = [this](vcl::TObject*) { Made.reset(); };
      EXPECT_FALSE(Play("arguments", {"a", "b"}));
      EXPECT_EQ(Made, nullptr);
    }
  }
}

TEST_F(FileExecute, TheSystemOpensWhatItIsGiven) {
  const TImportPatch patch("qel.dll", "ShellExecuteExW", &Open);
  Made->Parameters()->Clear();
  Made->SetFilename("https://localhost/x");
  Made->SetShowMode(smMaximized);
  EXPECT_TRUE(Made->Execute());
  EXPECT_FALSE(Made->Running());
  EXPECT_EQ(opened, L"open|https://localhost/x|(none)|3");
  Made->SetFilename("cmd");
  Made->SetVerb("");
  EXPECT_TRUE(Made->Execute());
  EXPECT_EQ(vcl::UpperCase(vcl::ToUtf8(opened)).find("(NONE)|C:\\"), 0u) << "with its folder";
  refusal = ERROR_NO_ASSOCIATION;
  EXPECT_FALSE(Made->Execute());
  EXPECT_EQ(Made->LastErrorCode(), ERROR_NO_ASSOCIATION);
  EXPECT_THAT(Made->LastError(), HasSubstr("'cmd'"));
  refusal = ERROR_CANCELLED;
  EXPECT_FALSE(Made->Execute());
  EXPECT_EQ(Made->LastError(), "") << "the user did not want it";
}

TEST_F(FileExecute, ABareNameIsNotLookedForInTheCurrentFolder) {
  const TImportPatch patch("qel.dll", "ShellExecuteExW", &Open);
  const testing_support::TFolder folder;
  std::ofstream(folder.Path / "onlyhere.exe") << "x";
  const auto former = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path);
  for (const bool capture : {true, false}) {
    Made->SetCaptureOutput(capture);
    Made->SetFilename("onlyhere");
    EXPECT_FALSE(Made->Execute());
    EXPECT_THAT(Made->LastError(), HasSubstr("onlyhere"));
    Made->SetFilename("");
    EXPECT_FALSE(Made->Execute());
    EXPECT_NE(Made->LastError(), "");
  }
  EXPECT_EQ(opened, L"");
  Made->SetFilename(".\\onlyhere.exe");
  EXPECT_TRUE(Made->Execute());
  EXPECT_THAT(opened, HasSubstr(folder.Path.wstring()));
  std::filesystem::current_path(former);
}

}  // namespace
}  // namespace qel
