// TQELNavigatorPress: its picture, its name, and going on while it is held down.
#include <algorithm>
#include <utility>

#include "qel/core/private/uistate.h"
#include "qel/dbcontrols/private/Qelnavigatorpress.h"
#include "vcl/dbctrls/navpictures.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr int RepeatDelay = 400;  // Milliseconds to the second step, and between the further ones.
constexpr int RepeatInterval = 100;
constexpr int PictureSide = 16;  // At 96 dots per inch.

}  // namespace

TQELNavigatorPress::TQELNavigatorPress(TQELDBNavigator& navigator, TQELNavigatorButton button)
    : TSpeedButton(&navigator), FNavigator(navigator), FButton(button) {
  FTimer.SetEnabled(false);
  FTimer.OnTimer = [this](vcl::TObject*) { Repeat(); };
}

void TQELNavigatorPress::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TSpeedButton::DescribeAccessible(info);
  info.Name = FNavigator.ButtonName(FButton);
}

// A press that repeats has done everything when it is released.
void TQELNavigatorPress::Click() {
  if (!std::exchange(FRepeated, false)) FNavigator.PressButton(FButton);
}

// Holding it down.

bool TQELNavigatorPress::Repeats() const {
  return FNavigator.Repeating() && Enabled() && (FButton == nbPrior || FButton == nbNext);
}

void TQELNavigatorPress::MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TSpeedButton::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != vcl::mbLeft) return;
  FRepeated = Repeats() && !Designing();
  if (!FRepeated) return;
  FTimer.SetInterval(RepeatDelay);
  FTimer.SetEnabled(true);
  FNavigator.PressButton(FButton);
}

void TQELNavigatorPress::MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  if (button == vcl::mbLeft) FTimer.SetEnabled(false);
  const TWatch watch(this);
  TSpeedButton::MouseUp(button, shift, x, y);
  if (!watch.Gone()) FRepeated = false;
}

/// Waits while the mouse is beside the button; ends with the press.
void TQELNavigatorPress::Repeat() {
  FTimer.SetInterval(RepeatInterval);
  if (!MouseCapture() || !Repeats()) return FTimer.SetEnabled(false);
  if (Pressed()) FNavigator.PressButton(FButton);
}

void TQELNavigatorPress::Dispatch(vcl::TMessage& message) {
  const TWatch watch(this);
  TSpeedButton::Dispatch(message);
  if (watch.Gone()) return;
  const bool enabled = message.Msg == vcl::CM_ENABLEDCHANGED;
  if (enabled && !Enabled()) {
    FTimer.SetEnabled(false);
    FRepeated = false;
  }
  if (enabled || message.Msg == vcl::CM_VISIBLECHANGED) FNavigator.DetailsChanged();
}

// Look.

/// A magnifying glass, embossed where nothing can be sought.
void TQELNavigatorPress::DrawFind() {
  const int side = std::min({ScaledPixels(PictureSide), Width() - 2, Height() - 2});
  const vcl::TPoint corner((Width() - side) / 2, (Height() - side) / 2);
  const auto draw = [&](int by, vcl::TColor color) {
    const auto at = [&](int sixteenths) { return by + sixteenths * side / 16; };
    vcl::TCanvas& canvas = *Canvas();
    canvas.Pen()->SetColor(color);
    canvas.Pen()->SetWidth(std::max(1, side / 8));
    canvas.Brush()->SetStyle(vcl::bsClear);
    canvas.Ellipse(corner.X + at(2), corner.Y + at(2), corner.X + at(11), corner.Y + at(11));
    canvas.MoveTo(corner.X + at(10), corner.Y + at(10));
    canvas.LineTo(corner.X + at(14), corner.Y + at(14));
    canvas.Pen()->SetWidth(1);
    canvas.Brush()->SetStyle(vcl::bsSolid);
  };
  if (!Enabled()) draw(1, vcl::clBtnHighlight);
  draw(0, Enabled() ? vcl::clBtnText : vcl::clBtnShadow);
}

void TQELNavigatorPress::DrawPicture() {
  if (!Caption().empty() || !Glyph()->Empty()) return;
  if (FButton == nbFind) return DrawFind();
  vcl::DrawNavigatorPicture(*Canvas(), static_cast<vcl::TNavigateBtn>(FButton), ClientRect(),
                            ScaledPixels(PictureSide), Enabled());
}

void TQELNavigatorPress::Paint() {
  TSpeedButton::Paint();
  DrawPicture();
  if (FNavigator.FocusedButton() != FButton || !ShowsKeyboardFocus(FNavigator)) return;
  const int inset = ScaledPixels(3);
  Canvas()->Brush()->SetColor(vcl::clBtnFace);
  Canvas()->Font()->SetColor(vcl::clBtnText);
  Canvas()->DrawFocusRect({inset, inset, Width() - inset, Height() - inset});
}

}  // namespace qel
