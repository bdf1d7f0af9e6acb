// Calendar arithmetic.
#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <limits>
#include <string>

#include "qel/core/Qelfunctions.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"

using namespace qel;
using vcl::TDateTime;

namespace {

/// A date written as year-month-day.
TDateTime Day(std::string_view text) {
  vcl::TFormatSettings settings;
  settings.ShortDateFormat = "yyyy/mm/dd";
  settings.DateSeparator = "-";
  settings.TwoDigitYearCenturyWindow = 0;
  if (text.starts_with("0001"))
    return vcl::EncodeDate(1, vcl::StrToInt(text.substr(5, 2)), vcl::StrToInt(text.substr(8, 2)));
  return vcl::StrToDate(text, settings);
}

std::string Text(TDateTime date) { return vcl::FormatDateTime("yyyy-mm-dd", date); }
std::string TimeText(TDateTime date) {
  return vcl::FormatDateTime("yyyy-mm-dd hh:nn:ss.zzz", date);
}

/// The message of the error that the call raises; empty when it raises none.
template <class Call>
std::string Error(Call call) {
  try {
    call();
  } catch (const vcl::EConvertError& error) {
    return error.Message();
  }
  return {};
}

TEST(Calendar, TellsLeapYearsButNoLeapDays) {
  for (int year : {4, 1996, 2000, 2400, 9996}) EXPECT_TRUE(QELIsLeapYear(year)) << year;
  for (int year : {1, 1900, 1999, 2100, 9999}) EXPECT_FALSE(QELIsLeapYear(year)) << year;
  constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(QELDaysPerMonth(2000, month), lengths[month - 1]);
    EXPECT_EQ(QELDaysPerMonth(2001, month), lengths[month - 1]);
  }
  for (int month : {0, 13, -1, INT_MAX, INT_MIN}) {
    EXPECT_THROW(QELDaysPerMonth(2000, month), vcl::EArgumentOutOfRangeException) << month;
  }
}

TEST(Calendar, MovesDates) {
  const struct {
    const char* From;
    int Days, Months, Years;
    const char* To;
  } cases[] = {
      {"2001-01-31", 0, 1, 0, "2001-03-03"},
      {"2001-03-15", 0, -2, 0, "2001-01-15"},
      {"2000-02-28", 1, 0, 0, "2000-03-01"},
      {"2000-02-29", 0, 0, 0, "2000-03-01"},
      {"2001-12-31", 1, 0, 0, "2002-01-01"},
      {"2001-01-01", -1, 0, 0, "2000-12-31"},
      {"2001-03-01", -1, 0, 0, "2001-02-28"},
      {"2000-03-01", -1, 0, 0, "2000-02-28"},
      {"2001-06-30", 0, 8, 0, "2002-03-02"},
      {"2001-06-28", 0, 8, 0, "2002-02-28"},
      {"2001-01-15", 0, -1, 0, "2000-12-15"},
      {"2001-01-15", 0, -13, 0, "1999-12-15"},
      {"2001-11-15", 0, 25, 0, "2003-12-15"},
      {"2001-08-31", 0, 0, -1, "2000-08-31"},
      {"2001-08-31", 0, 1, 0, "2001-10-01"},
      {"2001-05-05", 365, 0, 0, "2002-05-05"},
      {"2001-05-05", -3650, 0, 10, "2001-05-05"},
      {"2001-05-05", 3, -14, 2, "2002-03-08"},
      {"0001-01-01", 0, 0, 9998, "9999-01-01"},
      {"0001-01-01", 31, -1, 0, "0001-01-01"},
      {"9999-12-31", 0, 1, -1, "9999-01-31"},
      {"2001-05-05", 365 * 5'000'000, 0, -5'000'000, "2001-05-05"},
      {"2001-05-05", 0, INT_MIN, INT_MAX / 12 + 1, "2001-09-05"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(Text(QELIncDate(Day(each.From), each.Days, each.Months, each.Years)), each.To)
        << each.From << " + " << each.Days << ", " << each.Months << ", " << each.Years;
  }
  EXPECT_EQ(Text(QELIncDay(Day("2001-01-31"), 1)), "2001-02-01");
  EXPECT_EQ(Text(QELIncMonth(Day("2001-01-31"), 1)), "2001-03-03");
  EXPECT_EQ(Text(QELIncYear(Day("2001-01-31"), 1)), "2002-01-31");
  EXPECT_EQ(QELIncDay(Day("2001-01-31") + 0.75, 1), Day("2001-02-01")) << "the time goes";
}

/// The same by steps of a day, as a person would count along the table of months.
TEST(Calendar, CountsDaysAlongTheTableOfMonths) {
  int year = 1996, month = 1, day = 1;
  const TDateTime start = vcl::EncodeDate(year, month, day);
  for (int days = 0; days < 4000; ++days) {
    const TDateTime date = vcl::EncodeDate(year, month, day);
    ASSERT_EQ(QELIncDay(start, days), date) << days;
    ASSERT_EQ(QELIncDay(date, -days), start) << days;
    if (++day > QELDaysPerMonth(year, month)) day = 1, ++month;
    if (month > 12) month = 1, ++year;
  }
}

TEST(Calendar, LeavesTheCalendarWithAnError) {
  const struct {
    const char* From;
    int Days, Months, Years;
  } cases[] = {
      {"9999-12-31", 1, 0, 0},
      {"0001-01-01", -1, 0, 0},
      {"0001-01-01", 0, -1, 0},
      {"9999-12-01", 0, 1, 0},
      {"2001-01-01", 0, 0, 8000},
      {"2001-01-01", 0, 0, -2001},
      {"2001-01-01", INT_MAX, 0, 0},
      {"2001-01-01", INT_MIN, 0, 0},
      {"2001-01-01", 0, INT_MIN, 0},
      {"2001-01-01", 0, INT_MAX, 0},
      {"2001-01-01", 0, 0, INT_MAX},
      {"2001-01-01", 0, 0, INT_MIN},
      {"2001-01-01", INT_MIN, INT_MIN, INT_MIN},
      {"2001-01-01", INT_MAX, INT_MAX, INT_MAX},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(Error([&] { QELIncDate(Day(each.From), each.Days, each.Months, each.Years); }),
              "Invalid Date")
        << each.From << " + " << each.Days << ", " << each.Months << ", " << each.Years;
  }
}

TEST(Calendar, TellsWhatLiesBetweenDates) {
  const struct {
    const char* Early;
    const char* Late;
    int Days, Months, Years;
    double InMonths;
  } cases[] = {
      {"2001-01-01", "2001-03-01", 0, 2, 0, 2.0},
      {"2001-01-01", "2001-03-09", 8, 2, 0, 2.5},
      {"2001-05-05", "2001-05-05", 0, 0, 0, 0.0},
      {"2001-05-05", "2001-05-06", 1, 0, 0, 0.0},
      {"2001-05-05", "2001-05-07", 2, 0, 0, 0.25},
      {"2001-05-05", "2001-05-11", 6, 0, 0, 0.25},
      {"2001-05-05", "2001-05-12", 7, 0, 0, 0.5},
      {"2001-05-05", "2001-05-19", 14, 0, 0, 0.5},
      {"2001-05-05", "2001-05-20", 15, 0, 0, 0.75},
      {"2001-05-05", "2001-05-25", 20, 0, 0, 0.75},
      {"2001-05-05", "2001-05-26", 21, 0, 0, 1.0},
      {"2000-12-31", "2001-01-01", 1, 0, 0, 0.0},
      {"2000-11-15", "2001-02-14", 30, 2, 0, 3.0},
      {"1999-06-01", "2001-05-31", 30, 11, 1, 24.0},
      // February counts 28 days.
      {"2000-02-20", "2000-03-10", 18, 0, 0, 0.75},
      {"2001-01-31", "2001-03-01", -2, 1, 0, 1.0},
      {"0001-01-01", "9999-12-31", 30, 11, 9998, 9998 * 12 + 12},
  };
  for (const auto& each : cases) {
    const TDateTime early = Day(each.Early), late = Day(each.Late);
    for (bool swapped : {false, true}) {
      int days = 99, months = 99, years = 99;
      QELDateDiff(swapped ? late : early, swapped ? early : late, days, months, years);
      EXPECT_EQ(days, each.Days) << each.Early << " " << each.Late;
      EXPECT_EQ(months, each.Months) << each.Early << " " << each.Late;
      EXPECT_EQ(years, each.Years) << each.Early << " " << each.Late;
    }
    EXPECT_EQ(QELMonthsBetween(early, late), each.InMonths) << each.Early << " " << each.Late;
    EXPECT_EQ(QELMonthsBetween(late, early), each.InMonths) << each.Early << " " << each.Late;
  }
}

TEST(Calendar, CountsDays) {
  const struct {
    TDateTime First, Second;
    int Between;
  } cases[] = {
      {Day("2001-05-05"), Day("2001-05-05") + 0.9, 0},
      {Day("2001-05-05") + 0.9, Day("2001-05-06"), 1},
      {Day("2000-02-28"), Day("2000-03-01"), 2},
      {Day("2001-02-28"), Day("2001-03-01"), 1},
      {-0.75, -1.25, 1},
      {Day("0001-01-01"), Day("9999-12-31"), 3652058},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(QELDaysBetween(each.First, each.Second), each.Between) << Text(each.First);
    EXPECT_EQ(QELDaysBetween(each.Second, each.First), each.Between) << Text(each.First);
    EXPECT_EQ(QELDaysInPeriod(each.First, each.Second), each.Between + 1) << Text(each.First);
    EXPECT_EQ(QELDaysInPeriod(each.Second, each.First), each.Between + 1) << Text(each.First);
  }
}

TEST(Calendar, MovesTimes) {
  const TDateTime from = Day("2000-02-28") + vcl::EncodeTime(23, 59, 58, 999);
  const struct {
    int Hours, Minutes, Seconds, MSecs;
    const char* To;
  } cases[] = {
      {0, 0, 0, 0, "2000-02-28 23:59:58.999"},
      {0, 0, 0, 1, "2000-02-28 23:59:59.000"},
      {0, 0, 1, 1, "2000-02-29 00:00:00.000"},
      {48, 0, 0, 0, "2000-03-01 23:59:58.999"},
      {-24, 0, 0, 0, "2000-02-27 23:59:58.999"},
      {1, -60, 60, -60000, "2000-02-28 23:59:58.999"},
      {0, 0, 0, INT_MIN, "2000-02-04 03:28:35.351"},
      {0, 0, -7200, 0, "2000-02-28 21:59:58.999"},
      {-876582, -1439, -58, -999, "1900-02-27 18:00:00.000"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(TimeText(QELIncTime(from, each.Hours, each.Minutes, each.Seconds, each.MSecs)),
              each.To);
  }
  // Over the day at which values change their sign.
  EXPECT_EQ(QELIncHour(0.25, -12), -1.75);
  EXPECT_EQ(QELIncHour(-1.75, 12), 0.25);
  EXPECT_EQ(QELIncMinute(1, 90), 1.0625);
  EXPECT_EQ(TimeText(QELIncSecond(from, 2)), "2000-02-29 00:00:00.999");
  EXPECT_EQ(TimeText(QELIncMSec(from, -1000)), "2000-02-28 23:59:57.999");
  const TDateTime first = Day("0001-01-01"), last = Day("9999-12-31");
  EXPECT_EQ(TimeText(QELIncHour(last, 23)), "9999-12-31 23:00:00.000");
  EXPECT_EQ(Error([&] { QELIncHour(last, 24); }), "Invalid Date");
  EXPECT_EQ(Error([&] { QELIncMSec(first, -1); }), "Invalid Date");
  EXPECT_EQ(Error([&] { QELIncTime(first, INT_MIN, INT_MIN, INT_MIN, INT_MIN); }), "Invalid Date");
  EXPECT_EQ(Error([&] { QELIncTime(first, INT_MAX, INT_MAX, INT_MAX, INT_MAX); }), "Invalid Date");
}

TEST(Calendar, TakesDatesApart) {
  const TDateTime date = Day("2003-04-05") + 0.99;
  EXPECT_EQ(QELExtractDay(date), 5);
  EXPECT_EQ(QELExtractMonth(date), 4);
  EXPECT_EQ(QELExtractYear(date), 2003);
  EXPECT_EQ(QELCutTime(date), Day("2003-04-05"));
  EXPECT_EQ(QELCutTime(-1.25), -1);
  EXPECT_EQ(QELCutTime(-0.25), 0);
}

TEST(Calendar, KnowsWhatIsNoDate) {
  const TDateTime first = Day("0001-01-01"), last = Day("9999-12-31"), good = Day("2001-01-01");
  for (TDateTime date : {first, last, last + 0.999, first - 0.5, 0.0, -0.5}) {
    EXPECT_TRUE(QELValidDate(date)) << date;
  }
  using Limits = std::numeric_limits<double>;
  for (TDateTime bad : {first - 1, last + 1, 1e300, -1e300, Limits::infinity(), -Limits::infinity(),
                        Limits::quiet_NaN()}) {
    int days = 7, months = 7, years = 7;
    EXPECT_FALSE(QELValidDate(bad)) << bad;
    EXPECT_EQ(Error([&] { QELExtractDay(bad); }), "Invalid Date");
    EXPECT_EQ(Error([&] { QELIncDate(bad, 0, 0, 0); }), "Invalid Date");
    EXPECT_EQ(Error([&] { QELIncTime(bad, 0, 0, 0, 0); }), "Invalid Date");
    EXPECT_EQ(Error([&] { QELCutTime(bad); }), "Invalid Date");
    EXPECT_EQ(Error([&] { QELDaysBetween(good, bad); }), "Invalid Date");
    EXPECT_EQ(Error([&] { QELDaysInPeriod(bad, good); }), "Invalid Date");
    EXPECT_EQ(Error([&] { QELMonthsBetween(good, bad); }), "Invalid Date");
    EXPECT_EQ(Error([&] { QELDateDiff(bad, good, days, months, years); }), "Invalid Date");
    EXPECT_EQ(days + months + years, 21) << "nothing is half told";
  }
}

TEST(Calendar, KnowsTheMonthsAroundToday) {
  TDateTime today = 0, next = 0, previous = 0, last = 0;
  do {  // Once more when midnight has come between.
    today = vcl::Date();
    next = QELFirstDayOfNextMonth();
    previous = QELFirstDayOfPrevMonth();
    last = QELLastDayOfPrevMonth();
  } while (today != vcl::Date());
  int year = 0, month = 0, day = 0;
  vcl::DecodeDate(today, year, month, day);
  EXPECT_EQ(next,
            month == 12 ? vcl::EncodeDate(year + 1, 1, 1) : vcl::EncodeDate(year, month + 1, 1));
  const int lastYear = month == 1 ? year - 1 : year, lastMonth = month == 1 ? 12 : month - 1;
  EXPECT_EQ(previous, vcl::EncodeDate(lastYear, lastMonth, 1));
  EXPECT_EQ(last, vcl::EncodeDate(lastYear, lastMonth, QELDaysPerMonth(lastYear, lastMonth)));
}

}  // namespace
