// Any bytes as the name of a zone, and any bit pattern as a moment or a count: each operation gives a moment in range
// or none, and a day starts on itself, not after it.
#include <cmath>
#include <cstdint>
#include <optional>

#include <KZMUtilities/dates.h>

#include "tests/fuzz/input.h"

namespace kzm::fuzz {
namespace {

constexpr double kFirst = -210866760000.0;  // noon of 1 January 4713 BC
constexpr double kLast = 1.6e13;            // beyond the last moment
constexpr double kDay = 86400.0;
constexpr double kYearOne = -62135769600.0;  // a day is put together without its era: one BC becomes one AD

void checkRange(TimePoint t) {
  demand(!t.has_value() || (std::isfinite(*t) && *t >= kFirst - 2 * kDay && *t <= kLast), "a moment is in range");
}

void checkDay(TimePoint t, TimeZone zone) {
  const TimePoint start = dayStartWithTimezone(t, zone);
  checkRange(start);
  if (!start.has_value() || *t < kYearOne + kDay) return;
  demand(*start <= *t && *t - *start < 2 * kDay, "a day starts before what is in it");
  demand(dayStartWithTimezone(start, zone) == start, "a day's start is its own");
  const TimePoint next = addDaysTimezone(start, 1, zone);
  demand(!next.has_value() || *next > *start, "the next day is later");
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kzm;
  fuzz::Input input(bytes, size);
  const std::optional<TimeZone> named = TimeZone::named(input.textTo('\0'));
  const TimeZone zone = named.value_or(TimeZone::utc());
  TimeZone::setDefaultZone(zone);
  while (!input.empty()) {
    const TimePoint t = input.take<double>();
    const auto count = input.take<std::int64_t>();
    fuzz::checkDay(t, zone);
    for (const TimePoint result :
         {dayStart(t), addDays(t, count), addDaysTimezone(t, count % 100000, zone), addHours(t, count),
          addMonths(t, count), corrected(t), utcStart(t), converFromTimezoneToUTC(t, zone), converToTimezone(t, zone),
          converFromTimezone(t, zone)}) {
      fuzz::checkRange(result);
    }
    const auto units = static_cast<CalendarUnits>(count);
    static_cast<void>(components(t, units));
    static_cast<void>(dateFromComponents(units));
    static_cast<void>(timeIntervalFromComponents(units));
    static_cast<void>(zone.offsetFromGMT(t.value_or(0)));
    static_cast<void>(ordinalSuffix(t));
    fuzz::demand(!ordinalSuffixFromDay(count).empty(), "every number has a suffix");
  }
  return 0;
}
