// Rounding and MulDiv, the latter against the system's.
#include <gmock/gmock.h>

#include <climits>

#include "qel/core/private/arithmetic.h"
#include "vcl/rtl/win32.h"

namespace {

TEST(Arithmetic, RoundsHalvesToTheEvenNumber) {
  const std::pair<double, int> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},  {-0.5, 0},
                                          {-1.5, -2}, {-2.5, -2}, {2.49, 2}, {2.51, 3}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(qel::Round(value), expected) << value;
}

TEST(Arithmetic, MultipliesAndDividesAsTheSystemDoes) {
  const int values[] = {0,  1,  2,   3,    7,     -1,          -2,      -3,      -7,
                        10, 31, 255, -255, 46341, -1000000007, INT_MAX, INT_MIN, INT_MIN + 1};
  for (int a : values) {
    for (int b : values) {
      for (int c : values) {
        // For a number that has no opposite the system's answer is a matter of its version.
        if (c == INT_MIN || (a == INT_MIN && c < 0)) continue;
        EXPECT_EQ(qel::MulDiv(a, b, c), ::MulDiv(a, b, c)) << a << " * " << b << " / " << c;
      }
    }
  }
}

}  // namespace
