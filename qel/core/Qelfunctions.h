// Free functions that the components and applications share: calendar arithmetic, the texts of
// dates, what the system knows of itself, and small drawing aids.
#pragma once

#include <string>
#include <string_view>

#include "qel/core/api.h"
#include "vcl/rtl/colors.h"
#include "vcl/rtl/datetime.h"

namespace vcl {
class TCanvas;
class TFont;
}  // namespace vcl

namespace qel {

// Calendar arithmetic. It works on dates from 1 January of the year 1 to 31 December 9999. Each
// function that takes a date, or makes one, raises EConvertError with the message "Invalid Date"
// for one outside; QELValidDate tells beforehand. Amounts may be negative.

/// True if the year is divisible by 4 and not by 100, or divisible by 400.
QEL_API bool QELIsLeapYear(int year);
/// The number of days of a month as the arithmetic below counts them: February has 28 in every
/// year. Raises EArgumentOutOfRangeException for a month outside 1 to 12.
QEL_API int QELDaysPerMonth(int year, int month);
/// The days around today's month. The last one of February is the 28th in every year.
QEL_API vcl::TDateTime QELFirstDayOfNextMonth();
QEL_API vcl::TDateTime QELFirstDayOfPrevMonth();
QEL_API vcl::TDateTime QELLastDayOfPrevMonth();
QEL_API int QELExtractDay(vcl::TDateTime date);
QEL_API int QELExtractMonth(vcl::TDateTime date);
QEL_API int QELExtractYear(vcl::TDateTime date);

/// Moves a date by years and months, and then by days; the result has no time of day. A day of the
/// month above the 28th counts as the 28th and that many days on, and each month has
/// QELDaysPerMonth days: 31 January and a month is 3 March, 28 February and a day is 1 March in
/// leap years, too, and 29 February becomes 1 March even when it is moved by nothing.
QEL_API vcl::TDateTime QELIncDate(vcl::TDateTime date, int days, int months, int years);
QEL_API vcl::TDateTime QELIncDay(vcl::TDateTime date, int days);
QEL_API vcl::TDateTime QELIncMonth(vcl::TDateTime date, int months);
QEL_API vcl::TDateTime QELIncYear(vcl::TDateTime date, int years);

/// What lies between two dates in whole years, whole months and the days that are left, none of
/// them depending on which of the dates is the later one, nor on times of day. Where the last month
/// that is not whole is shorter than the earlier date's day of the month, days may be negative:
/// from 31 January to 1 March it is 1 month and -2 days.
QEL_API void QELDateDiff(vcl::TDateTime date1, vcl::TDateTime date2, int& days, int& months,
                         int& years);
/// QELDateDiff in months. What is left adds a quarter from 2 days, a half from 7, three quarters
/// from 15 and a whole month from 21.
QEL_API double QELMonthsBetween(vcl::TDateTime date1, vcl::TDateTime date2);
/// Whether the value is a date of the years 1 to 9999; not a number and infinity are none.
QEL_API bool QELValidDate(vcl::TDateTime date);
/// The number of calendar days that a period has, its first and its last included, whichever of the
/// two is given first: 1 for two times of the same day.
QEL_API int QELDaysInPeriod(vcl::TDateTime date1, vcl::TDateTime date2);
/// The number of midnights between two dates, whichever is the later one: 0 for two times of the
/// same day, 1 for neighbouring days. Leap days count.
QEL_API int QELDaysBetween(vcl::TDateTime date1, vcl::TDateTime date2);

/// Move a date and time by amounts of time, any of which may be negative or more than the next
/// larger unit holds; the date moves along, by true days. Exact to the millisecond.
QEL_API vcl::TDateTime QELIncTime(vcl::TDateTime date, int hours, int minutes, int seconds,
                                  int mSecs);
QEL_API vcl::TDateTime QELIncHour(vcl::TDateTime date, int hours);
QEL_API vcl::TDateTime QELIncMinute(vcl::TDateTime date, int minutes);
QEL_API vcl::TDateTime QELIncSecond(vcl::TDateTime date, int seconds);
QEL_API vcl::TDateTime QELIncMSec(vcl::TDateTime date, int mSecs);
/// The date at midnight.
QEL_API vcl::TDateTime QELCutTime(vcl::TDateTime date);

// Texts of dates. They follow the format of the program's vcl::FormatSettings().

/// The order of day, month and year in a format.
enum TQELDateLayout { dlMDY = vcl::doMDY, dlDMY = vcl::doDMY, dlYMD = vcl::doYMD };

/// Whether the default formats have years of four digits; true at first.
extern QEL_API bool FourDigitYear;

/// The order is told by the first of the letters D, M and Y, in any case; dlDMY where there is
/// none.
QEL_API TQELDateLayout QELGetDateOrder(std::string_view format);
/// Reads a date in the order of the format: numbers of at most four digits with DateSeparator
/// between them, blanks around each. Two numbers are a day and a month of the present year, in the
/// order of the format, the month first in formats that begin with the year. A year below 100 is
/// one of the present century. Raises EConvertError with the message "Invalid Date" for any other
/// text, and for a date that is not in the calendar.
QEL_API vcl::TDateTime QELStrToDateFmt(std::string_view format, std::string_view text);
/// The same; `otherwise` instead of the exception.
QEL_API vcl::TDateTime QELStrToDateFmtDef(std::string_view format, std::string_view text,
                                          vcl::TDateTime otherwise);
/// The same with ShortDateFormat.
QEL_API vcl::TDateTime QELStrToDateDef(std::string_view text, vcl::TDateTime otherwise);
/// "DD/MM/YYYY" or "DD/MM/YY" (FourDigitYear), or the like in the order of ShortDateFormat.
QEL_API std::string QELDefDateFormat();
/// The edit mask for QELDefDateFormat: digits, slashes, and `blank` for what has not been typed
/// yet.
QEL_API std::string QELDefDateMask(char blank);

// The system and drawing. These need Windows.

/// The name of the user who is logged on, and that of the computer; empty when the system does not
/// tell.
QEL_API std::string QELGetUsrName();
QEL_API std::string QELGetPCName();

/// The items of QELGetInformationNo.
enum TQELInformation {
  inOrganization,  ///< For which Windows is registered.
  inOwner,         ///< In whose name it is.
  inProgramFiles,  ///< The folder of programs.
  inSystemRoot,    ///< The folder of Windows.
  inProcessor,     ///< "Intel 386", "Intel 486" or "Intel Pentium", which is all later ones.
  inPlatform,      ///< "Windows 3.1", "Windows 95" or "Windows NT".
  inVersion,       ///< Of Windows: "10.0".
  inMemorySize,    ///< "2097152 KB".
  inMemoryFree,    ///< "1048576 KB".
  inMemoryLoad,    ///< How much memory is in use: "50 Percent".
  inDiskSize,      ///< Of the current drive: "20480 MB".
  inDiskFree,      ///< "10240 MB", as far as the user may take it.
  inDiskLoad       ///< How much of the disk is in use: "50 %".
};
/// The text of an item (TQELInformation); empty for a number that is none, and for what the system
/// does not know of itself.
QEL_API std::string QELGetInformationNo(int item);

/// The height of a "W" in the font on the screen, in pixels; 0 if the system cannot measure it.
QEL_API int QELFontHeight(const vcl::TFont* font);
/// Draws a solid triangle `size` rows high, from 2 to 15; for other sizes nothing. One that points
/// down is size - 1 rows high, its upper left corner at (x, y); one that points up has its tip at
/// (x + size / 2, y). A disabled one is grey, with its shadow in light. The canvas's pen is
/// changed.
QEL_API void QELGetTriangle(vcl::TCanvas* canvas, int x, int y, bool enabled, bool down,
                            vcl::TColor color, int size);

}  // namespace qel
