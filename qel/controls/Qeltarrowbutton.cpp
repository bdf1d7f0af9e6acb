// TQELArrowButton: its properties, and painting it.
#include "qel/controls/Qeltarrowbutton.h"

#include "qel/controls/private/buttonproperties.h"
#include "qel/core/private/Qelownedsettings.h"
#include "qel/core/private/triangles.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;

namespace {

constexpr int SmallestArrow = 2;
constexpr int LargestArrow = 15;
constexpr int FocusMargin = 3;

/// Where the tip has to be for the arrow to stand in the middle.
TPoint TipOf(TQELArrowButtonDirection direction, TPoint middle, int size) {
  const int before = size / 2;
  const int behind = size - 1 - before;
  switch (direction) {
    case adUp: return {middle.X, middle.Y - before};
    case adDown: return {middle.X, middle.Y + behind};
    case adLeft: return {middle.X - before, middle.Y};
    case adRight:
    default: return {middle.X + behind, middle.Y};
  }
}

}  // namespace

const vcl::TClass& TQELArrowButton::Class() {
  using T = TQELArrowButton;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomButton>(
      "qel::TQELArrowButton", "qel/controls/Qeltarrowbutton.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Property<&T::ArrowColor, &T::SetArrowColor>("ArrowColor").Default(clBtnText),
          Property<&T::ArrowSize, &T::SetArrowSize>("ArrowSize").Default(7),
          Inherit("Background"),
          Property<&T::Delay, &T::SetDelay>("Delay").Default(400),
          Property<&T::Direction, &T::SetDirection>("Direction").Default(adUp),
          Property<&T::Interval, &T::SetInterval>("Interval").Default(100),
          Property<&T::Repeating, &T::SetRepeating>("Repeating").Default(true),
          Inherit(ButtonProperties),
          Inherit("TabStop").Default(true),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELArrowButton::TQELArrowButton(vcl::TComponent* owner) : TQELCustomButton(owner) {
  SetControlStyle(ControlStyle() - vcl::TControlStyle{vcl::csSetCaption});
  SetBounds(Left(), Top(), 25, 25);
  RepeatChanged();
  HearOnlyAsked<TQELArrowButton>();
}

TQELArrowButton::~TQELArrowButton() { AnnounceEnd(); }

void TQELArrowButton::SetDirection(TQELArrowButtonDirection direction) {
  if (Store(FDirection, direction)) Invalidate();
}

void TQELArrowButton::SetArrowColor(vcl::TColor color) {
  if (Store(FArrowColor, color)) Invalidate();
}

void TQELArrowButton::SetArrowSize(int size) {
  if (size < SmallestArrow || size > LargestArrow) return;
  if (Store(FArrowSize, size)) Invalidate();
}

void TQELArrowButton::SetRepeating(bool repeating) {
  FRepeating = repeating;
  RepeatChanged();
}

void TQELArrowButton::SetDelay(int delay) {
  if (delay <= 0) return;
  FDelay = delay;
  RepeatChanged();
}

void TQELArrowButton::SetInterval(int interval) {
  if (interval <= 0) return;
  FInterval = interval;
  RepeatChanged();
}

void TQELArrowButton::RepeatChanged() {
  Press().SetRepeat(FRepeating ? static_cast<unsigned>(FDelay) : 0u,
                    static_cast<unsigned>(FInterval));
}

void TQELArrowButton::Paint() {
  TQELCustomButton::Paint();
  RECT edge = ClientRect();
  // Under the mouse the edge stands out more.
  const UINT look = Down() ? EDGE_SUNKEN : EDGE_RAISED;
  ::DrawEdge(Canvas()->Handle(), &edge, look, Hot() && Enabled() ? BF_RECT : BF_RECT | BF_SOFT);
  const int size = ScaledPixels(FArrowSize);
  const int moved = Down() ? 1 : 0;
  static constexpr TPointing ways[] = {TPointing::Up, TPointing::Down, TPointing::Left,
                                       TPointing::Right};
  const TPointing way = ways[FDirection];
  TPoint tip = TipOf(FDirection, {Width() / 2 + moved, Height() / 2 + moved}, size);
  if (!Enabled()) {
    DrawTriangle(Canvas(), {tip.X + 1, tip.Y + 1}, way, vcl::clBtnHighlight, size);
  }
  DrawTriangle(Canvas(), tip, way, Enabled() ? FArrowColor : vcl::clGrayText, size);
  TRect inside = ClientRect();
  inside.Inflate(-ScaledPixels(FocusMargin), -ScaledPixels(FocusMargin));
  PaintFocus(inside);
}

}  // namespace qel
