// Dates and times as the system's controls have them.
#pragma once

#include "vcl/rtl/datetime.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// The day alone, and the time of day alone, to the millisecond.
TDateTime DayOf(TDateTime value);
TDateTime TimeOf(TDateTime value);

SYSTEMTIME ToSystemTime(TDateTime value);
TDateTime FromSystemTime(const SYSTEMTIME& time);

}  // namespace vcl
