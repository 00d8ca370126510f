#include "machine/rates.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace kzm::machine {
namespace {

TEST(Rates, AreBytesOverSecondsOrUnknown) {
  struct Case {
    const char* why;
    std::uint64_t earlier;
    std::uint64_t later;
    double seconds;
    std::optional<double> rate;
  };
  constexpr Case kCases[] = {
      {"nothing moved", 500, 500, 1, 0.0},
      {"per second", 500, 1500, 2, 500.0},
      {"a fraction of a second", 0, 100, 0.5, 200.0},
      {"no time passed", 0, 100, 0, {}},
      {"time went back", 0, 100, -1, {}},
      {"time is unknown", 0, 100, NAN, {}},
      {"32 bits wrap", 4294967000, 704, 1, 1000.0},
      {"32 bits wrap at their end", 4294967295, 0, 1, 1.0},
      {"as fast as may wrap", 4294967295, 249999999, 1, 250000000.0},
      {"too fast: a reset", 4294967295, 250000000, 1, {}},
      {"a reset", 1000000000, 5, 1, {}},
      {"a reset beyond 32 bits", 4294967296, 5, 1, {}},
      {"as fast as may be", 0, 10000000000000, 1, 1e13},
      {"garbage", 0, UINT64_MAX, 1, {}},
      {"garbage back", UINT64_MAX, 0, 1, {}},
      {"a tiny while gives no giant", 0, 1000000, 1e-9, {}},
  };
  for (const Case& row : kCases) {
    const std::vector<Rate> rates =
        ratesBetween({10, {{"eth0", row.earlier, 7}}}, {10 + row.seconds, {{"eth0", row.later, 7}}});
    ASSERT_EQ(rates.size(), 1U) << row.why;
    EXPECT_EQ(rates[0].in.has_value(), row.rate.has_value()) << row.why;
    EXPECT_DOUBLE_EQ(rates[0].in.value_or(-1), row.rate.value_or(-1)) << row.why;
  }
}

TEST(Rates, BothDirectionsAreApart) {
  const std::vector<Rate> rates = ratesBetween({0, {{"sda", 100, 2000}}}, {1, {{"sda", 50, 2500}}});
  ASSERT_EQ(rates.size(), 1U);
  EXPECT_FALSE(rates[0].in.has_value());
  EXPECT_EQ(rates[0].out, 500.0);
}

TEST(Rates, WhatAppearsHasNoRateYetAndWhatVanishesIsGone) {
  const Sample earlier{0, {{"eth0", 1, 1}, {"usb0", 1, 1}}};
  const Sample later{1, {{"wlan0", 900, 900}, {"eth0", 2, 3}}};
  const std::vector<Rate> rates = ratesBetween(earlier, later);
  ASSERT_EQ(rates.size(), 2U);
  EXPECT_EQ(rates[0].name, "wlan0");
  EXPECT_FALSE(rates[0].in.has_value());
  EXPECT_FALSE(rates[0].out.has_value());
  EXPECT_EQ(rates[1].in, 1.0);
  EXPECT_EQ(rates[1].out, 2.0);
  EXPECT_TRUE(ratesBetween(earlier, {1, {}}).empty());
}

TEST(Rates, TheClockDoesNotGoBack) {
  const double before = secondsNow();
  EXPECT_GE(secondsNow(), before);
}

}  // namespace
}  // namespace kzm::machine
