// What a drop between programs does with the data.
#pragma once

#include "vcl/rtl/sets.h"

namespace vcl {

/// Nothing: it is not taken; a copy; the data itself, which its source then takes away; a link.
enum TDropEffect { deNone, deCopy, deMove, deLink };
using TDropEffects = TSet<TDropEffect>;

}  // namespace vcl
