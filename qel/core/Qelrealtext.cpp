// Real numbers as texts, digit by digit without a float's errors.
#include "qel/core/Qelrealtext.h"

#include <array>
#include <charconv>
#include <cmath>

#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr int SureDigits = 15;

/// The number in C's notation.
std::string Digits(double value, std::chars_format format, int precision) {
  std::array<char, 400> text{};  // The longest has 309 digits before its decimals.
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, format, precision).ptr;
  return {text.data(), end};
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view by) {
  if (what.empty()) return;
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
}

/// Puts the sign between each three digits before the decimals.
void GroupThousands(std::string& digits, const std::string& sign) {
  auto at = static_cast<std::ptrdiff_t>(std::min(digits.find('.'), digits.size()));
  const std::ptrdiff_t first = digits.starts_with('-') ? 1 : 0;
  for (at -= 3; at > first; at -= 3) digits.insert(static_cast<std::size_t>(at), sign);
}

std::string Money(double value, int decimals, const TQELRealSigns& signs) {
  std::string digits = Digits(std::fabs(value), std::chars_format::fixed, decimals);
  const bool negative = value < 0 && digits.find_first_not_of("0.") != std::string::npos;
  const auto point = digits.find('.');
  std::string decimal = point == std::string::npos ? "" : signs.Decimal + digits.substr(point + 1);
  digits.resize(std::min(point, digits.size()));
  GroupThousands(digits, signs.Thousand);
  const std::string number = digits + decimal;
  const std::string blank = signs.Blank ? " " : "";
  return (negative ? "-" : "") +
         (signs.Behind ? number + blank + signs.Currency : signs.Currency + blank + number);
}

std::string Setting(LCTYPE type, const std::string& otherwise) {
  std::array<wchar_t, 32> text{};
  const int size = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text.data(), int{text.size()});
  return size > 1 ? vcl::ToUtf8(text.data()) : otherwise;
}

}  // namespace

TQELRealSigns QELRealSigns(bool currency) {
  TQELRealSigns signs;
  signs.Decimal = Setting(currency ? LOCALE_SMONDECIMALSEP : LOCALE_SDECIMAL, signs.Decimal);
  signs.Thousand = Setting(currency ? LOCALE_SMONTHOUSANDSEP : LOCALE_STHOUSAND, signs.Thousand);
  signs.Currency = Setting(LOCALE_SCURRENCY, signs.Currency);
  // 0 to 3: before, behind, and both with a blank.
  const std::string place = Setting(LOCALE_ICURRENCY, "0");
  signs.Behind = place == "1" || place == "3";
  signs.Blank = place == "2" || place == "3";
  return signs;
}

double QELRoundReal(double value) {
  const std::string digits = Digits(value, std::chars_format::general, SureDigits);
  double rounded = value;
  std::from_chars(digits.data(), digits.data() + digits.size(), rounded);
  return rounded;
}

std::string QELRealText(double value, TQELRealFormat format, int decimals,
                        const TQELRealSigns& signs) {
  if (format == rfCurrency) return Money(value, decimals, signs);
  const bool general = format == rfGeneral;
  const auto notation = general                  ? std::chars_format::general
                        : format == rfScientific ? std::chars_format::scientific
                                                 : std::chars_format::fixed;
  std::string digits = Digits(value, notation, general ? SureDigits : decimals);
  // Nothing is not less than nothing.
  if (digits.find_first_of("123456789") == std::string::npos) ReplaceAll(digits, "-", "");
  ReplaceAll(digits, "e", "E");
  ReplaceAll(digits, ".", signs.Decimal);
  return digits;
}

std::optional<double> QELTextReal(std::string_view text, const TQELRealSigns& signs) {
  std::string digits(text);
  ReplaceAll(digits, signs.Currency, "");
  // The usual blank and those that keep lines together.
  for (const char* blank : {" ", "\u00A0", "\u202F"}) ReplaceAll(digits, blank, "");
  if (signs.Thousand != signs.Decimal) ReplaceAll(digits, signs.Thousand, "");
  if (signs.Decimal != ".") {
    if (digits.find('.') != std::string::npos) return std::nullopt;
    ReplaceAll(digits, signs.Decimal, ".");
  }
  if (digits.starts_with('+')) digits.erase(0, 1);
  if (digits.empty() || digits.find_first_not_of("+-0123456789.eE") != std::string::npos) {
    return std::nullopt;
  }
  double value = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, value);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace qel
