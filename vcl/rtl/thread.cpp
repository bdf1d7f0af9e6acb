// TThread: beginning, ending, suspending and waiting for a thread.
#include "vcl/rtl/thread.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/private/threadstate.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

using TClock = std::chrono::steady_clock;

TMainThreadCalls& Calls() { return TMainThreadCalls::Instance(); }
TThreadLock Lock() { return Calls().Lock(); }

/// Rests as long as the thread is suspended.
void Rest(TThreadState& state, TThreadLock& lock) {
  state.Changed.wait(lock, [&] { return !state.Resting(); });
}

void CheckNotFreed(const TThreadState& state) {
  if (state.Freed) throw EAbort("The thread is being freed");
}

void ApplyPriority(const TThreadState& state) {
  os::SetThreadPriority(state.SystemId, state.Priority);
}

/// In the main thread, threads' calls run meanwhile, unless it is for the thread's being freed. The
/// thread may also be waiting for a window of the main thread to answer.
void AwaitEnd(TThreadState& state) {
  const bool inMain = InMainThread();
  TThreadLock lock = Lock();
  while (!state.Finished) {
    if (!inMain) {
      state.Changed.wait(lock);
      continue;
    }
    Calls().Await(lock, std::chrono::milliseconds(10), [&] { return state.Finished; });
    if (state.Finished) return;
    if (!state.Freed) Calls().Run(lock);
    lock.unlock();
    os::AnswerSentMessages();
    lock.lock();
  }
}

}  // namespace

const TClass& TThread::Class() {
  static const TClass info = Describe<TThread, TObject>("vcl::TThread", "vcl/rtl/classes.h", {});
  return info;
}

TThread::TThread() : FState(std::make_shared<TThreadState>()) {}

TThread::~TThread() { EndThread(); }

// Beginning and ending.

void TThread::Start() {
  {
    const TThreadLock lock = Lock();
    if (FState->Started) throw EThread("The thread has been started already");
  }
  Resume();
}

void TThread::Resume() {
  const TThreadLock lock = Lock();
  if (!FState->Started) Begin();
  FState->Suspended = false;
  FState->Changed.notify_all();
  Calls().WakeIfNeeded();
}

/// Begins the thread; the caller holds the lock.
void TThread::Begin() {
  try {
    FState->Thread = std::thread(&TThread::Run, this);
    FState->Started = true;
  } catch (const std::system_error& error) {
    throw EThread(Concat("The system refuses a thread: ", error.what()));
  }
}

void TThread::Run() noexcept {
  const std::shared_ptr<TThreadState> state = FState;
  RunGuarded();
  TellEnd();
  const TThreadLock lock = Lock();
  state->Finished = true;
  state->Changed.notify_all();
  Calls().Notify();
  // The object may be gone from here on.
}

void TThread::RunGuarded() {
  {
    const TThreadLock lock = Lock();
    FState->SystemId = os::CurrentThreadId();
    if (FState->Priority != tpNormal) ApplyPriority(*FState);
  }
  try {
    if (!Terminated()) Execute();
  } catch (const EAbort&) {
    // The silent end.
  } catch (...) {
    const TThreadLock lock = Lock();
    FState->FatalException = std::current_exception();
  }
}

void TThread::TellEnd() {
  try {
    if (OnTerminate) {
      Synchronize([this] {
        try {
          OnTerminate(this);
        } catch (...) {
          BaseApplication().HandleCurrentException(nullptr);
        }
      });
    }
    if (FreeOnTerminate()) Queue([this] { delete this; });
  } catch (const EAbort&) {
    // Freed meanwhile: nobody is there to be told.
  }
}

void TThread::EndThread() {
  std::vector<TCallRef> forgotten;
  {
    const TThreadLock lock = Lock();
    FState->Freed = true;
    FState->Terminated = true;
    FState->Changed.notify_all();
    forgotten = Calls().Forget(*FState);
  }
  if (!FState->Thread.joinable()) return;
  AwaitEnd(*FState);
  FState->Thread.join();
}

void TThread::Terminate() {
  const TThreadLock lock = Lock();
  FState->Terminated = true;
  FState->Changed.notify_all();
  Calls().WakeIfNeeded();
}

int TThread::WaitFor() {
  // A call that runs meanwhile may free the object.
  const std::shared_ptr<TThreadState> state = FState;
  const char* reason = nullptr;
  {
    const TThreadLock lock = Lock();
    if (!state->Started)
      reason = "it has not been started";
    else if (state->Thread.get_id() == std::this_thread::get_id())
      reason = "it is the caller";
    else if (state->FreeOnTerminate)
      reason = "it is freed by itself";
  }
  if (reason) throw EThread(Concat("Can't wait for a thread: ", reason));
  AwaitEnd(*state);
  const TThreadLock lock = Lock();
  return state->ReturnValue;
}

// What the thread itself does.

void TThread::Suspend() {
  TThreadLock lock = Lock();
  FState->Suspended = true;
  FState->Changed.notify_all();
  if (FState->Started && FState->Thread.get_id() == std::this_thread::get_id()) Rest(*FState, lock);
}

bool TThread::Sleep(std::int64_t milliseconds) {
  TThreadLock lock = Lock();
  TClock::duration remaining = std::chrono::milliseconds(milliseconds);
  for (;;) {
    Rest(*FState, lock);
    if (FState->Terminated) return false;
    const TClock::time_point end = TClock::now() + remaining;
    const bool interrupted = FState->Changed.wait_until(
        lock, end, [this] { return FState->Suspended || FState->Terminated; });
    if (!interrupted) return true;
    remaining = std::max(end - TClock::now(), TClock::duration::zero());
  }
}

void TThread::Synchronize(std::function<void()> method) {
  if (InMainThread()) return method();
  auto call = std::make_shared<TThreadCall>(FState, std::move(method), true);
  TThreadLock lock = Lock();
  CheckNotFreed(*FState);
  Calls().Add(call);
  FState->Changed.wait(lock, [&] { return call->Done || FState->Freed; });
  if (!call->Done) CheckNotFreed(*FState);
  Rest(*FState, lock);
  if (call->Error) std::rethrow_exception(call->Error);
}

void TThread::Queue(std::function<void()> method) {
  auto call = std::make_shared<TThreadCall>(FState, std::move(method), false);
  const TThreadLock lock = Lock();
  CheckNotFreed(*FState);
  Calls().Add(std::move(call));
}

// State.

bool TThread::Terminated() const { return FState->Terminated; }

bool TThread::Suspended() const {
  const TThreadLock lock = Lock();
  return FState->Suspended;
}

bool TThread::Finished() const {
  const TThreadLock lock = Lock();
  return FState->Finished;
}

TThreadPriority TThread::Priority() const {
  const TThreadLock lock = Lock();
  if (!FState->Running() || FState->SystemId == 0) return FState->Priority;
  return static_cast<TThreadPriority>(os::ThreadPriority(FState->SystemId));
}

void TThread::SetPriority(TThreadPriority priority) {
  const TThreadLock lock = Lock();
  FState->Priority = priority;
  if (FState->Running() && FState->SystemId != 0) ApplyPriority(*FState);
}

bool TThread::FreeOnTerminate() const {
  const TThreadLock lock = Lock();
  return FState->FreeOnTerminate;
}

void TThread::SetFreeOnTerminate(bool freeOnTerminate) {
  const TThreadLock lock = Lock();
  FState->FreeOnTerminate = freeOnTerminate;
}

std::exception_ptr TThread::FatalException() const {
  const TThreadLock lock = Lock();
  return FState->FatalException;
}

int TThread::ReturnValue() const {
  const TThreadLock lock = Lock();
  return FState->ReturnValue;
}

void TThread::SetReturnValue(int value) {
  const TThreadLock lock = Lock();
  FState->ReturnValue = value;
}

}  // namespace vcl
