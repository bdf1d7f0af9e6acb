// The dialog in which the nodes of a tree view are edited, and the editors that open it.
#pragma once

#include <string>

#include "vcl/stdctrls/treeview.h"

namespace vcl {

/// Shows the nodes of the tree view, with its pictures, in a dialog and waits until it is closed.
/// True when the user has confirmed them: the tree view then has what stands in the dialog.
VCL_API bool EditTreeItems(const std::string& title, TCustomTreeView& tree);

/// Gives the nodes of tree views their editor, and tree views the command that opens it.
VCL_API void RegisterTreeItemsEditor();

}  // namespace vcl
