// The system's dialogs that are up beside the program's own windows.
#pragma once

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// From now on the message loop gives that dialog its keys resp. no longer does.
VCL_API void AddModelessDialog(HWND dialog);
VCL_API void RemoveModelessDialog(HWND dialog);
/// Gives the message to the dialog that it is for (the system's IsDialogMessage); true when that
/// has taken it.
bool ToModelessDialog(MSG& message);

}  // namespace vcl
