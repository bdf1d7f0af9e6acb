// Numbers and truth values as texts and back, whatever the user's language.
#include "vcl/rtl/convert.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

template <class T, class... Options>
std::string Print(T value, Options... options) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, value, options...).ptr};
}

template <class T, class... Options>
bool Parse(std::string_view text, T& value, Options... options) {
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, value, options...);
  return error == std::errc{} && rest == end;
}

bool RemovePrefix(std::string_view& text, std::string_view prefix) {
  if (!SameText(text.substr(0, prefix.size()), prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

std::string_view RemoveBlanks(std::string_view text) {
  while (RemovePrefix(text, " ")) {
  }
  return text;
}

/// Hexadecimal digits give the bits of a number of the type, so "$FFFFFFFF" is an int, too.
template <class T>
bool ParseInteger(std::string_view text, T& value) {
  text = RemoveBlanks(text);
  const bool negative = text.starts_with("-");
  std::string_view digits = text;
  if (negative || text.starts_with("+")) digits.remove_prefix(1);
  if (!RemovePrefix(digits, "$") && !RemovePrefix(digits, "0x")) {
    if (digits.starts_with("-")) return false;
    T parsed{};
    if (!Parse(negative ? text : digits, parsed)) return false;
    return value = parsed, true;
  }
  std::make_unsigned_t<T> bits{};
  if (!Parse(digits, bits, 16)) return false;
  return value = static_cast<T>(negative ? 0 - bits : bits), true;
}

[[noreturn]] void Refuse(std::string_view text, std::string_view kind) {
  throw EConvertError(Concat("'", Shown(text), "' is not a valid ", kind));
}

}  // namespace

std::string IntToStr(std::int64_t value) { return Print(value); }

std::string IntToHex(std::uint64_t value, int digits) {
  const std::string text = UpperCase(Print(value, 16));
  const auto missing = std::max(0, digits - static_cast<int>(text.size()));
  return std::string(static_cast<std::size_t>(missing), '0') + text;
}

bool TryStrToInt(std::string_view text, int& value) { return ParseInteger(text, value); }

bool TryStrToInt64(std::string_view text, std::int64_t& value) { return ParseInteger(text, value); }

int StrToInt(std::string_view text) {
  int value = 0;
  if (!TryStrToInt(text, value)) Refuse(text, "integer value");
  return value;
}

std::int64_t StrToInt64(std::string_view text) {
  std::int64_t value = 0;
  if (!TryStrToInt64(text, value)) Refuse(text, "integer value");
  return value;
}

int StrToIntDef(std::string_view text, int otherwise) {
  TryStrToInt(text, otherwise);
  return otherwise;
}

std::string BoolToStr(bool value) { return value ? "True" : "False"; }

bool StrToBool(std::string_view text) {
  if (SameText(text, "True")) return true;
  if (SameText(text, "False")) return false;
  double number = 0;
  if (!TryStrToFloat(text, number)) Refuse(text, "boolean value");
  return number != 0;
}

std::string FloatToStr(double value) { return Print(value); }

bool TryStrToFloat(std::string_view text, double& value) {
  text = Trim(text);
  if (text.starts_with("+") && !text.starts_with("+-")) text.remove_prefix(1);
  double parsed = 0;
  if (!Parse(text, parsed) || !std::isfinite(parsed)) return false;
  return value = parsed, true;
}

double StrToFloat(std::string_view text) {
  double value = 0;
  if (!TryStrToFloat(text, value)) Refuse(text, "floating point value");
  return value;
}

double StrToFloatDef(std::string_view text, double otherwise) {
  TryStrToFloat(text, otherwise);
  return otherwise;
}

}  // namespace vcl
