// TScrollStyle: which scroll bars a control has.
#pragma once

#include "vcl/rtl/typeinfo.h"

namespace vcl {

enum TScrollStyle { ssNone, ssHorizontal, ssVertical, ssBoth };
template <>
inline constexpr TEnumText EnumText<TScrollStyle>{"TScrollStyle",
                                                  "ssNone ssHorizontal ssVertical ssBoth"};

}  // namespace vcl
