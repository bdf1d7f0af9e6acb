// Names of files as programs hand them to each other (Win32: DROPFILES).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/graphics/types.h"

namespace vcl {

struct TDroppedFiles {
  std::vector<std::string> Names;  ///< With their folders.
  TPoint Position;                 ///< In the inner pixels of the window that they are dropped on.
};

/// The names in a record, whose texts are wide or of the system's code page. Raises EConvertError,
/// with what is wrong, for bytes that are none.
TDroppedFiles ReadDroppedFiles(std::string_view bytes);
/// The record of the names, in wide texts.
std::string WriteDroppedFiles(const std::vector<std::string>& names);
/// The same of a WM_DROPFILES, whose WParam is given; the block is freed.
TDroppedFiles TakeDroppedFiles(WPARAM drop);

}  // namespace vcl
