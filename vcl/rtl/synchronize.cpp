// How the main thread runs what threads ask it to.
#include <algorithm>
#include <utility>

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/threadstate.h"

namespace vcl {
namespace {

const std::thread::id MainThread = std::this_thread::get_id();

/// Runs the call's method, and frees it where it has run.
void Perform(TThreadCall& call) {
  const auto method = std::move(call.Method);
  try {
    method();
  } catch (...) {
    if (!call.Awaited) return BaseApplication().HandleCurrentException(nullptr);
    call.Error = std::current_exception();
  }
}

}  // namespace

bool InMainThread() { return std::this_thread::get_id() == MainThread; }

bool CheckSynchronize(int timeout) {
  if (!InMainThread()) throw EThread("Only the main thread can run the threads' calls");
  TMainThreadCalls& calls = TMainThreadCalls::Instance();
  TThreadLock lock = calls.Lock();
  if (timeout > 0) calls.Await(lock, std::chrono::milliseconds(timeout), [] { return false; });
  return calls.Run(lock);
}

void SetWakeMainThread(void (*wake)()) {
  TMainThreadCalls& calls = TMainThreadCalls::Instance();
  const TThreadLock lock = calls.Lock();
  calls.SetWake(wake);
}

TMainThreadCalls& TMainThreadCalls::Instance() {
  // Never freed: a thread may outlive the end of main.
  static auto& calls = *new TMainThreadCalls;
  return calls;
}

std::ptrdiff_t TMainThreadCalls::CountReady() const {
  return std::ranges::count_if(FCalls, &Ready);
}

void TMainThreadCalls::Add(TCallRef call) {
  FCalls.push_back(std::move(call));
  WakeIfNeeded();
}

void TMainThreadCalls::WakeIfNeeded() {
  if (std::ranges::none_of(FCalls, &Ready)) return;
  Notify();
  if (!FWake || std::exchange(FWoken, true)) return;
  FWake();
}

void TMainThreadCalls::SetWake(void (*wake)()) {
  FWake = wake;
  FWoken = false;
  WakeIfNeeded();
}

std::vector<TCallRef> TMainThreadCalls::Forget(const TThreadState& caller) {
  std::vector<TCallRef> forgotten;
  std::erase_if(FCalls, [&](TCallRef& call) {
    const bool its = call->Caller.get() == &caller;
    if (its) forgotten.push_back(call);
    return its;
  });
  return forgotten;
}

TCallRef TMainThreadCalls::TakeReady() {
  const auto found = std::ranges::find_if(FCalls, &Ready);
  if (found == FCalls.end()) return nullptr;
  TCallRef call = std::move(*found);
  FCalls.erase(found);
  return call;
}

bool TMainThreadCalls::Run(TThreadLock& lock) {
  FWoken = false;
  // What comes meanwhile waits for the next time, so that calls without end can't keep the main
  // thread here. A method that lets messages be handled may bring this about again, inside.
  const std::ptrdiff_t count = CountReady();
  for (std::ptrdiff_t i = 0; i < count; ++i) {
    const TCallRef call = TakeReady();
    if (!call) break;
    lock.unlock();
    Perform(*call);
    lock.lock();
    call->Done = true;
    call->Caller->Changed.notify_all();
  }
  return count > 0;
}

}  // namespace vcl
