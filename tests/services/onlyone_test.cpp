// TQELOnlyOne: this test is the first copy, or another program, and starts further ones.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "host/vcl/forms.h"
#include "services/Qeltonlyone.h"
#include "tests/services/copy.h"

namespace qel {
namespace {

using namespace Qeltonlyone;
using testinput::PumpUntil;
using vcl::Application;

class OnlyOne : public testing::Test {
 protected:
  OnlyOne() : Form(nullptr), Other(nullptr) {
    Application()->SetTitle(Title);
    Form.SetBounds(100, 100, 200, 100);
    Other.SetBounds(400, 100, 200, 100);
    Form.Show();
    PumpUntil([this] { return Form.Active(); });
  }
  ~OnlyOne() override { Application()->SetTitle(""); }
  const std::string Title = "Über guarded " + std::to_string(::GetCurrentProcessId());
  vcl::TForm Form, Other;
};

TEST_F(OnlyOne, CountsWindowsOfTheSameClassAndCaption) {
  const struct {
    std::string Title;
    int Instances;
    std::string Log;
  } cases[] = {
      {Title, 1, "TQELOnlyOne found 2, freed"},
      {Title, 2, "freed"},
      {Title, 0, "TQELOnlyOne found 2, freed"},
      {"über" + Title.substr(5), 1, "freed"},
      {Title + "!", 1, "freed"},
      {Title + "!", 0, "TQELOnlyOne found 1, freed"},
  };
  Form.SetCaption(Title);  // Of another class, and so no copy.
  for (const auto& each : cases) {
    const TCopy copy(each.Title, each.Instances, "aNone");
    EXPECT_TRUE(copy.CloseForm());
    EXPECT_EQ(copy.ExitCode(), 0u);
    EXPECT_EQ(copy.Log(), each.Log) << each.Title << each.Instances;
  }
}

TEST_F(OnlyOne, BringsTheOtherToTheFrontOrEndsItself) {
  const struct {
    const char* OnExceed;
    bool Ends, Restores;
  } cases[] = {{"aRestoreAndExit", true, true},
               {"aRestore", false, true},
               {"aExit", true, false},
               {"aNone", false, false}};
  for (const auto& each : cases) {
    Application()->Minimize();
    ASSERT_TRUE(PumpUntil([this] { return !::IsWindowVisible(Form.Handle()); }));
    const TCopy copy(Title, 1, each.OnExceed);
    EXPECT_EQ(copy.CloseForm(), !each.Ends) << each.OnExceed;
    EXPECT_EQ(copy.ExitCode(), 0u);
    EXPECT_EQ(copy.Log(), each.Ends ? "TQELOnlyOne found 2, " : "TQELOnlyOne found 2, freed");
    EXPECT_EQ(::IsIconic(Application()->Handle()) == FALSE, each.Restores) << each.OnExceed;
    EXPECT_EQ(::IsWindowVisible(Form.Handle()) != FALSE, each.Restores) << each.OnExceed;
    Application()->Restore();
    ASSERT_TRUE(PumpUntil([this] { return Form.Active(); }));
  }
}

TEST_F(OnlyOne, ActivatesTheFormThatWasActiveLast) {
  Other.Show();
  PumpUntil([this] { return Other.Active(); });
  const TCopy stranger("Stranger", 1, "aNone");
  ASSERT_TRUE(PumpUntil([] { return !Application()->Active(); }, 30000));
  const TCopy copy(Title, 1, "aRestoreAndExit");
  EXPECT_EQ(copy.ExitCode(), 0u);
  EXPECT_TRUE(PumpUntil([this] { return ::GetForegroundWindow() == Other.Handle(); }));
}

TEST_F(OnlyOne, WithoutAnotherCopyItStillEnds) {
  const TCopy copy(Title + "!", 0, "aRestoreAndExit");
  EXPECT_EQ(copy.ExitCode(), 0u);
  EXPECT_EQ(copy.Log(), "TQELOnlyOne found 1, ");
}

TEST_F(OnlyOne, ThereIsOneGuardOnly) {
  auto guard = std::make_unique<TQELOnlyOne>(&Form);
  try {
    TQELOnlyOne second(&Form);
    FAIL() << "A second one was made";
  } catch (const TQELDuplicateError& error) {
    EXPECT_EQ(error.Message(),
              "You can have only one class of type\r\nTQELOnlyOne\r\n, in a "
              "project and it must be on the Mainform");
  }
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
