// How the user writes dates, times and numbers: what Windows's settings say.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <string_view>

#include "vcl/rtl/formatsettings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl {
namespace {

/// What the user's locale says; empty when it says nothing.
std::string LocaleText(LCTYPE type) {
  wchar_t text[256];
  const int size =
      GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, static_cast<int>(std::size(text)));
  return size > 0 ? ToUtf8({text, static_cast<std::size_t>(size - 1)}) : std::string();
}

/// A pattern of the system as a format of ours. The two differ in their letters for minutes and for
/// the half of the day; the era is not ours to say.
std::string FormatOf(const std::string& pattern) {
  std::string format;
  bool quoted = false;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char letter = pattern[i];
    quoted ^= letter == '\'';
    if (quoted || (letter != 't' && letter != 'g' && letter != 'm')) {
      format += letter;
    } else if (letter == 'm') {
      format += 'n';
    } else if (letter == 't' && (i == 0 || pattern[i - 1] != 't')) {
      format += "ampm";
    }
  }
  return std::string(Trim(format));
}

void Take(std::string& setting, const std::string& text) {
  if (!text.empty()) setting = text;
}

template <std::size_t Size>
void TakeNames(std::array<std::string, Size>& names, LCTYPE first) {
  for (std::size_t i = 0; i < Size; ++i) Take(names[i], LocaleText(first + static_cast<LCTYPE>(i)));
}

/// The system's weeks begin on Monday.
void TakeDayNames(std::array<std::string, 7>& names, LCTYPE first) {
  std::rotate(names.begin(), names.begin() + 1, names.end());
  TakeNames(names, first);
  std::rotate(names.begin(), names.end() - 1, names.end());
}

}  // namespace

TFormatSettings SystemFormatSettings() {
  TFormatSettings settings;
  Take(settings.DateSeparator, std::string(Trim(LocaleText(LOCALE_SDATE))));
  Take(settings.TimeSeparator, std::string(Trim(LocaleText(LOCALE_STIME))));
  Take(settings.ShortDateFormat, FormatOf(LocaleText(LOCALE_SSHORTDATE)));
  Take(settings.LongDateFormat, FormatOf(LocaleText(LOCALE_SLONGDATE)));
  Take(settings.ShortTimeFormat, FormatOf(LocaleText(LOCALE_SSHORTTIME)));
  Take(settings.LongTimeFormat, FormatOf(LocaleText(LOCALE_STIMEFORMAT)));
  Take(settings.TimeAMString, LocaleText(LOCALE_S1159));
  Take(settings.TimePMString, LocaleText(LOCALE_S2359));
  TakeNames(settings.ShortMonthNames, LOCALE_SABBREVMONTHNAME1);
  TakeNames(settings.LongMonthNames, LOCALE_SMONTHNAME1);
  TakeDayNames(settings.ShortDayNames, LOCALE_SABBREVDAYNAME1);
  TakeDayNames(settings.LongDayNames, LOCALE_SDAYNAME1);
  Take(settings.DecimalSeparator, LocaleText(LOCALE_SDECIMAL));
  Take(settings.ThousandSeparator, LocaleText(LOCALE_STHOUSAND));
  return settings;
}

}  // namespace vcl
