// The system's names of messages.
#pragma once

#include <optional>
#include <string_view>

#include "vcl/rtl/systemtypes.h"

namespace qel {

/// The message's number by what a developer writes: a name (WM_SIZE), in any case, a number, in
/// decimal or as 0x0005, or the sum of both (WM_USER+1). Nothing for what is none of these.
std::optional<UINT> MessageNumber(std::string_view text);

}  // namespace qel
