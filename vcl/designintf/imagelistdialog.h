// The dialog in which the pictures of an image list are edited, and the command that opens it.
#pragma once

#include <string>

#include "vcl/graphics/imagelist.h"

namespace vcl {

/// Shows the pictures in a dialog and waits until it is closed. True when the user has confirmed
/// them: the list then has what stands in the dialog. Files are added by a button, or dropped on
/// the dialog; those that hold no picture are told by name, and the others come in.
VCL_API bool EditImages(const std::string& title, TImageList& images);

/// Gives image lists their editor.
VCL_API void RegisterImageListEditor();

}  // namespace vcl
