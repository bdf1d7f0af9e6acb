// Going through the records of data sets, with controls that show them.
#pragma once

namespace bench {

/// Prints its tables.
void Fields();

}  // namespace bench
