// Messages and questions to the user, in forms of the program's own.
#pragma once

#include <string>

#include "vcl/controls/controltypes.h"
#include "vcl/rtl/api.h"
#include "vcl/rtl/sets.h"

namespace vcl {

enum TMsgDlgType { mtWarning, mtError, mtInformation, mtConfirmation, mtCustom };
enum TMsgDlgBtn { mbYes, mbNo, mbOK, mbCancel, mbAbort, mbRetry, mbIgnore, mbAll };
using TMsgDlgButtons = TSet<TMsgDlgBtn>;

/// Shows a text with the picture and sound of its type and the buttons, of which the first is the
/// one that Enter presses and Escape presses "Cancel", or else "No". Without a button it has "OK".
/// The caption says the type; for mtCustom it is the application's title. Returns the result of the
/// button, mrCancel when the dialog is closed.
VCL_API TModalResult MessageDlg(const std::string& text, TMsgDlgType type, TMsgDlgButtons buttons);
/// The same with another one of the buttons for Enter, which has the focus. Raises
/// EArgumentOutOfRangeException for one that is not among the buttons.
VCL_API TModalResult MessageDlg(const std::string& text, TMsgDlgType type, TMsgDlgButtons buttons,
                                TMsgDlgBtn defaultButton);

/// Asks for a line of text; `value` is offered, and replaced when the user agrees. True when he
/// does.
VCL_API bool InputQuery(const std::string& caption, const std::string& prompt, std::string& value);
/// The same; returns what the user has entered, or else what was offered.
VCL_API std::string InputBox(const std::string& caption, const std::string& prompt,
                             const std::string& offered);

}  // namespace vcl
