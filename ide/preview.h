// The preview: a form that runs as it is, in a process of its own.
#pragma once

#include <string>
#include <vector>

#include "ide/packages.h"

namespace ide {

/// Starts the process for the form's text; the files of its frames are in the folder. Raises
/// EInOutError.
void StartPreview(const std::string& text, const std::string& folder, const TPackages& packages);
/// What that process does: shows the form of the file until it is closed. What could not be used is
/// written to the standard error output. Returns the exit code; raises like reading a form file.
int RunPreview(const std::string& fileName, const std::string& folder,
               const std::vector<std::string>& packages);

}  // namespace ide
