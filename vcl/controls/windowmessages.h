// Messages from a control to the window that it stands for.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace vcl {

/// Sends the control's window a message; makes the window when there is none. Asking a window
/// changes nothing of its control, so a const one may do it.
VCL_API LRESULT Send(const TWinControl& control, UINT message, WPARAM wParam = 0,
                     LPARAM lParam = 0);

/// The same, but only to a window that is there.
inline void SendIfAllocated(const TWinControl& control, UINT message, WPARAM wParam = 0,
                            LPARAM lParam = 0) {
  if (control.HandleAllocated()) Send(control, message, wParam, lParam);
}

}  // namespace vcl
