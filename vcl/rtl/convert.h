// Conversion between values and texts, the same whatever the user's language.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "vcl/rtl/api.h"

namespace vcl {

VCL_API std::string IntToStr(std::int64_t value);
/// The value in hexadecimal, with at least `digits` digits.
VCL_API std::string IntToHex(std::uint64_t value, int digits);
/// The number that a text says, in decimal or, behind "$" or "0x", in hexadecimal, with blanks in
/// front; false for anything else or a number outside the type's range, and then `value` stays.
VCL_API bool TryStrToInt(std::string_view text, int& value);
VCL_API bool TryStrToInt64(std::string_view text, std::int64_t& value);
/// The same; raise EConvertError with the text.
VCL_API int StrToInt(std::string_view text);
VCL_API std::int64_t StrToInt64(std::string_view text);
VCL_API int StrToIntDef(std::string_view text, int otherwise);

/// "True" or "False".
VCL_API std::string BoolToStr(bool value);
/// Takes "True" and "False" in any case, and numbers: 0 is false. Raises EConvertError.
VCL_API bool StrToBool(std::string_view text);

/// The shortest text that gives the same number again; the decimal sign is a point.
VCL_API std::string FloatToStr(double value);
VCL_API bool TryStrToFloat(std::string_view text, double& value);
/// Raises EConvertError for what is no finite number.
VCL_API double StrToFloat(std::string_view text);
VCL_API double StrToFloatDef(std::string_view text, double otherwise);

}  // namespace vcl
