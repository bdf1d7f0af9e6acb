// TTrackBar: range, ticks and position, told to the system's track bar and heard from it.
#include "vcl/stdctrls/trackbar.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {

const TClass& TTrackBar::Class() {
  using T = TTrackBar;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TTrackBar", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::LineSize, &T::SetLineSize>("LineSize").Default(1),
          Property<&T::Max, &T::SetMax>("Max").Default(10),
          Property<&T::Min, &T::SetMin>("Min").Default(0),
          Property<&T::Orientation, &T::SetOrientation>("Orientation").Default(trHorizontal),
          Inherit("ParentShowHint"),
          Property<&T::PageSize, &T::SetPageSize>("PageSize").Default(2),
          Inherit("PopupMenu"),
          Property<&T::Frequency, &T::SetFrequency>("Frequency").Default(1),
          Property<&T::Position, &T::SetPosition>("Position").Default(0),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Property<&T::TickStyle, &T::SetTickStyle>("TickStyle").Default(tsAuto),
          Inherit("Visible"),
          Event<&T::OnChange>("OnChange"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TTrackBar::TTrackBar(TComponent* owner) : TWinControl(owner) {
  SetControlStyle(ControlStyle() - TControlStyle{csCaptureMouse, csClickEvents});
  SetBounds(0, 0, 150, 45);
  SetTabStop(true);
}

void TTrackBar::SetRange(int min, int max) {
  // The system's control counts the way from one end to the other.
  if (min > max || std::int64_t{max} - min > std::numeric_limits<int>::max()) {
    throw EArgumentOutOfRangeException(
        Concat("A track bar cannot go from ", std::to_string(min), " to ", std::to_string(max)));
  }
  FMin = min;
  FMax = max;
  if (HandleAllocated()) SendRange();
  SetPosition(FPosition);
}

// The control keeps every tick of every range that it hears of: there are few meanwhile, and never
// more than can be told apart.
void TTrackBar::SendRange() {
  constexpr int mostTicks = 4096;
  Send(*this, TBM_SETTICFREQ, static_cast<WPARAM>(std::numeric_limits<int>::max()));
  Send(*this, TBM_SETRANGEMIN, FALSE, FMin);
  Send(*this, TBM_SETRANGEMAX, TRUE, FMax);
  Send(*this, TBM_SETTICFREQ, static_cast<WPARAM>(std::max(FFrequency, (FMax - FMin) / mostTicks)));
}

void TTrackBar::SetFrequency(int frequency) {
  FFrequency = frequency;
  if (HandleAllocated()) SendRange();
}

void TTrackBar::SetPosition(int position) {
  position = std::clamp(position, FMin, FMax);
  if (position == FPosition) return;
  FPosition = position;
  SendIfAllocated(*this, TBM_SETPOS, TRUE, position);
  if (!Loading()) Change();
}

void TTrackBar::ChangeNumber(int& field, int value, UINT message) {
  field = value;
  SendIfAllocated(*this, message, 0, value);
}

void TTrackBar::SetLineSize(int size) { ChangeNumber(FLineSize, size, TBM_SETLINESIZE); }
void TTrackBar::SetPageSize(int size) { ChangeNumber(FPageSize, size, TBM_SETPAGESIZE); }

void TTrackBar::SetOrientation(TTrackBarOrientation orientation) {
  if (orientation == FOrientation) return;
  FOrientation = orientation;
  // What lay is now upright; a form file gives the bounds for what it has.
  if (!Loading()) SetBounds(Left(), Top(), Height(), Width());
  RecreateWnd();
}

void TTrackBar::SetTickStyle(TTickStyle style) {
  if (style == FTickStyle) return;
  FTickStyle = style;
  RecreateWnd();
}

void TTrackBar::Change() {
  AccessibleChanged(acValue);
  OnChange(this);
}

void TTrackBar::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_BAR_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = TRACKBAR_CLASSA;
  params.Style |= FOrientation == trVertical ? TBS_VERT : TBS_HORZ;
  params.Style |= FTickStyle == tsAuto ? TBS_AUTOTICKS : TBS_NOTICKS;
}

void TTrackBar::CreateWnd() {
  TWinControl::CreateWnd();
  SendRange();
  Send(*this, TBM_SETLINESIZE, 0, FLineSize);
  Send(*this, TBM_SETPAGESIZE, 0, FPageSize);
  Send(*this, TBM_SETPOS, TRUE, FPosition);
}

void TTrackBar::Dispatch(TMessage& message) {
  if (message.Msg != CN_HSCROLL && message.Msg != CN_VSCROLL) {
    return TWinControl::Dispatch(message);
  }
  const int position = static_cast<int>(Send(*this, TBM_GETPOS));
  if (position == FPosition) return;
  FPosition = position;
  Change();
}

void TTrackBar::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arSlider;
  info.Value = std::to_string(FPosition);
}

}  // namespace vcl
