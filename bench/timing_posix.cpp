// Waiting for painting, of which there is none here.
#include "bench/timing.h"

namespace bench {

void FinishPainting() {}

}  // namespace bench
