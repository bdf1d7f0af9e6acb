// The designer's picture, for runs that nobody sees.
#pragma once

#include <string>

#include "ide/mainform.h"

namespace ide {

/// Shows the form in front, saves what the screen shows of it as "designer.png" in the folder,
/// which is made when it is missing, and returns the file's name. The environment variable QEL_DPI
/// says for how many dots per inch. Raises EInOutError.
std::string SaveScreenshot(TMainForm& form, const std::string& folder);

}  // namespace ide
