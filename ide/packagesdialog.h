// The window that shows the packages.
#pragma once

#include <functional>
#include <string>

#include "ide/packages.h"

namespace ide {

/// Shows the packages with what was wrong with each; `load` loads another one and returns what was
/// wrong with it.
void ShowPackages(const TPackages& packages,
                  const std::function<std::string(const std::string& fileName)>& load);

}  // namespace ide
