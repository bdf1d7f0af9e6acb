// The system's clock and its counter of milliseconds in a test's hands.
#pragma once

#include "tests/support/importpatch.h"

/// While it lives, the package sees the clock, which a user may set, and the counter, which only
/// goes on, as far from the true ones as the test says.
class TTestClocks {
 public:
  TTestClocks()
      : FCounter("qel.dll", "GetTickCount64", &Counter),
        FClock("qel.dll", "GetSystemTimeAsFileTime", &Clock) {
    FCounterAhead = FClockAhead = 0;
  }
  /// Seconds go by.
  static void Pass(int seconds) {
    FCounterAhead += 1000LL * seconds;
    FClockAhead += 1000LL * seconds;
  }
  /// The clock is set that much later, or earlier.
  static void SetClock(int seconds) { FClockAhead += 1000LL * seconds; }

 private:
  static ULONGLONG WINAPI Counter() {
    return ::GetTickCount64() + static_cast<ULONGLONG>(FCounterAhead);
  }
  static void WINAPI Clock(FILETIME* time) {
    ::GetSystemTimeAsFileTime(time);
    ULARGE_INTEGER units{{time->dwLowDateTime, time->dwHighDateTime}};
    units.QuadPart += static_cast<ULONGLONG>(FClockAhead * 10000);
    *time = {units.LowPart, units.HighPart};
  }

  static inline long long FCounterAhead = 0;  // Milliseconds.
  static inline long long FClockAhead = 0;
  TImportPatch FCounter;
  TImportPatch FClock;
};
