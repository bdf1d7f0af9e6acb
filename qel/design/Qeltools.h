// The package's add-in: a menu of tools in the designer application.
#pragma once

namespace qel {

/// Registers the add-in, which adds the menu "QEL &Tools" to the application's main menu.
void RegisterTools();

}  // namespace qel
