// Local times as instants, by the system's rules.
#include "qel/services/private/localtimes.h"

#include <algorithm>
#include <map>

#include "vcl/rtl/datetime.h"

namespace qel {

int DayOf(TMilliseconds local) {
  return static_cast<int>((local - (local < 0 ? DayLength - 1 : 0)) / DayLength);
}

namespace {

constexpr int DaysPerWeek = 7;

/// From Sunday, 0.
int WeekDay(int day) { return ((day + 6) % DaysPerWeek + DaysPerWeek) % DaysPerWeek; }

/// The instant behind `from`, at or before `to`, in which the clock is changed.
TMilliseconds ChangeBetween(const TZone& zone, TMilliseconds from, TMilliseconds to) {
  const TMilliseconds before = zone(from);
  while (to - from > 1) {
    const TMilliseconds middle = from + (to - from) / 2;
    (zone(middle) == before ? from : to) = middle;
  }
  return to;
}

}  // namespace

// No zone changes its clock twice within two days.
TMilliseconds InstantOf(const TZone& zone, TMilliseconds local) {
  const auto [less, more] = std::minmax({zone(local - DayLength), zone(local + DayLength)});
  const TMilliseconds early = local - more, late = local - less;
  if (zone(early) == more) return early;
  if (zone(late) == less) return late;
  return ChangeBetween(zone, early, late);
}

namespace {

/// The rule's first instant of a day behind the given one. Later local times are never earlier
/// instants, so that it is looked for by halves.
std::optional<TMilliseconds> NextOfDay(const TTimeRule& rule, const TZone& zone, int day,
                                       TMilliseconds after) {
  const TMilliseconds step = rule.Every > 0 ? rule.Every * MinuteLength : DayLength;
  const auto count = static_cast<int>((DayLength - rule.Time + step - 1) / step);
  const auto instant = [&](int number) {
    return InstantOf(zone, day * DayLength + rule.Time + number * step);
  };
  int next = 0;
  for (int behind = count; next < behind;) {
    const int middle = next + (behind - next) / 2;
    if (instant(middle) <= after) {
      next = middle + 1;
    } else {
      behind = middle;
    }
  }
  return next == count ? std::nullopt : std::optional(instant(next));
}

}  // namespace

std::optional<TMilliseconds> NextInstant(const TTimeRule& rule, const TZone& zone,
                                         TMilliseconds after) {
  if (rule.Date) return NextOfDay(rule, zone, *rule.Date, after);
  const int today = DayOf(after + zone(after));
  // A clock that is put back over midnight has yesterday once more.
  for (int day = today - 1; day <= today + DaysPerWeek; ++day) {
    if ((rule.Days >> WeekDay(day) & 1) == 0) continue;
    if (const auto instant = NextOfDay(rule, zone, day, after)) return instant;
  }
  return std::nullopt;
}

// The system's zone.

namespace {

/// The days of a year's month.
int FirstOf(int year, int month) { return static_cast<int>(vcl::EncodeDate(year, month, 1)); }

/// The day of a change: a date, or a day of the week in its first to fourth, or last, week of the
/// month.
int DayOfChange(const SYSTEMTIME& change, int year) {
  const int first = FirstOf(year, change.wMonth);
  if (change.wYear != 0) return first + change.wDay - 1;
  const int days = vcl::MonthDays[vcl::IsLeapYear(year)][change.wMonth - 1];
  int day = (change.wDayOfWeek - WeekDay(first) + DaysPerWeek) % DaysPerWeek;
  day += DaysPerWeek * (change.wDay - 1);
  while (day >= days) day -= DaysPerWeek;
  return first + day;
}

/// What the clock on the wall shows when it is changed.
TMilliseconds LocalOfChange(const SYSTEMTIME& change, int year) {
  const TMilliseconds minutes = TMilliseconds{60} * change.wHour + change.wMinute;
  return DayOfChange(change, year) * DayLength + minutes * MinuteLength +
         TMilliseconds{1000} * change.wSecond + change.wMilliseconds;
}

int YearOf(TMilliseconds local) {
  int year = 0, month = 0, day = 0;
  vcl::DecodeDate(DayOf(local), year, month, day);
  return year;
}

}  // namespace

TMilliseconds OffsetBy(const TIME_ZONE_INFORMATION& rules, TMilliseconds instant) {
  const TMilliseconds standard = -(rules.Bias + rules.StandardBias) * MinuteLength;
  const TMilliseconds daylight = -(rules.Bias + rules.DaylightBias) * MinuteLength;
  if (rules.StandardDate.wMonth == 0 || rules.DaylightDate.wMonth == 0) return standard;
  const int year = YearOf(instant + standard);
  const TMilliseconds begin = LocalOfChange(rules.DaylightDate, year) - standard;
  const TMilliseconds end = LocalOfChange(rules.StandardDate, year) - daylight;
  // In the south the year begins and ends in summer.
  const bool summer =
      begin < end ? instant >= begin && instant < end : instant >= begin || instant < end;
  return summer ? daylight : standard;
}

TZone SystemZone() {
  return [years = std::map<int, TIME_ZONE_INFORMATION>()](TMilliseconds instant) mutable {
    const int year = YearOf(instant);
    const auto [at, added] = years.try_emplace(year);
    if (added && !::GetTimeZoneInformationForYear(static_cast<USHORT>(year), nullptr, &at->second))
      ::GetTimeZoneInformation(&at->second);
    return OffsetBy(at->second, instant);
  };
}

TMilliseconds SystemInstant() {
  FILETIME time{};
  ::GetSystemTimeAsFileTime(&time);
  const auto ticks = static_cast<std::int64_t>(
      static_cast<std::uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
  constexpr TMilliseconds days = 109205;  // From 1601, where the system's count begins.
  return ticks / 10'000 - days * DayLength;
}

}  // namespace qel
