// TQELTimer32: its settings, and the thread that waits.
#include "qel/core/Qeltimer32.h"

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELTimer32::Class() {
  using T = TQELTimer32;
  using namespace vcl;
  // The constructor sets another priority than the declared one: form files say so of every timer
  // that keeps it, and reading it there is what starts a timer whose event has been read before.
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELTimer32", "qel/core/Qelclasses2.h",
      {
          Property<&T::Enabled, &T::SetEnabled>("Enabled").Default(true),
          Property<&T::Interval, &T::SetInterval>("Interval").Default(1000),
          Event<&T::OnTimer>("OnTimer"),
          Property<&T::Priority, &T::SetThreadPriority>("Priority").Default(tpNormal),
      });
  return info;
}

TQELTimer32::TQELTimer32(vcl::TComponent* owner)
    : TQELComponent(owner), FThread(std::make_unique<TQELThread>(this)) {
  UpdateTimer();
}

TQELTimer32::~TQELTimer32() {
  AnnounceEnd();
  FEnabled = false;
  UpdateTimer();
  FThread.reset();
}

void TQELTimer32::SetEnabled(bool enabled) {
  FEnabled = enabled;
  UpdateTimer();
}

void TQELTimer32::SetInterval(std::uint16_t interval) {
  FInterval = interval;
  UpdateTimer();
}

void TQELTimer32::SetThreadPriority(vcl::TThreadPriority priority) {
  FPriority = priority;
  UpdateTimer();
}

void TQELTimer32::UpdateTimer() {
  if (!FThread->Suspended()) FThread->Suspend();
  if (FInterval != 0 && FEnabled && OnTimer && FThread->Suspended()) FThread->Resume();
}

void TQELTimer32::Timer() { OnTimer(this); }

const vcl::TClass& TQELThread::Class() {
  static const vcl::TClass info =
      vcl::Describe<TQELThread, vcl::TThread>("qel::TQELThread", "qel/core/Qelclasses2.h", {});
  return info;
}

TQELThread::~TQELThread() { EndThread(); }

void TQELThread::Execute() {
  SetPriority(FOwner->Priority());
  while (!Terminated()) {
    const std::uint16_t interval = FOwner->Interval();
    Sleep(interval);
    // A timer that is being stopped has had no interval.
    if (interval != 0 && !Terminated()) Synchronize([this] { DoTimer(); });
  }
}

void TQELThread::DoTimer() {
  TQELTimer32* const timer = FOwner;
  vcl::TWatch watch(timer);
  try {
    timer->Timer();
  } catch (...) {
    vcl::BaseApplication().HandleTimerException(watch.Gone() ? nullptr : timer);
  }
}

}  // namespace qel
