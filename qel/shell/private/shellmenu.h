// The shell's menu of files and folders.
#pragma once

#include <string>
#include <vector>

#include "vcl/controls/controltypes.h"

namespace vcl {
class TWinControl;
}

namespace qel {

/// What the user has chosen in the shell's menu.
enum class TShellCommand {
  None,   ///< Nothing, or what the shell has done.
  Rename  ///< To give another name, which is the caller's to do.
};

/// Shows what the shell can do with files and folders of one folder, at that position of the
/// screen, and has it done; with no names, what it can do with the folder itself, whose name ends
/// with a backslash. The control's window owns the menu and its boxes. Shows nothing for what the
/// shell does not know. The control may be freed meanwhile.
TShellCommand ShowShellMenu(vcl::TWinControl& owner, const std::string& folder,
                            const std::vector<std::string>& names, vcl::TPoint screen);

}  // namespace qel
