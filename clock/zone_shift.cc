// Shifts of a time point by the offsets of zones: plain sums of seconds, without any calendar.
#include <KZMUtilities/dates.h>

#include "clock/local_time.h"
#include "port/now.h"

namespace kzm {
namespace {

double offsetAt(double t, TimeZone zone) { return static_cast<double>(zone.offsetFromGMT(t)); }

// Takes one zone's offset away and then adds the other's, both as they are at the time point. Two separate steps: the
// sum may differ in the last bit from adding their difference.
TimePoint exchangeOffsets(TimePoint t, TimeZone removed, TimeZone added) {
  if (!clock::supported(t).has_value()) return std::nullopt;
  const double without = *t - offsetAt(*t, removed);
  return clock::supported(without + offsetAt(*t, added));
}

}  // namespace

// Deliberate: the call corrected reads the default zone, while converToTimezone and converFromTimezone read the system
// zone (ZoneShift.CorrectedReadsAsTheLocalClockOfTheDefaultZone, ZoneShiftDeathTest.ConversionsUseTheSystemZone).
TimePoint corrected(TimePoint t) {
  if (!clock::supported(t).has_value()) return std::nullopt;
  return clock::supported(*t + offsetAt(*t, TimeZone::defaultZone()));
}

TimePoint utcStart(TimePoint t) { return dayStartWithTimezone(corrected(t), TimeZone::utc()); }

TimePoint utcStartForToday() { return utcStart(port::now()); }

TimePoint converFromTimezoneToUTC(TimePoint t, TimeZone zone) {
  if (!clock::supported(t).has_value()) return std::nullopt;
  return clock::supported(*t - offsetAt(*t, zone));
}

TimePoint converToTimezone(TimePoint t, TimeZone zone) { return exchangeOffsets(t, TimeZone::systemZone(), zone); }

TimePoint converFromTimezone(TimePoint t, TimeZone zone) { return exchangeOffsets(t, zone, TimeZone::systemZone()); }

}  // namespace kzm
