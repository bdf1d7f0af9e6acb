// TQELApplication: many hear what the application tells, beside its own events.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testing::ElementsAre;
using TLog = std::vector<std::string>;

class ApplicationEvents : public testing::Test {
 protected:
  ApplicationEvents() {
    for (const char* name : {"1", "2"}) Listeners.push_back(New(name));
  }
  ~ApplicationEvents() override {
    auto* application = vcl::Application();
    application->OnException = nullptr;
    application->OnMessage = nullptr;
    application->OnHint = nullptr;
  }
  std::unique_ptr<TQELApplication> New(const std::string& name) {
    auto listener = std::make_unique<TQELApplication>(nullptr);
    const auto log = [this, name](const std::string& what) { Log.push_back(what + name); };
    listener->OnHint = [=](vcl::TObject*) { log("hint"); };
    listener->OnEndSession = [=](vcl::TObject*) { log("end"); };
    listener->OnDisplayChange = [=](vcl::TObject*) { log("display"); };
    listener->OnSettingsChange = [=](vcl::TObject*, const std::string& section) {
      log("settings " + section + " ");
    };
    listener->OnPowerChange = [=](vcl::TObject*, TQELPowerChange change) {
      log("power" + std::to_string(change) + " ");
    };
    listener->OnException = [=](vcl::TObject*, const std::exception& error, bool& handled) {
      log(error.what() + std::string(handled ? "! " : " "));
      handled = true;
    };
    return listener;
  }
  TLog Take() { return std::exchange(Log, {}); }
  static LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return ::SendMessageW(vcl::Application()->Handle(), message, wParam, lParam);
  }

  TLog Log;
  std::vector<std::unique_ptr<TQELApplication>> Listeners;
};

TEST_F(ApplicationEvents, AllHearInTheirOrderBehindTheApplicationsOwn) {
  auto* application = vcl::Application();
  application->OnHint = [this](vcl::TObject*) { Log.push_back("own"); };
  application->SetHint("one");
  EXPECT_THAT(Take(), ElementsAre("own", "hint1", "hint2"));
  Listeners[0]->OnHint = [this](vcl::TObject*) {
    Log.push_back("last");
    Listeners[1].reset();
    Listeners[0].reset();
  };
  application->SetHint("two");
  EXPECT_THAT(Take(), ElementsAre("own", "last")) << "those that were freed hear no more";
  application->SetHint("three");
  EXPECT_THAT(Take(), ElementsAre("own"));
}

TEST_F(ApplicationEvents, ErrorsAreHeardByAllAndDealtWithByOne) {
  auto* application = vcl::Application();
  application->HandleException(nullptr, vcl::Exception("bad"));
  EXPECT_THAT(Take(), ElementsAre("bad 1", "bad! 2"));
  application->HandleException(nullptr, vcl::EAbort("silent"));
  EXPECT_THAT(Take(), ElementsAre());
  application->OnException = [this](vcl::TObject*, const std::exception&) { Log.push_back("own"); };
  application->HandleException(nullptr, vcl::Exception("bad"));
  EXPECT_THAT(Take(), ElementsAre("own", "bad! 1", "bad! 2"));
  application->OnException = nullptr;
  Listeners.clear();
  testinput::TBoxAnswer box(IDOK);
  application->HandleException(nullptr, vcl::Exception("bad"));
  EXPECT_TRUE(box.Wait()) << "nobody has dealt with it";
}

TEST_F(ApplicationEvents, OneThatRaisesKeepsNobodyFromHearing) {
  Listeners[0]->OnHint = [](vcl::TObject*) { throw vcl::Exception("in the first"); };
  EXPECT_THROW(vcl::Application()->SetHint("raised"), vcl::Exception);
  EXPECT_THAT(Take(), ElementsAre("hint2"));
}

TEST_F(ApplicationEvents, TheSystemsBroadcastsComeOnce) {
  Send(WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"intl"));
  EXPECT_THAT(Take(), ElementsAre("settings intl 1", "settings intl 2"));
  Send(WM_SETTINGCHANGE);
  EXPECT_THAT(Take(), ElementsAre("settings  1", "settings  2"));
  Send(WM_DISPLAYCHANGE);
  EXPECT_THAT(Take(), ElementsAre("display1", "display2"));
  Send(WM_POWERBROADCAST, PBT_APMSUSPEND);
  Send(WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC);
  Send(WM_POWERBROADCAST, PBT_APMRESUMESUSPEND);
  EXPECT_THAT(Take(), ElementsAre("power1 1", "power1 2", "power2 1", "power2 2"));
}

TEST_F(ApplicationEvents, OneThatRefusesKeepsTheSession) {
  EXPECT_EQ(Send(WM_QUERYENDSESSION), TRUE);
  Listeners[0]->OnQueryEndSession = [](vcl::TObject*, bool& canEnd) { canEnd = false; };
  Listeners[1]->OnQueryEndSession = [this](vcl::TObject*, bool& canEnd) {
    Log.push_back(canEnd ? "asked" : "told");
    canEnd = true;
  };
  EXPECT_EQ(Send(WM_QUERYENDSESSION), FALSE);
  EXPECT_FALSE(vcl::Application()->SessionEnding());
  EXPECT_THAT(Take(), ElementsAre("asked")) << "of its own opinion";
}

TEST_F(ApplicationEvents, MessagesAndIdleTime) {
  vcl::TForm form(nullptr);
  form.Show();
  testinput::Pump();
  constexpr UINT message = WM_APP + 3;
  Listeners[0]->OnMessage = [](MSG& each, bool& handled) {
    if (each.message == message) handled = true;
  };
  Listeners[1]->OnMessage = [this](MSG& each, bool& handled) {
    if (each.message == message) Log.push_back(handled ? "handled" : "not handled");
  };
  int idle = 0;
  Listeners[0]->OnIdle = [&](vcl::TObject*, bool& done) { done = ++idle > 2; };
  Listeners[1]->OnIdle = [](vcl::TObject*, bool& done) { done = true; };
  ::PostMessageW(form.Handle(), message, 0, 0);
  ::SetTimer(form.Handle(), 1, 500, nullptr);
  vcl::Application()->ProcessMessages();
  EXPECT_THAT(Take(), ElementsAre("handled")) << "all hear";
  while (idle < 3) vcl::Application()->HandleMessage();
}

TEST_F(ApplicationEvents, HintsSettingsAreLeftAloneOrPutBack) {
  auto* application = vcl::Application();
  const vcl::TColor color = application->HintColor();
  const int pause = application->HintPause();
  Listeners[0]->SetHintColor(vcl::clRed);
  Listeners[0]->SetHintPause(77);
  Listeners[0]->SetHintPause(-2);
  EXPECT_EQ(application->HintColor(), vcl::clRed);
  EXPECT_EQ(application->HintPause(), 77);
  Listeners[0]->SetHintPause(-1);
  EXPECT_EQ(application->HintPause(), pause);
  Listeners.clear();
  EXPECT_EQ(application->HintColor(), color);
}

}  // namespace
}  // namespace qel
