// When a time of day comes: local times as instants, with what daylight saving does to them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "qel/core/api.h"
#include "vcl/rtl/win32.h"

namespace qel {

/// Instants and local times are milliseconds since 30 December 1899, of the clock at Greenwich and
/// of that on the wall.
using TMilliseconds = std::int64_t;
inline constexpr TMilliseconds MinuteLength = 60'000;
inline constexpr TMilliseconds DayLength = MinuteLength * 24 * 60;

/// How far the clock on the wall is ahead at an instant.
using TZone = std::function<TMilliseconds(TMilliseconds instant)>;

/// The days that a local time lies in, from 30 December 1899.
QEL_API int DayOf(TMilliseconds local);
/// The instant at which the clock on the wall shows the time: the first of two, and the moment in
/// which the clock is put forward for a time that it skips.
QEL_API TMilliseconds InstantOf(const TZone& zone, TMilliseconds local);

/// When something is to be done.
struct TTimeRule {
  TMilliseconds Time = 0;   ///< Of the day.
  unsigned Days = 0;        ///< A bit for each day of the week, Sunday the lowest.
  std::optional<int> Date;  ///< That day alone, whatever Days says.
  int Every = 0;            ///< Again each so many minutes to the end of the day; 0 for not again.
};
/// The first instant behind the given one; nothing when there is none.
QEL_API std::optional<TMilliseconds> NextInstant(const TTimeRule& rule, const TZone& zone,
                                                 TMilliseconds after);

/// What a zone's rules of one year say of an instant in that year.
QEL_API TMilliseconds OffsetBy(const TIME_ZONE_INFORMATION& rules, TMilliseconds instant);
/// The system's zone, with its rules of each year, as they are now.
QEL_API TZone SystemZone();
/// The system's clock.
QEL_API TMilliseconds SystemInstant();

}  // namespace qel
