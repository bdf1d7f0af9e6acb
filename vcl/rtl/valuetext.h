// Values of published properties as text: what an object inspector shows and takes, and, but for
// strings, what a text form file holds.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/properties.h"

namespace vcl {

/// The value's text: a name where it has one, a number otherwise; sets as "[a, b]"; a string as it
/// is; a component's name; an object's class name in parentheses; nothing for no object.
VCL_API std::string ValueToText(const TTypeInfo& type, const TValue& value);
/// The value that the text says, for types whose values are not objects. Names are taken without
/// regard to case; numbers as StrToInt64 takes them. Raises EConvertError, with the text and the
/// type, for anything else.
VCL_API TValue TextToValue(const TTypeInfo& type, std::string_view text);
/// The text as a string of a text form file: in quotes, those in it doubled, control characters as
/// "#" and their number; all on one line.
VCL_API std::string FormString(std::string_view text);

}  // namespace vcl
