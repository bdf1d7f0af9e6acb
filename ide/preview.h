// The preview: a form that runs as it is, in a process of its own.
#pragma once

#include <string>
#include <vector>

#include "ide/packages.h"

namespace ide {

/// Starts the process for the form's text. Raises EInOutError.
void StartPreview(const std::string& text, const TPackages& packages);
/// What that process does: shows the form of the file until it is closed. What could not be used is
/// written to the standard error output. Returns the exit code; raises like reading a form file.
int RunPreview(const std::string& fileName, const std::vector<std::string>& packages);

}  // namespace ide
