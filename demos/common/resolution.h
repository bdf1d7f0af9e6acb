// Pictures at other dots per inch than the screen's.
#pragma once

#include <cstdlib>

#include "vcl/forms/forms.h"
#include "vcl/rtl/win32.h"

namespace demos {

/// Tells the form, which is shown, that it has come to a monitor of as many dots per inch as the
/// environment variable QEL_DPI says; without one it stays as it is.
inline void ScaleForPictures(vcl::TCustomForm& form) {
  const char* wanted = std::getenv("QEL_DPI");
  const int pixels = wanted ? std::atoi(wanted) : 0;
  const int former = form.PixelsPerInch();
  if (pixels < 1 || pixels == former) return;
  const RECT place{0, 0, ::MulDiv(form.Width(), pixels, former),
                   ::MulDiv(form.Height(), pixels, former)};
  form.Perform(WM_DPICHANGED, MAKEWPARAM(pixels, pixels), reinterpret_cast<LPARAM>(&place));
}

}  // namespace demos
