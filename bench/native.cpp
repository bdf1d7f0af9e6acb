// Prints how long what has no window takes, as ratios to what other programs need, measured in one
// run.
#include <cstdio>

#include "bench/mail.h"
#include "bench/records.h"
#include "bench/views.h"

int main() {
  std::printf("# Performance without a window\n\nRatios of medians; in brackets the two times.\n");
  bench::Mail();
  bench::Views();
  bench::Records();
}
