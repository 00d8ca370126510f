#include "clock/local_time.h"

#include <algorithm>
#include <cmath>

#include "port/time_zone.h"

namespace kzm::clock {

TimePoint supported(TimePoint t) noexcept {
  return t.has_value() && *t >= kEarliestTimePoint && *t <= kLatestTimePoint ? t : std::nullopt;
}

std::optional<Instant> instantOf(TimePoint t) noexcept {
  if (!supported(t).has_value()) return std::nullopt;
  const double whole = std::floor(*t);
  return Instant{static_cast<std::int64_t>(whole), *t - whole};
}

TimePoint timePointOf(const Instant& instant) noexcept {
  return supported(static_cast<double>(instant.seconds) + instant.fraction);
}

WallTime wallTime(std::int64_t instant, TimeZone zone) {
  const std::int64_t local = instant + zoneOf(zone).offset(instant);
  return {floorDivide(local, kSecondsInDay), floorRemainder(local, kSecondsInDay)};
}

std::int64_t instantAt(const WallTime& wall, TimeZone zone, Occurrence occurrence) {
  const port::LocalTimeInstants found = zoneOf(zone).instants(wall.day * kSecondsInDay + wall.second);
  if (occurrence == Occurrence::second) return std::max(found.before, found.after);
  if (occurrence == Occurrence::dayStart) return std::min(found.before, found.change);
  return found.before;
}

}  // namespace kzm::clock
