// What exporting records costs.
#pragma once

namespace bench {

void Records();

}  // namespace bench
