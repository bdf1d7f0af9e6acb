// TTrackBar: range, ticks and position, told to the system's track bar and heard from it.
#include "vcl/stdctrls/trackbar.h"

#include <algorithm>
#include <limits>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {

const TClass& TTrackBar::Class() {
  using T = TTrackBar;
  static const TClass info = Describe<T, TRangeControl>(
      "vcl::TTrackBar", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::LineSize, &T::SetLineSize>("LineSize").Default(1),
          Inherit("Max").Default(10),
          Inherit("Min"),
          Property<&T::Orientation, &T::SetOrientation>("Orientation").Default(trHorizontal),
          Inherit("ParentShowHint"),
          Property<&T::PageSize, &T::SetPageSize>("PageSize").Default(2),
          Inherit("PopupMenu"),
          Property<&T::Frequency, &T::SetFrequency>("Frequency").Default(1),
          Inherit("Position"),
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

TTrackBar::TTrackBar(TComponent* owner) : TRangeControl(owner, 10) {
  SetControlStyle(ControlStyle() - TControlStyle{csCaptureMouse, csClickEvents});
  SetBounds(0, 0, 150, 45);
  SetTabStop(true);
}

// The control keeps every tick of every range that it hears of: there are few meanwhile, and never
// more than can be told apart.
void TTrackBar::SendRange() {
  constexpr int mostTicks = 4096;
  Send(*this, TBM_SETTICFREQ, static_cast<WPARAM>(std::numeric_limits<int>::max()));
  Send(*this, TBM_SETRANGEMIN, FALSE, Min());
  Send(*this, TBM_SETRANGEMAX, TRUE, Max());
  const int leastDistance = (Max() - Min()) / mostTicks;
  Send(*this, TBM_SETTICFREQ, static_cast<WPARAM>(std::max(FFrequency, leastDistance)));
}

void TTrackBar::SetFrequency(int frequency) {
  FFrequency = frequency;
  if (HandleAllocated()) SendRange();
}

void TTrackBar::SendPosition() { Send(*this, TBM_SETPOS, TRUE, Position()); }

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
  TRangeControl::Change();
  OnChange(this);
}

void TTrackBar::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_BAR_CLASSES);
  TRangeControl::CreateParams(params);
  params.SubClassOf = TRACKBAR_CLASSA;
  params.Style |= FOrientation == trVertical ? TBS_VERT : TBS_HORZ;
  params.Style |= FTickStyle == tsAuto ? TBS_AUTOTICKS : TBS_NOTICKS;
}

void TTrackBar::CreateWnd() {
  TRangeControl::CreateWnd();
  Send(*this, TBM_SETLINESIZE, 0, FLineSize);
  Send(*this, TBM_SETPAGESIZE, 0, FPageSize);
}

void TTrackBar::Dispatch(TMessage& message) {
  if (message.Msg != CN_HSCROLL && message.Msg != CN_VSCROLL) {
    return TRangeControl::Dispatch(message);
  }
  TakePosition(static_cast<int>(Send(*this, TBM_GETPOS)));
}

void TTrackBar::DescribeAccessible(TAccessibleInfo& info) const {
  TRangeControl::DescribeAccessible(info);
  info.Role = arSlider;
}

}  // namespace vcl
