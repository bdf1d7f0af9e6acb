// Paging through a grid of many rows.
#pragma once

namespace bench {

/// Prints its table.
void Grids();

}  // namespace bench
