// What threads and the main thread share: the threads' states, and the calls that wait for the main
// thread.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "vcl/rtl/thread.h"

namespace vcl {

/// A thread's state, which outlives the object while somebody still looks at it. Everything but
/// Terminated and Thread belongs to who holds the lock of TMainThreadCalls.
struct TThreadState {
  std::thread Thread;
  std::atomic<bool> Terminated = false;
  std::condition_variable Changed;
  std::uintptr_t SystemId = 0;
  bool Started = false;
  bool Suspended = true;
  bool Finished = false;
  bool Freed = false;
  bool FreeOnTerminate = false;
  int ReturnValue = 0;
  TThreadPriority Priority = tpNormal;
  std::exception_ptr FatalException;

  /// Asked for rest, which the request to end overrules.
  bool Resting() const { return Suspended && !Terminated; }
  bool Running() const { return Started && !Finished; }
};

/// One call that waits for the main thread.
struct TThreadCall {
  TThreadCall(std::shared_ptr<TThreadState> caller, std::function<void()> method, bool awaited)
      : Caller(std::move(caller)), Method(std::move(method)), Awaited(awaited) {}

  std::shared_ptr<TThreadState> Caller;
  std::function<void()> Method;
  bool Awaited;  ///< The caller waits for it.
  bool Done = false;
  std::exception_ptr Error;
};

using TCallRef = std::shared_ptr<TThreadCall>;
using TThreadLock = std::unique_lock<std::mutex>;

/// The calls that wait for the main thread, in order, and the one lock of all threads' states: it
/// is held for moments only, never while a method runs.
class TMainThreadCalls {
 public:
  static TMainThreadCalls& Instance();
  TThreadLock Lock() { return TThreadLock(FMutex); }

  // The caller holds the lock.
  void Add(TCallRef call);
  /// Takes the thread's calls out and returns them, to be freed without the lock.
  std::vector<TCallRef> Forget(const TThreadState& caller);
  /// Wakes the main thread when a call may run.
  void WakeIfNeeded();
  /// Runs the calls that may run now; false when there is none. Releases the lock meanwhile.
  bool Run(TThreadLock& lock);
  /// Waits until a call may run or the condition holds, at most so long.
  template <class Condition>
  void Await(TThreadLock& lock, std::chrono::milliseconds time, Condition condition) {
    FChanged.wait_for(lock, time, [&] { return CountReady() > 0 || condition(); });
  }
  /// Has those who wait in Await look at their condition.
  void Notify() { FChanged.notify_all(); }
  void SetWake(void (*wake)());

 private:
  /// A suspended thread's call waits with its thread.
  static bool Ready(const TCallRef& call) { return !call->Awaited || !call->Caller->Resting(); }
  std::ptrdiff_t CountReady() const;
  TCallRef TakeReady();

  std::mutex FMutex;
  std::condition_variable FChanged;
  std::deque<TCallRef> FCalls;
  void (*FWake)() = nullptr;
  bool FWoken = false;  // The main thread has been woken and has not come yet.
};

}  // namespace vcl
