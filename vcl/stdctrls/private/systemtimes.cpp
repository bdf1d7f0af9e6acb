// Dates and times to the system's records and back.
#include "vcl/stdctrls/private/systemtimes.h"

#include <cmath>

namespace vcl {

TDateTime DayOf(TDateTime value) { return std::floor(value); }

TDateTime TimeOf(TDateTime value) {
  int hour, minute, second, millisecond;
  DecodeTime(value, hour, minute, second, millisecond);
  return EncodeTime(hour, minute, second, millisecond);
}

SYSTEMTIME ToSystemTime(TDateTime value) {
  int year, month, day, hour, minute, second, millisecond;
  DecodeDate(value, year, month, day);
  DecodeTime(value, hour, minute, second, millisecond);
  const auto word = [](int number) { return static_cast<WORD>(number); };
  return {word(year),   word(month),  word(DayOfWeek(value) - 1), word(day), word(hour),
          word(minute), word(second), word(millisecond)};
}

TDateTime FromSystemTime(const SYSTEMTIME& time) {
  const TDateTime date = EncodeDate(time.wYear, time.wMonth, time.wDay);
  return date + EncodeTime(time.wHour, time.wMinute, time.wSecond, time.wMilliseconds);
}

}  // namespace vcl
