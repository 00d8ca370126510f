// The ladders, and the walk up one.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <span>
#include <utility>
#include <vector>

#include <KZMUtilities/shared.h>

#include "bytes/rate_ladders.h"
#include "bytes/scaling.h"
#include "tests/bytes/rows.h"
#include "tests/support/runs.h"

namespace kzm::bytes {
namespace {

TEST(Ladder, RatesHaveFour) {
  struct Case {
    const char* why;
    bool early;
    Level lowest;
    std::vector<std::pair<Level, double>> rungs;  // the level below each threshold; the last takes everything
  };
  const Case cases[] = {
      {"binary", false, Level::kilo, {{Level::kilo, 1048576.0}, {Level::mega, 1073741824.0}, {Level::giga, 0.0}}},
      {"binary from mega", false, Level::mega, {{Level::mega, 1073741824.0}, {Level::giga, 0.0}}},
      {"early", true, Level::kilo, {{Level::kilo, 1000000.0}, {Level::mega, 1000000000.0}, {Level::giga, 0.0}}},
      {"early from mega", true, Level::mega, {{Level::mega, 1000000000.0}, {Level::giga, 0.0}}},
  };
  for (const Case& c : cases) {
    const std::span<const Rung> rungs = rateLadder({{"early-upgrade", c.early}}, c.lowest).rungs();
    ASSERT_EQ(rungs.size(), c.rungs.size()) << c.why;
    for (std::size_t i = 0; i < rungs.size(); ++i) {
      EXPECT_EQ(rungs[i].level, c.rungs[i].first) << c.why;
      EXPECT_EQ(rungs[i].threshold, c.rungs[i].second) << c.why;
      EXPECT_EQ(rungs[i].taken == Taken::otherwise, i + 1 == rungs.size()) << c.why;
    }
  }
}

TEST(Ladder, FactorsAreThePublishedOnes) {
  const std::span<const Rung> rungs = rateLadder({}, Level::kilo).rungs();
  EXPECT_EQ(rungs[0].toShown.factor, 0.0009765625);
  EXPECT_EQ(rungs[1].toShown.factor, 9.5367431640625e-07);
  EXPECT_EQ(rungs[2].toShown.factor, 9.313225746154785e-10);
}

TEST(Ladder, ThresholdsAreReachedAsTheirTestsSay) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  static constexpr Rung kRungs[] = {
      {Level::kilo, Taken::atMost, 10.0, times(1.0)},
      {Level::mega, Taken::below, 20.0, times(1.0)},
      {Level::giga, Taken::otherwise, 0.0, times(1.0)},
  };
  static constexpr Rung kRates[] = {
      {Level::kilo, Taken::notAtLeast, 10.0, times(1.0)},
      {Level::mega, Taken::notAtLeast, 20.0, times(1.0)},
      {Level::giga, Taken::otherwise, 0.0, times(1.0)},
  };
  constexpr Ladder kSizes(kRungs);
  constexpr Ladder kRateLadder(kRates);
  struct Case {
    const char* why;
    double value;
    Level size;
    Level rate;
  };
  const Case cases[] = {
      {"below the first", std::nextafter(10.0, 0.0), Level::kilo, Level::kilo},
      {"on the first", 10.0, Level::kilo, Level::mega},
      {"above the first", std::nextafter(10.0, 20.0), Level::mega, Level::mega},
      {"below the second", std::nextafter(20.0, 0.0), Level::mega, Level::mega},
      {"on the second", 20.0, Level::giga, Level::giga},
      {"infinite", kInfinity, Level::giga, Level::giga},
      {"negative", -1.0, Level::kilo, Level::kilo},
      {"negative infinity", -kInfinity, Level::kilo, Level::kilo},
      {"not a number", kNaN, Level::giga, Level::kilo},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(kSizes.rungFor(c.value).level, c.size) << c.why;
    EXPECT_EQ(kRateLadder.rungFor(c.value).level, c.rate) << c.why;
  }
}

TEST(Ladder, DividingIsNotMultiplyingByTheReciprocal) {
  EXPECT_EQ(over(10.0)(3.0), 0.3);
  EXPECT_EQ(times(0.1)(3.0), 0.30000000000000004);
}

TEST(Ladder, AHostsTableWithoutTheUnitGivesNoText) {
  const Dictionary brief{{"short", true}};
  const std::shared_ptr<Cache> before = KZMUtilities::shared().cache();
  const auto other = std::make_shared<Cache>();
  other->set("Localizations-Units-Memory", Dictionary{{"%@M", "%@ Mo"}});
  KZMUtilities::shared().setCache(other);
  EXPECT_EQ(KZMUtilitiesFormatMemory(brief, 3145728.0), "3 Mo") << "the host's text is used by the next call";
  EXPECT_EQ(KZMUtilitiesFormatMemory(brief, 2048.0), "");
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatMemoryWithAttributes(brief, 2048.0)), Runs{});
  EXPECT_EQ(*KZMUtilitiesMemoryData(brief, 2048.0).find("format"), Value());
  KZMUtilities::shared().setCache(before);
  EXPECT_EQ(KZMUtilitiesFormatMemory(brief, 3145728.0), "3M");
}

}  // namespace
}  // namespace kzm::bytes
