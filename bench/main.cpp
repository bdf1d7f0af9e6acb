// Prints how long painting, forms, grids, dates and settings take, as ratios to what the system
// itself or the standard library needs, measured in one run.
#include <cstdio>

#include "bench/backgrounds.h"
#include "bench/dates.h"
#include "bench/forms.h"
#include "bench/gauge.h"
#include "bench/grids.h"
#include "bench/settings.h"
#include "vcl/rtl/win32.h"

int main() {
  ::SetConsoleOutputCP(CP_UTF8);
  std::printf("# Performance\n\nRatios of medians; in brackets the two times.\n");
  bench::Backgrounds();
  bench::Gauge();
  bench::Forms();
  bench::Grids();
  bench::Dates();
  bench::Settings();
}
