// The dialog in which a text of many lines is edited.
#pragma once

#include <string>

#include "vcl/rtl/strings.h"

namespace vcl {

/// Shows the lines in a dialog and waits until it is closed. True when the user has confirmed them:
/// `lines` are then what stands in the dialog. Their objects are lost.
VCL_API bool EditLines(const std::string& title, TStrings& lines);
/// The same for a text whose lines are ended by "\r\n", "\n" or "\r"; those of the result are ended
/// by `lineEnd`, the last one is not ended.
VCL_API bool EditText(const std::string& title, std::string& text, const std::string& lineEnd);

}  // namespace vcl
