// Dates and times: their parts, their texts, and the formats of the system.
#include <gmock/gmock.h>

#include <cmath>
#include <ctime>
#include <limits>

#include "vcl/rtl/classes.h"

using namespace vcl;

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

struct TDay {
  int Year, Month, Day;
};

TEST(DateTime, CountsDaysFromTheEndOf1899) {
  const struct {
    TDay Day;
    TDateTime Value;
    int DayOfWeek;
  } cases[] = {
      {{1899, 12, 30}, 0, 7},   {{1900, 1, 1}, 2, 2},         {{1899, 12, 29}, -1, 6},
      {{1970, 1, 1}, 25569, 5}, {{2000, 2, 29}, 36585, 3},    {{2026, 11, 21}, 46347, 7},
      {{1, 1, 1}, -693593, 2},  {{9999, 12, 31}, 2958465, 6}, {{1900, 2, 28}, 60, 4},
      {{1900, 3, 1}, 61, 5},
  };
  for (const auto& each : cases) {
    const auto [year, month, day] = each.Day;
    EXPECT_EQ(EncodeDate(year, month, day), each.Value) << year;
    TDay decoded{};
    DecodeDate(each.Value, decoded.Year, decoded.Month, decoded.Day);
    EXPECT_EQ(decoded.Year, year);
    EXPECT_EQ(decoded.Month, month);
    EXPECT_EQ(decoded.Day, day);
    EXPECT_EQ(DayOfWeek(each.Value), each.DayOfWeek) << year;
  }
}

TEST(DateTime, EveryDayComesBackAndFollowsTheOneBefore) {
  TDay last{0, 12, 31};
  for (int value = -693593; value <= 2958465; ++value) {
    TDay day{};
    DecodeDate(value, day.Year, day.Month, day.Day);
    const bool next = day.Day == last.Day + 1 && day.Month == last.Month && day.Year == last.Year;
    const bool newMonth = day.Day == 1 && day.Month == last.Month + 1 && day.Year == last.Year &&
                          last.Day == MonthDays[IsLeapYear(last.Year)][last.Month - 1];
    const bool newYear =
        day.Day == 1 && day.Month == 1 && last.Month == 12 && day.Year == last.Year + 1;
    ASSERT_TRUE(next || newMonth || newYear) << value;
    ASSERT_EQ(EncodeDate(day.Year, day.Month, day.Day), value);
    last = day;
  }
}

TEST(DateTime, RefusesWhatIsNoDate) {
  const TDay days[] = {{0, 1, 1},    {10000, 1, 1}, {-1, 1, 1},   {2001, 2, 29}, {1900, 2, 29},
                       {2000, 0, 1}, {2000, 13, 1}, {2000, 1, 0}, {2000, 4, 31}, {2000, 1, 32}};
  for (const auto& [year, month, day] : days) {
    EXPECT_THROW(EncodeDate(year, month, day), EConvertError) << year << month << day;
    TDateTime value = 5;
    EXPECT_FALSE(TryEncodeDate(year, month, day, value));
    EXPECT_EQ(value, 5);
  }
  for (double value : {-693594.0, 2958466.0, 1e300, -1e300, Infinite, -Infinite, NoNumber}) {
    int a = 0, b = 0, c = 0, d = 0;
    EXPECT_FALSE(IsValidDateTime(value)) << value;
    EXPECT_FALSE(TryDecodeDate(value, a, b, c)) << value;
    EXPECT_THROW(DecodeDate(value, a, b, c), EConvertError) << value;
    EXPECT_THROW(DecodeTime(value, a, b, c, d), EConvertError) << value;
    EXPECT_THROW(FormatDateTime("c", value), EConvertError) << value;
  }
  const int times[][4] = {{24, 0, 0, 0}, {-1, 0, 0, 0}, {0, 60, 0, 0},   {0, -1, 0, 0},
                          {0, 0, 60, 0}, {0, 0, -1, 0}, {0, 0, 0, 1000}, {0, 0, 0, -1}};
  for (const auto& [hour, minute, second, millisecond] : times) {
    EXPECT_THROW(EncodeTime(hour, minute, second, millisecond), EConvertError);
  }
  EXPECT_THROW(TimeStampToDateTime({0, 0}), EConvertError);
  EXPECT_THROW(TimeStampToDateTime({MSecsPerDay, 1}), EConvertError);
}

TEST(DateTime, TimesCountForwardOnBothSidesOf1899) {
  const struct {
    TDateTime Value;
    int Date, Hour, Minute, Second, Millisecond;
  } cases[] = {
      {0.25, DateDelta, 6, 0, 0, 0},
      {-1.25, DateDelta - 1, 6, 0, 0, 0},
      {36525.999'988'425'9, DateDelta + 36525, 23, 59, 59, 0},
      // The nearest millisecond is the next day's first.
      {36525.999'999'999, DateDelta + 36526, 0, 0, 0, 0},
      {-1.999'999'999, DateDelta, 0, 0, 0, 0},
      {-693593.5, 1, 12, 0, 0, 0},
  };
  for (const auto& each : cases) {
    int hour = 0, minute = 0, second = 0, millisecond = 0;
    DecodeTime(each.Value, hour, minute, second, millisecond);
    EXPECT_EQ(DateTimeToTimeStamp(each.Value).Date, each.Date) << each.Value;
    EXPECT_EQ(hour, each.Hour) << each.Value;
    EXPECT_EQ(minute, each.Minute) << each.Value;
    EXPECT_EQ(second, each.Second) << each.Value;
    EXPECT_EQ(millisecond, each.Millisecond) << each.Value;
  }
  for (int time = 0; time < MSecsPerDay; time += 7919) {
    for (int date : {1, DateDelta - 1, DateDelta, 3652059}) {
      const TTimeStamp stamp = DateTimeToTimeStamp(TimeStampToDateTime({time, date}));
      ASSERT_EQ(stamp.Time, time);
      ASSERT_EQ(stamp.Date, date);
    }
  }
}

TEST(DateTime, NowIsTheClockOfTheUser) {
  const std::time_t before = std::time(nullptr);
  const TDateTime now = Now(), date = Date(), time = Time();
  const std::tm local = *std::localtime(&before);
  const TDateTime expected = EncodeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
                             EncodeTime(local.tm_hour, local.tm_min, std::min(local.tm_sec, 59), 0);
  constexpr double Minute = 1.0 / MinsPerDay;
  EXPECT_NEAR(now, expected, Minute);
  EXPECT_NEAR(date + time, expected, Minute);
  EXPECT_EQ(date, std::floor(date));
  EXPECT_GE(time, 0);
  EXPECT_LT(time, 1);
}

TEST(DateTime, IsFormatted) {
  TFormatSettings settings;
  settings.DateSeparator = ". ";
  settings.TimeSeparator = "~";
  settings.ShortDateFormat = "d/m/yy";
  settings.LongDateFormat = "dddd 'the' d";
  settings.ShortTimeFormat = "h:nn";
  settings.LongTimeFormat = "hh:nn:ss";
  settings.TimePMString = "nachm.";
  const TDateTime value = EncodeDate(2003, 4, 5) + EncodeTime(15, 6, 7, 8);
  const std::pair<const char*, const char*> cases[] = {
      {"d dd ddd dddd", "5 05 Sat Saturday"},
      {"m mm mmm mmmm", "4 04 Apr April"},
      {"yy yyyy YyY", "03 2003 2003"},
      {"ddddd|dddddd", "5. 4. 03|Saturday the 5"},
      {"h hh n nn s ss z zzz", "15 15 6 06 7 07 8 008"},
      {"H:MM:ss m/MM", "15~06~07 4. 04"},
      {"hh mm mmm", "15 06 Apr"},
      {"h am/pm H AM/PM h a/p h:nn ampm", "3 pm 3 PM 3 p 3~06 nachm."},
      {"t tt", "15~06 15~06~07"},
      {"c", "5. 4. 03 15~06~07"},
      {"", "5. 4. 03 15~06~07"},
      {"'day' d \"o'clock\" 'am/pm' h", "day 5 o'clock am/pm 15"},
      {"d 'open d", "5 open d"},
      {"d'", "5"},
      {"x, (1)-\xC3\xA4", "x, (1)-\xC3\xA4"},
  };
  for (const auto& [format, text] : cases) {
    EXPECT_EQ(FormatDateTime(format, value, settings), text) << format;
  }
  EXPECT_EQ(FormatDateTime("c h am/pm", std::floor(value), settings), "5. 4. 03 12 am");
  EXPECT_EQ(FormatDateTime("yyyy-mm-dd", -693593), "0001-01-01");
  EXPECT_EQ(DateToStr(value, settings), "5. 4. 03");
  EXPECT_EQ(TimeToStr(value, settings), "15~06~07");
  EXPECT_EQ(DateTimeToStr(value, settings), "5. 4. 03 15~06~07");
  settings.ShortDateFormat = "d ddddd";
  EXPECT_EQ(DateToStr(value, settings), "5 ") << "a setting that asks for itself";
}

int YearOf(TDateTime value) {
  int year = 0, month = 0, day = 0;
  DecodeDate(value, year, month, day);
  return year;
}

TEST(DateTime, ReadsDates) {
  const int thisYear = YearOf(Date());
  const std::tuple<const char*, const char*, TDay> cases[] = {
      {"m/d/y", "2/3/2004", {2004, 2, 3}},     {"d/m/y", "2/3/2004", {2004, 3, 2}},
      {"y/m/d", "2004/3/2", {2004, 3, 2}},     {"d/m/y", " 02 / 03 / 2004 ", {2004, 3, 2}},
      {"m/d/y", "2/3", {thisYear, 2, 3}},      {"d/m/y", "2/3", {thisYear, 3, 2}},
      {"y/m/d", "2/3", {thisYear, 2, 3}},      {"m/d/y", "2/29/2000", {2000, 2, 29}},
      {"m/d/y", "12/31/9999", {9999, 12, 31}}, {"m/d/y", "1/1/100", {100, 1, 1}},
  };
  TFormatSettings settings;
  for (const auto& [format, text, day] : cases) {
    settings.ShortDateFormat = format;
    EXPECT_EQ(StrToDate(text, settings), EncodeDate(day.Year, day.Month, day.Day)) << text;
  }
}

TEST(DateTime, TakesYearsOfTwoDigitsFromAWindow) {
  const int thisYear = YearOf(Date());
  TFormatSettings settings;
  for (int window : {0, 20, 50, 99}) {
    settings.TwoDigitYearCenturyWindow = window;
    for (int digits = 0; digits < 100; ++digits) {
      const int year = YearOf(StrToDate("1/1/" + std::to_string(digits), settings));
      const int first = window == 0 ? thisYear / 100 * 100 : thisYear - window;
      EXPECT_EQ(year % 100, digits);
      EXPECT_GE(year, first);
      EXPECT_LT(year, first + 100);
    }
  }
}

TEST(DateTime, ReadsTimes) {
  const TDateTime day = EncodeDate(2004, 2, 3);
  const std::pair<const char*, TDateTime> cases[] = {
      {"7", EncodeTime(7, 0, 0, 0)},
      {"07:08", EncodeTime(7, 8, 0, 0)},
      {" 7 : 8 : 9 ", EncodeTime(7, 8, 9, 0)},
      {"7:8:9.010", EncodeTime(7, 8, 9, 10)},
      {"12 am", 0},
      {"12:30PM", EncodeTime(12, 30, 0, 0)},
      {"11:59 pm", EncodeTime(23, 59, 0, 0)},
      {"23:59:59", EncodeTime(23, 59, 59, 0)},
  };
  const TFormatSettings settings;
  for (const auto& [text, time] : cases) {
    EXPECT_EQ(StrToTime(text, settings), time) << text;
    EXPECT_EQ(StrToDateTime("2/3/2004 " + std::string(text), settings), day + time) << text;
  }
  EXPECT_EQ(StrToDateTime("2/3/2004", settings), day);
  EXPECT_EQ(StrToDateTime("12/29/1899 6:00", settings), -1.25);
}

TEST(DateTime, RefusesTextsThatAreNone) {
  const char* const dates[] = {
      "",          " ",        "1",       "1/",         "/1",       "1/1/",          "1/1/2000/",
      "1/1/2000x", "1-1-2000", "1//2000", "Jan/1/2000", "1.1.2000", "1/1/2000 12:00"};
  const char* const daysThatAreNone[] = {"13/1/2000",    "2/30/2000",      "2/29/2001", "0/1/2000",
                                         "1/0/2000",     "-1/1/2000",      "1/1/-1",    "1/1/20000",
                                         "00001/1/2000", "99999999999/1/1"};
  const char* const times[] = {
      "",           "x",    "24",    "1:60", "1:1:60",  "1:",    "1:1:",  "1:1:1.",
      "1:1:1.1000", "0 am", "13 pm", "am",   "1 am pm", "1:1 x", "-1:00", "1:1:1:1"};
  const char* const both[] = {"1/1/2000 x", "1/1/200012:00", "12:00 1/1/2000", "1/1/2000 24:00"};
  TFormatSettings settings;
  TDateTime value = 5;
  const auto refusesDate = [&](const char* text) {
    EXPECT_FALSE(TryStrToDate(text, value, settings)) << text;
    EXPECT_THROW(StrToDate(text, settings), EConvertError) << text;
  };
  for (const char* text : dates) refusesDate(text);
  for (const char* text : daysThatAreNone) refusesDate(text);
  for (const char* text : times) {
    EXPECT_FALSE(TryStrToTime(text, value, settings)) << text;
    EXPECT_THROW(StrToTime(text, settings), EConvertError) << text;
  }
  for (const char* text : both) {
    EXPECT_FALSE(TryStrToDateTime(text, value, settings)) << text;
    EXPECT_THROW(StrToDateTime(text, settings), EConvertError) << text;
  }
  settings.DateSeparator.clear();
  EXPECT_FALSE(TryStrToDate("1 1 2000", value, settings)) << "no separator";
  EXPECT_EQ(value, 5);
}

TEST(DateTime, ReadsWhatTheUsersFormatsWrite) {
  const TFormatSettings settings = SystemFormatSettings();
  for (const std::string& name : settings.LongMonthNames) EXPECT_NE(name, "");
  for (const std::string& name : settings.ShortDayNames) EXPECT_NE(name, "");
  const TDateTime value = EncodeDate(2034, 12, 31) + EncodeTime(23, 58, 59, 0);
  EXPECT_EQ(StrToDateTime(DateTimeToStr(value, settings), settings), value)
      << DateTimeToStr(value, settings);
}

TEST(DateTime, SettingsOfTheProgramCanBeChanged) {
  const TFormatSettings former = FormatSettings();
  FormatSettings().ShortDateFormat = "yyyy/m/d";
  FormatSettings().DateSeparator = "_";
  EXPECT_EQ(DateToStr(36585), "2000_2_29");
  EXPECT_EQ(StrToDate("2000_2_29"), 36585);
  FormatSettings() = former;
}

}  // namespace
