// Types of published properties: their names, and the names of an enumeration's values.
#include "vcl/rtl/typeinfo.h"

#include <algorithm>

#include "vcl/rtl/object.h"
#include "vcl/rtl/text.h"

namespace vcl {

std::string_view KindName(TTypeKind kind) {
  static constexpr std::string_view names[] = {"integer",   "enumeration", "set",   "char",
                                               "string",    "float",       "color", "class",
                                               "component", "collection",  "event", "boolean"};
  return names[static_cast<int>(kind)];
}

std::string_view TTypeInfo::Name() const { return ClassOf ? ClassOf().Name() : FixedName; }

std::optional<std::string_view> TTypeInfo::EnumName(std::int64_t ordinal) const {
  std::string_view rest = Enum.Values;
  for (std::int64_t i = 0; !rest.empty() && i <= ordinal; ++i) {
    const std::string_view name = rest.substr(0, rest.find(' '));
    if (i == ordinal) return name;
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
  }
  return std::nullopt;
}

std::optional<std::int64_t> TTypeInfo::EnumOrdinal(std::string_view name) const {
  for (std::int64_t i = 0;; ++i) {
    const auto candidate = EnumName(i);
    if (!candidate) return std::nullopt;
    if (SameText(*candidate, name)) return i;
  }
}

}  // namespace vcl
