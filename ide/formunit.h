// The C++ unit of a form that is designed, in its two files beside the form file.
#pragma once

#include <string>
#include <vector>

#include "ide/handlers.h"
#include "ide/unitwriter.h"

namespace ide {

/// What of the form its unit shows. What C++ can't name is told in `notes`. Raises EUnitError for a
/// component that hides one of the form's own properties.
TUnitForm UnitFormOf(vcl::TComponent& root, const THandlers& handlers, const std::string& unitName,
                     std::vector<std::string>& notes);

/// Writes or updates NAME.h and NAME.cpp beside the form file NAME.dfm; returns what the programmer
/// should know. Raises EUnitError (see WriteUnit) and EInOutError. A unit that is as it should be
/// is not written; each file is replaced whole.
std::vector<std::string> WriteUnitFiles(vcl::TComponent& root, const THandlers& handlers,
                                        const std::string& formFile);

}  // namespace ide
