// TScrollingWinControl: the ranges, when there are bars, and what scrolls.
#include "vcl/controls/scrolling.h"

#include <algorithm>

#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TScrollingWinControl::Class() {
  using T = TScrollingWinControl;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TScrollingWinControl", "vcl/controls/controls.h",
      {
          Property<&T::AutoScroll, &T::SetAutoScroll>("AutoScroll").Default(false).Unpublished(),
          Property<&T::HorzScrollBar, &T::SetHorzScrollBar>("HorzScrollBar").Unpublished(),
          Property<&T::VertScrollBar, &T::SetVertScrollBar>("VertScrollBar").Unpublished(),
      });
  return info;
}

TScrollingWinControl::TScrollingWinControl(TComponent* owner)
    : TWinControl(owner),
      FHorz(std::make_unique<TControlScrollBar>(*this, TControlScrollBar::TAxis::Horizontal)),
      FVert(std::make_unique<TControlScrollBar>(*this, TControlScrollBar::TAxis::Vertical)) {}

TScrollingWinControl::~TScrollingWinControl() {
  AnnounceEnd();
  // What is freed inside would ask for the ranges.
  FAutoScroll = false;
}

// Ranges.

void TScrollingWinControl::SetAutoScroll(bool autoScroll) {
  if (autoScroll == FAutoScroll) return;
  FAutoScroll = autoScroll;
  if (!autoScroll && !Loading()) {
    FHorz->FRange = 0;
    FVert->FRange = 0;
  }
  Realign();
}

void TScrollingWinControl::EnableAutoRange() {
  if (--FAutoRangeLevel == 0) Realign();
}

TPoint TScrollingWinControl::ScrollOffset() const {
  // What a form file gives is a place to go to when all is read.
  return Loading() ? TPoint{0, 0} : TPoint{FHorz->Position(), FVert->Position()};
}

void TScrollingWinControl::PrepareAlign() {
  if (Loading()) return;
  const TWatch watch(this);
  if (FAutoScroll && FAutoRangeLevel == 0) {
    FHorz->CalcAutoRange();
    FVert->CalcAutoRange();
  }
  UpdateScrollBars();
  for (TControlScrollBar* each : {FHorz.get(), FVert.get()}) {
    if (!watch.Gone()) each->MoveTo(std::min(each->FPosition, each->Last()));
  }
}

void TScrollingWinControl::AdjustClientRect(TRect& rect) const {
  rect.Right = std::max(rect.Right, FHorz->Range());
  rect.Bottom = std::max(rect.Bottom, FVert->Range());
  const TPoint offset = ScrollOffset();
  rect.Offset(-offset.X, -offset.Y);
}

void TScrollingWinControl::Loaded() {
  TWinControl::Loaded();
  const int x = std::exchange(FHorz->FPosition, 0);
  const int y = std::exchange(FVert->FPosition, 0);
  const TWatch watch(this);
  Realign();
  if (!watch.Gone()) FHorz->SetPosition(x);
  if (!watch.Gone()) FVert->SetPosition(y);
}

// The bars.

TSize TScrollingWinControl::ScrollBarsSize() const {
  return {FVert->IsScrollBarVisible() ? FVert->Thickness() : 0,
          FHorz->IsScrollBarVisible() ? FHorz->Thickness() : 0};
}

void TScrollingWinControl::UpdateScrollBars() {
  if (FUpdatingBars || !HandleAllocated()) return;
  const TSetFor updating(FUpdatingBars, true, this);
  const TRect client = ClientRect();
  const TSize bars = ScrollBarsSize();
  const TSize room{client.Width() + bars.cx, client.Height() + bars.cy};
  const auto needs = [](const TControlScrollBar& bar, int there) {
    return bar.Visible() && bar.Range() > there;
  };
  // A bar takes room, which may make the other one necessary.
  bool across = needs(*FHorz, room.cx);
  const bool down = needs(*FVert, room.cy - (across ? FHorz->Thickness() : 0));
  across = needs(*FHorz, room.cx - (down ? FVert->Thickness() : 0));
  const bool both = needs(*FVert, room.cy - (across ? FHorz->Thickness() : 0));
  const TWatch watch(this);
  FHorz->Show(across);
  if (!watch.Gone()) FVert->Show(down || both);
}

// Scrolling.

void TScrollingWinControl::ScrollInView(TControl* control) {
  if (!control || control == this || !ContainsControl(control)) return;
  TRect bounds = control->BoundsRect();
  for (const TWinControl* each = control->Parent(); each != this; each = each->Parent()) {
    bounds.Offset(each->Left(), each->Top());
  }
  const TWatch watch(this);
  FHorz->BringIntoView(bounds.Left, bounds.Right);
  if (!watch.Gone()) FVert->BringIntoView(bounds.Top, bounds.Bottom);
}

void TScrollingWinControl::BringIntoView(TControl& control) {
  const TWatch watch(&control);
  for (TWinControl* each = control.Parent(); each; each = watch.Gone() ? nullptr : each->Parent()) {
    if (auto* around = dynamic_cast<TScrollingWinControl*>(each)) around->ScrollInView(&control);
    if (watch.Gone()) return;
  }
}

bool TScrollingWinControl::ScrollByWheel(TControlScrollBar& bar, int wheelDelta) {
  if (!bar.IsScrollBarVisible()) return false;
  UINT lines = 3;
  ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const int notch =
      lines == WHEEL_PAGESCROLL ? bar.Page() : static_cast<int>(lines) * bar.Increment();
  bar.FWheelRest += wheelDelta * notch;
  const int way = bar.FWheelRest / WHEEL_DELTA;
  bar.FWheelRest -= way * WHEEL_DELTA;
  bar.SetPosition(bar.Position() - way);
  return true;
}

bool TScrollingWinControl::DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) {
  const TWatch watch(this);
  if (TWinControl::DoMouseWheel(shift, wheelDelta, mousePos) || watch.Gone()) return true;
  const bool across = shift.Has(ssShift) || !FVert->IsScrollBarVisible();
  return ScrollByWheel(across ? *FHorz : *FVert, wheelDelta);
}

bool TScrollingWinControl::ScrollByKey(WPARAM key) {
  const bool down = FVert->IsScrollBarVisible();
  TControlScrollBar& paged = down ? *FVert : *FHorz;
  switch (key) {
    case VK_LEFT: FHorz->Scroll(SB_LINEUP); return true;
    case VK_RIGHT: FHorz->Scroll(SB_LINEDOWN); return true;
    case VK_UP: FVert->Scroll(SB_LINEUP); return true;
    case VK_DOWN: FVert->Scroll(SB_LINEDOWN); return true;
    case VK_PRIOR: paged.Scroll(SB_PAGEUP); return true;
    case VK_NEXT: paged.Scroll(SB_PAGEDOWN); return true;
    case VK_HOME: paged.Scroll(SB_TOP); return true;
    case VK_END: paged.Scroll(SB_BOTTOM); return true;
    default: return false;
  }
}

void TScrollingWinControl::Dispatch(TMessage& message) {
  if (message.LParam == 0 && message.Msg == WM_HSCROLL) {
    return FHorz->Scroll(LOWORD(message.WParam));
  }
  if (message.LParam == 0 && message.Msg == WM_VSCROLL) {
    return FVert->Scroll(LOWORD(message.WParam));
  }
  const TWatch watch(this);
  TWinControl::Dispatch(message);
  if (watch.Gone() || message.Msg != WM_GETDLGCODE) return;
  const bool scrolls = FHorz->IsScrollBarVisible() || FVert->IsScrollBarVisible();
  if (scrolls && Focused()) message.Result |= DLGC_WANTARROWS;
}

void TScrollingWinControl::DefaultHandler(TMessage& message) {
  if (message.Msg == WM_KEYDOWN && ScrollByKey(message.WParam)) return;
  TWinControl::DefaultHandler(message);
}

}  // namespace vcl
