// TQELLanguageLines: which languages there are, what they are called, and their lines.
#include "qel/core/Qellanguagelines.h"

#include <algorithm>
#include <array>

#include "vcl/graphics/canvas.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;

namespace {

std::string InfoOf(const std::wstring& locale, LCTYPE type) {
  std::array<wchar_t, 256> text{};
  const int size = ::GetLocaleInfoEx(locale.c_str(), type, text.data(), int{text.size()});
  return size > 1 ? vcl::ToUtf8(text.data()) : std::string();
}

struct TSearch {
  std::vector<TQELLanguage> Found;
  LCTYPE NameType;
  bool InstalledOnly;
};

BOOL CALLBACK AddLocale(LPWSTR locale, DWORD, LPARAM search) {
  auto& all = *reinterpret_cast<TSearch*>(search);
  const LCID id = ::LocaleNameToLCID(locale, 0);
  if (all.InstalledOnly && !::IsValidLocale(id, LCID_INSTALLED)) return TRUE;
  const std::string shortName = vcl::ToUtf8(locale);
  const std::string name = InfoOf(locale, all.NameType);
  if (!shortName.empty()) all.Found.push_back({shortName, name.empty() ? shortName : name});
  return TRUE;
}

}  // namespace

std::vector<TQELLanguage> QELLanguages(TQELLanguageWhich which, TQELLanguageDisplay display) {
  static constexpr LCTYPE names[] = {LOCALE_SNATIVEDISPLAYNAME, LOCALE_SENGLISHDISPLAYNAME,
                                     LOCALE_SLOCALIZEDDISPLAYNAME};
  TSearch search{{}, names[display], which == lwInstalled};
  ::EnumSystemLocalesEx(&AddLocale, LOCALE_SPECIFICDATA, reinterpret_cast<LPARAM>(&search),
                        nullptr);
  std::ranges::stable_sort(search.Found, [](const TQELLanguage& a, const TQELLanguage& b) {
    return vcl::AnsiCompareText(a.Name, b.Name) < 0;
  });
  return std::move(search.Found);
}

std::string QELLocaleName(const std::string& locale) {
  const std::wstring wide = vcl::ToUtf16(locale);
  std::string name =
      wide.empty() || !::IsValidLocaleName(wide.c_str()) ? "" : InfoOf(wide, LOCALE_SNAME);
  if (name.empty()) {
    throw vcl::EConvertError(
        vcl::Concat("'", vcl::Shown(locale), "' is no language that the system knows"));
  }
  return name;
}

std::string QELUserLocale() {
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name{};
  ::GetUserDefaultLocaleName(name.data(), int{name.size()});
  return vcl::ToUtf8(name.data());
}

int QELLanguageID(const std::string& locale) {
  return LANGIDFROMLCID(::LocaleNameToLCID(vcl::ToUtf16(locale).c_str(), 0));
}

void TQELLanguageLines::SetLocale(const std::string& locale) {
  FLocale = locale.empty() ? locale : QELLocaleName(locale);
  Select();
}

void TQELLanguageLines::Select() {
  const std::string wanted = FLocale.empty() ? QELUserLocale() : FLocale;
  const auto found = std::ranges::find(FLanguages, wanted, &TQELLanguage::Locale);
  FList.SetItemIndex(found == FLanguages.end() ? -1 : static_cast<int>(found - FLanguages.begin()));
}

void TQELLanguageLines::TakeSelected() {
  const int index = FList.ItemIndex();
  if (index >= 0) FLocale = FLanguages[static_cast<std::size_t>(index)].Locale;
}

void TQELLanguageLines::Fill() {
  FLanguages = QELLanguages(FWhich, FDisplay);
  {
    const vcl::TUpdating updating(*FList.Items(), &FList);
    FList.Items()->Clear();
    for (const TQELLanguage& language : FLanguages) FList.Items()->Add(language.Name);
  }
  Select();
}

void TQELLanguageLines::Draw(vcl::TCustomListControl& list, int index, const TRect& rect,
                             vcl::TOwnerDrawState state) {
  vcl::TCanvas& canvas = *list.Canvas();
  const int margin = list.ScaledPixels(2);
  const std::string& locale = FLanguages[static_cast<std::size_t>(index)].Locale;
  const int left = rect.Right - canvas.TextWidth(locale) - 2 * margin;
  DrawLineText(list, {rect.Left, rect.Top, left, rect.Bottom}, margin,
               list.Items()->Strings(index));
  if (!state.Has(vcl::odSelected)) canvas.Font()->SetColor(vcl::clGrayText);
  DrawLineText(list, {left, rect.Top, rect.Right, rect.Bottom}, margin, locale);
}

}  // namespace qel
