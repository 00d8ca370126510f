#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include <KZMUtilities/dates.h>

#include "tests/clock/zones.h"

namespace kzm {
namespace {

TEST(OrdinalSuffix, OfEachDayOfAMonth) {
  constexpr const char* kSuffixes[] = {"th", "st", "nd", "rd", "th", "th", "th", "th", "th", "th", "th",
                                       "th", "th", "th", "th", "th", "th", "th", "th", "th", "th", "st",
                                       "nd", "rd", "th", "th", "th", "th", "th", "th", "th", "st"};
  for (std::int64_t day = 0; day <= 31; ++day) EXPECT_EQ(ordinalSuffixFromDay(day), kSuffixes[day]) << day;
}

TEST(OrdinalSuffix, NumbersThatAreNoDayAlwaysHaveTh) {
  for (const std::int64_t day : {std::int64_t{32}, std::int64_t{41}, std::int64_t{101}, std::int64_t{-1},
                                 std::int64_t{-31}, std::int64_t{1} << 32U, (std::int64_t{1} << 32U) + 1,
                                 std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_EQ(ordinalSuffixFromDay(day), "th") << day;
  }
}

TEST(OrdinalSuffix, OfATimePointIsThatOfItsDayInTheDefaultZone) {
  const double t = 1704063600;  // 2023-12-31 23:00 UTC
  const WithDefaultZone london("Europe/London");
  EXPECT_EQ(ordinalSuffix(t), "st") << "31 December";
  const WithDefaultZone kolkata("Asia/Kolkata");
  EXPECT_EQ(ordinalSuffix(t + 86400), "nd") << "2 January";
  EXPECT_EQ(ordinalSuffix(t + 10 * 86400), "th") << "11 January";
  EXPECT_EQ(ordinalSuffix(std::nullopt), std::nullopt);
  EXPECT_EQ(ordinalSuffix(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

}  // namespace
}  // namespace kzm
