// Prints how long painting, forms, grids, lists, dates and settings take, as ratios to what the
// system itself or the standard library needs, measured in one run; arguments name the groups that
// are measured.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string_view>
#include <vector>

#include "bench/backgrounds.h"
#include "bench/dates.h"
#include "bench/fields.h"
#include "bench/files.h"
#include "bench/forms.h"
#include "bench/gauge.h"
#include "bench/grids.h"
#include "bench/lists.h"
#include "bench/painted.h"
#include "bench/settings.h"
#include "vcl/rtl/win32.h"

namespace {

struct TGroup {
  std::string_view Name;
  void (*Measure)();
};
constexpr TGroup Groups[] = {{"backgrounds", bench::Backgrounds},
                             {"gauge", bench::Gauge},
                             {"forms", bench::Forms},
                             {"grids", bench::Grids},
                             {"lists", bench::Lists},
                             {"painted", bench::Painted},
                             {"fields", bench::Fields},
                             {"dates", bench::Dates},
                             {"settings", bench::Settings}};

}  // namespace

int main(int count, char** arguments) {
  ::SetConsoleOutputCP(CP_UTF8);
  if (count == 4 && arguments[1] == std::string_view("--files")) {
    try {
      std::printf("%.3f\n", bench::DoFilesJob(arguments[2], arguments[3]));
      return 0;
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s\n", error.what());
      return 1;
    }
  }
  const std::vector<std::string_view> wanted(arguments + 1, arguments + count);
  for (const std::string_view name : wanted) {
    if (std::ranges::count(Groups, name, &TGroup::Name) > 0) continue;
    std::fprintf(stderr, "There is no group \"%s\" of measurements.\n", name.data());
    return 2;
  }
  std::printf(
      "# Performance\n\nRatios of medians, of forms of the least times; in brackets the two "
      "times.\n");
  for (const TGroup& group : Groups) {
    if (wanted.empty() || std::ranges::count(wanted, group.Name) > 0) group.Measure();
  }
}
