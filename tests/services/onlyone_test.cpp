// TQELOnlyOne: this test is the first copy, or another program, and starts further ones.
#include <gmock/gmock.h>

#include "qel/services/Qeltonlyone.h"
#include "tests/services/copy.h"

namespace qel {
namespace {

using testinput::PumpUntil;
using vcl::Application;

class OnlyOne : public testing::Test {
 protected:
  OnlyOne() : Form(nullptr), Other(nullptr) {
    Application()->SetTitle(Title);
    Form.SetCaption(Title);  // Of another class, and so no copy.
    Form.Show();
    PumpUntil([this] { return Form.Active(); });
  }
  ~OnlyOne() override { Application()->SetTitle(""); }
  const std::string Title = "Über guarded " + std::to_string(::GetCurrentProcessId());
  vcl::TForm Form, Other;
};

TEST_F(OnlyOne, CountsWindowsOfTheSameClassAndCaption) {
  const std::tuple<std::string, int, const char*, DWORD> cases[] = {
      {Title, 1, "aNone", 102},       {Title, 2, "aRestoreAndExit", 100},
      {Title, 0, "aNone", 102},       {"über" + Title.substr(5), 1, "aNone", 100},
      {Title + "!", 1, "aExit", 100}, {Title + "!", 0, "aNone", 101},
      {Title + "!", 0, "aExit", 0},   {Title + "!", 0, "aRestoreAndExit", 0},
  };
  for (const auto& [title, instances, onExceed, code] : cases) {
    EXPECT_EQ(TCopy(title, instances, onExceed).ExitCode(), code)
        << title << " " << instances << " " << onExceed;
  }
}

TEST_F(OnlyOne, BringsTheOtherToTheFrontOrEndsItself) {
  const std::tuple<const char*, DWORD, bool> cases[] = {{"aRestoreAndExit", 0, true},
                                                        {"aRestore", 102, true},
                                                        {"aExit", 0, false},
                                                        {"aNone", 102, false}};
  for (const auto& [onExceed, code, restores] : cases) {
    Application()->Minimize();
    ASSERT_TRUE(PumpUntil([this] { return !::IsWindowVisible(Form.Handle()); }));
    EXPECT_EQ(TCopy(Title, 1, onExceed).ExitCode(), code) << onExceed;
    EXPECT_EQ(::IsWindowVisible(Form.Handle()) != FALSE, restores) << onExceed;
    Application()->Restore();
    ASSERT_TRUE(PumpUntil([this] { return ::IsWindowVisible(Form.Handle()) != FALSE; }));
  }
}

TEST_F(OnlyOne, ActivatesTheFormThatWasActiveLast) {
  Other.Show();
  PumpUntil([this] { return Other.Active(); });
  const TCopy stranger("Stranger", 1, "aNone");
  ASSERT_TRUE(PumpUntil([] { return !Application()->Active(); }, 30000));
  EXPECT_EQ(TCopy(Title, 1, "aRestoreAndExit").ExitCode(), 0u);
  EXPECT_TRUE(PumpUntil([this] { return ::GetForegroundWindow() == Other.Handle(); }));
}

TEST_F(OnlyOne, ThereIsOneGuardOnly) {
  auto guard = std::make_unique<TQELOnlyOne>(&Form);
  EXPECT_THAT(
      [&] { TQELOnlyOne second(&Form); },
      testing::ThrowsMessage<Qeltonlyone::TQELDuplicateError>(
          "You can have only one class of type\r\nTQELOnlyOne\r\n, in a project and it must "
          "be on the Mainform"));
  EXPECT_EQ(Form.ComponentCount(), 1);
  guard.reset();
  TQELOnlyOne another(&Form);
}

TEST_F(OnlyOne, TheHandlerMayCheckAgainOrFreeTheGuard) {
  auto* guard = new TQELOnlyOne(&Form);
  guard->SetInstances(0);
  std::string log;
  guard->OnExceeded = [&](vcl::TObject*, int found) {
    log += std::to_string(found);
    if (log.size() < 3) return guard->CheckPrevInstances();
    delete guard;  // Left alone it would end this program.
  };
  guard->CheckPrevInstances();
  EXPECT_EQ(log, "111");
}

}  // namespace
}  // namespace qel
