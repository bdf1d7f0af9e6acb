// The objects by which screen readers ask for controls and their parts (IAccessible).
#pragma once

#include "vcl/rtl/systemtypes.h"

namespace vcl {

class TWinControl;

/// The answer to WM_GETOBJECT for the control: an object that outlives it and then says that it is
/// not connected. 0, which is no object, when the system refuses one.
LRESULT AnswerGetObject(TWinControl& control, WPARAM wParam) noexcept;

}  // namespace vcl
