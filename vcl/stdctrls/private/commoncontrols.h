// The system's common controls.
#pragma once

#include "vcl/rtl/win32.h"

namespace vcl {

/// Has the system register its window classes of that sort (ICC_...).
inline void UseCommonControls(DWORD classes) {
  const INITCOMMONCONTROLSEX which{sizeof which, classes};
  ::InitCommonControlsEx(&which);
}

}  // namespace vcl
