// Calendars: fields for dates and times, months, and what both share.
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

class Calendars : public TStandardForm {
 protected:
  static SYSTEMTIME Shown(TDateTimePicker& picker) {
    SYSTEMTIME time{};
    ::SendMessageW(picker.Handle(), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
    return time;
  }
};

TEST_F(Calendars, AFieldIsTypedIntoPartByPart) {
  auto* picker = Make<TDateTimePicker>(10, 10);
  picker->SetFormat("dd");
  picker->SetDate(EncodeDate(2024, 2, 28));
  picker->SetTime(EncodeTime(6, 30, 0, 0));
  int changes = 0;
  picker->OnChange = [&](TObject*) { ++changes; };
  ShowForm();
  EXPECT_EQ(Shown(*picker).wDay, 28);
  picker->SetFocus();
  Key(VK_RIGHT);
  Key(VK_UP);
  EXPECT_EQ(picker->Date(), EncodeDate(2024, 2, 29));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(picker->Time(), EncodeTime(6, 30, 0, 0)) << "the time of day stays";
  picker->RecreateWnd();
  EXPECT_EQ(Shown(*picker).wDay, 29);
  EXPECT_EQ(Shown(*picker).wHour, 6);
}

TEST_F(Calendars, DatesStayWithinTheirLimits) {
  auto* picker = Make<TDateTimePicker>(10, 10);
  picker->SetDate(EncodeDate(2020, 1, 1));
  picker->SetMinDate(EncodeDate(2021, 1, 1));
  EXPECT_EQ(picker->Date(), EncodeDate(2021, 1, 1));
  picker->SetMaxDate(EncodeDate(2021, 12, 31));
  EXPECT_THROW(picker->SetDate(EncodeDate(2022, 1, 1)), EArgumentOutOfRangeException);
  EXPECT_THROW(picker->SetMinDate(EncodeDate(2022, 1, 1)), EArgumentOutOfRangeException);
  EXPECT_EQ(picker->MinDate(), EncodeDate(2021, 1, 1));
  picker->SetMinDate(0);
  EXPECT_THROW(picker->SetDate(EncodeDate(1752, 9, 13)), EArgumentOutOfRangeException);
  for (const double none : {HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(picker->SetDate(none), EConvertError);
  }
  EXPECT_EQ(picker->Date(), EncodeDate(2021, 1, 1));
}

TEST_F(Calendars, ACheckBoxSaysWhetherThereIsADate) {
  auto* picker = Make<TDateTimePicker>(10, 10);
  picker->SetShowCheckbox(true);
  picker->SetChecked(false);
  ShowForm();
  SYSTEMTIME time{};
  EXPECT_EQ(::SendMessageW(picker->Handle(), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time)),
            GDT_NONE);
  int changes = 0;
  picker->OnChange = [&](TObject*) { ++changes; };
  Click(*picker, 8, picker->Height() / 2);
  EXPECT_TRUE(testinput::PumpUntil([&] { return picker->Checked(); }));
  EXPECT_EQ(changes, 1);
}

TEST_F(Calendars, AMonthsDayIsPickedWithTheMouse) {
  auto* calendar = Make<TMonthCalendar>(10, 10);
  calendar->SetFirstDayOfWeek(dowMonday);
  calendar->SetDate(EncodeDate(2024, 7, 17));
  int changes = 0;
  calendar->OnChange = [&](TObject*) { ++changes; };
  const TSize month = calendar->MonthSize();
  calendar->SetWidth(month.cx);
  calendar->SetHeight(month.cy);
  ShowForm();
  // The system says which day a place is of.
  MCHITTESTINFO test{};
  test.cbSize = sizeof test;
  for (test.pt = {10, month.cy / 2}; test.pt.x < month.cx; test.pt.x += 5) {
    ::SendMessageW(calendar->Handle(), MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&test));
    if (test.uHit == MCHT_CALENDARDATE && test.st.wDay != 17) break;
  }
  ASSERT_EQ(test.uHit, static_cast<UINT>(MCHT_CALENDARDATE));
  Click(*calendar, test.pt.x, test.pt.y);
  EXPECT_EQ(calendar->Date(), EncodeDate(test.st.wYear, test.st.wMonth, test.st.wDay));
  EXPECT_EQ(changes, 1);
  calendar->SetMultiSelect(true);
  calendar->SetMaxSelectRange(5);
  calendar->SetEndDate(calendar->Date() + 4);
  EXPECT_THROW(calendar->SetEndDate(calendar->Date() + 5), EArgumentOutOfRangeException);
  SYSTEMTIME days[2]{};
  ::SendMessageW(calendar->Handle(), MCM_GETSELRANGE, 0, reinterpret_cast<LPARAM>(days));
  EXPECT_EQ(days[1].wDay - days[0].wDay, 4);
}

TEST_F(Calendars, FormFilesKeepDatesAndLimits) {
  RegisterStandardClasses();
  TDateTimePicker written(nullptr);
  written.SetName("Read");
  written.SetKind(dtkTime);
  written.SetMinDate(EncodeDate(1999, 12, 31));
  written.SetMaxDate(EncodeDate(2100, 1, 1));
  written.SetDateTime(EncodeDate(2000, 2, 29) + EncodeTime(12, 0, 0, 0));
  written.CalColors()->SetTitleBackColor(clRed);
  TDateTimePicker read(nullptr);
  ReadForm(FormText(&written), &read);
  EXPECT_EQ(read.DateTime(), written.DateTime());
  EXPECT_EQ(read.MinDate(), written.MinDate());
  EXPECT_EQ(read.CalColors()->TitleBackColor(), clRed);
  EXPECT_EQ(FormText(&read), FormText(&written));
}

}  // namespace
}  // namespace vcl
