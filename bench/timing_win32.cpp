// Waiting until the system has painted what it was told to.
#include "bench/timing.h"
#include "vcl/rtl/win32.h"

namespace bench {

void FinishPainting() { ::GdiFlush(); }

}  // namespace bench
