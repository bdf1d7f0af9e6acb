// TDateTimePicker: the system's field for dates and times.
#include "vcl/stdctrls/datetimepicker.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/calendarmessages.h"
#include "vcl/stdctrls/private/commoncontrols.h"
#include "vcl/stdctrls/private/systemtimes.h"

namespace vcl {
namespace {

constexpr TCalendarMessages Messages{DTM_SETRANGE, DTM_SETMCCOLOR};

}  // namespace

const TClass& TDateTimePicker::Class() {
  using T = TDateTimePicker;
  static const TClass info = Describe<T, TCommonCalendar>(
      "vcl::TDateTimePicker", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align"),
          Inherit("CalColors"),
          Property<&T::Checked, &T::SetChecked>("Checked").Default(true),
          Inherit("Color").Default(clWindow),
          // The kind before the date and the time, and these behind their limits.
          Property<&T::Kind, &T::SetKind>("Kind").Default(dtkDate),
          Inherit("MaxDate"),
          Inherit("MinDate"),
          Inherit("Date"),
          Property<&T::DateFormat, &T::SetDateFormat>("DateFormat").Default(dfShort),
          Property<&T::DateMode, &T::SetDateMode>("DateMode").Default(dmComboBox),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::Format, &T::SetFormat>("Format").Default(""),
          Inherit("ImeMode"),
          Inherit("ImeName"),
          Inherit("ParentColor").Default(false),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ShowCheckbox, &T::SetShowCheckbox>("ShowCheckbox").Default(false),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Property<&T::Time, &T::SetTime>("Time").Type("TTime"),
          Inherit("Visible"),
          Event<&T::OnChange>("OnChange"),
          Inherit("OnClick"),
          Event<&T::OnCloseUp>("OnCloseUp"),
          Inherit("OnDblClick"),
          Event<&T::OnDropDown>("OnDropDown"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TDateTimePicker::TDateTimePicker(TComponent* owner) : TCommonCalendar(owner, Messages) {
  SetControlStyle({csOpaque, csClickEvents, csDoubleClicks, csFixedHeight, csReplicatable});
  SetBounds(0, 0, 186, 21);
}

/// What a window only takes when it is made.
template <class T>
void TDateTimePicker::ChangeStyle(T& field, T value) {
  if (value == field) return;
  field = value;
  RecreateWnd();
}

void TDateTimePicker::SetKind(TDateTimeKind kind) { ChangeStyle(FKind, kind); }
void TDateTimePicker::SetDateFormat(TDTDateFormat format) { ChangeStyle(FDateFormat, format); }
void TDateTimePicker::SetDateMode(TDTDateMode mode) { ChangeStyle(FDateMode, mode); }
void TDateTimePicker::SetShowCheckbox(bool show) { ChangeStyle(FShowCheckbox, show); }

void TDateTimePicker::SetChecked(bool checked) {
  if (checked == FChecked) return;
  FChecked = checked;
  if (HandleAllocated()) SendDateTime();
  AccessibleChanged(acState);
}

void TDateTimePicker::SetFormat(const std::string& format) {
  if (format == FFormat) return;
  FFormat = format;
  if (HandleAllocated()) SendFormat();
}

TDateTime TDateTimePicker::Time() const { return TimeOf(DateTime()); }

void TDateTimePicker::SetTime(TDateTime time) { SetDateTime(Date() + TimeOf(time)); }

// The window.

void TDateTimePicker::SendDateTime() {
  const SYSTEMTIME time = ToSystemTime(DateTime());
  const bool none = FShowCheckbox && !FChecked;
  Send(*this, DTM_SETSYSTEMTIME, none ? GDT_NONE : GDT_VALID, reinterpret_cast<LPARAM>(&time));
  AccessibleChanged(acValue);
}

void TDateTimePicker::SendFormat() {
  const std::wstring format = ToUtf16(FFormat);
  Send(*this, DTM_SETFORMATW, 0,
       reinterpret_cast<LPARAM>(FFormat.empty() ? nullptr : format.c_str()));
}

void TDateTimePicker::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_DATE_CLASSES);
  TCommonCalendar::CreateParams(params);
  params.SubClassOf = DATETIMEPICK_CLASSA;
  if (FKind == dtkTime) {
    params.Style |= DTS_TIMEFORMAT;
  } else {
    params.Style |= FDateFormat == dfLong ? DTS_LONGDATEFORMAT : DTS_SHORTDATEFORMAT;
    if (FDateMode == dmUpDown) params.Style |= DTS_UPDOWN;
  }
  if (FShowCheckbox) params.Style |= DTS_SHOWNONE;
}

void TDateTimePicker::CreateWnd() {
  TCommonCalendar::CreateWnd();
  if (!FFormat.empty()) SendFormat();
}

void TDateTimePicker::Change() {
  AccessibleChanged(acValue);
  OnChange(this);
}

/// The window tells each change twice.
void TDateTimePicker::TakeChange(TDateTime value, bool valid) {
  const bool checked = valid || !FShowCheckbox;
  if (checked == FChecked && value == DateTime()) return;
  FChecked = checked;
  TakeDateTime(value);
  Change();
}

void TDateTimePicker::NotifyFromWindow(TMessage& message) {
  const auto& header = *reinterpret_cast<const NMHDR*>(message.LParam);
  switch (header.code) {
    case static_cast<UINT>(DTN_DATETIMECHANGE): {
      const auto& told = *reinterpret_cast<const NMDATETIMECHANGE*>(message.LParam);
      const bool valid = told.dwFlags == GDT_VALID;
      return TakeChange(valid ? FromSystemTime(told.st) : DateTime(), valid);
    }
    case static_cast<UINT>(DTN_DROPDOWN): FDroppedDown = true; return OnDropDown(this);
    case static_cast<UINT>(DTN_CLOSEUP): FDroppedDown = false; return OnCloseUp(this);
    default: return TCommonCalendar::Dispatch(message);
  }
}

void TDateTimePicker::Dispatch(TMessage& message) {
  if (message.Msg == CN_NOTIFY) return NotifyFromWindow(message);
  TCommonCalendar::Dispatch(message);
}

void TDateTimePicker::DescribeAccessible(TAccessibleInfo& info) const {
  TCommonCalendar::DescribeAccessible(info);
  info.Role = FKind == dtkTime || FDateMode == dmUpDown ? arSpinButton : arComboBox;
  info.Value = FKind == dtkTime ? TimeToStr(DateTime()) : DateToStr(DateTime());
  if (FShowCheckbox && FChecked) info.State.Include(asChecked);
  if (FShowCheckbox && !FChecked) info.Value.clear();
}

}  // namespace vcl
