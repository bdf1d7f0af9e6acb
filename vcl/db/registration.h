// The data classes, for form files.
#pragma once

#include "vcl/rtl/api.h"

namespace vcl {

/// Registers the data sets, the kinds of fields and the data source. Doing it twice is doing it
/// once.
VCL_API void RegisterDataClasses();

}  // namespace vcl
