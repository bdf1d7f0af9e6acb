// The texts of windows.
#include "vcl/controls/windowtext.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

std::string WindowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)), L'\0');
  const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return ToUtf8(text);
}

void SetWindowTextUtf8(HWND window, std::string_view text) {
  ::SetWindowTextW(window, ToUtf16(text).c_str());
}

}  // namespace vcl
