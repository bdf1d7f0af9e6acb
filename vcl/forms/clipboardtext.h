// The system's clipboard: having it for oneself, and the text on it.
#pragma once

#include <string>

#include "vcl/rtl/api.h"

namespace vcl {

/// Has the clipboard open as long as it lives. Raises EInOutError when another program holds it.
class VCL_API TClipboardTurn {
 public:
  TClipboardTurn();
  ~TClipboardTurn();
  TClipboardTurn(const TClipboardTurn&) = delete;
  TClipboardTurn& operator=(const TClipboardTurn&) = delete;
};

/// Lines end with CR LF there and with LF here. Raise EInOutError when another program holds the
/// clipboard, or when it does not take the text.
VCL_API void SetClipboardText(const std::string& text);
/// Empty when there is none.
VCL_API std::string ClipboardText();

}  // namespace vcl
