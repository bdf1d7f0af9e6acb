// TQELCustomSpinButton and TQELSpinButton.
#include "qel/controls/Qeltspinedit.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "qel/core/Qelfunctions.h"
#include "qel/core/private/arithmetic.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TPoint;
using vcl::TRect;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

constexpr int StateCount = bsDisabled + 1;
constexpr int ArrowSize = 3;  // At 96 dots per inch.
constexpr int ArrowHalf = 2;
constexpr int LargestArrow = 15;

}  // namespace

const vcl::TClass& TQELCustomSpinButton::Class() {
  using T = TQELCustomSpinButton;
  using namespace vcl;
  static const TClass info = Describe<T, TQELGraphicControl>(
      "qel::TQELCustomSpinButton", "qel/controls/Qeltspinedit.h",
      {
          Inherit("Enabled"),
          Inherit("ShowHint"),
          Event<&T::OnBottomClick>("OnBottomClick"),
          Event<&T::OnTopClick>("OnTopClick"),
          Inherit("Color").Default(clBtnFace),
          Property<&T::ArrowColor, &T::SetArrowColor>("ArrowColor").Default(clBlack),
      });
  return info;
}

const vcl::TClass& TQELSpinButton::Class() {
  static const vcl::TClass info = vcl::Describe<TQELSpinButton, TQELCustomSpinButton>(
      "qel::TQELSpinButton", "qel/controls/Qeltspinedit.h", {vcl::Inherit("About")});
  return info;
}

TQELCustomSpinButton::TQELCustomSpinButton(vcl::TComponent* owner) : TQELGraphicControl(owner) {
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csOpaque});
  SetBounds(Left(), Top(), 20, 20);
  SetColor(vcl::clBtnFace);
}

TQELCustomSpinButton::~TQELCustomSpinButton() { AnnounceEnd(); }

void TQELSpinButton::Loaded() {
  TQELCustomSpinButton::Loaded();
  CreateStates();
}

// Properties.

void TQELCustomSpinButton::SetColor(vcl::TColor color) {
  TQELGraphicControl::SetColor(color);
  Rebuild();
}

void TQELCustomSpinButton::SetArrowColor(vcl::TColor color) {
  FArrowColor = color;
  Rebuild();
}

void TQELCustomSpinButton::SetDown(TQELButtonState state) {
  if (state == FState) return;
  FState = state;
  Repaint();
}

// An empty strip fits nothing, so the next painting draws it.
void TQELCustomSpinButton::Rebuild() {
  FStrip.SetSize(0, 0);
  Invalidate();
}

// Painting.

void TQELCustomSpinButton::Paint() {
  const bool fits = FStrip.Width() == StateCount * Width() && FStrip.Height() == Height();
  if (!fits) CreateStates();
  const TRect look{FState * Width(), 0, (FState + 1) * Width(), Height()};
  Canvas()->CopyRect(ClientRect(), FStrip.Canvas(), look);
}

void TQELCustomSpinButton::CreateStates() {
  FStrip.SetSize(StateCount * Width(), Height());
  if (FStrip.Empty()) return;
  for (const TQELButtonState state : {bsUp, bsTopDown, bsBottomDown, bsDisabled}) DrawState(state);
}

void TQELCustomSpinButton::DrawState(TQELButtonState state) {
  vcl::TBitmap scratch(Width(), Height());
  vcl::TCanvas* canvas = scratch.Canvas();
  DrawFace(canvas);
  DrawBevels(canvas, state);
  canvas->Brush()->SetStyle(vcl::bsClear);
  DrawArrows(canvas, state);
  const TRect place{state * Width(), 0, (state + 1) * Width(), Height()};
  FStrip.Canvas()->CopyRect(place, canvas, {0, 0, Width(), Height()});
}

namespace {

void DrawLines(vcl::TCanvas* canvas, vcl::TColor color, std::initializer_list<TPoint> points) {
  canvas->Pen()->SetColor(color);
  canvas->Polyline({points.begin(), points.size()});
}

}  // namespace

// White stays at the left and the top; the frame lies at the bottom and the right and parts the
// halves.
void TQELCustomSpinButton::DrawFace(vcl::TCanvas* canvas) const {
  const int right = Width() - 1;
  const int bottom = Height() - 1;
  canvas->Brush()->SetColor(Color());
  canvas->Pen()->SetColor(vcl::clWhite);
  canvas->Rectangle(0, 0, Width(), Height());
  DrawLines(canvas, vcl::clWindowFrame, {{0, bottom}, {right, bottom}, {right, 0}, {0, bottom}});
}

// The light comes from the top left. It falls on two edges of the upper half and not on its
// diagonal; of the lower half it falls on the diagonal only. A pressed half has it the other way
// round.
void TQELCustomSpinButton::DrawBevels(vcl::TCanvas* canvas, TQELButtonState state) const {
  const auto lit = [](bool raised) { return raised ? vcl::clBtnHighlight : vcl::clBtnShadow; };
  const int right = Width() - 2;
  const int bottom = Height() - 2;
  const bool top = state != bsTopDown;
  DrawLines(canvas, lit(top), {{1, bottom - 1}, {1, 1}, {right, 1}});
  DrawLines(canvas, lit(!top), {{1, bottom - 1}, {right, 0}});
  const bool low = state != bsBottomDown;
  DrawLines(canvas, lit(low), {{2, bottom}, {right + 1, 1}});
  DrawLines(canvas, lit(!low), {{2, bottom}, {right, bottom}, {right, 1}});
}

// The arrow of the pressed half moves by one pixel to the right and down.
void TQELCustomSpinButton::DrawArrows(vcl::TCanvas* canvas, TQELButtonState state) const {
  const bool enabled = state != bsDisabled;
  const int size = std::min(ScaledPixels(ArrowSize), LargestArrow);
  const int half = ScaledPixels(ArrowHalf);
  const int up = state == bsTopDown ? 2 : 1;
  QELGetTriangle(canvas, Round(Width() / 4.0 - half) + up, Round(Height() / 4.0 - half) + up,
                 enabled, false, FArrowColor, size);
  const int down = state == bsBottomDown ? 0 : -1;
  QELGetTriangle(canvas, Round(Width() * 0.75 - half) + down, Round(Height() * 0.75 - half) + down,
                 enabled, true, FArrowColor, size);
}

// Input.

// The halves' dividing line, at the column. It is kept as height minus width divided by height,
// which is the diagonal of a square button only.
TQELButtonState TQELCustomSpinButton::HalfAt(int x, int y) const {
  const double line = Height() - static_cast<double>(x) * Width() / Height();
  return y <= line ? bsTopDown : bsBottomDown;
}

void TQELCustomSpinButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  TWatch watch(this);
  TQELGraphicControl::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != vcl::mbLeft || !Enabled()) return;
  FMouseDown = true;
  if (FState != bsUp) return;
  FPressed = HalfAt(x, y);
  SetDown(FPressed);
}

void TQELCustomSpinButton::MouseMove(TShiftState shift, int x, int y) {
  TWatch watch(this);
  TQELGraphicControl::MouseMove(shift, x, y);
  if (watch.Gone() || !FMouseDown) return;
  const bool over = ClientRect().Contains({x, y}) && HalfAt(x, y) == FPressed;
  SetDown(over ? FPressed : bsUp);
}

void TQELCustomSpinButton::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TQELButtonState look = FState;
  TWatch watch(this);
  TQELGraphicControl::MouseUp(button, shift, x, y);
  if (watch.Gone()) return;
  if (std::exchange(FMouseDown, false) && ClientRect().Contains({x, y})) {
    FPressed = bsUp;
    SetDown(bsUp);
  }
  if (watch.Gone()) return;
  // Any button, and with no half pressed, too: such a release counts as a click of the up half.
  look == bsBottomDown ? OnBottomClick(this) : OnTopClick(this);
}

void TQELCustomSpinButton::Dispatch(vcl::TMessage& message) {
  TWatch watch(this);
  TQELGraphicControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_SYSCOLORCHANGE) Rebuild();
  const bool enabling = message.Msg == vcl::CM_ENABLEDCHANGED;
  if (!enabling && message.Msg != WM_CANCELMODE) return;
  // Either ends what the mouse has begun.
  FMouseDown = false;
  SetDown(Enabled() ? bsUp : bsDisabled);
}

// Screen readers: the halves are parts, each told of by the quarter in its corner.

void TQELCustomSpinButton::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELGraphicControl::DescribeAccessible(info);
  info.Role = vcl::arSpinButton;
}

std::vector<vcl::TAccessiblePart> TQELCustomSpinButton::AccessibleParts() {
  const auto half = [](const char* name, const TRect& bounds, bool pressed) {
    vcl::TAccessibleInfo info;
    info.Role = vcl::arPushButton;
    info.Name = name;
    info.DefaultAction = "Press";
    if (pressed) info.State.Include(vcl::asPressed);
    return vcl::TAccessiblePart{info, bounds, {}};
  };
  const TPoint middle{Width() / 2, Height() / 2};
  return {half("Up", {0, 0, middle.X, middle.Y}, FState == bsTopDown),
          half("Down", {middle.X, middle.Y, Width(), Height()}, FState == bsBottomDown)};
}

void TQELCustomSpinButton::DoAccessiblePart(const vcl::TAccessiblePath& part) {
  part.front() == 0 ? OnTopClick(this) : OnBottomClick(this);
}

}  // namespace qel
