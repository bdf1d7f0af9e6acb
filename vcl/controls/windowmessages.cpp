// Messages from a control to the window that it stands for.
#include "vcl/controls/windowmessages.h"

#include "vcl/rtl/win32.h"

namespace vcl {

LRESULT Send(const TWinControl& control, UINT message, WPARAM wParam, LPARAM lParam) {
  return ::SendMessageW(const_cast<TWinControl&>(control).Handle(), message, wParam, lParam);
}

}  // namespace vcl
