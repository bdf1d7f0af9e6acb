// Published properties that take only the first values of an enumeration: their types and checks.
#include "vcl/controls/private/narrowed.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

TTypeInfo FirstTwo(const TEnumText& text) {
  return {TTypeKind::Enumeration, text.Name, text, {}, nullptr, 0, 1};
}

const TTypeInfo& BorderType() {
  static const TTypeInfo type = FirstTwo({"TBorderStyle", "bsNone bsSingle"});
  return type;
}

const TTypeInfo& LeftRightType() {
  static const TTypeInfo type = FirstTwo({"TLeftRight", "taLeftJustify taRightJustify"});
  return type;
}

TClassEntry Narrow(TClassEntry entry, const TTypeInfo& (*type)()) {
  entry.TypeOf = type;
  return entry;
}

void Check(std::int64_t value, const TTypeInfo& type) {
  if (value >= type.Min && value <= type.Max) return;
  throw EArgumentOutOfRangeException(
      Concat(std::to_string(value), " is not a value of ", type.Name()));
}

}  // namespace

TClassEntry ControlBorder(TClassEntry entry) { return Narrow(entry, &BorderType); }
TClassEntry LeftOrRight(TClassEntry entry) { return Narrow(entry, &LeftRightType); }
void CheckControlBorder(TBorderStyle style) { Check(style, BorderType()); }
void CheckLeftOrRight(TAlignment alignment) { Check(alignment, LeftRightType()); }

}  // namespace vcl
