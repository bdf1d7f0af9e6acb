#include "bench/timing.h"
#include "host/vcl/win32.h"

namespace bench {

void FinishPainting() { ::GdiFlush(); }

}  // namespace bench
