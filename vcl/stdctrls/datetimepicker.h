// TDateTimePicker: a date or a time in a field that the user edits part by part.
#pragma once

#include <string>

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/commoncalendar.h"

namespace vcl {

enum TDateTimeKind { dtkDate, dtkTime };
template <>
inline constexpr TEnumText EnumText<TDateTimeKind>{"TDateTimeKind", "dtkDate dtkTime"};
/// In the user's short or long format of dates.
enum TDTDateFormat { dfShort, dfLong };
template <>
inline constexpr TEnumText EnumText<TDTDateFormat>{"TDTDateFormat", "dfShort dfLong"};
/// A calendar that drops down, or two arrows that count.
enum TDTDateMode { dmComboBox, dmUpDown };
template <>
inline constexpr TEnumText EnumText<TDTDateMode>{"TDTDateMode", "dmComboBox dmUpDown"};

/// A field for a date or a time. The user types into its parts, counts with the arrow keys or takes
/// a day of the calendar that drops down.
class VCL_API TDateTimePicker : public TCommonCalendar {
 public:
  explicit TDateTimePicker(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  bool Checked() const { return FChecked; }
  /// With ShowCheckbox, whether there is a date at all.
  void SetChecked(bool checked);
  TDTDateFormat DateFormat() const { return FDateFormat; }
  /// In which of the user's formats a date stands; Format goes before it.
  void SetDateFormat(TDTDateFormat format);
  TDTDateMode DateMode() const { return FDateMode; }
  /// Whether a calendar drops down or arrows count; a time has arrows always.
  void SetDateMode(TDTDateMode mode);
  const std::string& Format() const { return FFormat; }
  /// The format in the system's letters (GetDateFormat's and GetTimeFormat's); empty for the
  /// user's.
  void SetFormat(const std::string& format);
  TDateTimeKind Kind() const { return FKind; }
  /// Whether the field is for a date or for a time.
  void SetKind(TDateTimeKind kind);
  bool ShowCheckbox() const { return FShowCheckbox; }
  /// True: a check box says whether there is a date.
  void SetShowCheckbox(bool show);
  /// The time of day.
  TDateTime Time() const;
  /// The time of day; the date stays.
  void SetTime(TDateTime time);
  /// True while the calendar is down.
  bool DroppedDown() const { return FDroppedDown; }

  /// The user has changed the date, the time or the check box.
  TNotifyEvent OnChange;
  /// The calendar has gone up.
  TNotifyEvent OnCloseUp;
  /// The calendar is about to drop down.
  TNotifyEvent OnDropDown;

 protected:
  virtual void Change();
  void SendDateTime() override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;

 private:
  template <class T>
  void ChangeStyle(T& field, T value);
  void SendFormat();
  void TakeChange(TDateTime value, bool valid);
  void NotifyFromWindow(TMessage& message);

  TDateTimeKind FKind = dtkDate;
  TDTDateFormat FDateFormat = dfShort;
  TDTDateMode FDateMode = dmComboBox;
  std::string FFormat;
  bool FChecked = true;
  bool FShowCheckbox = false;
  bool FDroppedDown = false;
};

}  // namespace vcl
