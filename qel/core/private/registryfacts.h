// What the registry says about Windows.
#pragma once

#include <string>

namespace qel {

/// A value of Windows's current version; empty where the registry does not tell, for whatever
/// reason.
std::string WindowsRegistryText(const char* value);

}  // namespace qel
