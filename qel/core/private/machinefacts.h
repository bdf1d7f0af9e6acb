// The facts of the machine, the user's language and folders.
#pragma once

#include <string>

#include "qel/core/Qelsystemfacts.h"

namespace qel {

/// The items from iiProcessorName on; empty for others.
std::string MachineFact(TQELInformationItem item);

}  // namespace qel
