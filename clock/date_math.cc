// Day starts, and sums of days, hours and months.
#include <algorithm>

#include <KZMUtilities/dates.h>

#include "clock/local_time.h"

namespace kzm {
namespace {

// Counts so large that they lead out of the supported range from anywhere in it; below them no sum overflows.
bool leadsOutside(std::int64_t count, std::int64_t secondsEach) {
  constexpr auto kTwiceTheRange =
      static_cast<std::int64_t>(2.0 * (clock::kLatestTimePoint - clock::kEarliestTimePoint));
  return count > kTwiceTheRange / secondsEach || count < -kTwiceTheRange / secondsEach;
}

// Of a wall time that comes twice, the one that is reached first.
clock::Occurrence occurrenceAfter(std::int64_t count) {
  return count > 0 ? clock::Occurrence::first : clock::Occurrence::second;
}

std::int64_t dayAfterMonths(std::int64_t day, std::int64_t months) {
  const clock::CivilDate date = clock::dateOfDay(day);
  const std::int64_t monthCount = 12 * date.year + date.month - 1 + months;
  const std::int64_t year = clock::floorDivide(monthCount, 12);
  const int month = static_cast<int>(clock::floorRemainder(monthCount, 12)) + 1;
  return clock::dayOfDate({year, month, std::min(date.day, clock::daysInMonth(year, month))});
}

}  // namespace

TimePoint dayStart(TimePoint t) { return dayStartWithTimezone(t, TimeZone::defaultZone()); }

TimePoint dayStartWithTimezone(TimePoint t, TimeZone zone) {
  const std::optional<clock::Instant> instant = clock::instantOf(t);
  if (!instant.has_value()) return std::nullopt;
  clock::CivilDate date = clock::dateOfDay(clock::wallTime(instant->seconds, zone).day);
  // Deliberate: day starts take year, month and day without the era, so a day before Christ leads to one after
  // (DayStart.DropsTheEra).
  if (date.year < 1) date.year = 1 - date.year;
  return clock::timePointOf({clock::instantAt({clock::dayOfDate(date), 0}, zone, clock::Occurrence::dayStart), 0.0});
}

TimePoint addDaysTimezone(TimePoint t, std::int64_t days, TimeZone zone) {
  const std::optional<clock::Instant> instant = clock::instantOf(t);
  if (!instant.has_value() || leadsOutside(days, clock::kSecondsInDay)) return std::nullopt;
  if (days == 0) return t;
  clock::WallTime wall = clock::wallTime(instant->seconds, zone);
  wall.day += days;
  return clock::timePointOf({clock::instantAt(wall, zone, occurrenceAfter(days)), instant->fraction});
}

TimePoint addDays(TimePoint t, std::int64_t days) { return addDaysTimezone(t, days, TimeZone::defaultZone()); }

TimePoint addHours(TimePoint t, std::int64_t hours) {
  constexpr std::int64_t kSecondsInHour = 3600;
  const std::optional<clock::Instant> instant = clock::instantOf(t);
  if (!instant.has_value() || leadsOutside(hours, kSecondsInHour)) return std::nullopt;
  if (hours == 0) return t;
  return clock::timePointOf({instant->seconds + hours * kSecondsInHour, instant->fraction});
}

TimePoint addMonths(TimePoint t, std::int64_t months) {
  constexpr std::int64_t kSecondsInShortestMonth = 28 * clock::kSecondsInDay;
  const std::optional<clock::Instant> instant = clock::instantOf(t);
  if (!instant.has_value() || leadsOutside(months, kSecondsInShortestMonth)) return std::nullopt;
  if (months == 0) return t;
  const TimeZone zone = TimeZone::defaultZone();
  clock::WallTime wall = clock::wallTime(instant->seconds, zone);
  wall.day = dayAfterMonths(wall.day, months);
  return clock::timePointOf({clock::instantAt(wall, zone, occurrenceAfter(months)), instant->fraction});
}

}  // namespace kzm
