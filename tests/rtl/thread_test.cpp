// Threads: their course, what they ask of the main thread, how they rest and end.
#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "vcl/rtl/classes.h"

using namespace vcl;
using std::chrono::milliseconds;

namespace {

using TClock = std::chrono::steady_clock;

/// A thread that runs a lambda.
class TWorker : public TThread {
 public:
  explicit TWorker(std::function<void(TWorker&)> work) : FWork(std::move(work)) {}
  ~TWorker() override { EndThread(); }
  using TThread::Queue;
  using TThread::ReturnValue;
  using TThread::SetReturnValue;
  using TThread::Sleep;
  using TThread::Synchronize;

 protected:
  void Execute() override { FWork(*this); }

 private:
  std::function<void(TWorker&)> FWork;
};

/// Runs threads' calls until the condition holds; false when it does not in time.
bool RunUntil(const std::function<bool()>& condition, milliseconds patience = milliseconds(5000)) {
  const auto end = TClock::now() + patience;
  while (!condition()) {
    if (TClock::now() > end) return false;
    CheckSynchronize(1);
  }
  return true;
}

TEST(Thread, IsSuspendedUntilStartedAndWaitedFor) {
  std::atomic<bool> ran = false;
  TWorker thread([&](TWorker& self) {
    ran = !InMainThread();
    self.SetReturnValue(7);
  });
  EXPECT_TRUE(thread.Suspended());
  EXPECT_THROW(thread.WaitFor(), EThread);
  EXPECT_FALSE(ran);
  thread.Start();
  EXPECT_EQ(thread.WaitFor(), 7);
  EXPECT_TRUE(ran);
  EXPECT_TRUE(thread.Finished());
  EXPECT_THROW(thread.Start(), EThread);
}

TEST(Thread, CallsRunInTheMainThreadInOrderAndAreWaitedFor) {
  std::string log;
  bool inMain = true;
  TWorker thread([&](TWorker& self) {
    self.Queue([&] { log += "queued "; });
    for (const char* text : {"a ", "b "}) {
      self.Synchronize([&] {
        inMain = inMain && InMainThread();
        log += text;
      });
    }
    log += "end";  // The main thread waits for this one.
  });
  EXPECT_FALSE(CheckSynchronize());
  thread.Start();
  thread.WaitFor();
  EXPECT_EQ(log, "queued a b end");
  EXPECT_TRUE(inMain);
}

TEST(Thread, WhatACallRaisesComesBackAndWhatExecuteRaisesIsKept) {
  TWorker thread([](TWorker& self) {
    try {
      self.Synchronize([] { throw EConvertError("from the call"); });
    } catch (const EConvertError& error) {
      throw EInOutError(error.Message() + ", raised again");
    }
  });
  bool told = false;
  thread.OnTerminate = [&](TObject* sender) { told = sender == &thread && InMainThread(); };
  EXPECT_EQ(thread.FatalException(), nullptr);
  thread.Start();
  thread.WaitFor();
  EXPECT_TRUE(told);
  ASSERT_NE(thread.FatalException(), nullptr);
  try {
    std::rethrow_exception(thread.FatalException());
  } catch (const EInOutError& error) {
    EXPECT_EQ(error.Message(), "from the call, raised again");
  }

  TWorker silent([](TWorker&) { throw EAbort("not kept"); });
  silent.Start();
  silent.WaitFor();
  EXPECT_EQ(silent.FatalException(), nullptr);
}

TEST(Thread, OnlyTheMainThreadRunsCalls) {
  TWorker thread([](TWorker& self) {
    EXPECT_THROW(CheckSynchronize(), EThread);
    EXPECT_THROW(self.WaitFor(), EThread);
  });
  thread.Start();
  thread.WaitFor();
  EXPECT_EQ(thread.FatalException(), nullptr);
}

TEST(Thread, SuspendsItselfAndIsEndedWhileItRests) {
  std::atomic<int> steps = 0;
  TWorker thread([&](TWorker& self) {
    steps = 1;
    self.Suspend();
    steps = 2;
    self.Suspend();
    steps = 3;
    EXPECT_FALSE(self.Sleep(3600 * 1000));
  });
  thread.Start();
  ASSERT_TRUE(RunUntil([&] { return steps == 1 && thread.Suspended(); }));
  thread.Resume();
  ASSERT_TRUE(RunUntil([&] { return steps == 2 && thread.Suspended(); }));
  thread.Terminate();
  thread.WaitFor();
  EXPECT_EQ(steps, 3);
}

TEST(Thread, IsFreedWhileItsCallWaitsOrRuns) {
  int calls = 0;
  bool unwound = false;
  const auto work = [&](TWorker& self) {
    struct TUnwind {
      bool& Flag;
      ~TUnwind() { Flag = true; }
    } const unwind{unwound};
    self.Synchronize([&] { ++calls; });
    ADD_FAILURE() << "the call was dropped";
  };
  auto waiting = std::make_unique<TWorker>(work);
  waiting->Start();
  std::this_thread::sleep_for(milliseconds(30));
  waiting.reset();
  EXPECT_EQ(calls, 0);
  EXPECT_TRUE(unwound);

  // A call frees the thread that waits for it.
  std::unique_ptr<TWorker> running;
  running = std::make_unique<TWorker>([&](TWorker& self) {
    self.Synchronize([&running, &calls] {
      running.reset();
      ++calls;
    });
  });
  running->Start();
  EXPECT_TRUE(RunUntil([&] { return calls == 1; }));
  EXPECT_EQ(running, nullptr);
  EXPECT_FALSE(CheckSynchronize());

  // Freed before it was ever started, or while it rests.
  TWorker never([](TWorker&) { ADD_FAILURE(); });
  TWorker resting([](TWorker& self) { self.Suspend(); });
  resting.Start();
}

TEST(Thread, FreesItselfAfterItHasToldItsEnd) {
  std::string log;
  struct TTelling : TWorker {
    TTelling(std::string& log) : TWorker([](TWorker&) {}), Log(log) {}
    ~TTelling() override {
      EndThread();
      Log += InMainThread() ? "freed" : "freed elsewhere";
    }
    std::string& Log;
  };
  auto* thread = new TTelling(log);
  thread->SetFreeOnTerminate(true);
  thread->OnTerminate = [&](TObject*) { log += "told "; };
  thread->Start();
  EXPECT_THROW(thread->WaitFor(), EThread);
  EXPECT_TRUE(RunUntil([&] { return log == "told freed"; })) << log;

  // Freed by hand after all, it is freed once.
  auto* other = new TTelling(log);
  other->SetFreeOnTerminate(true);
  other->Start();
  while (!other->Finished()) std::this_thread::sleep_for(milliseconds(1));
  delete other;
  EXPECT_FALSE(CheckSynchronize());
}

TEST(Thread, CallsInsideACallAreRunToo) {
  int inner = 0, outer = 0;
  TWorker second([&](TWorker& self) { self.Synchronize([&] { ++inner; }); });
  TWorker first([&](TWorker& self) {
    self.Synchronize([&] {
      second.Start();
      second.WaitFor();
      EXPECT_EQ(inner, 1);
      ++outer;
    });
  });
  first.Start();
  first.WaitFor();
  EXPECT_EQ(outer, 1);
}

TEST(Thread, ACallThatFreesTheAwaitedThreadEndsTheWait) {
  std::unique_ptr<TWorker> thread;
  thread = std::make_unique<TWorker>(
      [&](TWorker& self) { self.Synchronize([&thread] { thread.reset(); }); });
  thread->Start();
  thread->WaitFor();
  EXPECT_EQ(thread, nullptr);
}

TEST(Thread, ItsPriorityIsTheSystemsFromItsBegin) {
  std::atomic<bool> begun = false, go = false;
  TWorker thread([&](TWorker& self) {
    begun = true;
    while (!go) self.Sleep(1);
  });
  thread.SetPriority(tpLower);
  thread.Start();
  ASSERT_TRUE(RunUntil([&] { return begun.load(); }));
  EXPECT_EQ(thread.Priority(), tpLower);
  thread.SetPriority(tpIdle);
  EXPECT_EQ(thread.Priority(), tpIdle);
  go = true;
  thread.WaitFor();
}

std::atomic<int> Wakes = 0;

TEST(Thread, WakesTheMainThreadOnceForCallsThatWait) {
  Wakes = 0;
  std::atomic<int> asking = 0;
  int calls = 0;
  const auto ask = [&](TWorker& self) {
    ++asking;
    self.Synchronize([&] { ++calls; });
  };
  TWorker first(ask), second(ask);
  first.Start();
  second.Start();
  while (asking < 2) std::this_thread::sleep_for(milliseconds(1));
  std::this_thread::sleep_for(milliseconds(30));
  SetWakeMainThread([] { ++Wakes; });
  EXPECT_EQ(Wakes, 1);  // What waited already.
  CheckSynchronize();
  EXPECT_EQ(calls, 2);
  TWorker third(ask);
  third.Start();
  while (Wakes < 2) std::this_thread::sleep_for(milliseconds(1));
  third.Suspend();
  CheckSynchronize();
  EXPECT_EQ(calls, 2);
  third.Resume();
  EXPECT_EQ(Wakes, 3);
  CheckSynchronize();
  EXPECT_EQ(calls, 3);
  SetWakeMainThread(nullptr);
}

TEST(Thread, ManyCallNoneIsLost) {
  constexpr int threads = 50, each = 200;
  int calls = 0;
  std::vector<std::unique_ptr<TWorker>> workers;
  for (int i = 0; i < threads; ++i) {
    workers.push_back(std::make_unique<TWorker>([&](TWorker& self) {
      for (int n = 0; n < each; ++n) {
        self.Synchronize([&] { ++calls; });
        if (n % 50 == 0) self.Sleep(1);
      }
    }));
    workers.back()->Start();
  }
  for (int i = 0; i < 2000; ++i) {
    TWorker& worker = *workers[static_cast<std::size_t>(i) % threads];
    worker.Suspend();
    CheckSynchronize();
    worker.Resume();
  }
  for (auto& worker : workers) worker->WaitFor();
  EXPECT_EQ(calls, threads * each);
}

}  // namespace
