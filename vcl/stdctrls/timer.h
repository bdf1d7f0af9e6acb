// TTimer: an event at intervals.
#pragma once

#include "vcl/rtl/component.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/systemtypes.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

/// Fires OnTimer in the message loop of the thread that set it, as long as it is enabled, has an
/// interval and the event has a handler when the interval is over.
class VCL_API TTimer : public TComponent {
 public:
  explicit TTimer(TComponent* owner);
  ~TTimer() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Enabled() const { return FEnabled; }
  /// False stops the timer.
  void SetEnabled(bool enabled);
  std::uint32_t Interval() const { return FInterval; }
  /// Milliseconds; 0 stops the timer. A new interval begins to count from now.
  void SetInterval(std::uint32_t interval);

  /// An interval is over.
  TNotifyEvent OnTimer;

 protected:
  virtual void Timer();
  void Loaded() override;

 private:
  static void __stdcall TimerProc(HWND window, UINT message, UINT_PTR id, DWORD time);
  void Restart();
  void Stop();

  bool FEnabled = true;
  std::uint32_t FInterval = 1000;
  UINT_PTR FTimer = 0;
};

}  // namespace vcl
