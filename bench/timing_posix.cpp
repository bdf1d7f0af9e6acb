#include "bench/timing.h"

namespace bench {

void FinishPainting() {}

}  // namespace bench
