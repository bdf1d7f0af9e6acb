// Making, showing and freeing a form of many controls.
#pragma once

namespace bench {

/// Prints its table.
void Forms();

}  // namespace bench
