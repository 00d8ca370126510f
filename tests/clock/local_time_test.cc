#include "clock/local_time.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include "tests/clock/zones.h"

namespace kzm::clock {
namespace {

constexpr std::int64_t kHour = 3600;

// In Berlin the clocks went from 2:00 to 3:00 on 26 March 2023, and from 3:00 to 2:00 on 29 October.
constexpr std::int64_t kSpring = 19442;  // days since 1970
constexpr std::int64_t kAutumn = 19659;
constexpr std::int64_t kSpringMidnight = 1679788800;  // UTC
constexpr std::int64_t kAutumnMidnight = 1698537600;

TEST(LocalTime, AnInstantIsInTheSupportedRange) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  struct Case {
    const char* why;
    TimePoint timePoint;
    bool isThere;
  };
  const Case cases[] = {
      {"no date", std::nullopt, false},
      {"1970", 0.0, true},
      {"the earliest", -210866760000.0, true},
      {"just before", std::nextafter(-210866760000.0, -kInfinity), false},
      {"the latest", 15928153804800.0, true},
      {"just after", std::nextafter(15928153804800.0, kInfinity), false},
      {"not a number", std::numeric_limits<double>::quiet_NaN(), false},
      {"infinite", kInfinity, false},
      {"minus infinite", -kInfinity, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(instantOf(c.timePoint).has_value(), c.isThere) << c.why;
    EXPECT_EQ(supported(c.timePoint), c.isThere ? c.timePoint : std::nullopt) << c.why;
  }
}

TEST(LocalTime, TheFractionOfAnInstantIsCutTowardThePast) {
  EXPECT_EQ(instantOf(-0.25)->seconds, -1);
  EXPECT_EQ(instantOf(-0.25)->fraction, 0.75);
  EXPECT_EQ(timePointOf({-1, 0.75}), -0.25);
  EXPECT_EQ(timePointOf({15928153804800, 0.5}), std::nullopt);
}

TEST(LocalTime, AWallClockShowsTheDayAndItsSecond) {
  struct Case {
    const char* why;
    std::int64_t instant;
    const char* zone;
    std::int64_t day;
    std::int64_t second;
  };
  const Case cases[] = {
      {"1970", 0, "UTC", 0, 0},
      {"the second before", -1, "UTC", -1, 86399},
      {"east of Greenwich", -1, "Asia/Tokyo", 0, 9 * kHour - 1},
      {"before the gap", kSpringMidnight + kHour - 1, "Europe/Berlin", kSpring, 2 * kHour - 1},
      {"after the gap", kSpringMidnight + kHour, "Europe/Berlin", kSpring, 3 * kHour},
      {"before the repetition", kAutumnMidnight + kHour - 1, "Europe/Berlin", kAutumn, 3 * kHour - 1},
      {"after the repetition", kAutumnMidnight + kHour, "Europe/Berlin", kAutumn, 2 * kHour},
  };
  for (const Case& c : cases) {
    const WallTime shown = wallTime(c.instant, zone(c.zone));
    EXPECT_EQ(shown.day, c.day) << c.why;
    EXPECT_EQ(shown.second, c.second) << c.why;
  }
}

TEST(LocalTime, AWallTimeThatIsSkippedOrRepeatedMeansOneInstant) {
  struct Case {
    const char* why;
    WallTime wall;
    Occurrence occurrence;
    std::int64_t instant;
  };
  constexpr WallTime kUsual{kSpring, 12 * kHour};
  constexpr WallTime kSkipped{kSpring, 2 * kHour + 1800};
  constexpr WallTime kRepeated{kAutumn, 2 * kHour + 1800};
  const Case cases[] = {
      {"usual", kUsual, Occurrence::first, kSpringMidnight + 10 * kHour},
      {"usual, the second", kUsual, Occurrence::second, kSpringMidnight + 10 * kHour},
      {"usual, of a day's start", kUsual, Occurrence::dayStart, kSpringMidnight + 10 * kHour},
      {"skipped: forward by the gap", kSkipped, Occurrence::first, kSpringMidnight + kHour + 1800},
      {"skipped, the second: the same", kSkipped, Occurrence::second, kSpringMidnight + kHour + 1800},
      {"skipped, of a day's start: the end of the gap", kSkipped, Occurrence::dayStart, kSpringMidnight + kHour},
      {"repeated: the first", kRepeated, Occurrence::first, kAutumnMidnight + 1800},
      {"repeated: the second", kRepeated, Occurrence::second, kAutumnMidnight + kHour + 1800},
      {"repeated, of a day's start: the first", kRepeated, Occurrence::dayStart, kAutumnMidnight + 1800},
  };
  for (const Case& c : cases) EXPECT_EQ(instantAt(c.wall, zone("Europe/Berlin"), c.occurrence), c.instant) << c.why;
}

}  // namespace
}  // namespace kzm::clock
