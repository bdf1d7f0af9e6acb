// How positions are computed: rounding, and the system's multiplication with division.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace qel {

/// The nearest integer; of two equally near ones the even one.
inline int Round(double value) { return static_cast<int>(std::lrint(value)); }

/// number * numerator / denominator, to the nearest integer, halves away from zero; -1 when the
/// denominator is 0 or the result takes more than 32 bits. The same as the system's MulDiv, but
/// without leaving the module, as painting asks for it thousands of times.
inline int MulDiv(std::int64_t number, int numerator, int denominator) {
  if (denominator == 0) return -1;
  const bool flip = denominator < 0;
  const std::int64_t divisor = flip ? -std::int64_t{denominator} : denominator;
  const std::int64_t product = (flip ? -number : number) * numerator;
  const std::int64_t dividend = product + (product < 0 ? -(divisor / 2) : divisor / 2);
  constexpr std::int64_t small = std::numeric_limits<std::int32_t>::max();
  if (dividend >= -small && dividend <= small && divisor <= small) {
    // A processor of 32 bits divides numbers of 64 in a call that takes five times as long.
    return static_cast<std::int32_t>(dividend) / static_cast<std::int32_t>(divisor);
  }
  const std::int64_t result = dividend / divisor;
  return result > small || result < -small ? -1 : static_cast<int>(result);
}

}  // namespace qel
