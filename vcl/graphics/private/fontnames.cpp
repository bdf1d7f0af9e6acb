// Asking the system for the names of its fonts.
#include "vcl/graphics/private/fontnames.h"

#include <set>

#include "vcl/graphics/handles.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using TNames = std::set<std::wstring>;

// Running out of memory must not leave a function that the system calls; the list then ends.
int CALLBACK AddName(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names) noexcept try {
  // "@" is the same font with its characters turned.
  if (font->lfFaceName[0] != L'@') reinterpret_cast<TNames*>(names)->insert(font->lfFaceName);
  return TRUE;
} catch (...) {
  return FALSE;
}

}  // namespace

std::vector<std::string> FontNames() {
  TNames found;
  LOGFONTW every{};
  every.lfCharSet = DEFAULT_CHARSET;
  const TWindowDC screen(nullptr);
  ::EnumFontFamiliesExW(screen.Get(), &every, &AddName, reinterpret_cast<LPARAM>(&found), 0);
  std::vector<std::string> names;
  for (const std::wstring& name : found) names.push_back(ToUtf8(name));
  return names;
}

}  // namespace vcl
