// Dates and times: a value of its own for both in one, its parts, and its texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "vcl/rtl/api.h"
#include "vcl/rtl/formatsettings.h"

namespace vcl {

/// A date and a time of day: the whole part counts days from 30 December 1899, the fraction is the
/// part of the day that has passed. Before that day the whole part is negative and the fraction
/// still counts forward: -1.25 is 6 o'clock on 29 December 1899. Dates run from 1 January of the
/// year 1 to 31 December 9999 of the Gregorian calendar, also before people used it; times are kept
/// to the millisecond. What a function is given outside of that, infinity included, is no date: it
/// raises EConvertError, or returns false when its name begins with Try.
using TDateTime = double;

inline constexpr int HoursPerDay = 24;
inline constexpr int MinsPerDay = HoursPerDay * 60;
inline constexpr int SecsPerDay = MinsPerDay * 60;
inline constexpr int MSecsPerDay = SecsPerDay * 1000;

/// A date and time in whole numbers, in which one can count without the break before 1899.
struct TTimeStamp {
  int Time;  ///< Milliseconds since midnight.
  int Date;  ///< Days; 1 is 1 January of the year 1.
};
/// What TTimeStamp counts for the day 0 of TDateTime.
inline constexpr int DateDelta = 693594;
VCL_API TTimeStamp DateTimeToTimeStamp(TDateTime value);
VCL_API TDateTime TimeStampToDateTime(const TTimeStamp& timeStamp);
VCL_API bool IsValidDateTime(TDateTime value);

/// The days of a year's months, from January at 0; MonthDays[1] is for leap years.
inline constexpr int MonthDays[2][12] = {{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
                                         {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}};
/// True when the year is divisible by 4 and not by 100, or by 400.
VCL_API bool IsLeapYear(int year);

VCL_API TDateTime EncodeDate(int year, int month, int day);
VCL_API bool TryEncodeDate(int year, int month, int day, TDateTime& date);
/// Hours from 0 to 23; there is no second 60.
VCL_API TDateTime EncodeTime(int hour, int minute, int second, int millisecond);
VCL_API bool TryEncodeTime(int hour, int minute, int second, int millisecond, TDateTime& time);
VCL_API void DecodeDate(TDateTime value, int& year, int& month, int& day);
VCL_API bool TryDecodeDate(TDateTime value, int& year, int& month, int& day);
VCL_API void DecodeTime(TDateTime value, int& hour, int& minute, int& second, int& millisecond);
/// From Sunday, 1, to Saturday, 7.
VCL_API int DayOfWeek(TDateTime value);

/// Today; the time of day; both. By the system's clock where the user is.
VCL_API TDateTime Date();
VCL_API TDateTime Time();
VCL_API TDateTime Now();

/// The value as the format says. The specifiers, in any case:
///
/// - d, dd: the day of the month, in at least one resp. two digits; ddd, dddd: the day of the week,
///   short resp. long; ddddd, dddddd: the date in ShortDateFormat resp. LongDateFormat
/// - m, mm: the month in digits, but behind h or hh the minute; mmm, mmmm: its short resp. long
/// name
/// - yy, yyyy: the year in two resp. four digits
/// - h, hh: the hour; n, nn: the minute; s, ss: the second; z, zzz: the millisecond
/// - t, tt: the time in ShortTimeFormat resp. LongTimeFormat
/// - am/pm, a/p, ampm: which half of the day it is, in these letters resp. in TimeAMString and
///   TimePMString; the format's hours then run from 1 to 12
/// - c: ddddd, and unless it is midnight a blank and tt
/// - / and :, DateSeparator and TimeSeparator; text between single or double quotes
///
/// All else stands for itself. An empty format is "c".
VCL_API std::string FormatDateTime(std::string_view format, TDateTime value,
                                   const TFormatSettings& settings = FormatSettings());
/// In ShortDateFormat, LongTimeFormat, and both ("c").
VCL_API std::string DateToStr(TDateTime value, const TFormatSettings& = FormatSettings());
VCL_API std::string TimeToStr(TDateTime value, const TFormatSettings& = FormatSettings());
VCL_API std::string DateTimeToStr(TDateTime value, const TFormatSettings& = FormatSettings());

/// In which order a date's numbers stand.
enum TDateOrder { doMDY, doDMY, doYMD };
/// The order that a format has: the first of its letters d, m and y, in any case, decides. Day
/// first when it has none of them.
VCL_API TDateOrder DateOrder(std::string_view format);

/// The date that a text says: two numbers with DateSeparator between them are day and month of this
/// year, three a whole date, both in the order of ShortDateFormat. Blanks may surround each part.
/// Numbers have at most four digits; for a year below 100, TwoDigitYearCenturyWindow says the
/// century.
VCL_API TDateTime StrToDate(std::string_view text, const TFormatSettings& = FormatSettings());
VCL_API bool TryStrToDate(std::string_view text, TDateTime& date,
                          const TFormatSettings& = FormatSettings());
/// The time that a text says: hour, minute, second and, behind a point, the millisecond, with
/// TimeSeparator between them; what is missing is 0. Hours behind which the half of the day stands,
/// "am" and "pm" or the settings' words for them in any case, run from 1 to 12.
VCL_API TDateTime StrToTime(std::string_view text, const TFormatSettings& = FormatSettings());
VCL_API bool TryStrToTime(std::string_view text, TDateTime& time,
                          const TFormatSettings& = FormatSettings());
/// A date, or a date and a time with a blank between them.
VCL_API TDateTime StrToDateTime(std::string_view text, const TFormatSettings& = FormatSettings());
VCL_API bool TryStrToDateTime(std::string_view text, TDateTime& value,
                              const TFormatSettings& = FormatSettings());

}  // namespace vcl
