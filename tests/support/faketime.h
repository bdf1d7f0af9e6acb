// The package's clock in a test's hands.
#pragma once

#include "tests/support/importpatch.h"
#include "tests/vcl/testinput.h"

/// While it lives, time passes for what moves only when the test says so. The system's timers still
/// have to come.
class TFakeTime {
 public:
  TFakeTime() : FCount("qel.dll", "QueryPerformanceCounter", &Count) { Now = 1000; }

  /// Lets time pass, and everything that moves hear of it.
  static void Pass(double milliseconds) {
    testinput::PumpFor(60);  // What was still to be told of the time before.
    Now += milliseconds;
    testinput::PumpFor(60);
  }

 private:
  static BOOL WINAPI Count(LARGE_INTEGER* count) {
    LARGE_INTEGER frequency;
    ::QueryPerformanceFrequency(&frequency);
    count->QuadPart = static_cast<LONGLONG>(Now * static_cast<double>(frequency.QuadPart) / 1000);
    return TRUE;
  }

  static inline double Now = 0;
  TImportPatch FCount;
};

/// While it lives, the system's user wants no animation.
class TNoAnimation {
 public:
  TNoAnimation() : FPatch("qel.dll", "SystemParametersInfoW", &Answer) {}

 private:
  static BOOL WINAPI Answer(UINT action, UINT parameter, void* value, UINT flags) {
    if (action != SPI_GETCLIENTAREAANIMATION)
      return ::SystemParametersInfoW(action, parameter, value, flags);
    *static_cast<BOOL*>(value) = FALSE;
    return TRUE;
  }
  TImportPatch FPatch;
};
