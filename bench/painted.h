// What the package's controls cost: lists that are filtered, and what is painted again and again.
#pragma once

namespace bench {

void Painted();

}  // namespace bench
