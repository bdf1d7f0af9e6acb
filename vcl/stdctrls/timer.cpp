// TTimer: starting and stopping the system's timer.
#include "vcl/stdctrls/timer.h"

#include <unordered_map>

#include "vcl/forms/application.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// The thread's timers by the system's numbers.
thread_local std::unordered_map<UINT_PTR, TTimer*> running;

}  // namespace

const TClass& TTimer::Class() {
  static const TClass info = Describe<TTimer, TComponent>(
      "vcl::TTimer", "vcl/stdctrls/extctrls.h",
      {
          Property<&TTimer::Enabled, &TTimer::SetEnabled>("Enabled").Default(true),
          Property<&TTimer::Interval, &TTimer::SetInterval>("Interval").Default(1000u),
          Event<&TTimer::OnTimer>("OnTimer"),
      });
  return info;
}

TTimer::TTimer(TComponent* owner) : TComponent(owner) { Restart(); }

TTimer::~TTimer() {
  AnnounceEnd();
  Stop();
}

void TTimer::SetEnabled(bool enabled) {
  if (enabled == FEnabled) return;
  FEnabled = enabled;
  Restart();
}

void TTimer::SetInterval(std::uint32_t interval) {
  if (interval == FInterval) return;
  FInterval = interval;
  Restart();
}

void TTimer::Restart() {
  Stop();
  if (!FEnabled || FInterval == 0 || Designing() || Loading()) return;
  FTimer = ::SetTimer(nullptr, 0, FInterval, &TTimer::TimerProc);
  if (!FTimer) RaiseOutOfResources("timer");
  running[FTimer] = this;
}

void TTimer::Stop() {
  if (!FTimer) return;
  ::KillTimer(nullptr, FTimer);
  running.erase(FTimer);
  FTimer = 0;
}

void TTimer::Loaded() {
  TComponent::Loaded();
  Restart();
}

void TTimer::Timer() { OnTimer(this); }

void CALLBACK TTimer::TimerProc(HWND, UINT, UINT_PTR id, DWORD) {
  // A message that was on its way when the timer stopped finds none.
  const auto found = running.find(id);
  if (found == running.end()) return;
  TWatch watch(found->second);
  TTimer* timer = found->second;
  try {
    timer->Timer();
  } catch (...) {
    Application()->HandleTimerException(watch.Gone() ? nullptr : timer);
  }
}

}  // namespace vcl
