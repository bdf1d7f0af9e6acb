// FormatFloat: numbers as users read them.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/api.h"
#include "vcl/rtl/formatsettings.h"

namespace vcl {

/// The number in a format of these characters:
///
///     0      a digit, also where the number has none
///     #      a digit where the number has one
///     .      the first one: the decimal sign of the settings. Places behind it are rounded to,
///     half
///            of a unit away from zero; without it to whole numbers.
///     ,      anywhere: thousands are set off by the settings' sign
///     E+ E-  (or e+ e-) and zeros behind it: scientific, with a sign of the exponent always or for
///            negative ones alone, and at least so many digits
///     'x' "x" the text as it is, as is any other character
///     ;      up to three formats: for positive numbers, negative ones (without a sign of their
///     own)
///            and zero. An empty one is as the first. What is rounded to zero is zero.
///
/// The first digit's place takes all digits that have none. An empty format, and numbers that are
/// not finite, give FloatToStr's text.
VCL_API std::string FormatFloat(std::string_view format, double value,
                                const TFormatSettings& settings = FormatSettings());

}  // namespace vcl
