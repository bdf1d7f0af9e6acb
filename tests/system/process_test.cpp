// Other programs: their arguments, input, output, limits and end.
#include <gmock/gmock.h>

#include <array>
#include <random>

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace vcl {
namespace {

constexpr int Long = 30000;  // Milliseconds, for what is sure to come.

class Process : public testing::Test {
 protected:
  Process() : Made(std::make_unique<TProcess>(nullptr)) {
    std::array<wchar_t, 1024> self{};
    ::GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size()));
    Made->SetFileName(ToUtf8(self.data()));
  }
  /// Starts the child that does this.
  void Start(std::initializer_list<std::string> arguments) {
    Made->Arguments()->Clear();
    Made->Arguments()->Add("--child");
    for (const std::string& each : arguments) Made->Arguments()->Add(each);
    Made->Execute();
  }
  std::unique_ptr<TProcess> Made;
};

TEST_F(Process, IsHeardToItsEnd) {
  std::string heard;
  int finished = 0;
  Made->OnOutput = [&](TObject*, const std::string& text) { heard += text; };
  Made->OnFinished = [&](TObject*) { ++finished; };
  EXPECT_THROW(Made->ExitCode(), EInvalidOperation);
  Start({"both"});
  EXPECT_THROW(Made->Execute(), EInvalidOperation);
  EXPECT_NE(Made->ProcessId(), 0u);
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->ExitCode(), 7);
  EXPECT_EQ(Made->Output(), "one ");
  EXPECT_EQ(Made->Errors(), "two ");
  EXPECT_EQ(heard, "one ");
  EXPECT_EQ(finished, 1);
  EXPECT_EQ(Made->ProcessId(), 0u);
  Made->SetOptions({poCaptureOutput, poErrorsToOutput});
  Start({"both"});
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->Output(), "one two ");
  EXPECT_EQ(Made->Errors(), "");
}

TEST_F(Process, GetsItsArgumentsAsTheyAre) {
  std::mt19937 random(5);
  const std::string pieces[] = {"\"", "\\", " ", "\t", "a", "ä", "%PATH%", "^", "&", "'", ""};
  std::string expected;
  Made->Arguments()->Clear();
  for (const char* each : {"--child", "arguments"}) Made->Arguments()->Add(each);
  for (int i = 0; i < 500; ++i) {
    std::string argument;
    for (unsigned j = random() % 8; j > 0; --j) argument += pieces[random() % std::size(pieces)];
    Made->Arguments()->Add(argument);
    expected += std::to_string(argument.size()) + ":" + argument;
  }
  Made->Execute();
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->Output(), expected);
}

TEST_F(Process, ReadsWhatIsWrittenToItWhileItWrites) {
  Start({"echo"});
  std::string written;
  for (int i = 0; i < 20; ++i) {
    const std::string block(50000, static_cast<char>('a' + i));
    Made->WriteInput(block);
    written += block;
  }
  Made->EndInput();
  EXPECT_THROW(Made->WriteInput("more"), EInvalidOperation);
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_TRUE(Made->Output() == written);
  Start({"flood", "5000"});
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->Output().size(), 5000000u);
}

TEST_F(Process, IsEndedByItsLimitByCodeOrWithTheComponent) {
  Made->SetTimeLimit(300);
  Start({"sleep"});
  Made->WriteInput(std::string(500000, 'x'));  // Nobody reads it.
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_TRUE(Made->TimedOut());
  EXPECT_EQ(Made->Output(), "ready");
  Made->SetTimeLimit(0);
  Start({"sleep"});
  EXPECT_FALSE(Made->WaitFor(100));
  Made->Terminate(42);
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->ExitCode(), 42);
  EXPECT_FALSE(Made->TimedOut());
  Made->SetOptions({poCaptureOutput, poEndWithThisOne});
  Start({"sleep"});
  const HANDLE program = ::OpenProcess(SYNCHRONIZE, FALSE, Made->ProcessId());
  ASSERT_NE(program, nullptr);
  Made.reset();
  EXPECT_EQ(::WaitForSingleObject(program, Long), WAIT_OBJECT_0);
  ::CloseHandle(program);
}

TEST_F(Process, MayBeFreedByWhatItTells) {
  const auto play = [&](auto bind) {
    Made = std::make_unique<TProcess>(nullptr);
    std::array<wchar_t, 1024> self{};
    ::GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size()));
    Made->SetFileName(ToUtf8(self.data()));
    bind();
    Start({"both"});
    EXPECT_TRUE(Made->WaitFor(Long));
    EXPECT_EQ(Made, nullptr);
  };
  play([&] { Made->OnOutput = [&](TObject*, const std::string&) { Made.reset(); }; });
  play([&] { Made->OnErrorOutput = [&](TObject*, const std::string&) { Made.reset(); }; });
  play([&] { Made->OnFinished = [&](TObject*) { Made.reset(); }; });
}

TEST_F(Process, HasTheEnvironmentAndFolderThatItIsGiven) {
  ::SetEnvironmentVariableA("VCL_GIVEN", "outer");
  Start({"environment", "VCL_GIVEN"});
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->Output(), "outer");
  Made->Environment()->Add("vcl_given=inner");
  Start({"environment", "VCL_GIVEN"});
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->Output(), "inner");
  Made->Environment()->Clear();
  Made->Environment()->Add("VCL_GIVEN=");
  Start({"environment", "VCL_GIVEN"});
  ASSERT_TRUE(Made->WaitFor(Long));
  EXPECT_EQ(Made->Output(), "(none)");
}

TEST_F(Process, RefusesWhatCannotBeStarted) {
  const auto refuses = [&](const std::string& fileName, const std::string& why) {
    Made->SetFileName(fileName);
    try {
      Made->Execute();
      ADD_FAILURE() << fileName;
    } catch (const EProcessError& error) {
      EXPECT_THAT(error.what(),
                  testing::AllOf(testing::HasSubstr(fileName), testing::HasSubstr(why)));
    }
    EXPECT_FALSE(Made->Running());
  };
  refuses("", "without a name");
  refuses("no-such-program", "PATH");
  refuses("C:\\nowhere\\it.exe", "cannot be started");
  refuses("tool.bat", "batch");
  Made->Arguments()->Add(std::string(40000, 'x'));
  refuses("cmd", "longer");
  Made->Arguments()->Clear();
  Made->Environment()->Add("no value");
  Made->SetFileName("cmd");
  EXPECT_THROW(Made->Execute(), EProcessError);
  EXPECT_THROW(Made->SetTimeLimit(-1), EArgumentOutOfRangeException);
}

}  // namespace
}  // namespace vcl
