// TProgressBar: its bounds, position, style and state, told to the system's progress bar.
#include "vcl/stdctrls/progressbar.h"

#include <algorithm>
#include <cstdint>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {

const TClass& TProgressBar::Class() {
  using T = TProgressBar;
  static const TClass info = Describe<T, TRangeControl>(
      "vcl::TProgressBar", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::MarqueeInterval, &T::SetMarqueeInterval>("MarqueeInterval").Default(10),
          Inherit("Max"),
          Inherit("Min"),
          Property<&T::Orientation, &T::SetOrientation>("Orientation").Default(pbHorizontal),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("Position"),
          Inherit("ShowHint"),
          Property<&T::Smooth, &T::SetSmooth>("Smooth").Default(false),
          Property<&T::State, &T::SetState>("State").Default(pbsNormal),
          Property<&T::Step, &T::SetStep>("Step").Default(10),
          Property<&T::Style, &T::SetStyle>("Style").Default(pbstNormal),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TProgressBar::TProgressBar(TComponent* owner) : TRangeControl(owner, 100) {
  SetBounds(0, 0, 150, 17);
}

/// What a window only takes when it is made.
template <class T>
void TProgressBar::ChangeStyle(T& field, T value) {
  if (value == field) return;
  field = value;
  RecreateWnd();
}

void TProgressBar::SetOrientation(TProgressBarOrientation orientation) {
  if (orientation == FOrientation) return;
  // What lay is now upright; a form file gives the bounds for what it has.
  if (!Loading()) SetBounds(Left(), Top(), Height(), Width());
  ChangeStyle(FOrientation, orientation);
}

void TProgressBar::SetSmooth(bool smooth) { ChangeStyle(FSmooth, smooth); }
void TProgressBar::SetStyle(TProgressBarStyle style) { ChangeStyle(FStyle, style); }

void TProgressBar::SetMarqueeInterval(int milliseconds) {
  if (milliseconds < 1) {
    throw EArgumentOutOfRangeException(
        Concat("A bar cannot make a step every ", std::to_string(milliseconds), " milliseconds"));
  }
  FMarqueeInterval = milliseconds;
  if (FStyle == pbstMarquee) SendIfAllocated(*this, PBM_SETMARQUEE, TRUE, milliseconds);
}

void TProgressBar::SetState(TProgressBarState state) {
  if (state == FState) return;
  FState = state;
  SendIfAllocated(*this, PBM_SETSTATE, static_cast<WPARAM>(PBST_NORMAL + state));
  AccessibleChanged(acState);
}

void TProgressBar::StepIt() {
  const std::int64_t next = std::int64_t{Position()} + FStep;
  if (next > Max()) return SetPosition(Min());
  if (next < Min()) return SetPosition(Max());
  SetPosition(static_cast<int>(next));
}

void TProgressBar::StepBy(int delta) {
  const std::int64_t next = std::int64_t{Position()} + delta;
  SetPosition(static_cast<int>(std::clamp<std::int64_t>(next, Min(), Max())));
}

void TProgressBar::SendRange() { Send(*this, PBM_SETRANGE32, static_cast<WPARAM>(Min()), Max()); }
void TProgressBar::SendPosition() { Send(*this, PBM_SETPOS, static_cast<WPARAM>(Position())); }

void TProgressBar::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_PROGRESS_CLASS);
  TRangeControl::CreateParams(params);
  params.SubClassOf = PROGRESS_CLASSA;
  if (FOrientation == pbVertical) params.Style |= PBS_VERTICAL;
  if (FSmooth) params.Style |= PBS_SMOOTH;
  if (FStyle == pbstMarquee) params.Style |= PBS_MARQUEE;
}

void TProgressBar::CreateWnd() {
  TRangeControl::CreateWnd();
  if (FStyle == pbstMarquee) Send(*this, PBM_SETMARQUEE, TRUE, FMarqueeInterval);
  if (FState != pbsNormal) Send(*this, PBM_SETSTATE, static_cast<WPARAM>(PBST_NORMAL + FState));
}

void TProgressBar::DescribeAccessible(TAccessibleInfo& info) const {
  TRangeControl::DescribeAccessible(info);
  info.Role = arProgressBar;
  info.State.Include(asReadOnly);
  const double way = double(Max()) - Min();
  const double done = way > 0 ? (double(Position()) - Min()) / way : 0;
  info.Value = Concat(std::to_string(static_cast<int>(done * 100)), "%");
  if (FStyle == pbstMarquee) info.Value.clear();
}

}  // namespace vcl
