// What filtering and finding records costs.
#pragma once

namespace bench {

void Views();

}  // namespace bench
