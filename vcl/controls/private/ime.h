// The input methods of the keyboard: which one a control wants, and in which state.
#pragma once

#include <string>

#include "vcl/controls/controltypes.h"

namespace vcl {

/// Puts the input method of the window, which has the focus, into the mode. imDontCare leaves it as
/// it is.
void ApplyImeMode(HWND window, TImeMode mode);
/// Gives a window back the input method that imDisable took from it.
void EnableIme(HWND window);

/// Switches the keyboard to the installed input method of that name (as the system describes it,
/// compared without case) until LeaveIme; does nothing for an empty name or one that is not there.
void EnterIme(const std::string& name);
void LeaveIme();

}  // namespace vcl
