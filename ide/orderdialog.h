// The dialogs in which the user orders what is on a form.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace ide {

/// In which order Tab goes through the windowed controls of the container. True when it changed.
bool EditTabOrder(vcl::TWinControl& container);
/// In which order a form file has the components that are no controls. True when it changed.
bool EditCreationOrder(vcl::TComponent& root);

}  // namespace ide
