#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include <KZMUtilities/dates.h>

#include "tests/clock/zones.h"

namespace kzm {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kEarliest = -210866760000.0;  // 4713 BC Jan 1 12:00 UTC
constexpr double kLatest = 15928153804800.0;   // 506713-02-07 00:00 UTC
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

TEST(DayStart, IsMidnightInTheZoneOrTheFirstInstantOfTheDay) {
  struct Case {
    const char* why;
    const char* zone;
    double t;
    double start;
  };
  const Case cases[] = {
      {"an ordinary day", "America/New_York", 1700000000.5, 1699938000},
      {"midnight itself", "America/New_York", 1699938000, 1699938000},
      {"a hair before midnight", "America/New_York", 1699937999.9, 1699851600},
      {"offset of 5:45", "Asia/Kathmandu", 1686802500, 1686766500},
      {"before 1970", "UTC", -0.25, -86400},
      {"the smallest step before 1970", "UTC", -1e-300, -86400},
      {"minus zero", "UTC", -0.0, 0},
      {"skipped midnight: 01:00", "America/Sao_Paulo", 1541340000, 1541300400},
      {"the first instant of such a day", "America/Sao_Paulo", 1541300400, 1541300400},
      {"skipped midnight in Cairo", "Africa/Cairo", 1272618000, 1272578400},
      {"the gap begins before midnight: 00:30", "America/Toronto", -1601726400, -1601753400},
      {"repeated midnight: the first one", "America/Havana", 1667754000, 1667707200},
      {"within its second hour", "America/Havana", 1667712600, 1667707200},
      {"the day after a day that was left out", "Pacific/Apia", 1325282400, 1325239200},
      {"the gap of a zone with seconds", "Africa/Monrovia", 63600000, 63593070},
      {"local mean time with seconds", "Africa/Monrovia", 63031470, 62988270},
      {"half an hour of daylight saving", "Australia/Lord_Howe", 1680399000, 1680354000},
      {"no daylight saving any more", "America/Mexico_City", 1688212800, 1688191200},
      {"daylight saving again since 2023", "Africa/Cairo", 1688212800, 1688158800},
      {"daylight saving in the year 3000", "America/New_York", 32519361600, 32519332800},
      {"the first Gregorian day", "UTC", -12219206401, -12219292800},
      {"the last Julian day", "UTC", -12219292801, -12219379200},
      {"29 February 1500", "UTC", -14825850000, -14825894400},
      {"1 January of the year 1", "UTC", -62135700000, -62135769600},
  };
  for (const Case& c : cases) EXPECT_EQ(dayStartWithTimezone(c.t, zone(c.zone)), c.start) << c.why << ", " << c.zone;
}

TEST(DayStart, DropsTheEra) {
  EXPECT_EQ(dayStartWithTimezone(-62170329600.0, TimeZone::utc()), -62075635200.0) << "2 BC Nov 28 -> AD 2 Nov 28";
  EXPECT_EQ(dayStartWithTimezone(-62162294400.0, TimeZone::utc()), -62130672000.0) << "1 BC Feb 29 -> AD 1 Mar 1";
  EXPECT_EQ(dayStartWithTimezone(kEarliest, TimeZone::utc()), 86560704000.0) << "4713 BC Jan 1 -> AD 4713 Jan 1";
}

TEST(DayStart, UsesTheDefaultZoneWithoutAnother) {
  const WithDefaultZone newYork("America/New_York");
  EXPECT_EQ(dayStart(1700000000.0), 1699938000.0);
  const WithDefaultZone utc("UTC");
  EXPECT_EQ(dayStart(1700000000.0), 1699920000.0);
}

TEST(AddDays, KeepsTheWallClockOfTheZone) {
  struct Case {
    const char* why;
    const char* zone;
    double t;
    std::int64_t days;
    double sum;
  };
  const Case cases[] = {
      {"into a gap: forward by it", "America/New_York", 1489217400, 1, 1489303800},
      {"back into a gap: forward as well", "America/New_York", 1489386600, -1, 1489303800},
      {"into an overlap: its first time", "America/New_York", 1509773400, 1, 1509859800},
      {"back into an overlap: its second", "America/New_York", 1509949800, -1, 1509863400},
      {"over a change, a fraction kept", "America/New_York", 1489217400.25, 2, 1489386600.25},
      {"no day leaves a second time alone", "America/New_York", 1509863400.5, 0, 1509863400.5},
      {"to a skipped midnight", "America/Sao_Paulo", 1541214000, 1, 1541300400},
      {"to a day that was left out", "Pacific/Apia", 1325196000, 1, 1325282400},
      {"and back to it", "Pacific/Apia", 1325282400, -1, 1325282400},
      {"back over it", "Pacific/Apia", 1325282400, -2, 1325196000},
      {"half an hour repeated: first", "Australia/Lord_Howe", 1680273900, 1, 1680360300},
      {"half an hour repeated: second", "Australia/Lord_Howe", 1680448500, -1, 1680362100},
      {"half an hour skipped", "Australia/Lord_Howe", 1696002300, 1, 1696088700},
      {"4 October 1582 is before the 15th", "UTC", -12219379200, 1, -12219292800},
      {"and the other way", "UTC", -12219292800, -1, -12219379200},
      {"1 January AD 1 is after 31 December", "UTC", -62135769600, -1, -62135856000},
      {"an ancient fraction is kept", "UTC", -62135769600.25, 1, -62135683200.25},
      {"a fraction of an odd double", "UTC", 0.1, -1, -86399.9},
      {"to the end of the range", "UTC", kEarliest + 43200, 186794219, kLatest},
  };
  for (const Case& c : cases) EXPECT_EQ(addDaysTimezone(c.t, c.days, zone(c.zone)), c.sum) << c.why;
}

TEST(AddDays, UsesTheDefaultZoneWithoutAnother) {
  const WithDefaultZone newYork("America/New_York");
  EXPECT_EQ(addDays(1489217400.0, 2), 1489386600.0) << "47 hours";
  EXPECT_EQ(addDaysTimezone(1489217400.0, 2, TimeZone::utc()), 1489217400.0 + 172800) << "the zone given wins";
}

TEST(AddHours, AddsElapsedHours) {
  const WithDefaultZone newYork("America/New_York");
  EXPECT_EQ(addHours(1509859800.0, 1), 1509863400.0) << "from 01:30 to 01:30";
  EXPECT_EQ(addHours(1489217400.25, 24), 1489303800.25) << "over the gap";
  EXPECT_EQ(addHours(0.1, -1), -3599.9);
  EXPECT_EQ(addHours(-0.5, 0), -0.5);
  EXPECT_EQ(addHours(kEarliest, 4483061268), kLatest) << "the whole range";
}

TEST(AddMonths, KeepsTheDayOrTakesTheMonthsLast) {
  struct Case {
    const char* why;
    const char* zone;
    double t;
    std::int64_t months;
    double sum;
  };
  const Case cases[] = {
      {"31 January in a leap year", "Europe/Paris", 1706698800, 1, 1709204400},
      {"31 January in another", "Europe/Paris", 1675162800, 1, 1677582000},
      {"31 March back, over a change", "Europe/Paris", 1680256800, -1, 1677582000},
      {"29 February and a year", "Europe/Paris", 1709204400, 12, 1740740400},
      {"31 December and back two years", "Europe/Paris", 1735642800, -24, 1672484400},
      {"a fraction is kept", "Europe/Paris", 1706698800.25, 1, 1709204400.25},
      {"nothing to add", "Europe/Paris", 1706698800.5, 0, 1706698800.5},
      {"into an overlap: its first time", "America/New_York", 1507181400, 1, 1509859800},
      {"back into an overlap: its second", "America/New_York", 1512455400, -1, 1509863400},
      {"into a gap", "America/New_York", 1486884600, 1, 1489303800},
      {"back into a gap", "America/New_York", 1491978600, -1, 1489303800},
      {"a date that October 1582 left out", "UTC", -12221452800, 1, -12218860800},
      {"the same from the other side", "UTC", -12217046400, -1, -12218860800},
      {"31 January 1500 has a 29 February after it", "UTC", -14828400000, 1, -14825894400},
      {"the year before 1 is 1 BC", "UTC", -62135769600, -1, -62138448000},
  };
  for (const Case& c : cases) {
    const WithDefaultZone here(c.zone);
    EXPECT_EQ(addMonths(c.t, c.months), c.sum) << c.why;
  }
}

TEST(DateMath, NoDateOutsideTheRange) {
  const WithDefaultZone utc("UTC");
  const TimePoint bad[] = {std::nullopt, kNaN,  -kNaN,  kInfinity, -kInfinity, kEarliest - 1,
                           kLatest + 1,  1e300, -1e300, 9.3e18,    -9.3e18};
  for (const TimePoint& t : bad) {
    EXPECT_EQ(dayStart(t), std::nullopt);
    EXPECT_EQ(dayStartWithTimezone(t, zone("Europe/Paris")), std::nullopt);
    EXPECT_EQ(addDaysTimezone(t, 0, TimeZone::utc()), std::nullopt);
    EXPECT_EQ(addDays(t, 1), std::nullopt);
    EXPECT_EQ(addHours(t, 0), std::nullopt);
    EXPECT_EQ(addMonths(t, 0), std::nullopt);
  }
}

TEST(DateMath, NoCountWrapsAround) {
  const WithDefaultZone newYork("America/New_York");
  for (const std::int64_t count : {kMost, kLeast, kMost / 3600, kLeast / 86400, std::int64_t{1} << 33U,
                                   -(std::int64_t{1} << 33U), std::int64_t{4483061280}}) {
    EXPECT_EQ(addDays(1700000000.0, count), std::nullopt) << count;
    EXPECT_EQ(addHours(1700000000.0, count), std::nullopt) << count;
    EXPECT_EQ(addMonths(1700000000.0, count), std::nullopt) << count;
  }
  EXPECT_EQ(addMonths(1700000000.0, 100000000), std::nullopt);
  EXPECT_EQ(addMonths(1700000000.0, -100000000), std::nullopt);
  EXPECT_EQ(addDays(1700000000.0, 200000000), std::nullopt);
  EXPECT_EQ(addDays(1700000000.0, -20000000), std::nullopt);
}

TEST(DateMath, TheEndsOfTheRangeAreInside) {
  EXPECT_EQ(addDaysTimezone(kEarliest, 0, TimeZone::utc()), kEarliest);
  EXPECT_EQ(addDaysTimezone(kEarliest, -1, TimeZone::utc()), std::nullopt);
  EXPECT_EQ(addDaysTimezone(kLatest, 1, TimeZone::utc()), std::nullopt);
  EXPECT_EQ(addDaysTimezone(kLatest, -1, TimeZone::utc()), kLatest - 86400);
  EXPECT_EQ(dayStartWithTimezone(kLatest, TimeZone::utc()), kLatest);
  EXPECT_EQ(addHours(kLatest, 1), std::nullopt);
}

}  // namespace
}  // namespace kzm
