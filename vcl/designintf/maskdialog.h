// The dialog in which the mask of an edit is made.
#pragma once

#include <string>

#include "vcl/rtl/api.h"

namespace vcl {

/// Shows the mask in a dialog with samples and a line to try it out, and waits until it is closed.
/// True when the user has confirmed another one, which can be read: `mask` is it then.
VCL_API bool EditMask(const std::string& title, std::string& mask);

}  // namespace vcl
