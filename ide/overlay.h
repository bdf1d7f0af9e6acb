// TOverlay: a small window of the designer on a form that is being designed. It is no control: the
// form knows nothing of it.
#pragma once

#include <functional>

#include "vcl/graphics/canvas.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/win32.h"

namespace ide {

/// A window above the controls of another window.
class TOverlay {
 public:
  /// The overlay's presses; the position is on the screen.
  using TMouse = std::function<void(UINT message, vcl::TPoint screen)>;
  using TPaint = std::function<void(vcl::TCanvas& canvas, const vcl::TRect& inside)>;

  /// Made in the window `parent`, unseen until it is placed. Raises EOutOfResources.
  TOverlay(HWND parent, TPaint paint, TMouse mouse, LPCWSTR cursor);
  ~TOverlay();
  TOverlay(const TOverlay&) = delete;
  TOverlay& operator=(const TOverlay&) = delete;

  /// True for the window of an overlay.
  static bool Is(HWND window);
  /// False once the window around it has gone.
  bool Alive() const { return FHandle && ::IsWindow(FHandle); }
  HWND Around() const { return FAround; }
  /// Shows it at a rectangle of the window around it, above everything there.
  void Place(const vcl::TRect& bounds);
  void Invalidate() const { ::InvalidateRect(FHandle, nullptr, FALSE); }

 private:
  static LRESULT CALLBACK WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void PaintNow();

  HWND FAround;
  HWND FHandle = nullptr;
  vcl::TRect FBounds;
  TPaint FPaint;
  TMouse FMouse;
  HCURSOR FCursor;
};

}  // namespace ide
