// What the system says about dots per inch; older systems know those of the whole desktop only.
#pragma once

#include "vcl/graphics/types.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// Of the monitor that shows most of the rectangle, or is nearest to it.
int PixelsPerInchAt(const TRect& place);

/// What a window's frame is made of.
struct TFrameKind {
  DWORD Style;
  bool Menu;
  DWORD ExStyle;
};

/// Makes the rectangle of a window's inside that of the window, at so many dots per inch.
void AddFrameOf(const TFrameKind& kind, int pixelsPerInch, RECT& rect);

}  // namespace vcl
