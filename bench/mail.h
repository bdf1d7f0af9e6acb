// Coding attachments.
#pragma once

namespace bench {

void Mail();

}  // namespace bench
