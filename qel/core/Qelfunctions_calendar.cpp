// Calendar arithmetic.
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "qel/core/Qelfunctions.h"
#include "qel/core/private/invaliddate.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace qel {

using vcl::TDateTime;

namespace {

/// A year of the arithmetic has the same days, whichever it is.
constexpr const int (&MonthLengths)[12] = vcl::MonthDays[0];
constexpr int DaysPerYear = 365;

struct TDateParts {
  int Year = 0;
  int Month = 0;
  int Day = 0;
};

TDateParts Decode(TDateTime date) {
  TDateParts parts;
  if (!vcl::TryDecodeDate(date, parts.Year, parts.Month, parts.Day)) RaiseInvalidDate();
  return parts;
}

TDateTime Encode(std::int64_t year, int month, int day) {
  TDateTime date = 0;
  if (year < 1 || year > 9999) RaiseInvalidDate();
  if (!vcl::TryEncodeDate(static_cast<int>(year), month, day, date)) RaiseInvalidDate();
  return date;
}

/// The month that many months away, in its year.
TDateParts MonthFromNow(int months) {
  const TDateParts today = Decode(vcl::Date());
  const int count = today.Year * 12 + today.Month - 1 + months;
  return {count / 12, count % 12 + 1, 1};
}

vcl::TTimeStamp StampOf(TDateTime date) {
  if (!QELValidDate(date)) RaiseInvalidDate();
  return vcl::DateTimeToTimeStamp(date);
}

}  // namespace

bool QELIsLeapYear(int year) { return vcl::IsLeapYear(year); }

int QELDaysPerMonth(int /*year*/, int month) {
  if (month < 1 || month > 12) {
    throw vcl::EArgumentOutOfRangeException(
        vcl::Concat("Month ", vcl::IntToStr(month), " is not from 1 to 12"));
  }
  return MonthLengths[month - 1];
}

TDateTime QELFirstDayOfNextMonth() {
  const TDateParts month = MonthFromNow(1);
  return Encode(month.Year, month.Month, 1);
}

TDateTime QELFirstDayOfPrevMonth() {
  const TDateParts month = MonthFromNow(-1);
  return Encode(month.Year, month.Month, 1);
}

TDateTime QELLastDayOfPrevMonth() {
  const TDateParts month = MonthFromNow(-1);
  return Encode(month.Year, month.Month, MonthLengths[month.Month - 1]);
}

int QELExtractDay(TDateTime date) { return Decode(date).Day; }
int QELExtractMonth(TDateTime date) { return Decode(date).Month; }
int QELExtractYear(TDateTime date) { return Decode(date).Year; }

TDateTime QELIncDate(TDateTime date, int days, int months, int years) {
  const TDateParts from = Decode(date);
  std::int64_t year = std::int64_t{from.Year} + years + months / 12;
  int month = from.Month + months % 12;
  if (month < 1) month += 12, --year;
  if (month > 12) month -= 12, ++year;

  // The day may be any number now, which carries what it has above the 28th into the next month.
  // All years are of one length, so whole ones need no stepping.
  const std::int64_t total = std::int64_t{from.Day} + days;
  year += total / DaysPerYear;
  int day = static_cast<int>(total % DaysPerYear);
  while (day < 1) {
    if (--month < 1) month = 12, --year;
    day += MonthLengths[month - 1];
  }
  while (day > MonthLengths[month - 1]) {
    day -= MonthLengths[month - 1];
    if (++month > 12) month = 1, ++year;
  }
  return Encode(year, month, day);
}

TDateTime QELIncDay(TDateTime date, int days) { return QELIncDate(date, days, 0, 0); }
TDateTime QELIncMonth(TDateTime date, int months) { return QELIncDate(date, 0, months, 0); }
TDateTime QELIncYear(TDateTime date, int years) { return QELIncDate(date, 0, 0, years); }

void QELDateDiff(TDateTime date1, TDateTime date2, int& days, int& months, int& years) {
  TDateParts early = Decode(date1), late = Decode(date2);
  if (date1 > date2) std::swap(early, late);
  if (late.Day < early.Day) {
    if (--late.Month < 1) late.Month = 12, --late.Year;
    late.Day += MonthLengths[late.Month - 1];
  }
  days = late.Day - early.Day;
  if (late.Month < early.Month) late.Month += 12, --late.Year;
  months = late.Month - early.Month;
  years = late.Year - early.Year;
}

double QELMonthsBetween(TDateTime date1, TDateTime date2) {
  int days = 0, months = 0, years = 0;
  QELDateDiff(date1, date2, days, months, years);
  double result = 12 * years + months;
  for (int threshold : {2, 7, 15, 21}) {
    if (days >= threshold) result += 0.25;
  }
  return result;
}

bool QELValidDate(TDateTime date) { return vcl::IsValidDateTime(date); }

int QELDaysInPeriod(TDateTime date1, TDateTime date2) { return QELDaysBetween(date1, date2) + 1; }

int QELDaysBetween(TDateTime date1, TDateTime date2) {
  return std::abs(StampOf(date2).Date - StampOf(date1).Date);
}

TDateTime QELIncTime(TDateTime value, int hours, int minutes, int seconds, int mSecs) {
  const vcl::TTimeStamp from = StampOf(value);
  const std::int64_t day = vcl::MSecsPerDay;
  const std::int64_t amount = ((std::int64_t{hours} * 60 + minutes) * 60 + seconds) * 1000 + mSecs;
  const std::int64_t total = from.Date * day + from.Time + amount;
  const std::int64_t date = total / day;
  if (!QELValidDate(static_cast<TDateTime>(date - vcl::DateDelta))) RaiseInvalidDate();
  return vcl::TimeStampToDateTime({static_cast<int>(total % day), static_cast<int>(date)});
}

TDateTime QELIncHour(TDateTime date, int hours) { return QELIncTime(date, hours, 0, 0, 0); }
TDateTime QELIncMinute(TDateTime date, int minutes) { return QELIncTime(date, 0, minutes, 0, 0); }
TDateTime QELIncSecond(TDateTime date, int seconds) { return QELIncTime(date, 0, 0, seconds, 0); }
TDateTime QELIncMSec(TDateTime date, int mSecs) { return QELIncTime(date, 0, 0, 0, mSecs); }

TDateTime QELCutTime(TDateTime date) { return StampOf(date).Date - vcl::DateDelta; }

}  // namespace qel
