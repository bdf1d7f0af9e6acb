// TQELTimer32: a timer on a thread of its own.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/thread.h"

namespace qel {

class TQELThread;

/// Fires OnTimer in the main thread, again and again: after each interval, which begins when the
/// event before it has been handled. It runs while it is enabled, has an interval and OnTimer is
/// assigned; which is looked at when one of Enabled, Interval and Priority is set, and only then:
/// assigning OnTimer alone does not start it.
///
/// A timer that is stopped in the middle of an interval has the rest of it ahead when it goes on,
/// and one that is stopped while its event waits for the main thread fires it then. What OnTimer
/// raises goes to the application, and the timer goes on. The handler may change the timer, or free
/// it.
class QEL_API TQELTimer32 : public TQELComponent {
 public:
  explicit TQELTimer32(vcl::TComponent* owner);
  ~TQELTimer32() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  bool Enabled() const { return FEnabled; }
  /// False stops the timer.
  void SetEnabled(bool enabled);
  std::uint16_t Interval() const { return FInterval; }
  /// Milliseconds; 0 stops the timer. Holds from the next interval on.
  void SetInterval(std::uint16_t interval);
  vcl::TThreadPriority Priority() const { return FPriority; }
  /// The thread's priority when the timer first runs; a later change is kept but not applied.
  void SetThreadPriority(vcl::TThreadPriority priority);

  /// An interval is over.
  vcl::TNotifyEvent OnTimer;

 protected:
  /// Fires OnTimer.
  virtual void Timer();

 private:
  friend class TQELThread;
  void UpdateTimer();

  bool FEnabled = true;
  // The thread reads these two.
  std::atomic<std::uint16_t> FInterval = 1000;
  std::atomic<vcl::TThreadPriority> FPriority = vcl::tpTimeCritical;
  std::unique_ptr<TQELThread> FThread;
};

/// The thread of a timer: sleeps, and has the main thread fire the event.
class QEL_API TQELThread : public vcl::TThread {
 public:
  /// `owner` is the timer, which outlives its thread.
  explicit TQELThread(TQELTimer32* owner) : FOwner(owner) {}
  ~TQELThread() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 protected:
  void Execute() override;
  /// Calls the owner's Timer.
  void DoTimer();

 private:
  TQELTimer32* FOwner;
};

}  // namespace qel
