// The one error of the functions over dates.
#pragma once

#include "vcl/rtl/exceptions.h"

namespace qel {

[[noreturn]] inline void RaiseInvalidDate() { throw vcl::EConvertError("Invalid Date"); }

}  // namespace qel
