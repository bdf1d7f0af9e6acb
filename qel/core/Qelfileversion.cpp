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

std::string TextOf(const TBlock& block, const std::string& translation, const std::string& key) {
  UINT size = 0;
  const auto* text =
      ValueOf<wchar_t>(block, vcl::Concat("\\StringFileInfo\\", translation, "\\", key), size);
  return text ? vcl::ToUtf8(std::wstring_view(text, ::wcsnlen(text, size))) : std::string();
}

struct TLanguage {
  WORD Language;
  WORD CodePage;
};

/// The languages that the block says to have texts in.
std::vector<TLanguage> Languages(const TBlock& block) {
  UINT size = 0;
  const auto* list = ValueOf<TLanguage>(block, "\\VarFileInfo\\Translation", size);
  if (!list) return {};
  return {list, list + size / sizeof *list};
}

/// Their names in the block, and US English, which files have that say none.
std::vector<std::string> Translations(const TBlock& block) {
  std::vector<std::string> names;
  for (const auto& [language, codePage] : Languages(block)) {
    names.push_back(vcl::IntToHex(language, 4) + vcl::IntToHex(codePage, 4));
  }
  names.insert(names.end(), {"040904B0", "040904E4"});
  return names;
}

std::array<int, 4> Parts(DWORD high, DWORD low) {
  return {HIWORD(high), LOWORD(high), HIWORD(low), LOWORD(low)};
}

std::string NumberText(const std::array<int, 4>& parts) {
  return vcl::Concat(vcl::IntToStr(parts[0]), ".", vcl::IntToStr(parts[1]), ".",
                     vcl::IntToStr(parts[2]), ".", vcl::IntToStr(parts[3]));
}

std::optional<TQELVersionNumbers> NumbersOf(const TBlock& block) {
  UINT size = 0;
  const auto* fixed = ValueOf<VS_FIXEDFILEINFO>(block, "\\", size);
  if (!fixed || size < sizeof *fixed) return std::nullopt;
  return TQELVersionNumbers{Parts(fixed->dwFileVersionMS, fixed->dwFileVersionLS),
                            Parts(fixed->dwProductVersionMS, fixed->dwProductVersionLS),
                            fixed->dwFileFlags & fixed->dwFileFlagsMask, fixed->dwFileType};
}

std::string NumberOf(const TBlock& block, const std::string& key) {
  const auto numbers = NumbersOf(block);
  if (numbers && key == Keys[viFileVersion]) return NumberText(numbers->File);
  if (numbers && key == Keys[viProductVersion]) return NumberText(numbers->Product);
  return {};
}

}  // namespace

std::string QELFileVersion(const std::string& fileName, TQELVersionItem item) {
  if (item < 0 || item >= static_cast<int>(std::size(Keys))) return {};
  return QELFileVersion(fileName, std::string(Keys[item]));
}

std::string QELFileVersion(const std::string& fileName, const std::string& key) {
  const TBlock block = BlockOf(fileName);
  if (block.empty() || key.empty()) return {};
  for (const std::string& translation : Translations(block)) {
    std::string text = TextOf(block, translation, key);
    if (!text.empty()) return text;
  }
  return NumberOf(block, key);
}

std::optional<TQELVersionNumbers> QELFileVersionNumbers(const std::string& fileName) {
  const TBlock block = BlockOf(fileName);
  return block.empty() ? std::nullopt : NumbersOf(block);
}

std::string QELFileVersionLanguage(const std::string& fileName) {
  const TBlock block = BlockOf(fileName);
  const auto languages = block.empty() ? std::vector<TLanguage>() : Languages(block);
  wchar_t name[256] = {};
  if (languages.empty() || !::VerLanguageNameW(languages[0].Language, name, std::size(name)))
    return {};
  return vcl::ToUtf8(name);
}

}  // namespace qel
