// TSortType: what keeps the items of a tree view or list view in order.
#pragma once

#include "vcl/rtl/typeinfo.h"

namespace vcl {

/// What keeps items in order: nothing, OnCompare over their data, or their texts.
enum TSortType { stNone, stData, stText, stBoth };
template <>
inline constexpr TEnumText EnumText<TSortType>{"TSortType", "stNone stData stText stBoth"};

}  // namespace vcl
