// Which DLL or executable a piece of code or data lies in.
#pragma once

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// The module that holds the address; null for one that no module holds.
VCL_API HINSTANCE ModuleOf(const void* address);

}  // namespace vcl
