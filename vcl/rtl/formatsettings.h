// How the user writes dates, times and numbers.
#pragma once

#include <array>
#include <string>

#include "vcl/rtl/api.h"

namespace vcl {

/// The formats of dates and times, in FormatDateTime's specifiers, the words in them, and the signs
/// in numbers that are shown by FormatFloat. A new one has the English ones; `FormatSettings()`
/// those of the user.
struct TFormatSettings {
  std::string DateSeparator = "/";
  std::string TimeSeparator = ":";
  std::string ShortDateFormat = "mm/dd/yyyy";
  std::string LongDateFormat = "dddd, mmmm d, yyyy";
  std::string ShortTimeFormat = "hh:nn";
  std::string LongTimeFormat = "hh:nn:ss";
  std::string TimeAMString = "AM";
  std::string TimePMString = "PM";
  /// From January at 0.
  std::array<std::string, 12> ShortMonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  std::array<std::string, 12> LongMonthNames{"January",   "February", "March",    "April",
                                             "May",       "June",     "July",     "August",
                                             "September", "October",  "November", "December"};
  /// From Sunday at 0.
  std::array<std::string, 7> ShortDayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  std::array<std::string, 7> LongDayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                          "Thursday", "Friday", "Saturday"};
  /// A year of two digits is the first one with them that is not more than this many years ago; 0
  /// puts it in the present century.
  int TwoDigitYearCenturyWindow = 50;
  std::string DecimalSeparator = ".";
  std::string ThousandSeparator = ",";
};

/// The program's settings: the user's until the program changes them, which it does before other
/// threads format or read dates.
VCL_API TFormatSettings& FormatSettings();
/// What the system says of the user's habits now. What it does not know is as in a new
/// TFormatSettings.
VCL_API TFormatSettings SystemFormatSettings();

}  // namespace vcl
