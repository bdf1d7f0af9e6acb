// What the system's state of the user interface says of focus rectangles.
#pragma once

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/win32.h"

namespace qel {

/// True while the control has the focus and the user works with the keyboard.
inline bool ShowsKeyboardFocus(const vcl::TWinControl& control) {
  if (!control.HandleAllocated() || !control.Focused()) return false;
  const HWND window = const_cast<vcl::TWinControl&>(control).Handle();
  return (::SendMessageW(window, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) == 0;
}

}  // namespace qel
