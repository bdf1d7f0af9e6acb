// Whole names of files on Windows, and the form that takes long ones.
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

std::wstring FullName(const std::wstring& name) {
  std::wstring full(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(
      GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full.empty() ? name : full;
}

}  // namespace

std::string ExpandFileName(const std::string& fileName) {
  return ToUtf8(FullName(ToUtf16(fileName)));
}

std::wstring SystemFileName(const std::string& name) {
  constexpr std::size_t plain = 240;  // Room for what is appended.
  std::wstring wide = ToUtf16(name);
  if (wide.size() < plain || wide.starts_with(L"\\\\?\\")) return wide;
  const std::wstring full = FullName(wide);
  return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

}  // namespace vcl
