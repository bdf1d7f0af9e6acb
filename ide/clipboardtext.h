// The text on the system's clipboard.
#pragma once

#include <string>

namespace ide {

/// Lines end with CR LF there and with LF here. Raises EInOutError when another program holds the
/// clipboard.
void SetClipboardText(const std::string& text);
/// Empty when there is none.
std::string ClipboardText();

}  // namespace ide
