// Measures that follow the dots per inch without their rounding adding up.
#pragma once

#include <cstdint>

#include "vcl/rtl/api.h"

namespace vcl {

/// What measures are in where nothing else is said: the dots per inch of form files, of the numbers
/// in code, and of a monitor that the user has not set otherwise.
inline constexpr int DefaultPixelsPerInch = 96;

/// Scales one measure again and again from the value that somebody gave it: back at a former
/// resolution it has its former value, however it was rounded in between.
class VCL_API TScaledMeasure {
 public:
  /// The value by m / d, rounded. A value that the last call has not returned is a new one, which
  /// is scaled from from now on.
  int Scale(int value, int m, int d);

 private:
  int FFrom = 0;
  int FNow = 0;
  std::int64_t FM = 1;  // FNow is FFrom by FM / FD.
  std::int64_t FD = 1;
};

}  // namespace vcl
