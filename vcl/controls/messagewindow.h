// Windows that are never seen and only receive messages, for components without a window.
#pragma once

#include "vcl/controls/messages.h"
#include "vcl/rtl/api.h"
#include "vcl/rtl/events.h"

namespace vcl {

/// Handles a message, sets its Result, and hands what it doesn't know to the system's
/// DefWindowProcW itself.
using TWndMethod = TEvent<TMessage&>;

/// Makes a window, hidden for ever, whose messages go to the method. It is a top-level window, so
/// that broadcasts reach it. What the method raises goes to the application. Raises
/// EOutOfResources.
VCL_API HWND AllocateHWnd(const TWndMethod& method);
/// Frees such a window, from a message of its own too: its method is not called again. Null is
/// ignored.
VCL_API void DeallocateHWnd(HWND window);

}  // namespace vcl
