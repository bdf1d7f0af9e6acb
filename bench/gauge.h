// A gauge's progress, against painting all of the gauge.
#pragma once

namespace bench {

/// Prints its table.
void Gauge();

}  // namespace bench
