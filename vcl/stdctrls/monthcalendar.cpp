// TMonthCalendar: the system's calendar.
#include "vcl/stdctrls/monthcalendar.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/private/calendarmessages.h"
#include "vcl/stdctrls/private/commoncontrols.h"
#include "vcl/stdctrls/private/systemtimes.h"

namespace vcl {
namespace {

constexpr TCalendarMessages Messages{MCM_SETRANGE, MCM_SETCOLOR};

}  // namespace

const TClass& TMonthCalendar::Class() {
  using T = TMonthCalendar;
  static const TClass info = Describe<T, TCommonCalendar>(
      "vcl::TMonthCalendar", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align"),
          Property<&T::MultiSelect, &T::SetMultiSelect>("MultiSelect").Default(false),
          Inherit("CalColors"),
          Inherit("MaxDate"),
          Inherit("MinDate"),
          Inherit("Date"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::MaxSelectRange, &T::SetMaxSelectRange>("MaxSelectRange").Default(31),
          Property<&T::EndDate, &T::SetEndDate>("EndDate")
              .Type("TDate")
              .StoredIf<&T::MultiSelect>(),
          Property<&T::FirstDayOfWeek, &T::SetFirstDayOfWeek>("FirstDayOfWeek")
              .Default(dowLocaleDefault),
          Inherit("Font"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Property<&T::ShowToday, &T::SetShowToday>("ShowToday").Default(true),
          Property<&T::ShowTodayCircle, &T::SetShowTodayCircle>("ShowTodayCircle").Default(true),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Property<&T::WeekNumbers, &T::SetWeekNumbers>("WeekNumbers").Default(false),
          Event<&T::OnChange>("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TMonthCalendar::TMonthCalendar(TComponent* owner) : TCommonCalendar(owner, Messages) {
  SetControlStyle({csOpaque, csClickEvents, csDoubleClicks, csReplicatable});
  SetBounds(0, 0, 191, 154);
}

/// What a window only takes when it is made.
template <class T>
void TMonthCalendar::ChangeStyle(T& field, T value) {
  if (value == field) return;
  field = value;
  RecreateWnd();
}

void TMonthCalendar::SetMultiSelect(bool multiSelect) {
  FEndDate = Date();
  ChangeStyle(FMultiSelect, multiSelect);
}
void TMonthCalendar::SetShowToday(bool show) { ChangeStyle(FShowToday, show); }
void TMonthCalendar::SetShowTodayCircle(bool show) { ChangeStyle(FShowTodayCircle, show); }
void TMonthCalendar::SetWeekNumbers(bool weekNumbers) { ChangeStyle(FWeekNumbers, weekNumbers); }

void TMonthCalendar::SetEndDate(TDateTime date) {
  date = DayOf(date);
  if (!Loading() && (date < Date() || date - Date() >= FMaxSelectRange)) {
    throw EArgumentOutOfRangeException(Concat("From ", FormatDateTime("yyyy-mm-dd", Date()), " to ",
                                              FormatDateTime("yyyy-mm-dd", date), " are not 1 to ",
                                              std::to_string(FMaxSelectRange), " days"));
  }
  FEndDate = date;
  if (HandleAllocated()) SendDateTime();
}

void TMonthCalendar::SetMaxSelectRange(int days) {
  if (days < 1) {
    throw EArgumentOutOfRangeException(
        Concat("A calendar cannot let ", std::to_string(days), " days be picked"));
  }
  FMaxSelectRange = days;
  SendIfAllocated(*this, MCM_SETMAXSELCOUNT, static_cast<WPARAM>(days));
}

void TMonthCalendar::SetFirstDayOfWeek(TCalDayOfWeek day) {
  if (day == FFirstDayOfWeek) return;
  FFirstDayOfWeek = day;
  day == dowLocaleDefault ? RecreateWnd() : SendFirstDay();
}

TSize TMonthCalendar::MonthSize() {
  RECT rect{};
  ::SendMessageW(Handle(), MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&rect));
  return {rect.right, rect.bottom};
}

// The window.

void TMonthCalendar::SendFirstDay() {
  if (FFirstDayOfWeek == dowLocaleDefault) return;
  SendIfAllocated(*this, MCM_SETFIRSTDAYOFWEEK, 0, FFirstDayOfWeek);
}

void TMonthCalendar::SendDateTime() {
  AccessibleChanged(acValue);
  SYSTEMTIME days[] = {ToSystemTime(Date()), ToSystemTime(std::max(EndDate(), Date()))};
  Send(*this, FMultiSelect ? MCM_SETSELRANGE : MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(days));
}

void TMonthCalendar::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_DATE_CLASSES);
  TCommonCalendar::CreateParams(params);
  params.SubClassOf = MONTHCAL_CLASSA;
  if (FMultiSelect) params.Style |= MCS_MULTISELECT;
  if (!FShowToday) params.Style |= MCS_NOTODAY;
  if (!FShowTodayCircle) params.Style |= MCS_NOTODAYCIRCLE;
  if (FWeekNumbers) params.Style |= MCS_WEEKNUMBERS;
}

void TMonthCalendar::CreateWnd() {
  TCommonCalendar::CreateWnd();
  SendFirstDay();
  if (!FMultiSelect) return;
  Send(*this, MCM_SETMAXSELCOUNT, static_cast<WPARAM>(FMaxSelectRange));
  SendDateTime();
}

void TMonthCalendar::Dispatch(TMessage& message) {
  if (message.Msg != CN_NOTIFY) return TCommonCalendar::Dispatch(message);
  const auto& told = *reinterpret_cast<const NMSELCHANGE*>(message.LParam);
  if (told.nmhdr.code != static_cast<UINT>(MCN_SELCHANGE) || told.stSelStart.wYear == 0) {
    return TCommonCalendar::Dispatch(message);
  }
  const TDateTime first = DayOf(FromSystemTime(told.stSelStart));
  const TDateTime last = FMultiSelect ? DayOf(FromSystemTime(told.stSelEnd)) : first;
  // The window tells of the same day again from time to time.
  if (first == Date() && last == EndDate()) return;
  TakeDateTime(first);
  FEndDate = last;
  AccessibleChanged(acValue);
  OnChange(this);
}

void TMonthCalendar::DescribeAccessible(TAccessibleInfo& info) const {
  TCommonCalendar::DescribeAccessible(info);
  info.Role = arTable;
  info.Value = DateToStr(Date());
}

}  // namespace vcl
