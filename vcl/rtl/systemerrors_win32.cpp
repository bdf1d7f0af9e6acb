// The texts of Windows's errors.
#include <iterator>

#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

int LastSystemError() { return static_cast<int>(GetLastError()); }

std::string SysErrorMessage(int code) {
  wchar_t text[512];
  const DWORD size =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                     static_cast<DWORD>(code), 0, text, std::size(text), nullptr);
  if (size == 0) return Concat("System error ", std::to_string(code));
  return std::string(Trim(ToUtf8(std::wstring(text, size))));
}

}  // namespace vcl
