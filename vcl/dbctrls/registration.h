// The data-aware controls, for form files.
#pragma once

#include "vcl/rtl/api.h"

namespace vcl {

/// Registers them, the data sets and the data source. Doing it twice is doing it once.
VCL_API void RegisterDataControls();

}  // namespace vcl
