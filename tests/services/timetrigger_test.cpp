// TQELTimeTrigger: when times of day come, whatever daylight saving does, and which are fired.
#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>

#include "qel/qel.h"
#include "qel/services/private/localtimes.h"
#include "tests/support/importpatch.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testing::ElementsAre;

SYSTEMTIME Change(int month, int dayOfWeek, int week, int hour) {
  SYSTEMTIME change{};
  change.wMonth = static_cast<WORD>(month);
  change.wDayOfWeek = static_cast<WORD>(dayOfWeek);
  change.wDay = static_cast<WORD>(week);
  change.wHour = static_cast<WORD>(hour);
  return change;
}

TIME_ZONE_INFORMATION Rules(int bias, SYSTEMTIME standard, SYSTEMTIME daylight) {
  TIME_ZONE_INFORMATION rules{};
  rules.Bias = bias;
  rules.DaylightBias = -60;
  rules.StandardDate = standard;
  rules.DaylightDate = daylight;
  return rules;
}

TZone Zone(const TIME_ZONE_INFORMATION& rules) {
  return [rules](TMilliseconds instant) { return OffsetBy(rules, instant); };
}

// The last Sundays of March and October, at 2 resp. 3; in the south, the first ones of October and
// April; at midnight, where the day of the change begins at 1.
const TIME_ZONE_INFORMATION Europe = Rules(-60, Change(10, 0, 5, 3), Change(3, 0, 5, 2));
const TIME_ZONE_INFORMATION South = Rules(-600, Change(4, 0, 1, 3), Change(10, 0, 1, 2));
const TIME_ZONE_INFORMATION Midnight = Rules(180, Change(3, 0, 3, 0), Change(10, 0, 2, 0));
const TIME_ZONE_INFORMATION Greenwich = Rules(0, {}, {});

TMilliseconds At(const std::string& text) {
  int n[5] = {};
  std::sscanf(text.c_str(), "%d-%d-%d %d:%d", &n[0], &n[1], &n[2], &n[3], &n[4]);
  return static_cast<TMilliseconds>(vcl::EncodeDate(n[0], n[1], n[2])) * DayLength +
         (n[3] * 60 + n[4]) * MinuteLength;
}

std::string Text(TMilliseconds time) {
  return vcl::FormatDateTime("yyyy-mm-dd hh:nn", static_cast<double>(time) / DayLength);
}

/// Every day at the time.
TTimeRule Daily(const std::string& time, int every = 0) {
  TTimeRule rule;
  rule.Time = At("1899-12-30 " + time);
  rule.Days = 0x7F;
  rule.Every = every;
  return rule;
}

/// The first instants behind the given one.
std::vector<std::string> Instants(const TTimeRule& rule, const TIME_ZONE_INFORMATION& rules,
                                  const std::string& after, int count) {
  std::vector<std::string> texts;
  auto instant = std::optional(At(after));
  while (count-- > 0 && (instant = NextInstant(rule, Zone(rules), *instant)))
    texts.push_back(Text(*instant));
  return texts;
}

TEST(LocalTimes, ASkippedOneIsTheMomentOfTheChange) {
  EXPECT_THAT(Instants(Daily("02:30"), Europe, "2026-03-28 00:00", 3),
              ElementsAre("2026-03-28 01:30", "2026-03-29 01:00", "2026-03-30 00:30"));
  EXPECT_THAT(Instants(Daily("02:30"), South, "2026-10-03 00:00", 2),
              ElementsAre("2026-10-03 16:00", "2026-10-04 15:30"));
  EXPECT_THAT(Instants(Daily("00:00"), Midnight, "2026-10-10 04:00", 2),
              ElementsAre("2026-10-11 03:00", "2026-10-12 02:00"));
  EXPECT_THAT(Instants(Daily("01:30", 30), Europe, "2026-03-29 00:00", 3),
              ElementsAre("2026-03-29 00:30", "2026-03-29 01:00", "2026-03-29 01:30"))
      << "those of 2:00, 2:30 and 3:00 are one";
}

TEST(LocalTimes, ARepeatedOneIsTheFirstOfTheTwo) {
  EXPECT_THAT(Instants(Daily("02:30"), Europe, "2026-10-24 12:00", 2),
              ElementsAre("2026-10-25 00:30", "2026-10-26 01:30"));
  EXPECT_THAT(Instants(Daily("03:00"), Europe, "2026-10-25 00:00", 1),
              ElementsAre("2026-10-25 02:00"));
  EXPECT_THAT(Instants(Daily("02:30"), South, "2026-04-04 00:00", 2),
              ElementsAre("2026-04-04 15:30", "2026-04-05 16:30"));
  EXPECT_THAT(Instants(Daily("23:30"), Midnight, "2026-03-14 12:00", 3),
              ElementsAre("2026-03-15 01:30", "2026-03-16 02:30", "2026-03-17 02:30"));
}

TEST(LocalTimes, DaysAndDatesAndIntervals) {
  TTimeRule rule = Daily("06:00");
  rule.Days = 1 << tdMonday | 1 << tdFriday;
  EXPECT_THAT(Instants(rule, Greenwich, "2026-11-23 06:00", 3),
              ElementsAre("2026-11-27 06:00", "2026-11-30 06:00", "2026-12-04 06:00"));
  rule.Date = DayOf(At("2028-02-29 00:00"));
  EXPECT_THAT(Instants(rule, Europe, "2026-11-23 06:00", 2), ElementsAre("2028-02-29 05:00"));
  rule.Date.reset();
  rule.Days = 0;
  EXPECT_THAT(Instants(rule, Europe, "2026-11-23 06:00", 1), ElementsAre());
  EXPECT_THAT(
      Instants(Daily("22:10", 50), Greenwich, "2024-02-28 23:00", 4),
      ElementsAre("2024-02-28 23:50", "2024-02-29 22:10", "2024-02-29 23:00", "2024-02-29 23:50"));
  EXPECT_THAT(Instants(Daily("00:00"), Greenwich, "2024-12-30 23:59", 2),
              ElementsAre("2024-12-31 00:00", "2025-01-01 00:00"));
}

/// The system's clock and zone in a test's hands.
struct TWallClock {
  explicit TWallClock(const std::string& local) { Set(local); }
  /// What the clock in Europe's winter shows.
  static void Set(const std::string& local) { Now = At(local) - 60 * MinuteLength; }
  static void WINAPI Time(LPFILETIME time) {
    const auto ticks = static_cast<std::uint64_t>(Now + 109205 * DayLength) * 10'000;
    *time = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
  }
  static BOOL WINAPI ZoneOf(USHORT, PDYNAMIC_TIME_ZONE_INFORMATION, LPTIME_ZONE_INFORMATION rules) {
    *rules = Europe;
    return TRUE;
  }
  static inline TMilliseconds Now = 0;
  TImportPatch Clock{"qel.dll", "GetSystemTimeAsFileTime", &Time};
  TImportPatch Rules{"qel.dll", "GetTimeZoneInformationForYear", &ZoneOf};
};

class TimeTrigger : public testing::Test {
 protected:
  void Make(const std::string& properties, const std::string& items) {
    Trigger = std::make_unique<TQELTimeTrigger>(nullptr);
    Trigger->OnTrigger = [this](vcl::TObject*, TQELTrigger* item) {
      Fired += vcl::FormatDateTime("hh:nn ", item->Time());
    };
    ReadForm("object T: TQELTimeTrigger\n" + properties + "\n Triggers = <" + items + ">\nend\n",
             Trigger.get());
  }
  /// What is fired when the clock shows that.
  std::string At(const std::string& local) {
    Fired.clear();
    TWallClock::Set(local);
    testinput::PumpFor(1100);
    return Fired;
  }
  static std::string Item(double time, const std::string& more = {}) {
    return " item\n Time = " + vcl::FloatToStr(time) + "\n" + more + " end";
  }

  TWallClock Clock{"2026-11-23 12:00"};
  std::string Fired;
  std::unique_ptr<TQELTimeTrigger> Trigger;
};

TEST_F(TimeTrigger, FiresWhatHasComeAndNoMore) {
  Make("", Item(0.5) + Item(0.75) + Item(0.75, " Active = False\n"));
  EXPECT_EQ(At("2026-11-23 12:00"), "") << "it was noon already";
  EXPECT_EQ(Trigger->NextTime(), vcl::EncodeDate(2026, 11, 23) + 0.75);
  EXPECT_EQ(At("2026-11-23 17:59"), "");
  EXPECT_EQ(At("2026-11-23 18:00"), "18:00 ");
  EXPECT_EQ(At("2026-11-23 17:30"), "") << "the clock is put back by a little";
  EXPECT_EQ(At("2026-11-23 18:01"), "");
  EXPECT_EQ(Trigger->NextTime(), vcl::EncodeDate(2026, 11, 24) + 0.5);
  EXPECT_EQ(At("2026-11-23 11:00"), "") << "and by much";
  EXPECT_EQ(At("2026-11-23 12:00"), "12:00 ");
}

TEST_F(TimeTrigger, WhatWasMissedIsFiredOnceOrNotAtAll) {
  const std::string items = Item(0.25) + Item(0.75) + Item(0.875);
  Make("", items);
  EXPECT_EQ(At("2026-11-26 18:30"), "");
  EXPECT_EQ(At("2026-11-26 21:00"), "21:00 ");
  TWallClock::Set("2026-11-23 12:00");
  Make(" FireMissed = True", items);
  EXPECT_EQ(At("2026-11-23 12:00"), "06:00 ") << "missed by the start";
  EXPECT_EQ(At("2026-11-26 18:30"), "06:00 18:00 21:00 ") << "once for three days";
  EXPECT_EQ(At("2026-11-26 18:31"), "");
  Trigger->Triggers()->Add()->SetTime(0.5);
  EXPECT_EQ(At("2026-11-26 18:32"), "") << "what is new misses nothing";
}

TEST_F(TimeTrigger, FiresNothingInTheDesigner) {
  vcl::TForm form(nullptr);
  form.SetDesigning(true);
  auto* const designed = new TQELTimeTrigger(&form);
  designed->OnTrigger = [this](vcl::TObject*, TQELTrigger*) { Fired += "designed"; };
  designed->Triggers()->Add()->SetTime(0.75);
  EXPECT_EQ(At("2026-11-23 18:00"), "");
}

TEST_F(TimeTrigger, RefusesWhatIsNoTime) {
  Make("", Item(0.5, " Date = 46349\n Every = 5\n Days = [tdSunday]\n"));
  const std::string before = FormText(Trigger.get());
  TQELTrigger* const item = Trigger->Triggers()->Triggers(0);
  for (const double time : {-0.1, 1.0, std::nan("")}) item->SetTime(time);
  for (const int every : {-1, 1440}) item->SetEvery(every);
  for (const double date : {1e9, std::nan("")}) item->SetDate(date);
  item->SetDate(46349.5);
  EXPECT_EQ(FormText(Trigger.get()), before);
  EXPECT_DOUBLE_EQ(Trigger->NextTime(), 46349.5 + 5.0 / vcl::MinsPerDay);
  Trigger->Triggers()->Clear();
  EXPECT_EQ(Trigger->NextTime(), 0);
}

TEST_F(TimeTrigger, HandlersMayFreeItemsAndTheTriggerOrRaise) {
  Make("", Item(0.75) + Item(0.75) + Item(0.75));
  int fired = 0;
  const auto onException = vcl::Application()->OnException;
  int errors = 0;
  vcl::Application()->OnException = [&](vcl::TObject*, const std::exception&) { ++errors; };
  Trigger->OnTrigger = [&](vcl::TObject*, TQELTrigger* item) {
    if (++fired == 1) {
      Trigger->Triggers()->Delete(1);
      throw vcl::EConvertError("raised");
    }
    EXPECT_EQ(item->Index(), 1);
    Trigger.reset();
  };
  At("2026-11-23 18:00");
  vcl::Application()->OnException = onException;
  EXPECT_EQ(fired, 2);
  EXPECT_EQ(errors, 1);
  EXPECT_EQ(Trigger, nullptr);
}

}  // namespace
}  // namespace qel
