// The zones that callers name, and the process's default one.
#include "port/time_zone.h"

#include <algorithm>
#include <atomic>
#include <cmath>

#include <KZMUtilities/dates.h>

#include "clock/local_time.h"

namespace kzm {
namespace {

// Null until somebody sets one: the system zone serves. Zones are never destroyed, so the pointer is all there is.
std::atomic<const port::Zone*> chosenZone{nullptr};

}  // namespace

std::optional<TimeZone> TimeZone::named(std::string_view identifier) {
  const port::Zone* zone = port::namedZone(identifier);
  return zone != nullptr ? std::optional(TimeZone(*zone)) : std::nullopt;
}

TimeZone TimeZone::utc() { return TimeZone(port::utcZone()); }

TimeZone TimeZone::defaultZone() {
  const port::Zone* chosen = chosenZone.load(std::memory_order_acquire);
  return chosen != nullptr ? TimeZone(*chosen) : systemZone();
}

void TimeZone::setDefaultZone(TimeZone zone) { chosenZone.store(&clock::zoneOf(zone), std::memory_order_release); }

TimeZone TimeZone::systemZone() { return TimeZone(port::systemZone()); }

const std::string& TimeZone::identifier() const noexcept { return zone_->identifier(); }

std::int64_t TimeZone::offsetFromGMT(double timePoint) const {
  const double inside =
      std::isnan(timePoint) ? 0.0 : std::clamp(timePoint, clock::kEarliestTimePoint, clock::kLatestTimePoint);
  return zone_->offset(static_cast<std::int64_t>(std::floor(inside)));
}

const port::Zone& clock::zoneOf(const TimeZone& zone) noexcept { return *zone.zone_; }

}  // namespace kzm
