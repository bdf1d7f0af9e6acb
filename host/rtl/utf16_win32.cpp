#include "host/rtl/utf16_win32.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace vcl::os {

std::wstring Wide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
  return wide;
}

std::string Narrow(std::wstring_view wide) {
  const int size = static_cast<int>(wide.size());
  std::string text(wide.size() * 3, '\0');
  text.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), static_cast<int>(text.size()),
                          nullptr, nullptr)));
  return text;
}

}  // namespace vcl::os
