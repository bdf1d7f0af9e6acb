// What the system knows of the types of files.
#pragma once

#include <string>

namespace qel {

/// The MIME type registered for files with the extension, given with its dot; empty when there is
/// none.
std::string RegisteredMimeType(const std::string& extension);

}  // namespace qel
