// TCommonCalendar: what the controls that show a calendar have in common.
#pragma once

#include <functional>
#include <memory>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/datetime.h"

namespace vcl {

struct TCalendarMessages;

/// The colours of a calendar. Where the system draws it in a theme of its own, they are not seen.
class VCL_API TMonthCalColors : public TPersistent {
 public:
  /// `changed` hears of each change.
  explicit TMonthCalColors(std::function<void()> changed) : FChanged(std::move(changed)) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;

  TColor BackColor() const { return FColors[0]; }
  /// Between the months.
  void SetBackColor(TColor color) { Set(0, color); }
  TColor TextColor() const { return FColors[1]; }
  /// Of the days.
  void SetTextColor(TColor color) { Set(1, color); }
  TColor TitleBackColor() const { return FColors[2]; }
  /// Behind a month's name.
  void SetTitleBackColor(TColor color) { Set(2, color); }
  TColor TitleTextColor() const { return FColors[3]; }
  /// Of a month's name.
  void SetTitleTextColor(TColor color) { Set(3, color); }
  TColor MonthBackColor() const { return FColors[4]; }
  /// Behind the days.
  void SetMonthBackColor(TColor color) { Set(4, color); }
  TColor TrailingTextColor() const { return FColors[5]; }
  /// Of the days of the months before and after.
  void SetTrailingTextColor(TColor color) { Set(5, color); }

 private:
  friend class TCommonCalendar;
  static constexpr int Count = 6;  // In the order of the system's numbers.
  void Set(int which, TColor color);

  std::function<void()> FChanged;
  TColor FColors[Count] = {clWindow, clWindowText, clActiveCaption,
                           clWhite,  clWhite,      clInactiveCaptionText};
};

/// A date that the user picks from a calendar. The system's calendars begin with 14 September 1752
/// and end with the year 9999.
class VCL_API TCommonCalendar : public TWinControl {
 public:
  ~TCommonCalendar() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TMonthCalColors* CalColors() const { return FCalColors.get(); }
  /// The calendar's colours.
  void SetCalColors(const TMonthCalColors* colors) { FCalColors->Assign(colors); }
  /// The date without the time of day.
  TDateTime Date() const;
  /// The picked date. Raises EArgumentOutOfRangeException for one before 14 September 1752 and for
  /// one that MinDate and MaxDate exclude.
  void SetDate(TDateTime date);
  TDateTime MinDate() const { return FMinDate; }
  /// The first date that can be picked; 0 for any. A date that has been picked before it becomes
  /// this one. Raises EArgumentOutOfRangeException for one behind MaxDate.
  void SetMinDate(TDateTime date);
  TDateTime MaxDate() const { return FMaxDate; }
  /// The last date that can be picked; 0 for any. A date that has been picked behind it becomes
  /// this one. Raises EArgumentOutOfRangeException for one before MinDate.
  void SetMaxDate(TDateTime date);
  TDateTime DateTime() const { return FDateTime; }
  /// Date and time of day in one; as SetDate.
  void SetDateTime(TDateTime value);

 protected:
  TCommonCalendar(TComponent* owner, const TCalendarMessages& messages);
  /// Tells the window of the date and time.
  virtual void SendDateTime() = 0;
  /// Takes what the window tells.
  void TakeDateTime(TDateTime value) { FDateTime = value; }
  void CreateWnd() override;
  void Loaded() override;

 private:
  void SendRange();
  void SendColors();
  void CheckDate(TDateTime value) const;
  void SetLimits(TDateTime least, TDateTime most);
  bool IsMinDateStored() const { return FMinDate != 0; }
  bool IsMaxDateStored() const { return FMaxDate != 0; }

  const TCalendarMessages& FMessages;
  std::unique_ptr<TMonthCalColors> FCalColors;
  TDateTime FDateTime;
  TDateTime FMinDate = 0;
  TDateTime FMaxDate = 0;
};

}  // namespace vcl
