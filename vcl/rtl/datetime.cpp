// Dates and times: putting them together, taking them apart, and the clock.
#include "vcl/rtl/datetime.h"

#include <chrono>
#include <cmath>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int FirstDay = 1;
constexpr int LastDay = 3652059;
/// The day 0 of TTimeStamp.
constexpr sys_days DayZero = sys_days(std::chrono::year(1) / 1 / 1) - days(1);
static_assert(DayZero + days(DateDelta) == sys_days(std::chrono::year(1899) / 12 / 30));
static_assert(DayZero + days(LastDay) == sys_days(std::chrono::year(9999) / 12 / 31));

bool InRange(std::int64_t value, int first, int last) { return value >= first && value <= last; }

bool TrySplit(TDateTime value, TTimeStamp& stamp) {
  // Written so that what is not a number fails as well.
  if (!(value > FirstDay - DateDelta - 1 && value < LastDay - DateDelta + 1)) return false;
  const int day = static_cast<int>(value);
  stamp = {static_cast<int>(std::lrint(std::fabs(value - day) * MSecsPerDay)), day + DateDelta};
  if (stamp.Time == MSecsPerDay) stamp = {0, stamp.Date + 1};
  return InRange(stamp.Date, FirstDay, LastDay);
}

TDateTime Join(int date, int time) {
  const double day = date - DateDelta;
  const double fraction = static_cast<double>(time) / MSecsPerDay;
  return day < 0 ? day - fraction : day + fraction;
}

year_month_day Calendar(int date) { return DayZero + days(date); }

[[noreturn]] void RefuseValue(TDateTime value) {
  throw EConvertError(Concat(FloatToStr(value), " is no date of the years from 1 to 9999"));
}

std::string Numbers(std::initializer_list<int> values, std::string_view separator) {
  std::string text;
  for (int value : values) text.append(text.empty() ? "" : separator).append(IntToStr(value));
  return text;
}

}  // namespace

TTimeStamp DateTimeToTimeStamp(TDateTime value) {
  TTimeStamp stamp{};
  if (!TrySplit(value, stamp)) RefuseValue(value);
  return stamp;
}

TDateTime TimeStampToDateTime(const TTimeStamp& timeStamp) {
  if (!InRange(timeStamp.Date, FirstDay, LastDay) || !InRange(timeStamp.Time, 0, MSecsPerDay - 1)) {
    throw EConvertError(Concat("Day ", IntToStr(timeStamp.Date), ", millisecond ",
                               IntToStr(timeStamp.Time), " is no date and time"));
  }
  return Join(timeStamp.Date, timeStamp.Time);
}

bool IsValidDateTime(TDateTime value) {
  TTimeStamp stamp{};
  return TrySplit(value, stamp);
}

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

bool TryEncodeDate(int year, int month, int day, TDateTime& date) {
  if (!InRange(year, 1, 9999) || !InRange(month, 1, 12)) return false;
  if (!InRange(day, 1, MonthDays[IsLeapYear(year)][month - 1])) return false;
  const auto calendar = std::chrono::year(year) / month / day;
  date = Join(static_cast<int>((sys_days(calendar) - DayZero).count()), 0);
  return true;
}

TDateTime EncodeDate(int year, int month, int day) {
  TDateTime date = 0;
  if (TryEncodeDate(year, month, day, date)) return date;
  throw EConvertError(Concat("Year-month-day ", Numbers({year, month, day}, "-"), " is no date"));
}

bool TryEncodeTime(int hour, int minute, int second, int millisecond, TDateTime& time) {
  if (!InRange(hour, 0, 23) || !InRange(minute, 0, 59)) return false;
  if (!InRange(second, 0, 59) || !InRange(millisecond, 0, 999)) return false;
  time = Join(DateDelta, ((hour * 60 + minute) * 60 + second) * 1000 + millisecond);
  return true;
}

TDateTime EncodeTime(int hour, int minute, int second, int millisecond) {
  TDateTime time = 0;
  if (TryEncodeTime(hour, minute, second, millisecond, time)) return time;
  throw EConvertError(Concat("Hour:minute:second:millisecond ",
                             Numbers({hour, minute, second, millisecond}, ":"), " is no time"));
}

bool TryDecodeDate(TDateTime value, int& year, int& month, int& day) {
  TTimeStamp stamp{};
  if (!TrySplit(value, stamp)) return false;
  const year_month_day calendar = Calendar(stamp.Date);
  year = static_cast<int>(calendar.year());
  month = static_cast<int>(static_cast<unsigned>(calendar.month()));
  day = static_cast<int>(static_cast<unsigned>(calendar.day()));
  return true;
}

void DecodeDate(TDateTime value, int& year, int& month, int& day) {
  if (!TryDecodeDate(value, year, month, day)) RefuseValue(value);
}

void DecodeTime(TDateTime value, int& hour, int& minute, int& second, int& millisecond) {
  const int time = DateTimeToTimeStamp(value).Time;
  hour = time / 3'600'000;
  minute = time / 60'000 % 60;
  second = time / 1000 % 60;
  millisecond = time % 1000;
}

// 31 December before the year 1 was a Sunday.
int DayOfWeek(TDateTime value) { return DateTimeToTimeStamp(value).Date % 7 + 1; }

TDateTime Now() {
  const os::TWallClock clock = os::WallClock();
  return EncodeDate(clock.Year, clock.Month, clock.Day) +
         EncodeTime(clock.Hour, clock.Minute, clock.Second, clock.Millisecond);
}

TDateTime Date() {
  const os::TWallClock clock = os::WallClock();
  return EncodeDate(clock.Year, clock.Month, clock.Day);
}

TDateTime Time() {
  const os::TWallClock clock = os::WallClock();
  return EncodeTime(clock.Hour, clock.Minute, clock.Second, clock.Millisecond);
}

}  // namespace vcl
