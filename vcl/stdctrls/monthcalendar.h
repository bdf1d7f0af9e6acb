// TMonthCalendar: a calendar of one or more months.
#pragma once

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/commoncalendar.h"

namespace vcl {

/// The first day of a week; dowLocaleDefault: the user's.
enum TCalDayOfWeek {
  dowMonday,
  dowTuesday,
  dowWednesday,
  dowThursday,
  dowFriday,
  dowSaturday,
  dowSunday,
  dowLocaleDefault
};
template <>
inline constexpr TEnumText EnumText<TCalDayOfWeek>{
    "TCalDayOfWeek",
    "dowMonday dowTuesday dowWednesday dowThursday dowFriday dowSaturday dowSunday "
    "dowLocaleDefault"};

/// As many months as the control has room for, with a day of them picked, or several in a row.
class VCL_API TMonthCalendar : public TCommonCalendar {
 public:
  explicit TMonthCalendar(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TDateTime EndDate() const { return FMultiSelect ? FEndDate : Date(); }
  /// With MultiSelect the last picked day; Date is the first. Raises EArgumentOutOfRangeException
  /// for one before Date or more than MaxSelectRange days away.
  void SetEndDate(TDateTime date);
  TCalDayOfWeek FirstDayOfWeek() const { return FFirstDayOfWeek; }
  /// The day that stands first in a week.
  void SetFirstDayOfWeek(TCalDayOfWeek day);
  int MaxSelectRange() const { return FMaxSelectRange; }
  /// How many days can be picked at once. Raises EArgumentOutOfRangeException for less than 1.
  void SetMaxSelectRange(int days);
  bool MultiSelect() const { return FMultiSelect; }
  /// True: several days in a row can be picked.
  void SetMultiSelect(bool multiSelect);
  bool ShowToday() const { return FShowToday; }
  /// True: the day of today stands below the months.
  void SetShowToday(bool show);
  bool ShowTodayCircle() const { return FShowTodayCircle; }
  /// True: today is marked among the days.
  void SetShowTodayCircle(bool show);
  bool WeekNumbers() const { return FWeekNumbers; }
  /// True: the weeks' numbers stand beside them.
  void SetWeekNumbers(bool weekNumbers);
  /// The size of one month, in pixels.
  TSize MonthSize();

  /// The user has picked another day.
  TNotifyEvent OnChange;

 protected:
  void SendDateTime() override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;

 private:
  template <class T>
  void ChangeStyle(T& field, T value);
  void SendFirstDay();

  TDateTime FEndDate = 0;
  TCalDayOfWeek FFirstDayOfWeek = dowLocaleDefault;
  int FMaxSelectRange = 31;
  bool FMultiSelect = false;
  bool FShowToday = true;
  bool FShowTodayCircle = true;
  bool FWeekNumbers = false;
};

}  // namespace vcl
