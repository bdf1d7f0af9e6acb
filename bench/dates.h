// Calendar arithmetic.
#pragma once

namespace bench {

/// Prints its table.
void Dates();

}  // namespace bench
