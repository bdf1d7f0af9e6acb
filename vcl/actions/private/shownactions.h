// The updates of actions while the program idles.
#pragma once

namespace vcl {

/// Updates the actions whose clients the user sees: controls of forms that are shown and enabled,
/// and the items in their menu bars. Those of other menus are updated as their menus open.
void UpdateShownActions();

}  // namespace vcl
