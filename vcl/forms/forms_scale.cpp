// TCustomForm: the dots per inch of its monitor.
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/private/resolution.h"
#include "vcl/forms/screen.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace {

void CheckPixelsPerInch(int pixels) {
  if (pixels >= 1) return;
  throw EArgumentOutOfRangeException(
      Concat("A form has at least one pixel per inch, not ", std::to_string(pixels)));
}

}  // namespace

void TCustomForm::SetPixelsPerInch(int pixels) {
  CheckPixelsPerInch(pixels);
  if (pixels == FPixelsPerInch) return;
  // The height of a font of the form's own is in these pixels already.
  const int height = Font()->Height();
  const int former = std::exchange(FPixelsPerInch, pixels);
  Font()->SetPixelsPerInch(pixels);
  if (ParentFont()) {
    Font()->SetHeight(::MulDiv(height, pixels, former));
    SetParentFont(true);
  }
}

void TCustomForm::ScaleForPPI(int pixels) {
  CheckPixelsPerInch(pixels);
  if (pixels == FPixelsPerInch) return;
  const int former = std::exchange(FPixelsPerInch, pixels);
  const TWatch watch(this);
  ScaleBy(pixels, former);
  if (!watch.Gone() && FMenu) FMenu->FitPictures();
}

/// Of the form around, where there is one, else of the monitor.
int TCustomForm::MonitorPPI() const {
  if (Parent()) return CurrentPPI();
  if (StandsInside() && Application()->MainForm()) {
    return Application()->MainForm()->PixelsPerInch();
  }
  return PixelsPerInchAt(BoundsRect());
}

void TCustomForm::ScaleToMonitor() {
  if (FScaledToMonitor || !FScaled || Designing()) return;
  FScaledToMonitor = true;
  ScaleForPPI(MonitorPPI());
}

void TCustomForm::ChangeScale(int m, int d) {
  if (Parent()) FPixelsPerInch = CurrentPPI();
  TScrollingWinControl::ChangeScale(m, d);
}

/// A form's inside is what its controls count with. Where it stands on the screen, it stays.
void TCustomForm::ScaleBounds(int m, int d) {
  if (Parent()) return TScrollingWinControl::ScaleBounds(m, d);
  const int width = ScaleMeasure(ClientWidth(), m, d);
  const int height = ScaleMeasure(ClientHeight(), m, d);
  if (!FSuggested) return SetClientSize(width, height);
  const TRect& place = *FSuggested;
  SetBounds(place.Left, place.Top, place.Width(), place.Height());
}

void TCustomForm::WMDpiChanged(TMessage& message) {
  if (!FScaled || Designing()) return TScrollingWinControl::Dispatch(message);
  const int pixels = LOWORD(message.WParam);
  const TRect place(*reinterpret_cast<const RECT*>(message.LParam));
  const TWatch watch(this);
  FScaledToMonitor = true;
  if (pixels == FPixelsPerInch) {
    return SetBounds(place.Left, place.Top, place.Width(), place.Height());
  }
  {
    const TSetFor suggested(FSuggested, &place, this);
    ScaleForPPI(pixels);
  }
  if (watch.Gone()) return;
  // The system tells the windows of its own desktop only.
  for (int i = 0; i < MDIChildCount() && FFormStyle == fsMDIForm; ++i) {
    if (MDIChildren(i)->Scaled()) MDIChildren(i)->ScaleForPPI(pixels);
  }
}

}  // namespace vcl
