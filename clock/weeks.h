// Weeks of a year or a month, counted as the user's locale does.
#ifndef KZM_CLOCK_WEEKS_H
#define KZM_CLOCK_WEEKS_H

#include <cstdint>

#include "port/week_rules.h"

namespace kzm::clock {

/// The day on which the first week begins of the year or month whose first day is given. It may be before that day.
[[nodiscard]] std::int64_t firstWeekOf(std::int64_t firstDay, const port::WeekRules& rules) noexcept;

/// The number of the day's week in the year or month whose first day is given; 0 before its first week.
[[nodiscard]] int weekNumber(std::int64_t day, std::int64_t firstDay, const port::WeekRules& rules) noexcept;

/// The day of the weekday (1 is Sunday) in the week that begins on the given day.
[[nodiscard]] std::int64_t dayInWeek(std::int64_t weekStart, int weekday) noexcept;

/// The day number of 1 January of the astronomical year.
[[nodiscard]] std::int64_t newYearsDay(std::int64_t year) noexcept;

/// The astronomical year to which the day's week belongs; near New Year another one than the day's own.
[[nodiscard]] std::int64_t yearOfWeek(std::int64_t day, const port::WeekRules& rules) noexcept;

}  // namespace kzm::clock

#endif
