#include "clock/weeks.h"

#include <cstdint>
#include <gtest/gtest.h>

#include "clock/calendar.h"

namespace kzm::clock {
namespace {

TEST(Weeks, AreCountedByTheLocalesRules) {
  constexpr port::WeekRules kIso{2, 4};
  constexpr port::WeekRules kUnitedStates{1, 1};
  struct Case {
    const char* why;
    std::int64_t day;
    port::WeekRules rules;
    std::int64_t year;
    int week;
    int weekOfMonth;
  };
  const Case cases[] = {
      {"Sunday 2023-01-01, ISO", 19358, kIso, 2022, 52, 0},
      {"Sunday 2023-01-01, Sunday is 1", 19358, kUnitedStates, 2023, 1, 1},
      {"Monday 2024-12-30, ISO", 20087, kIso, 2025, 1, 5},
      {"Sunday 2021-01-03, ISO", 18630, kIso, 2020, 53, 0},
      {"Sunday 2023-12-31, ISO", 19722, kIso, 2023, 52, 4},
      {"Sunday 2023-12-31, Sunday is 1", 19722, kUnitedStates, 2024, 1, 6},
      {"Sunday 2023-11-12, ISO", 19673, kIso, 2023, 45, 2},
      {"Sunday 2023-11-12, Sunday is 1", 19673, kUnitedStates, 2023, 46, 3},
      {"Thursday 2026-01-01, ISO", 20454, kIso, 2026, 1, 1},
      {"Monday 2025-12-29, ISO", 20451, kIso, 2026, 1, 5},
      {"Saturday 2022-01-01, Sunday is 1", 18993, kUnitedStates, 2022, 1, 1},
      {"Sunday 2022-01-02, Sunday is 1", 18994, kUnitedStates, 2022, 2, 2},
  };
  for (const Case& c : cases) {
    const std::int64_t year = yearOfWeek(c.day, c.rules);
    EXPECT_EQ(year, c.year) << c.why;
    EXPECT_EQ(weekNumber(c.day, newYearsDay(year), c.rules), c.week) << c.why;
    const std::int64_t firstOfMonth = c.day - dateOfDay(c.day).day + 1;
    EXPECT_EQ(weekNumber(c.day, firstOfMonth, c.rules), c.weekOfMonth) << c.why;
  }
}

}  // namespace
}  // namespace kzm::clock
