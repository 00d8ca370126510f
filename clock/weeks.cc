#include "clock/weeks.h"

#include "clock/calendar.h"

namespace kzm::clock {

std::int64_t firstWeekOf(std::int64_t firstDay, const port::WeekRules& rules) noexcept {
  const std::int64_t daysIntoWeek = floorRemainder(weekdayOfDay(firstDay) - rules.firstWeekday, 7);
  const bool isTooShort = 7 - daysIntoWeek < rules.daysInFirstWeek;
  return firstDay - daysIntoWeek + (isTooShort ? 7 : 0);
}

int weekNumber(std::int64_t day, std::int64_t firstDay, const port::WeekRules& rules) noexcept {
  return static_cast<int>(floorDivide(day - firstWeekOf(firstDay, rules), 7)) + 1;
}

std::int64_t dayInWeek(std::int64_t weekStart, int weekday) noexcept {
  return weekStart + floorRemainder(weekday - weekdayOfDay(weekStart), 7);
}

std::int64_t newYearsDay(std::int64_t year) noexcept { return dayOfDate({year, 1, 1}); }

std::int64_t yearOfWeek(std::int64_t day, const port::WeekRules& rules) noexcept {
  std::int64_t year = dateOfDay(day).year + 1;
  while (day < firstWeekOf(newYearsDay(year), rules)) --year;
  return year;
}

}  // namespace kzm::clock
