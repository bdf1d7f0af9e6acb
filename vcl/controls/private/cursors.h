// The mouse pointers that every program has: the system's, and those that the library draws.
#pragma once

#include "vcl/controls/controltypes.h"

namespace vcl {

/// The system's pointer, which stays its own; null when the number is not of one.
HCURSOR SystemCursor(TCursor cursor);
/// A new pointer from the library's own drawing; null when there is none of that number.
HCURSOR DrawnCursor(TCursor cursor);

}  // namespace vcl
