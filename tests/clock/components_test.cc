#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include <KZMUtilities/dates.h>

#include "tests/clock/zones.h"

namespace kzm {
namespace {

constexpr CalendarUnits kEverything = ~CalendarUnits{0};

std::string described(const std::optional<DateComponents>& components) {
  if (!components.has_value()) return "null";
  std::string text;
  for (const DateComponents::Field& field : components->fields) {
    text += (text.empty() ? "" : " ") + std::string(field.name) + "=";
    text += field.value.string() != nullptr ? *field.value.string() : std::to_string(*field.value.integer());
  }
  return text;
}

TEST(Components, FillsTheFieldsAskedForAndNoOthers) {
  const WithDefaultZone paris("Europe/Paris");
  const double t = 1795132800.75;  // Friday 2026-11-20 01:00:00.75 in Paris
  EXPECT_EQ(described(components(t, 28)), "year=2026 month=11 day=20");
  EXPECT_EQ(described(components(t, kCalendarUnitDay)), "day=20");
  EXPECT_EQ(described(components(t, 0)), "");
  EXPECT_EQ(described(components(t, CalendarUnits{1} << 40U | 1U)), "") << "bits without a meaning";
  EXPECT_EQ(described(components(t, kEverything)),
            "era=1 year=2026 month=11 day=20 hour=1 minute=0 second=0 week=47 weekday=6 weekdayOrdinal=3 quarter=4 "
            "weekOfMonth=3 weekOfYear=47 yearForWeekOfYear=2026 nanosecond=750000000 calendar=gregorian "
            "timeZone=Europe/Paris");
}

TEST(Components, UnitsHaveThePlatformsNumbers) {
  struct Case {
    CalendarUnits unit;
    const char* name;
  };
  const Case cases[] = {
      {2, "era"},
      {4, "year"},
      {8, "month"},
      {16, "day"},
      {32, "hour"},
      {64, "minute"},
      {128, "second"},
      {256, "week"},
      {512, "weekday"},
      {1024, "weekdayOrdinal"},
      {2048, "quarter"},
      {4096, "weekOfMonth"},
      {8192, "weekOfYear"},
      {16384, "yearForWeekOfYear"},
      {32768, "nanosecond"},
      {1048576, "calendar"},
      {2097152, "timeZone"},
  };
  for (const Case& c : cases) {
    const std::optional<DateComponents> found = components(0.0, c.unit);
    ASSERT_TRUE(found.has_value() && found->fields.size() == 1) << c.name;
    EXPECT_EQ(found->fields[0].unit, c.unit);
    EXPECT_EQ(found->fields[0].name, c.name);
  }
}

TEST(Components, OfUnusualTimes) {
  struct Case {
    const char* why;
    const char* zone;
    double t;
    CalendarUnits units;
    const char* fields;
  };
  const Case cases[] = {
      {"the floored second before 1970", "UTC", -0.25, 252 + 32768,
       "year=1969 month=12 day=31 hour=23 minute=59 second=59 nanosecond=750000000"},
      {"a fraction that rounds to one", "UTC", -1e-300, 128 + 32768, "second=59 nanosecond=999999999"},
      {"an offset of 5:45", "Asia/Kathmandu", 1686802500, 124, "year=2023 month=6 day=15 hour=10 minute=0"},
      {"local mean time", "Africa/Monrovia", 63593040, 240, "day=6 hour=23 minute=59 second=30"},
      {"a fraction before a change keeps the old offset", "America/New_York", 1509861599.999, 112,
       "day=5 hour=1 minute=59"},
      {"before Christ", "UTC", -62170329600, 30, "era=0 year=2 month=11 day=28"},
      {"the last day before AD 1", "UTC", -62135856000, 30, "era=0 year=1 month=12 day=31"},
      {"the first day of AD 1, a Saturday", "UTC", -62135769600, 30 + 512, "era=1 year=1 month=1 day=1 weekday=7"},
      {"the leap day of 1500", "UTC", -14825894400, 28, "year=1500 month=2 day=29"},
      {"the last Julian day, a Thursday", "UTC", -12219292801, 28 + 512, "year=1582 month=10 day=4 weekday=5"},
      {"the first Gregorian day, a Friday", "UTC", -12219292800, 28 + 512, "year=1582 month=10 day=15 weekday=6"},
      {"the beginning of the range", "UTC", -210866760000, 30 + 32, "era=0 year=4713 month=1 day=1 hour=12"},
      {"its end", "UTC", 15928153804800, 30 + 32, "era=1 year=506713 month=2 day=7 hour=0"},
      {"New York in the year 300000", "America/New_York", 9404934148800, 60, "year=300000 month=7 day=1 hour=8"},
  };
  for (const Case& c : cases) {
    const WithDefaultZone here(c.zone);
    EXPECT_EQ(described(components(c.t, c.units)), c.fields) << c.why;
  }
}

TEST(Components, NoDateHasNone) {
  EXPECT_EQ(components(std::nullopt, 28), std::nullopt);
  EXPECT_EQ(components(std::numeric_limits<double>::quiet_NaN(), 28), std::nullopt);
  EXPECT_EQ(components(std::numeric_limits<double>::infinity(), kEverything), std::nullopt);
  EXPECT_EQ(components(-210866760001.0, 28), std::nullopt);
  EXPECT_EQ(components(15928153804801.0, 28), std::nullopt);
}

TEST(Components, NumberGivesIntegersOnly) {
  const std::optional<DateComponents> found = components(0.0, kCalendarUnitYear | kCalendarUnitTimeZone);
  ASSERT_TRUE(found.has_value());
  EXPECT_EQ(found->number(kCalendarUnitYear), 1970);
  EXPECT_EQ(found->number(kCalendarUnitTimeZone), std::nullopt);
  EXPECT_EQ(found->number(kCalendarUnitDay), std::nullopt);
}

TEST(DateFromComponents, TakesTheNamedFieldsOfNow) {
  const WithDefaultZone newYork("America/New_York");
  const WithNow now(1700000000.5);  // Tuesday 2023-11-14 17:13:20.5
  struct Case {
    const char* why;
    CalendarUnits units;
    double t;
  };
  const Case cases[] = {
      {"the start of today", 28, 1699938000},
      {"with the era", 30, 1699938000},
      {"to the hour", 60, 1699999200},
      {"to the second", 252, 1700000000},
      {"to the nanosecond", 252 + 32768, 1700000000.5},
      {"the year: its first day", 4, 1672549200},
      {"the month: its first day", 12, 1698811200},
      {"nothing: 0001-01-01", 0, -62135751838},
      {"the day: 0001-01-14", 16, -62134628638},
      {"the hour: 0001-01-01 17:00", 32, -62135690638},
      {"the week of the year: its Sunday", 4 + 8192, 1699765200},
      {"by its former name", 4 + 256, 1699765200},
      {"of the week's own year", 16384 + 8192, 1699765200},
      {"the week and the weekday", 4 + 8192 + 512, 1699938000},
      {"the week of the month", 4 + 8 + 4096 + 512, 1699938000},
      {"the second Tuesday", 4 + 8 + 1024 + 512, 1699938000},
      {"the first Tuesday", 4 + 8 + 512, 1699333200},
      {"calendar and zone change nothing", 28 + (1U << 20U | 1U << 21U), 1699938000},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(dateFromComponents(c.units), c.t) << c.why;
    EXPECT_EQ(timeIntervalFromComponents(c.units), c.t) << c.why;
  }
}

// The seventh is the first of its weekday in the month, the eighth the second.
TEST(DateFromComponents, AWeekdaysOrdinalCountsFromTheFirstOfTheMonth) {
  const WithDefaultZone utc("UTC");
  constexpr double kDay = 86400.0;
  constexpr double kNovember2023 = 1698796800.0;
  for (const int day : {1, 2, 7, 8, 14, 15, 21, 22, 28, 29, 30}) {
    const double start = kNovember2023 + (day - 1) * kDay;
    const WithNow now(start + 45000.0);
    EXPECT_EQ(
        dateFromComponents(kCalendarUnitYear | kCalendarUnitMonth | kCalendarUnitWeekdayOrdinal | kCalendarUnitWeekday),
        start)
        << day;
  }
}

TEST(DateFromComponents, TheEraDecidesOnTheYear) {
  const WithDefaultZone utc("UTC");
  struct Case {
    const char* why;
    double now;
    CalendarUnits units;
    double t;
  };
  const Case cases[] = {
      {"the first day of AD 1", -62135769600, 30, -62135769600},
      {"the last day of 1 BC", -62135856000, 30, -62135856000},
      {"the same without its era is in AD 1", -62135856000, 28, -62104320000},
      {"the last day of 1 BC, with its era alone", -62135856000, 2, -62167392000},
  };
  for (const Case& c : cases) {
    const WithNow now(c.now);
    EXPECT_EQ(dateFromComponents(c.units), c.t) << c.why;
  }
}

TEST(DateFromComponents, NoDateWhereNowHasNone) {
  const WithNow now(1e300);
  EXPECT_EQ(dateFromComponents(28), std::nullopt);
  EXPECT_EQ(timeIntervalFromComponents(28), 0.0);
  EXPECT_EQ(utcStartForToday(), std::nullopt);
}

TEST(DateFromComponents, TheClockOfTheSystemRuns) {
  EXPECT_GT(timeIntervalFromComponents(252), 1.7e9);
  EXPECT_LT(timeIntervalFromComponents(252), 1.5e13);
}

}  // namespace

}  // namespace kzm
