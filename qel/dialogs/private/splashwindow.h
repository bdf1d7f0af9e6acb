// The window of a TQELSplashScreen.
#pragma once

#include "qel/dialogs/Qeltsplashscreen.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/bitmap.h"

namespace qel {

/// A window that never becomes the active one and whose pixels cover what is behind it as those of
/// the picture do.
class TQELSplashScreen::TWindow : public vcl::TWinControl {
 public:
  explicit TWindow(TQELSplashScreen& splash);
  ~TWindow() override { AnnounceEnd(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  /// Draws what the component says now; shows the window where it was not.
  void Draw();
  /// How much of the picture is to be seen, of 255.
  void SetOpacity(int opacity);
  /// In front of the program's other windows, which stay as active as they are.
  void ToFront();

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  void Measure();
  std::unique_ptr<vcl::TBitmap> DrawnOn(vcl::TColor ground);
  void DrawBar(vcl::TCanvas& canvas);
  void Compose();
  void Show();

  TQELSplashScreen& FSplash;
  vcl::TSize FSize;
  vcl::TFont FFont;  // In the monitor's dots per inch.
  int FPixelsPerInch;
  std::unique_ptr<vcl::TBitmap> FPixels;
  int FOpacity = 255;
};

}  // namespace qel
