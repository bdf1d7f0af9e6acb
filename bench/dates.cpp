// Measuring calendar arithmetic against std::chrono.
#include "bench/dates.h"

#include <chrono>

#include "bench/timing.h"
#include "qel/core/Qelfunctions.h"

namespace bench {

namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month_day;
using std::chrono::years;

constexpr int Count = 100'000;
/// Results end here, so that they are computed.
volatile double Sink;

int DaysOf(int i) { return i % 60 - 30; }
int MonthsOf(int i) { return i % 25 - 12; }
int YearsOf(int i) { return i % 9 - 4; }
/// From 1900 to 2173.
int DayOf(int i) { return 1 + i; }
int LaterDayOf(int i) { return DayOf(i) + i % 5000; }

void Increment() {
  for (int i = 0; i < Count; ++i) {
    Sink = qel::QELIncDate(DayOf(i), DaysOf(i), MonthsOf(i), YearsOf(i));
  }
}

void IncrementPlainly() {
  const sys_days zero = std::chrono::year(1899) / 12 / 30;
  for (int i = 0; i < Count; ++i) {
    const year_month_day from(zero + days(DayOf(i)));
    const sys_days to = sys_days(from + months(MonthsOf(i)) + years(YearsOf(i))) + days(DaysOf(i));
    Sink = static_cast<double>((to - zero).count());
  }
}

void Subtract() {
  int wholeDays = 0, wholeMonths = 0, wholeYears = 0;
  for (int i = 0; i < Count; ++i) {
    qel::QELDateDiff(DayOf(i), LaterDayOf(i), wholeDays, wholeMonths, wholeYears);
    Sink = wholeDays + wholeMonths + wholeYears;
  }
}

void SubtractPlainly() {
  const sys_days zero = std::chrono::year(1899) / 12 / 30;
  for (int i = 0; i < Count; ++i) {
    const year_month_day from(zero + days(DayOf(i))), to(zero + days(LaterDayOf(i)));
    months between = std::chrono::year_month(to.year(), to.month()) -
                     std::chrono::year_month(from.year(), from.month());
    if (to.day() < from.day()) between -= months(1);
    const sys_days whole = from + between;
    Sink = static_cast<double>(between.count() + (sys_days(to) - whole).count());
  }
}

}  // namespace

void Dates() {
  TTable table("100,000 calculations with dates, against std::chrono's",
               "Dates as they are kept, taken apart and put together again. Aim: at most 3.",
               {"100,000"});
  table.Add("QELIncDate", {Compare(Increment, IncrementPlainly)});
  table.Add("QELDateDiff", {Compare(Subtract, SubtractPlainly)});
}

}  // namespace bench
