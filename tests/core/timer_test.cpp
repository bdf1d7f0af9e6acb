// The timer on a thread: when it runs, where its event is handled, how it rests and goes.
#include <gmock/gmock.h>

#include "qel/core/Qelclasses2.h"
#include "tests/support/handles.h"
#include "tests/support/importpatch.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"

#include <tlhelp32.h>  // Needs what stands above.

namespace {

using namespace testinput;
using qel::TQELTimer32;

/// Counts a timer's events. Assigned by code alone it does not run yet.
struct TCounted {
  TCounted() {
    Timer.OnTimer = [this](vcl::TObject* sender) {
      ++Events;
      Right = Right && sender == &Timer && vcl::InMainThread();
    };
  }
  void Start(std::uint16_t interval) { Timer.SetInterval(interval); }

  int Events = 0;
  bool Right = true;
  TQELTimer32 Timer{nullptr};
};

TEST(Timer32, RunsWhileItIsEnabledHasAnIntervalAndAnEvent) {
  TCounted counted;
  PumpFor(30);
  counted.Timer.SetInterval(0);
  PumpFor(30);
  EXPECT_EQ(counted.Events, 0);
  counted.Timer.SetInterval(5);
  EXPECT_TRUE(PumpUntil([&] { return counted.Events >= 3; }));
  counted.Timer.SetEnabled(false);
  const int events = counted.Events;
  PumpFor(40);
  EXPECT_EQ(counted.Events, events);
  counted.Timer.SetEnabled(true);
  EXPECT_TRUE(PumpUntil([&] { return counted.Events >= events + 3; }));
  counted.Timer.OnTimer = nullptr;
  counted.Timer.SetEnabled(true);  // Looks anew, though it changes nothing.
  EXPECT_TRUE(counted.Right);
}

TEST(Timer32, AssigningTheEventAloneDoesNotStartItAndEachSetterDoes) {
  const struct {
    const char* Name;
    void (*Set)(TQELTimer32&);
  } setters[] = {
      {"Enabled", [](TQELTimer32& timer) { timer.SetEnabled(true); }},
      {"Interval", [](TQELTimer32& timer) { timer.SetInterval(timer.Interval()); }},
      {"Priority", [](TQELTimer32& timer) { timer.SetThreadPriority(timer.Priority()); }},
  };
  for (const auto& setter : setters) {
    TCounted counted;
    counted.Timer.OnTimer = nullptr;
    counted.Timer.SetInterval(1);
    counted.Timer.OnTimer = [&](vcl::TObject*) { ++counted.Events; };
    PumpFor(30);
    EXPECT_EQ(counted.Events, 0) << setter.Name;
    setter.Set(counted.Timer);
    EXPECT_TRUE(PumpUntil([&] { return counted.Events > 0; })) << setter.Name;
  }
}

TEST(Timer32, TheRestOfAnIntervalFollowsWhenItGoesOn) {
  TCounted counted;
  counted.Start(400);
  PumpFor(200);
  counted.Timer.SetEnabled(false);
  PumpFor(500);
  EXPECT_EQ(counted.Events, 0);
  counted.Timer.SetInterval(10000);  // Holds from the next interval on.
  const ULONGLONG begin = ::GetTickCount64();
  counted.Timer.SetEnabled(true);
  ASSERT_TRUE(PumpUntil([&] { return counted.Events == 1; }));
  const ULONGLONG rest = ::GetTickCount64() - begin;
  EXPECT_GE(rest, 80u);
  EXPECT_LT(rest, 380u);
  PumpFor(300);
  EXPECT_EQ(counted.Events, 1);
}

TEST(Timer32, AnEventThatWaitsIsHeldBackWhileItIsStopped) {
  TCounted counted;
  counted.Start(1);
  ::Sleep(50);  // The event waits for the main thread now.
  counted.Timer.SetEnabled(false);
  PumpFor(30);
  EXPECT_EQ(counted.Events, 0);
  counted.Timer.SetInterval(60000);
  counted.Timer.SetEnabled(true);
  EXPECT_TRUE(PumpUntil([&] { return counted.Events == 1; }));
}

std::vector<int> Priorities;

TEST(Timer32, ItsPriorityIsGivenToTheThreadOnceAtItsBegin) {
  Priorities.clear();
  const TImportPatch patch(
      "qelhost.dll", "SetThreadPriority", +[](HANDLE, int priority) WINAPI -> BOOL {
        Priorities.push_back(priority);
        return FALSE;  // A refusal does not stop the timer.
      });
  TCounted counted;
  EXPECT_EQ(counted.Timer.Priority(), vcl::tpTimeCritical);
  counted.Timer.SetThreadPriority(vcl::tpHighest);
  counted.Start(1);
  ASSERT_TRUE(PumpUntil([&] { return counted.Events > 0; }));
  counted.Timer.SetThreadPriority(vcl::tpIdle);
  EXPECT_EQ(counted.Timer.Priority(), vcl::tpIdle);
  const int events = counted.Events;
  EXPECT_TRUE(PumpUntil([&] { return counted.Events > events + 2; }));
  counted.Timer.SetEnabled(false);
  EXPECT_EQ(Priorities, std::vector<int>{THREAD_PRIORITY_HIGHEST});
}

TEST(Timer32, TheHandlerMayFreeItsTimer) {
  auto* timer = new TQELTimer32(nullptr);
  bool freed = false;
  timer->OnTimer = [&](vcl::TObject* sender) {
    delete sender;
    freed = true;
  };
  timer->SetInterval(1);
  EXPECT_TRUE(PumpUntil([&] { return freed; }));
  PumpFor(20);
}

TEST(Timer32, TheHandlerMayChangeItsTimer) {
  TQELTimer32 timer(nullptr);
  int events = 0;
  timer.OnTimer = [&](vcl::TObject*) {
    timer.SetThreadPriority(vcl::tpNormal);
    timer.SetInterval(0);
    timer.SetEnabled(false);
    timer.SetEnabled(true);
    if (++events < 3) timer.SetInterval(2);
  };
  timer.SetInterval(1);
  EXPECT_TRUE(PumpUntil([&] { return events == 3; }));
  PumpFor(30);
  EXPECT_EQ(events, 3);
  timer.SetInterval(400);  // After none, a whole one.
  PumpFor(150);
  EXPECT_EQ(events, 3);
}

TEST(Timer32, WhatTheHandlerRaisesGoesToTheApplicationAndTheTimerGoesOn) {
  std::string errors;
  vcl::Application()->OnException = [&](vcl::TObject* sender, const std::exception& error) {
    errors += (sender ? sender->ClassName() : "nobody") + ":" + error.what() + " ";
  };
  {
    TQELTimer32 timer(nullptr);
    int events = 0;
    timer.OnTimer = [&](vcl::TObject*) {
      if (++events <= 2) throw vcl::Exception("e" + std::to_string(events));
    };
    timer.SetInterval(1);
    EXPECT_TRUE(PumpUntil([&] { return events > 3; }));
    auto* freeing = new TQELTimer32(nullptr);
    freeing->OnTimer = [](vcl::TObject* sender) {
      delete sender;
      throw vcl::Exception("gone");
    };
    freeing->SetInterval(1);
    EXPECT_TRUE(PumpUntil([&] { return errors.ends_with("gone "); }));
  }
  vcl::Application()->OnException = nullptr;
  EXPECT_EQ(errors, "TQELTimer32:e1 TQELTimer32:e2 nobody:gone ");
}

TEST(Timer32, ItsFormIsFreedWhileEventsWait) {
  for (int i = 0; i < 20; ++i) {
    vcl::TForm form(nullptr);
    for (int n = 0; n < 3; ++n) {
      auto* timer = new TQELTimer32(&form);
      timer->OnTimer = [](vcl::TObject*) {};
      timer->SetInterval(1);
    }
    if (i % 2) ::Sleep(8);
  }
}

TEST(Timer32, TheApplicationEndsWhileEventsWait) {
  auto* form = vcl::Application()->CreateForm<vcl::TForm>();
  int events = 0;
  for (int n = 0; n < 5; ++n) {
    auto* timer = new TQELTimer32(form);
    timer->OnTimer = [&](vcl::TObject*) {
      if (++events != 10) return;
      vcl::Application()->Terminate();
      ::Sleep(20);
    };
    timer->SetInterval(1);
  }
  vcl::Application()->Run();
  EXPECT_GE(events, 10);
}

/// A form that is read with a timer on it.
class TTimedForm : public vcl::TForm {
 public:
  explicit TTimedForm(vcl::TComponent* owner) : TForm(owner) {}
  static const vcl::TClass& Class() {
    static const vcl::TClass info = vcl::Describe<TTimedForm, vcl::TForm>(
        "TTimedForm", "timer_test",
        {vcl::Field<&TTimedForm::Timer>("Timer"), vcl::Method<&TTimedForm::Tick>("Tick")});
    return info;
  }
  const vcl::TClass& ClassType() const override { return Class(); }
  void Tick(vcl::TObject*) { ++Events; }

  TQELTimer32* Timer = nullptr;
  int Events = 0;
};

TEST(Timer32, ReadFromAFormItStartsWithItsPriority) {
  const std::pair<const char*, bool> cases[] = {
      {"Interval = 1 OnTimer = Tick Priority = tpTimeCritical", true},
      {"Interval = 1 OnTimer = Tick Priority = tpIdle", true},
      {"Interval = 1 OnTimer = Tick", false},
      {"Enabled = False Interval = 1 OnTimer = Tick Priority = tpTimeCritical", false},
      {"Interval = 0 OnTimer = Tick Priority = tpTimeCritical", false},
      {"Interval = 1 Priority = tpTimeCritical", false},
  };
  for (const auto& [properties, runs] : cases) {
    TTimedForm form(nullptr);
    ReadForm(
        std::string("object F: TTimedForm object Timer: TQELTimer32 ") + properties + " end end",
        &form);
    PumpUntil([&] { return form.Events > 0; }, runs ? Patience : 50);
    EXPECT_EQ(form.Events > 0, runs) << properties;
    form.Timer->SetEnabled(form.Timer->Enabled());
    const bool starts = form.Timer->Enabled() && form.Timer->Interval() && form.Timer->OnTimer;
    form.Events = 0;
    PumpUntil([&] { return form.Events > 0; }, starts ? Patience : 50);
    EXPECT_EQ(form.Events > 0, starts) << properties;
  }
}

// Many at once.

int ThreadCount() {
  const HANDLE all = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  int count = 0;
  for (BOOL more = ::Thread32First(all, &entry); more; more = ::Thread32Next(all, &entry)) {
    if (entry.th32OwnerProcessID == ::GetCurrentProcessId()) ++count;
  }
  ::CloseHandle(all);
  return count;
}

DWORD HandleCount() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  return count;
}

constexpr int Crowd = 50;
constexpr int LoadTime = 10000;

void RunCrowd(int milliseconds) {
  std::vector<std::unique_ptr<TCounted>> crowd;
  for (int i = 0; i < Crowd; ++i) {
    crowd.push_back(std::make_unique<TCounted>());
    crowd.back()->Start(static_cast<std::uint16_t>(1 + i % 20));
  }
  const ULONGLONG begin = ::GetTickCount64();
  PumpFor(milliseconds);
  for (auto& each : crowd) each->Timer.SetEnabled(false);
  const auto elapsed = static_cast<int>(::GetTickCount64() - begin);
  std::vector<int> events;
  for (auto& each : crowd) events.push_back(each->Events);
  PumpFor(30);
  for (int i = 0; i < Crowd; ++i) {
    const TCounted& each = *crowd[static_cast<std::size_t>(i)];
    EXPECT_TRUE(each.Right) << i;
    EXPECT_EQ(each.Events, events[static_cast<std::size_t>(i)]) << "stopped, but fired: " << i;
    // How many there are is the machine's matter, as long as none is left out.
    EXPECT_GE(each.Events, milliseconds / 1000) << i;
    EXPECT_LE(each.Events, (elapsed + 500) / (1 + i % 20)) << i;
  }
  // None has been lost on the way: all of them go on.
  for (auto& each : crowd) each->Timer.SetEnabled(true);
  EXPECT_TRUE(PumpUntil([&] {
    for (int i = 0; i < Crowd; ++i) {
      if (crowd[static_cast<std::size_t>(i)]->Events == events[static_cast<std::size_t>(i)])
        return false;
    }
    return true;
  }));
}

TEST(Timer32, FiftyOfThemFireInTheMainThreadAndLeaveNothing) {
  RunCrowd(100);  // What the system makes once and keeps.
  const int threads = ThreadCount();
  const DWORD handles = HandleCount();
  const int windows = handles::UserObjects();
  RunCrowd(LoadTime);
  EXPECT_TRUE(PumpUntil([&] { return ThreadCount() <= threads; }, 60000));
  EXPECT_LE(HandleCount(), handles);
  EXPECT_LE(handles::UserObjects(), windows);
}

TEST(Timer32, TimersThatLeaveNoTimeDoNotLockTheUserOut) {
  vcl::TForm form(nullptr);
  form.SetBounds(300, 300, 200, 200);
  int clicks = 0;
  form.OnClick = [&](vcl::TObject*) { ++clicks; };
  form.Show();
  ASSERT_TRUE(PumpUntil([&] { return form.Active(); }));
  std::vector<std::unique_ptr<TQELTimer32>> busy;
  for (int i = 0; i < 20; ++i) {
    busy.push_back(std::make_unique<TQELTimer32>(nullptr));
    busy.back()->OnTimer = [](vcl::TObject*) { ::Sleep(1); };
    busy.back()->SetInterval(1);
  }
  Click(&form);
  EXPECT_TRUE(PumpUntil([&] { return clicks > 0; }));
}

}  // namespace
