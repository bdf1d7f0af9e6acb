// TScaledMeasure: a value and the fraction that it was scaled by.
#include "vcl/controls/scaling.h"

#include <numeric>

namespace vcl {

namespace {

/// Halves away from zero.
int Rounded(std::int64_t value, std::int64_t m, std::int64_t d) {
  const std::int64_t product = value * m;
  return static_cast<int>((product + (product < 0 ? -d : d) / 2) / d);
}

}  // namespace

int TScaledMeasure::Scale(int value, int m, int d) {
  // Far beyond any fraction of resolutions; the products above stay in range.
  constexpr std::int64_t most = 1 << 24;
  if (value != FNow || FM > most || FD > most) {
    FFrom = value;
    FM = FD = 1;
  }
  FM *= m;
  FD *= d;
  const std::int64_t common = std::gcd(FM, FD);
  FM /= common;
  FD /= common;
  FNow = Rounded(FFrom, FM, FD);
  return FNow;
}

}  // namespace vcl
