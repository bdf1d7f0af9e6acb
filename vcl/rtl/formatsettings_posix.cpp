// How the user writes dates, times and numbers: what the locale of a POSIX system says.
#include <langinfo.h>

#include <clocale>
#include <string_view>

#include "vcl/rtl/formatsettings.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// The user's locale, whatever the program's own is.
class TUserLocale {
 public:
  TUserLocale() : FLocale(newlocale(LC_ALL_MASK, "", nullptr)) {}
  ~TUserLocale() {
    if (FLocale) freelocale(FLocale);
  }
  TUserLocale(const TUserLocale&) = delete;
  TUserLocale& operator=(const TUserLocale&) = delete;

  /// Empty where the locale says nothing.
  std::string Text(nl_item item) const {
    return FLocale ? nl_langinfo_l(item, FLocale) : std::string();
  }
  /// Whether its texts can be taken as they are.
  bool Understood() const {
    const std::string set = Text(CODESET);
    return set == "UTF-8" || set == "ANSI_X3.4-1968";
  }

 private:
  locale_t FLocale;
};

/// The conversions of strftime that occur in locales, as specifiers of ours.
struct TConversion {
  char Letter;
  std::string_view Specifier;
};
constexpr TConversion Conversions[] = {{'a', "ddd"},   {'A', "dddd"},       {'b', "mmm"},
                                       {'B', "mmmm"},  {'d', "dd"},         {'D', "mm/dd/yy"},
                                       {'e', "d"},     {'F', "yyyy-mm-dd"}, {'h', "mmm"},
                                       {'H', "hh"},    {'I', "hh"},         {'k', "h"},
                                       {'l', "h"},     {'m', "mm"},         {'M', "nn"},
                                       {'p', "ampm"},  {'P', "ampm"},       {'r', "hh:nn:ss ampm"},
                                       {'R', "hh:nn"}, {'S', "ss"},         {'T', "hh:nn:ss"},
                                       {'y', "yy"},    {'Y', "yyyy"}};

std::string_view SpecifierOf(char letter) {
  for (const TConversion& each : Conversions) {
    if (each.Letter == letter) return each.Specifier;
  }
  return {};
}

bool IsLetter(char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }

/// Takes the first character or conversion of a pattern off; empty for a conversion that we lack.
std::string TakeElement(std::string_view& pattern) {
  const char first = pattern.front();
  pattern.remove_prefix(1);
  const std::string literal(1, first);
  if (first != '%') return IsLetter(first) ? Concat("'", literal, "'") : literal;
  // A flag between the sign and the letter says how to pad.
  if (pattern.starts_with('-')) pattern.remove_prefix(1);
  if (pattern.empty()) return {};
  const char letter = pattern.front();
  pattern.remove_prefix(1);
  return std::string(SpecifierOf(letter));
}

/// The pattern of strftime as a format of ours; empty when it has a conversion that we lack.
std::string FormatOf(std::string_view pattern) {
  std::string format;
  while (!pattern.empty()) {
    const std::string element = TakeElement(pattern);
    if (element.empty()) return {};
    format += element;
  }
  return format;
}

/// What stands between the first two parts of a format.
std::string SeparatorOf(const std::string& format) {
  const std::size_t first = format.find_first_not_of("dmyhnsampDMYHNSAMP");
  return first == std::string::npos ? std::string() : format.substr(first, 1);
}

void Take(std::string& setting, const std::string& text) {
  if (!text.empty()) setting = text;
}

template <std::size_t Size>
void TakeNames(std::array<std::string, Size>& names, const TUserLocale& locale, nl_item first) {
  for (std::size_t i = 0; i < Size; ++i) Take(names[i], locale.Text(first + static_cast<int>(i)));
}

}  // namespace

TFormatSettings SystemFormatSettings() {
  TFormatSettings settings;
  const TUserLocale locale;
  if (!locale.Understood()) return settings;
  Take(settings.ShortDateFormat, FormatOf(locale.Text(D_FMT)));
  Take(settings.DateSeparator, SeparatorOf(settings.ShortDateFormat));
  Take(settings.LongTimeFormat, FormatOf(locale.Text(T_FMT)));
  Take(settings.TimeSeparator, SeparatorOf(settings.LongTimeFormat));
  Take(settings.TimeAMString, locale.Text(AM_STR));
  Take(settings.TimePMString, locale.Text(PM_STR));
  TakeNames(settings.ShortMonthNames, locale, ABMON_1);
  TakeNames(settings.LongMonthNames, locale, MON_1);
  TakeNames(settings.ShortDayNames, locale, ABDAY_1);
  TakeNames(settings.LongDayNames, locale, DAY_1);
  Take(settings.DecimalSeparator, locale.Text(RADIXCHAR));
  Take(settings.ThousandSeparator, locale.Text(THOUSEP));
  return settings;
}

}  // namespace vcl
