// The window of a TQELSplashScreen: its pixels.
#include "qel/dialogs/private/splashwindow.h"

#include <algorithm>
#include <cstdint>

#include "vcl/forms/application.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

// At 96 dots per inch.
constexpr vcl::TSize Plate{320, 120};
constexpr int Margin = 10;
constexpr int BarHeight = 8;

}  // namespace

TQELSplashScreen::TWindow::TWindow(TQELSplashScreen& splash)
    : TWinControl(nullptr), FSplash(splash), FPixelsPerInch(vcl::Screen()->PixelsPerInch()) {}

void TQELSplashScreen::TWindow::CreateParams(vcl::TCreateParams& params) {
  TWinControl::CreateParams(params);
  params.Style = WS_POPUP;
  params.ExStyle = WS_EX_LAYERED | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
  params.WndParent = vcl::Application()->Handle();
}

void TQELSplashScreen::TWindow::Dispatch(vcl::TMessage& message) {
  switch (message.Msg) {
    case WM_MOUSEACTIVATE: message.Result = MA_NOACTIVATE; return;
    // The window ends with the component's next tick, not under its own message.
    case WM_LBUTTONUP:
      if (FSplash.ClickCloses()) ::ShowWindow(Handle(), SW_HIDE);
      return;
    default: TWinControl::Dispatch(message);
  }
}

void TQELSplashScreen::TWindow::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Name = FSplash.Message().empty() ? vcl::Application()->Title() : FSplash.Message();
  info.Role = FSplash.Percentage() < 0 ? vcl::arGraphic : vcl::arProgressBar;
  if (FSplash.Percentage() >= 0) info.Value = std::to_string(FSplash.Percentage()) + "%";
}

/// In the middle of the primary monitor.
void TQELSplashScreen::TWindow::Measure() {
  const vcl::TPicture& picture = *FSplash.Picture();
  const bool plain = picture.Width() == 0 || picture.Height() == 0;
  const auto scaled = [this](int pixels) { return ::MulDiv(pixels, FPixelsPerInch, 96); };
  FSize = {scaled(plain ? Plate.cx : picture.Width()), scaled(plain ? Plate.cy : picture.Height())};
  const vcl::TRect area = vcl::Screen()->WorkAreaRect();
  SetBounds(area.Left + (area.Width() - FSize.cx) / 2, area.Top + (area.Height() - FSize.cy) / 2,
            FSize.cx, FSize.cy);
  FFont.Assign(FSplash.Font());
  const int points = FFont.Size();
  FFont.SetPixelsPerInch(FPixelsPerInch);
  FFont.SetSize(points);
}

void TQELSplashScreen::TWindow::DrawBar(vcl::TCanvas& canvas) {
  const int margin = ::MulDiv(Margin, FPixelsPerInch, 96);
  const int bottom = FSize.cy - margin;
  const int top = bottom - ::MulDiv(BarHeight, FPixelsPerInch, 96);
  canvas.Pen()->SetColor(vcl::clBtnShadow);
  canvas.Brush()->SetColor(vcl::clWindow);
  canvas.Rectangle(margin, top, FSize.cx - margin, bottom);
  const int width = ::MulDiv(FSize.cx - 2 * margin - 2, FSplash.Percentage(), 100);
  canvas.Brush()->SetColor(vcl::clHighlight);
  canvas.FillRect({margin + 1, top + 1, margin + 1 + width, bottom - 1});
}

std::unique_ptr<vcl::TBitmap> TQELSplashScreen::TWindow::DrawnOn(vcl::TColor ground) {
  auto drawn = std::make_unique<vcl::TBitmap>(FSize.cx, FSize.cy);
  drawn->SetPixelFormat(vcl::pf32bit);
  vcl::TCanvas& canvas = *drawn->Canvas();
  vcl::TGraphic* const graphic = FSplash.Picture()->Graphic();
  canvas.Brush()->SetColor(graphic ? ground : vcl::clBtnFace);
  canvas.FillRect({0, 0, FSize.cx, FSize.cy});
  canvas.Pen()->SetColor(vcl::clBtnShadow);
  if (!graphic) canvas.Rectangle(0, 0, FSize.cx, FSize.cy);
  if (graphic) graphic->Draw(&canvas, {0, 0, FSize.cx, FSize.cy});
  const int margin = ::MulDiv(Margin, FPixelsPerInch, 96);
  const bool bar = FSplash.Percentage() >= 0;
  const int below = bar ? ::MulDiv(Margin + BarHeight, FPixelsPerInch, 96) : 0;
  vcl::TRect text(margin, 0, FSize.cx - margin, FSize.cy - margin - below);
  text.Top = std::max(0, text.Bottom - FontHeight(FFont));
  canvas.SetFont(&FFont);
  canvas.Brush()->SetStyle(vcl::bsClear);
  DrawTextOn(&canvas, FSplash.Message(), text, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  canvas.Brush()->SetStyle(vcl::bsSolid);
  if (bar) DrawBar(canvas);
  return drawn;
}

/// How much a pixel covers shows in how little it changes with what it is drawn on.
void TQELSplashScreen::TWindow::Compose() {
  FPixels = DrawnOn(vcl::clBlack);
  const auto light = DrawnOn(vcl::clWhite);
  for (int y = 0; y < FSize.cy; ++y) {
    auto* dark = static_cast<std::uint8_t*>(FPixels->ScanLine(y));
    const auto* bright = static_cast<const std::uint8_t*>(light->ScanLine(y));
    for (int x = 0; x < FSize.cx; ++x, dark += 4, bright += 4) {
      const int through = std::clamp(bright[1] - dark[1], 0, 255);
      dark[3] = static_cast<std::uint8_t>(255 - through);
      for (int i = 0; i < 3; ++i) dark[i] = std::min(dark[i], dark[3]);
    }
  }
}

/// See UpdateLayeredWindow.
void TQELSplashScreen::TWindow::Show() {
  const vcl::TMemoryDC dc;
  const vcl::TSelection bitmap(dc.Get(), FPixels->Handle());
  POINT place{Left(), Top()};
  POINT from{0, 0};
  SIZE size{FSize.cx, FSize.cy};
  BLENDFUNCTION blend{AC_SRC_OVER, 0, static_cast<BYTE>(FOpacity), AC_SRC_ALPHA};
  ::UpdateLayeredWindow(Handle(), nullptr, &place, &size, dc.Get(), &from, 0, &blend, ULW_ALPHA);
}

void TQELSplashScreen::TWindow::Draw() {
  const bool shown = HandleAllocated();
  Measure();
  Compose();
  ::SetWindowTextW(Handle(), vcl::ToUtf16(FSplash.Message()).c_str());
  Show();
  if (!shown) ::ShowWindow(Handle(), SW_SHOWNOACTIVATE);
}

void TQELSplashScreen::TWindow::SetOpacity(int opacity) {
  if (opacity == FOpacity) return;
  FOpacity = opacity;
  Show();
}

void TQELSplashScreen::TWindow::ToFront() {
  ::SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE);
}

}  // namespace qel
