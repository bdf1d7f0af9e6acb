// Measuring list views.
#pragma once

namespace bench {

void Lists();

}  // namespace bench
