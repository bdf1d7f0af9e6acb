// Dates and times as texts that are the same for every user: 2024-02-28, 12:30:00.500,
// 2024-02-28T12:30:00.500.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/datetime.h"

namespace vcl {

enum class TIsoParts { Date, Time, Both };

/// The date, the time of day or both, to the millisecond.
std::string IsoText(TDateTime value, TIsoParts parts);
/// Understands all three, with a blank in the place of the T, too, and times without seconds or
/// fractions. False for anything else, and then `value` stays.
bool TryReadIso(std::string_view text, TDateTime& value);

}  // namespace vcl
