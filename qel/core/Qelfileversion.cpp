// Reading a file's version information.
#include "qel/core/Qelfileversion.h"

#include <iterator>
#include <vector>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

using TBlock = std::vector<unsigned char>;

/// By TQELVersionItem.
constexpr const char* Keys[] = {"FileVersion",     "ProductVersion", "ProductName",
                                "FileDescription", "CompanyName",    "LegalCopyright",
                                "LegalTrademarks", "InternalName",   "OriginalFilename",
                                "Comments",        "PrivateBuild",   "SpecialBuild"};

std::wstring ProgramName() {
  std::wstring name(32768, L'\0');
  name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  return name;
}

/// Empty where the file has none.
TBlock BlockOf(const std::string& fileName) {
  const std::wstring name = fileName.empty() ? ProgramName() : vcl::SystemFileName(fileName);
  TBlock block(::GetFileVersionInfoSizeW(name.c_str(), nullptr));
  if (block.empty() ||
      !::GetFileVersionInfoW(name.c_str(), 0, static_cast<DWORD>(block.size()), block.data()))
    return {};
  return block;
}

/// A value of the block with its size; null for none.
template <class T>
const T* ValueOf(const TBlock& block, const std::string& path, UINT& size) {
  void* value = nullptr;
  size = 0;
  return ::VerQueryValueW(block.data(), vcl::ToUtf16(path).c_str(), &value, &size) && size > 0
             ? static_cast<const T*>(value)
             : nullptr;
}

std::string TextOf(const TBlock& block, const std::string& translation, const char* key) {
  UINT size = 0;
  const auto* text =
      ValueOf<wchar_t>(block, vcl::Concat("\\StringFileInfo\\", translation, "\\", key), size);
  return text ? vcl::ToUtf8(std::wstring_view(text, ::wcsnlen(text, size))) : std::string();
}

/// The languages that the texts are in, and US English, which files have that say none.
std::vector<std::string> Translations(const TBlock& block) {
  struct TLanguage {
    WORD Language;
    WORD CodePage;
  };
  UINT size = 0;
  const auto* list = ValueOf<TLanguage>(block, "\\VarFileInfo\\Translation", size);
  std::vector<std::string> names;
  for (UINT i = 0; list && i < size / sizeof *list; ++i) {
    names.push_back(vcl::IntToHex(list[i].Language, 4) + vcl::IntToHex(list[i].CodePage, 4));
  }
  names.insert(names.end(), {"040904B0", "040904E4"});
  return names;
}

std::string Number(DWORD high, DWORD low) {
  return vcl::Concat(vcl::IntToStr(HIWORD(high)), ".", vcl::IntToStr(LOWORD(high)), ".",
                     vcl::IntToStr(HIWORD(low)), ".", vcl::IntToStr(LOWORD(low)));
}

std::string NumberOf(const TBlock& block, TQELVersionItem item) {
  UINT size = 0;
  const auto* fixed = ValueOf<VS_FIXEDFILEINFO>(block, "\\", size);
  if (!fixed || size < sizeof *fixed) return {};
  if (item == viFileVersion) return Number(fixed->dwFileVersionMS, fixed->dwFileVersionLS);
  if (item == viProductVersion) return Number(fixed->dwProductVersionMS, fixed->dwProductVersionLS);
  return {};
}

}  // namespace

std::string QELFileVersion(const std::string& fileName, TQELVersionItem item) {
  if (item < 0 || item >= static_cast<int>(std::size(Keys))) return {};
  const TBlock block = BlockOf(fileName);
  if (block.empty()) return {};
  for (const std::string& translation : Translations(block)) {
    std::string text = TextOf(block, translation, Keys[item]);
    if (!text.empty()) return text;
  }
  return NumberOf(block, item);
}

}  // namespace qel
