// The window that shows the packages.
#pragma once

#include <functional>
#include <string>

#include "ide/packages.h"

namespace ide {

/// Shows the packages with what was wrong with each, and lets the user say which ones the next
/// start does without; `load` loads another one and returns what was wrong with it.
void ShowPackages(TPackages& packages,
                  const std::function<std::string(const std::string& fileName)>& load);

}  // namespace ide
