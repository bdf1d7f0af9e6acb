// Finding the letter that "&" marks in a caption.
#include "vcl/controls/accelerators.h"

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// A pointer whose upper half is zero is taken for one character.
wchar_t Upper(wchar_t character) {
  return static_cast<wchar_t>(reinterpret_cast<std::uintptr_t>(
      ::CharUpperW(reinterpret_cast<LPWSTR>(static_cast<std::uintptr_t>(character)))));
}

}  // namespace

bool IsAccel(WPARAM character, std::string_view caption) {
  if (character == 0 || character > 0xFFFF) return false;
  const wchar_t wanted = Upper(static_cast<wchar_t>(character));
  const std::wstring text = ToUtf16(caption);
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != L'&') continue;
    ++i;  // Of "&&" the second one is no mark.
    if (text[i] != L'&' && Upper(text[i]) == wanted) return true;
  }
  return false;
}

std::string WithoutAccel(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
}

std::string AccelKeys(std::string_view caption) {
  const std::wstring text = ToUtf16(caption);
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != L'&') continue;
    ++i;
    if (text[i] != L'&') return "Alt+" + ToUtf8(std::wstring(1, Upper(text[i])));
  }
  return {};
}

}  // namespace vcl
