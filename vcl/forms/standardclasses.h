// The library's own components, known by name to form files.
#pragma once

#include "vcl/rtl/api.h"

namespace vcl {

/// Registers the library's controls, menus, dialogs and image lists with the class registry. Forms
/// do it before they are read; calling it again changes nothing.
VCL_API void RegisterStandardClasses();

}  // namespace vcl
