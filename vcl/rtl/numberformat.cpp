// FormatFloat: digits by a format's places.
#include "vcl/rtl/numberformat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "vcl/rtl/convert.h"

namespace vcl {
namespace {

bool IsPlace(char c) { return c == '0' || c == '#'; }

/// The digits of a number: those before the decimal sign, then those behind it.
struct TDigits {
  std::string Digits;
  int Point = 0;  ///< How many are before the decimal sign; may be negative or beyond the end.

  /// The digits of the shortest text that gives the same number again, which is what users see of
  /// it: 2.675 is rounded as such, not as the binary number next to it.
  explicit TDigits(double value) {
    char text[32];
    char* const end =
        std::to_chars(text, text + sizeof text - 1, value, std::chars_format::scientific).ptr;
    *end = '\0';
    const char* const exponent = std::find(text, end, 'e');
    std::copy_if<const char*>(text, exponent, std::back_inserter(Digits),
                              [](char c) { return c != '.'; });
    Point = std::atoi(exponent + 1) + 1;
    Trim();
  }
  bool Zero() const { return Digits.empty(); }
  /// The digit `place` places before (0 is the last one) resp. behind (-1 is the first) the sign.
  char At(int place) const {
    const int index = Point - 1 - place;
    const bool has = index >= 0 && index < static_cast<int>(Digits.size());
    return has ? Digits[static_cast<std::size_t>(index)] : '0';
  }
  /// Half of the last place goes away from zero.
  void Round(int decimals) {
    const int kept = Point + decimals;
    if (kept >= static_cast<int>(Digits.size())) return;
    const bool up = kept >= 0 && Digits[static_cast<std::size_t>(kept)] >= '5';
    Digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
    if (up) AddOne();
    Trim();
  }

 private:
  void AddOne() {
    while (!Digits.empty() && Digits.back() == '9') Digits.pop_back();
    if (!Digits.empty()) return static_cast<void>(++Digits.back());
    Digits.assign(1, '1');
    ++Point;
  }
  void Trim() {
    while (!Digits.empty() && Digits.back() == '0') Digits.pop_back();
    if (Digits.empty()) Point = 0;
  }
};

/// One of a format's parts, taken apart.
class TNumberFormat {
 public:
  explicit TNumberFormat(std::string_view format) {
    while (!format.empty()) Take(format);
  }

  std::string Print(TDigits digits, bool negative, const TFormatSettings& settings) const;
  /// As they are shown: to which place they are rounded.
  TDigits Rounded(TDigits digits) const {
    if (!FScientific) digits.Round(FDecimals);
    return digits;
  }

 private:
  struct TElement {
    char Kind;              ///< '0' or '#', '.' for the decimal sign, 'E' for the exponent, else 0.
    std::string Text = {};  ///< Of what is no place.
  };

  void Take(std::string_view& format) {
    const char c = format.front();
    const char next = format.size() > 1 ? format[1] : '\0';
    if ((c == 'E' || c == 'e') && (next == '+' || next == '-') && !FScientific) {
      return TakeExponent(format);
    }
    format.remove_prefix(1);
    if (c == '\'' || c == '"') {
      const std::size_t end = std::min(format.find(c), format.size());
      FElements.push_back({0, std::string(format.substr(0, end))});
      format.remove_prefix(std::min(end + 1, format.size()));
    } else if (c == ',') {
      FThousands = true;
    } else if (c == '.') {
      if (!FPoint) FElements.push_back({'.'});
      FPoint = true;
    } else if (IsPlace(c) && !FScientific) {
      FElements.push_back({c});
      ++(FPoint ? FDecimals : FWhole);
      if (FPoint && c == '0') FZeros = FDecimals;
    } else {
      FElements.push_back({0, std::string(1, c)});
    }
  }
  void TakeExponent(std::string_view& format) {
    FScientific = true;
    FElements.push_back({'E', std::string(format.substr(0, 2))});
    format.remove_prefix(2);
    while (!format.empty() && format.front() == '0') {
      format.remove_prefix(1);
      ++FExponentDigits;
    }
  }
  std::string Exponent(const std::string& letters, int exponent) const {
    const std::string digits = IntToStr(std::abs(exponent));
    std::string text(1, letters[0]);
    if (exponent < 0) {
      text += '-';
    } else if (letters[1] == '+') {
      text += '+';
    }
    text.append(
        static_cast<std::size_t>(std::max(FExponentDigits - static_cast<int>(digits.size()), 0)),
        '0');
    return text += digits;
  }

  std::vector<TElement> FElements;
  int FWhole = 0;
  int FDecimals = 0;
  int FZeros = 0;  // How many decimals there are at least.
  int FExponentDigits = 0;
  bool FPoint = false;
  bool FThousands = false;
  bool FScientific = false;
};

std::string TNumberFormat::Print(TDigits digits, bool negative,
                                 const TFormatSettings& settings) const {
  int exponent = 0;
  const auto normalize = [&] {
    const int shift = digits.Zero() ? 0 : digits.Point - FWhole;
    exponent += shift;
    digits.Point -= shift;
  };
  if (FScientific) {
    normalize();
    digits.Round(FDecimals);
    normalize();  // 9.99 may have become 10.
  }
  std::string text(negative ? 1 : 0, '-');
  const auto whole = [&](int from, int to) {
    for (int place = from; place >= to; --place) {
      text += digits.At(place);
      if (FThousands && !FScientific && place > 0 && place % 3 == 0) {
        text += settings.ThousandSeparator;
      }
    }
  };
  const int decimals = std::max(static_cast<int>(digits.Digits.size()) - digits.Point, FZeros);
  int place = FWhole;  // Of the digit before.
  bool padded = false;
  for (const TElement& each : FElements) {
    switch (each.Kind) {
      case '.':
        if (FWhole == 0) whole(digits.Point - 1, 0);
        if (decimals > 0) text += settings.DecimalSeparator;
        break;
      case 'E': text += Exponent(each.Text, exponent); break;
      case '0':
      case '#':
        // The first one takes all that have none, and a zero pads what follows.
        padded |= each.Kind == '0';
        if (--place >= 0) {
          const bool first = place == FWhole - 1;
          whole(first                              ? std::max(digits.Point - 1, padded ? place : -1)
                : (place < digits.Point || padded) ? place
                                                   : place - 1,
                place);
        } else if (-place <= decimals) {
          text += digits.At(place);
        }
        break;
      default: text += each.Text; break;
    }
  }
  return text;
}

/// The format's parts, as far as there are; quoted semicolons part nothing.
std::array<std::string_view, 3> PartsOf(std::string_view format) {
  std::array<std::string_view, 3> parts;
  std::size_t part = 0;
  std::size_t begin = 0;
  char quote = 0;
  for (std::size_t i = 0; i <= format.size() && part < parts.size(); ++i) {
    const char c = i < format.size() ? format[i] : ';';
    if (quote && i < format.size()) {
      if (c == quote) quote = 0;
    } else if (c == '\'' || c == '"') {
      quote = c;
    } else if (c == ';') {
      parts[part++] = format.substr(begin, i - begin);
      begin = i + 1;
    }
  }
  return parts;
}

}  // namespace

std::string FormatFloat(std::string_view format, double value, const TFormatSettings& settings) {
  if (format.empty() || !std::isfinite(value)) return FloatToStr(value);
  const auto [positive, negative, zero] = PartsOf(format);
  const bool below = value < 0;
  const bool own = below && !negative.empty();
  const TNumberFormat chosen(own ? negative : positive);
  const TDigits digits = chosen.Rounded(TDigits(std::fabs(value)));
  if (!digits.Zero()) return chosen.Print(digits, below && !own, settings);
  return TNumberFormat(zero.empty() ? positive : zero).Print(digits, false, settings);
}

}  // namespace vcl
