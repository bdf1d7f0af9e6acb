// Dates and times as texts that are the same for every user.
#include "vcl/db/private/isodates.h"

#include <cstdio>

#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// Takes exactly so many digits from the front.
bool TakeDigits(std::string_view& text, std::size_t count, int& number) {
  if (text.size() < count) return false;
  number = 0;
  for (const char c : text.substr(0, count)) {
    if (c < '0' || c > '9') return false;
    number = number * 10 + (c - '0');
  }
  text.remove_prefix(count);
  return true;
}

bool Take(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

bool TakeDate(std::string_view& text, TDateTime& date) {
  int year = 0, month = 0, day = 0;
  return TakeDigits(text, 4, year) && Take(text, '-') && TakeDigits(text, 2, month) &&
         Take(text, '-') && TakeDigits(text, 2, day) && TryEncodeDate(year, month, day, date);
}

bool TakeTime(std::string_view& text, TDateTime& time) {
  int hour = 0, minute = 0, second = 0, millisecond = 0;
  if (!TakeDigits(text, 2, hour) || !Take(text, ':') || !TakeDigits(text, 2, minute)) return false;
  if (Take(text, ':') && !TakeDigits(text, 2, second)) return false;
  if (Take(text, '.') && !TakeDigits(text, 3, millisecond)) return false;
  return TryEncodeTime(hour, minute, second, millisecond, time);
}

}  // namespace

std::string IsoText(TDateTime value, TIsoParts parts) {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, millisecond = 0;
  DecodeDate(value, year, month, day);
  DecodeTime(value, hour, minute, second, millisecond);
  char date[40], time[60];
  std::snprintf(date, sizeof date, "%04d-%02d-%02d", year, month, day);
  std::snprintf(time, sizeof time, "%02d:%02d:%02d.%03d", hour, minute, second, millisecond);
  if (parts == TIsoParts::Date) return date;
  return parts == TIsoParts::Time ? std::string(time) : Concat(date, "T", time);
}

bool TryReadIso(std::string_view text, TDateTime& value) {
  TDateTime date = 0, time = 0;
  std::string_view rest = text;
  if (TakeDate(rest, date)) {
    if (!rest.empty() && !((Take(rest, 'T') || Take(rest, ' ')) && TakeTime(rest, time))) {
      return false;
    }
  } else {
    rest = text;
    if (!TakeTime(rest, time)) return false;
  }
  if (!rest.empty()) return false;
  // Before the first day of all times of day count backwards.
  value = date < 0 ? date - time : date + time;
  return true;
}

}  // namespace vcl
