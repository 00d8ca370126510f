#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

#include <KZMUtilities/dates.h>

#include "tests/clock/zones.h"

namespace kzm {
namespace {

constexpr double kSummer = 1688247000;        // 2023-07-01 21:30 UTC, 23:30 in Paris, 17:30 in New York
constexpr double kSummerStart = 1688169600;   // 2023-07-01 00:00 UTC
constexpr double kLatest = 15928153804800.0;  // the end of the supported range

TEST(ZoneShift, CorrectedReadsAsTheLocalClockOfTheDefaultZone) {
  const WithDefaultZone paris("Europe/Paris");
  EXPECT_EQ(corrected(kSummer + 0.25), kSummer + 7200.25);
  EXPECT_EQ(corrected(1672531200.0), 1672531200.0 + 3600) << "winter";
}

TEST(ZoneShift, UtcStartIsTheUtcMidnightOfTheLocalDate) {
  const WithDefaultZone paris("Europe/Paris");
  EXPECT_EQ(utcStart(kSummer), kSummerStart) << "23:30 in Paris";
  EXPECT_EQ(utcStart(kSummer + 1799.9), kSummerStart);
  EXPECT_EQ(utcStart(kSummer + 1800), kSummerStart + 86400) << "midnight in Paris, 22:00 UTC";
  const WithNow now(kSummer + 1800);
  EXPECT_EQ(utcStartForToday(), kSummerStart + 86400);
}

TEST(ZoneShift, FromTimezoneToUtcTakesTheOffsetAway) {
  EXPECT_EQ(converFromTimezoneToUTC(kSummer + 0.5, zone("America/New_York")), kSummer + 14400.5);
  EXPECT_EQ(converFromTimezoneToUTC(0.1, zone("UTC")), 0.1);
  EXPECT_EQ(converFromTimezoneToUTC(-1e-300, TimeZone::utc()), -1e-300);
  EXPECT_EQ(converFromTimezoneToUTC(kSummer, zone("Asia/Kathmandu")), kSummer - 20700);
}

TEST(ZoneShift, ThereAndBackIsTheSameButNearAChange) {
  const TimeZone newYork = zone("America/New_York");
  const TimePoint there = converToTimezone(kSummer, newYork);
  EXPECT_EQ(there, kSummer - 14400) << "the tests run in UTC";
  EXPECT_EQ(converFromTimezone(there, newYork), kSummer);
  const double change = 1509861600;  // 2017-11-05 06:00 UTC: from -4 h to -5 h
  EXPECT_EQ(converFromTimezone(converToTimezone(change + 60, newYork), newYork), change + 60 - 3600)
      << "there with five hours, back with four";
}

TEST(ZoneShift, TheDefaultZoneDoesNotMatterToConversions) {
  const WithDefaultZone paris("Europe/Paris");
  EXPECT_EQ(converToTimezone(kSummer, zone("America/New_York")), kSummer - 14400);
  EXPECT_EQ(converFromTimezone(kSummer, zone("America/New_York")), kSummer + 14400);
}

// In a process of its own: the system zone is read once.
bool convertsThroughNewYork() {
  setenv("TZ", "America/New_York", 1);  // NOLINT(concurrency-mt-unsafe): no other thread runs here
  const TimeZone paris = zone("Europe/Paris");
  return TimeZone::systemZone().identifier() == "America/New_York" &&
         TimeZone::defaultZone() == TimeZone::systemZone() &&
         converToTimezone(kSummer, paris) == kSummer + 14400 + 7200 &&
         converFromTimezone(kSummer, paris) == kSummer - 7200 - 14400 && corrected(kSummer) == kSummer - 14400 &&
         converToTimezone(0.1, zone("Africa/Monrovia")) == (0.1 + 18000) - 2670;
}

TEST(ZoneShiftDeathTest, ConversionsUseTheSystemZone) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(_exit(convertsThroughNewYork() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(ZoneShift, NoDateOutsideTheRange) {
  const WithDefaultZone paris("Europe/Paris");
  const TimeZone east = zone("Pacific/Auckland");
  for (const TimePoint& t : {TimePoint(), TimePoint(std::numeric_limits<double>::quiet_NaN()), TimePoint(1e300),
                             TimePoint(-std::numeric_limits<double>::infinity())}) {
    EXPECT_EQ(corrected(t), std::nullopt);
    EXPECT_EQ(utcStart(t), std::nullopt);
    EXPECT_EQ(converFromTimezoneToUTC(t, east), std::nullopt);
    EXPECT_EQ(converToTimezone(t, east), std::nullopt);
    EXPECT_EQ(converFromTimezone(t, east), std::nullopt);
  }
  EXPECT_EQ(corrected(kLatest), std::nullopt) << "an hour beyond the end";
  EXPECT_EQ(converToTimezone(kLatest, east), std::nullopt);
  EXPECT_EQ(converFromTimezone(kLatest, east), kLatest - 46800);
}

}  // namespace
}  // namespace kzm
