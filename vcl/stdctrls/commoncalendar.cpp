// TCommonCalendar: the date and its limits, and the calendar's colours.
#include "vcl/stdctrls/commoncalendar.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/private/calendarmessages.h"
#include "vcl/stdctrls/private/systemtimes.h"

namespace vcl {

const TClass& TMonthCalColors::Class() {
  using T = TMonthCalColors;
  static const TClass info = Describe<T, TPersistent>(
      "vcl::TMonthCalColors", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::BackColor, &T::SetBackColor>("BackColor").Default(clWindow),
          Property<&T::TextColor, &T::SetTextColor>("TextColor").Default(clWindowText),
          Property<&T::TitleBackColor, &T::SetTitleBackColor>("TitleBackColor")
              .Default(clActiveCaption),
          Property<&T::TitleTextColor, &T::SetTitleTextColor>("TitleTextColor").Default(clWhite),
          Property<&T::MonthBackColor, &T::SetMonthBackColor>("MonthBackColor").Default(clWhite),
          Property<&T::TrailingTextColor, &T::SetTrailingTextColor>("TrailingTextColor")
              .Default(clInactiveCaptionText),
      });
  return info;
}

void TMonthCalColors::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TMonthCalColors*>(source);
  if (!other) return TPersistent::Assign(source);
  std::ranges::copy(other->FColors, FColors);
  FChanged();
}

void TMonthCalColors::Set(int which, TColor color) {
  if (FColors[which] == color) return;
  FColors[which] = color;
  FChanged();
}

const TClass& TCommonCalendar::Class() {
  using T = TCommonCalendar;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TCommonCalendar", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::CalColors, &T::SetCalColors>("CalColors").Unpublished(),
          Property<&T::Date, &T::SetDate>("Date").Type("TDate").Unpublished(),
          Property<&T::MaxDate, &T::SetMaxDate>("MaxDate")
              .Type("TDate")
              .StoredIf<&T::IsMaxDateStored>()
              .Unpublished(),
          Property<&T::MinDate, &T::SetMinDate>("MinDate")
              .Type("TDate")
              .StoredIf<&T::IsMinDateStored>()
              .Unpublished(),
      });
  return info;
}

TCommonCalendar::TCommonCalendar(TComponent* owner, const TCalendarMessages& messages)
    : TWinControl(owner),
      FMessages(messages),
      FCalColors(std::make_unique<TMonthCalColors>([this] { SendColors(); })),
      FDateTime(Now()) {
  SetTabStop(true);
  SetParentColor(false);
}

TCommonCalendar::~TCommonCalendar() { AnnounceEnd(); }

// The date.

namespace {

std::string DateText(TDateTime value) { return FormatDateTime("yyyy-mm-dd", value); }

}  // namespace

TDateTime TCommonCalendar::Date() const { return DayOf(FDateTime); }

void TCommonCalendar::CheckDate(TDateTime value) const {
  const TDateTime day = DayOf(value);
  if (!(day >= EncodeDate(1752, 9, 14)) || !IsValidDateTime(day)) {
    throw EArgumentOutOfRangeException(
        Concat("The system's calendars begin on 1752-09-14, behind ", DateText(value)));
  }
  const bool early = FMinDate != 0 && day < FMinDate;
  const bool late = FMaxDate != 0 && day > FMaxDate;
  if (!early && !late) return;
  throw EArgumentOutOfRangeException(Concat("The date ", DateText(value), " lies ",
                                            early ? "before " : "behind ",
                                            DateText(early ? FMinDate : FMaxDate)));
}

void TCommonCalendar::SetDateTime(TDateTime value) {
  if (!Loading()) CheckDate(value);
  if (value == FDateTime) return;
  FDateTime = value;
  if (HandleAllocated()) SendDateTime();
}

void TCommonCalendar::SetDate(TDateTime date) { SetDateTime(DayOf(date) + TimeOf(FDateTime)); }

void TCommonCalendar::SetMinDate(TDateTime date) { SetLimits(DayOf(date), FMaxDate); }
void TCommonCalendar::SetMaxDate(TDateTime date) { SetLimits(FMinDate, DayOf(date)); }

void TCommonCalendar::SetLimits(TDateTime least, TDateTime most) {
  if (least != 0 && most != 0 && least > most) {
    throw EArgumentOutOfRangeException(
        Concat("Dates cannot go from ", DateText(least), " to ", DateText(most)));
  }
  FMinDate = least;
  FMaxDate = most;
  if (HandleAllocated()) SendRange();
  if (Loading()) return;
  if (least != 0 && FDateTime < least) SetDate(least);
  if (most != 0 && DayOf(FDateTime) > most) SetDate(most);
}

void TCommonCalendar::Loaded() {
  TWinControl::Loaded();
  SetLimits(FMinDate, FMaxDate);
}

// The window.

void TCommonCalendar::SendRange() {
  const SYSTEMTIME limits[] = {FMinDate != 0 ? ToSystemTime(FMinDate) : SYSTEMTIME{},
                               FMaxDate != 0 ? ToSystemTime(FMaxDate) : SYSTEMTIME{}};
  const DWORD which = (FMinDate != 0 ? static_cast<DWORD>(GDTR_MIN) : 0u) |
                      (FMaxDate != 0 ? static_cast<DWORD>(GDTR_MAX) : 0u);
  Send(*this, FMessages.SetRange, which, reinterpret_cast<LPARAM>(&limits));
}

void TCommonCalendar::SendColors() {
  if (!HandleAllocated()) return;
  for (int i = 0; i < TMonthCalColors::Count; ++i) {
    Send(*this, FMessages.SetColor, static_cast<WPARAM>(i),
         static_cast<LPARAM>(ColorToRGB(FCalColors->FColors[i])));
  }
}

void TCommonCalendar::CreateWnd() {
  TWinControl::CreateWnd();
  SendColors();
  SendRange();
  SendDateTime();
}

}  // namespace vcl
