// Prints how long painting takes, as ratios to what the system itself needs, measured in one run.
#include <cstdio>

#include "bench/backgrounds.h"
#include "bench/forms.h"
#include "bench/gauge.h"
#include "host/vcl/win32.h"

int main() {
  ::SetConsoleOutputCP(CP_UTF8);
  std::printf("# Performance\n\nRatios of medians; in brackets the two times.\n");
  bench::Backgrounds();
  bench::Forms();
  bench::Gauge();
}
