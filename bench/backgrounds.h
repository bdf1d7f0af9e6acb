// The painting of backgrounds against the system's own calls.
#pragma once

namespace bench {

/// Prints its tables.
void Backgrounds();

}  // namespace bench
