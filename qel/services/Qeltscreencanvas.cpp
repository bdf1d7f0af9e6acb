// TQELScreenCanvas: its table, the screen's context, and the pictures.
#include "qel/services/Qeltscreencanvas.h"

#include <cstdint>
#include <functional>

#include "vcl/graphics/handles.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr std::int64_t MaxPixels = 64'000'000;

void CheckPart(const vcl::TRect& part) {
  const auto width = std::int64_t{part.Right} - part.Left;
  const auto height = std::int64_t{part.Bottom} - part.Top;
  if (width > 0 && height > 0 && width <= MaxPixels / height) return;
  throw vcl::EArgumentOutOfRangeException(vcl::Concat("A picture of ", std::to_string(width),
                                                      " by ", std::to_string(height),
                                                      " pixels of the screen cannot be taken"));
}

/// Has the call draw a picture of that size, and takes it when it is done.
void Take(int width, int height, vcl::TBitmap& bitmap, const std::function<bool(HDC)>& draw) {
  vcl::TBitmap taken;
  taken.SetPixelFormat(vcl::pf24bit);
  taken.SetSize(width, height);
  if (!draw(taken.Canvas()->Handle())) vcl::RaiseOutOfResources("A picture of the screen");
  bitmap.Assign(&taken);
}

bool CopyScreen(HDC target, const vcl::TRect& part) {
  const HDC screen = ::GetDC(nullptr);
  const bool done = ::BitBlt(target, 0, 0, part.Right - part.Left, part.Bottom - part.Top, screen,
                             part.Left, part.Top, SRCCOPY | CAPTUREBLT) != FALSE;
  ::ReleaseDC(nullptr, screen);
  return done;
}

}  // namespace

class TQELScreenCanvas::TScreen : public vcl::TOnDemandCanvas {
 public:
  explicit TScreen(const TQELScreenCanvas& owner) : FOwner(owner) {}
  ~TScreen() override { FreeHandle(); }

 protected:
  HDC AcquireContext() override {
    const HDC screen = ::GetDC(nullptr);
    if (!screen) vcl::RaiseOutOfResources("The screen's canvas");
    if (FOwner.Designing()) ::IntersectClipRect(screen, 0, 0, 0, 0);
    return screen;
  }
  void ReleaseContext(HDC dc) override { ::ReleaseDC(nullptr, dc); }

 private:
  const TQELScreenCanvas& FOwner;
};

const vcl::TClass& TQELScreenCanvas::Class() {
  static const vcl::TClass info = vcl::Describe<TQELScreenCanvas, TQELComponent>(
      "qel::TQELScreenCanvas", "qel/services/Qeltscreencanvas.h", {});
  return info;
}

TQELScreenCanvas::TQELScreenCanvas(vcl::TComponent* owner)
    : TQELComponent(owner), FScreen(std::make_unique<TScreen>(*this)) {}

TQELScreenCanvas::~TQELScreenCanvas() { AnnounceEnd(); }

vcl::TCanvas* TQELScreenCanvas::Canvas() const { return FScreen.get(); }

vcl::TRect TQELScreenCanvas::Area() {
  const int left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
  const int top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
  return {left, top, left + ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
          top + ::GetSystemMetrics(SM_CYVIRTUALSCREEN)};
}

void TQELScreenCanvas::Restore() const {
  FScreen->FreeHandle();
  ::RedrawWindow(nullptr, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

vcl::TColor TQELScreenCanvas::PixelColor(int x, int y) const {
  const HDC screen = ::GetDC(nullptr);
  const COLORREF color = ::GetPixel(screen, x, y);
  ::ReleaseDC(nullptr, screen);
  return color == CLR_INVALID ? vcl::clNone : static_cast<vcl::TColor>(color);
}

void TQELScreenCanvas::Capture(const vcl::TRect& part, vcl::TBitmap& bitmap) const {
  CheckPart(part);
  Take(part.Right - part.Left, part.Bottom - part.Top, bitmap,
       [&](HDC target) { return CopyScreen(target, part); });
}

void TQELScreenCanvas::CaptureWindow(HWND window, vcl::TBitmap& bitmap) const {
  RECT bounds{};
  if (!::GetWindowRect(window, &bounds)) {
    throw vcl::EInvalidOperation("There is no such window to take a picture of");
  }
  const vcl::TRect part(bounds);
  CheckPart(part);
  // The window draws itself, wherever it is; one that does not is taken from the screen.
  constexpr UINT all = 2;  // PW_RENDERFULLCONTENT, of systems that compose windows.
  Take(part.Right - part.Left, part.Bottom - part.Top, bitmap, [&](HDC target) {
    return ::PrintWindow(window, target, all) || ::PrintWindow(window, target, 0) ||
           CopyScreen(target, part);
  });
}

void TQELScreenCanvas::CaptureForm(vcl::TCustomForm* form, vcl::TBitmap& bitmap) const {
  if (!form || !form->HandleAllocated()) {
    throw vcl::EInvalidOperation("A form that has no window cannot be captured");
  }
  CaptureWindow(form->Handle(), bitmap);
}

void TQELScreenCanvas::CaptureToFile(const vcl::TRect& part, const std::string& fileName) const {
  vcl::TBitmap bitmap;
  Capture(part, bitmap);
  if (vcl::SameText(vcl::ExtractFileExt(fileName), ".bmp")) {
    bitmap.SaveToFile(fileName);
  } else {
    vcl::SavePng(bitmap, fileName);
  }
}

}  // namespace qel
