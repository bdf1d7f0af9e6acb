// Real numbers as edits show them, and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "qel/core/api.h"
#include "vcl/rtl/properties.h"

namespace qel {

enum TQELRealFormat {
  rfFixed,       ///< So many decimals: 12.50.
  rfGeneral,     ///< As short as 15 digits allow: 12.5.
  rfScientific,  ///< With an exponent: 1.25E+01.
  rfCurrency     ///< So many decimals, with the user's currency.
};

/// How the user writes numbers.
struct TQELRealSigns {
  std::string Decimal = ".";
  std::string Thousand = ",";  ///< Of amounts of money.
  std::string Currency = "$";
  /// Whether the currency stands behind the number, and whether a blank parts them.
  bool Behind = false;
  bool Blank = false;
};

/// What the system says of the user's habits; with `currency` those for amounts of money.
QEL_API TQELRealSigns QELRealSigns(bool currency);
/// The number rounded to 15 digits, which is what of a sum of decimal fractions is not error.
QEL_API double QELRoundReal(double value);
/// The number in the format, with so many decimals, 0 to 15.
QEL_API std::string QELRealText(double value, TQELRealFormat format, int decimals,
                                const TQELRealSigns& signs);
/// The number that the text says, with blanks, the currency and the thousands' sign anywhere;
/// nothing for a text that says none, or one that is too large.
QEL_API std::optional<double> QELTextReal(std::string_view text, const TQELRealSigns& signs);

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELRealFormat>{
    "TQELRealFormat", "rfFixed rfGeneral rfScientific rfCurrency"};

}  // namespace vcl
