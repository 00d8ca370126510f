// Between time points and the wall clock of a zone.
#ifndef KZM_CLOCK_LOCAL_TIME_H
#define KZM_CLOCK_LOCAL_TIME_H

#include <cstdint>
#include <optional>

#include <KZMUtilities/dates.h>

#include "clock/calendar.h"

namespace kzm::clock {

inline constexpr std::int64_t kSecondsInDay = 86400;

/// The limits of calendar work, in seconds since 1970: noon of 1 January 4713 BC, where Julian day numbers begin, and
/// 7 February 506713.
inline constexpr double kEarliestTimePoint = -210866760000.0;
inline constexpr double kLatestTimePoint = 15928153804800.0;

/// A time point in the supported range, cut into whole seconds and a fraction from 0 on.
struct Instant {
  std::int64_t seconds;
  double fraction;
};

/// Null for no date, NaN, an infinity, and everything outside the supported range.
[[nodiscard]] std::optional<Instant> instantOf(TimePoint t) noexcept;
/// Null outside the supported range.
[[nodiscard]] TimePoint timePointOf(const Instant& instant) noexcept;
/// The time point itself, or null when it is NaN, infinite or outside the supported range.
[[nodiscard]] TimePoint supported(TimePoint t) noexcept;

/// What a wall clock shows: the day's number and the second of the day, 0 to 86399.
struct WallTime {
  std::int64_t day;
  std::int64_t second;
};

[[nodiscard]] WallTime wallTime(std::int64_t instant, TimeZone zone);

/// Which instant a wall time means that the zone repeats or skips.
enum class Occurrence {
  first,     ///< repeated: the first one; skipped: forward by the gap
  second,    ///< repeated: the second one; skipped: forward by the gap
  dayStart,  ///< repeated: the first one; skipped: the end of the gap
};

/// The instant, in seconds since 1970 UTC, at which the zone's wall clock shows that.
[[nodiscard]] std::int64_t instantAt(const WallTime& wall, TimeZone zone, Occurrence occurrence);

}  // namespace kzm::clock

#endif
