// TOutputLines: the ends of lines, and their character sets.
#include "qel/shell/private/outputlines.h"

#include <cstring>
#include <string_view>
#include <utility>

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

std::wstring Wide(const std::string& bytes, UINT page, DWORD flags) {
  const int size = static_cast<int>(bytes.size());
  const int length = ::MultiByteToWideChar(page, flags, bytes.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(page, flags, bytes.data(), size, wide.data(), length);
  return wide;
}

std::string FromUtf16(const std::string& bytes) {
  std::u16string wide(bytes.size() / 2, u'\0');
  std::memcpy(wide.data(), bytes.data(), wide.size() * 2);
  return vcl::ToUtf8(std::u16string_view(wide));
}

std::string Converted(const std::string& bytes, TOutputSet set) {
  if (bytes.empty()) return {};
  switch (set) {
    case TOutputSet::Utf16: return FromUtf16(bytes);
    case TOutputSet::Utf8: return vcl::ToUtf8(Wide(bytes, CP_UTF8, 0));
    case TOutputSet::System: return vcl::ToUtf8(Wide(bytes, CP_ACP, 0));
    case TOutputSet::Guessed:
      if (!Wide(bytes, CP_UTF8, MB_ERR_INVALID_CHARS).empty()) return bytes;
      break;
    case TOutputSet::Console: break;
  }
  return vcl::ToUtf8(Wide(bytes, CP_OEMCP, 0));
}

}  // namespace

/// Where the bytes that end the first line begin; npos when they have not come.
std::size_t TOutputLines::LineEnd() {
  const bool wide = FSet == TOutputSet::Utf16;
  for (std::size_t at = FBytes.find('\n', FSearched); at != std::string::npos;
       at = FBytes.find('\n', at + 1)) {
    if (!wide) return at;
    if (at % 2 == 0 && at + 1 < FBytes.size() && FBytes[at + 1] == '\0') return at;
  }
  FSearched = wide ? FBytes.size() / 2 * 2 : FBytes.size();
  return std::string::npos;
}

bool TOutputLines::Next(std::string& line) {
  const std::size_t end = LineEnd();
  if (end == std::string::npos) return false;
  line = Decoded(FBytes.substr(0, end));
  FBytes.erase(0, end + (FSet == TOutputSet::Utf16 ? 2 : 1));
  FSearched = 0;
  return true;
}

bool TOutputLines::Rest(std::string& line) {
  if (FBytes.empty()) return false;
  line = Decoded(std::exchange(FBytes, {}));
  FSearched = 0;
  return true;
}

std::string TOutputLines::Decoded(const std::string& bytes) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  std::string line = Converted(bytes, FSet);
  if (!std::exchange(FBegun, true) && line.starts_with(mark)) line.erase(0, mark.size());
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

}  // namespace qel
