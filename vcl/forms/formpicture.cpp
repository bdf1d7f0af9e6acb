// Taking pictures of forms from the screen, once they stand still.
#include "vcl/forms/formpicture.h"

#include <cstring>

#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

/// On the screen.
TRect PlaceOf(TCustomForm& form, TFormPart part) {
  const TPoint corner = form.ClientToScreen({0, 0});
  if (part == TFormPart::Inside)
    return Bounds(corner.X, corner.Y, form.ClientWidth(), form.ClientHeight());
  RECT window;
  ::GetWindowRect(form.Handle(), &window);
  return {window.left, window.top, window.right, window.bottom};
}

void CopyFromScreen(const TRect& place, TBitmap& picture) {
  const TWindowDC screen(nullptr);
  picture.SetSize(place.Right - place.Left, place.Bottom - place.Top);
  ::BitBlt(picture.Canvas()->Handle(), 0, 0, picture.Width(), picture.Height(), screen.Get(),
           place.Left, place.Top, SRCCOPY);
}

bool SamePixels(const TBitmap& a, const TBitmap& b) {
  if (a.Empty() || b.Empty() || a.Width() != b.Width() || a.Height() != b.Height()) return false;
  const auto size = static_cast<std::size_t>(a.Width()) * sizeof(COLORREF);
  for (int row = 0; row < a.Height(); ++row)
    if (std::memcmp(a.ScanLine(row), b.ScanLine(row), size) != 0) return false;
  return true;
}

}  // namespace

void TakePicture(TCustomForm& form, TFormPart part, TBitmap& picture) {
  constexpr int attempts = 50;
  constexpr DWORD pause = 50;  // Milliseconds.
  picture.SetPixelFormat(pf32bit);
  TBitmap former;
  for (int i = 0; i < attempts; ++i) {
    Application()->ProcessMessages();
    form.Update();
    CopyFromScreen(PlaceOf(form, part), picture);
    if (SamePixels(picture, former)) return;
    former.Assign(&picture);
    ::Sleep(pause);
  }
}

}  // namespace vcl
