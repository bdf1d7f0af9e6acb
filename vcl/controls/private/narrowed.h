// Published properties that take only the first values of an enumeration.
#pragma once

#include "vcl/controls/controltypes.h"
#include "vcl/rtl/properties.h"

namespace vcl {

/// The border of a control that is no form: bsNone or bsSingle.
TClassEntry ControlBorder(TClassEntry entry);
/// Left or right.
TClassEntry LeftOrRight(TClassEntry entry);
/// Raise EArgumentOutOfRangeException for what these properties do not take.
void CheckControlBorder(TBorderStyle style);
void CheckLeftOrRight(TAlignment alignment);

}  // namespace vcl
