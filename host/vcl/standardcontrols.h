// What makes the standard controls known to form files.
#pragma once

#include "host/rtl/api.h"

namespace vcl {

/// Registers every control of stdctrls.h, extctrls.h, comctrls.h and buttons.h.
VCL_API void RegisterStandardControls();

}  // namespace vcl
