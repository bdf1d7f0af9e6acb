// TQELScreenCanvas: drawing on the screen, and pictures of it.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/canvas.h"

namespace qel {

/// A canvas over all monitors, and pictures of the screen, of windows and forms. Positions are
/// those of the screen: the main monitor's top left is (0, 0), and others may lie at negative ones.
class QEL_API TQELScreenCanvas : public TQELComponent {
 public:
  explicit TQELScreenCanvas(vcl::TComponent* owner);
  ~TQELScreenCanvas() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Draws over all windows; what is drawn stays until the windows below paint themselves, or
  /// Restore. In the designer nothing is seen. Raises EOutOfResources when the system refuses.
  vcl::TCanvas* Canvas() const;
  /// What all monitors cover.
  static vcl::TRect Area();
  /// Has all windows paint themselves, so that nothing drawn is left.
  void Restore() const;
  /// The colour of a pixel; clNone for one on no monitor.
  vcl::TColor PixelColor(int x, int y) const;

  /// Put a part of the screen, a window or a form into the bitmap, as it is seen; of a window also
  /// what others cover. What is outside the monitors is black. Raise EArgumentOutOfRangeException
  /// for an empty part or more than 64 million pixels, EInvalidOperation for a window that is gone,
  /// EOutOfResources; the bitmap is as before then.
  void Capture(const vcl::TRect& part, vcl::TBitmap& bitmap) const;
  void CaptureWindow(HWND window, vcl::TBitmap& bitmap) const;
  void CaptureForm(vcl::TCustomForm* form, vcl::TBitmap& bitmap) const;
  /// Saves a part of the screen as a PNG, or as a bitmap where the name ends with ".bmp". Raises
  /// EInOutError, too.
  void CaptureToFile(const vcl::TRect& part, const std::string& fileName) const;

 private:
  class TScreen;
  std::unique_ptr<TScreen> FScreen;
};

}  // namespace qel
