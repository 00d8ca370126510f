// The ladders, and the walk up one.
#include <gtest/gtest.h>

#include <KZMUtilities/shared.h>

#include "bytes/rate_ladders.h"
#include "bytes/scaling.h"
#include "tests/bytes/rows.h"

namespace kzm::bytes {
namespace {

TEST(Ladder, RatesHaveFour) {
  struct Case {
    const char* why;
    bool early;
    Level lowest;
    std::vector<std::pair<Level, double>> rungs;  // the last takes everything
  };
  // clang-format off
  const Case cases[] = {
      {"binary", false, Level::kilo, {{Level::giga, 1073741824.0}, {Level::mega, 1048576.0}, {Level::kilo, 0.0}}},
      {"binary from mega", false, Level::mega, {{Level::giga, 1073741824.0}, {Level::mega, 0.0}}},
      {"early", true, Level::kilo, {{Level::giga, 1000000000.0}, {Level::mega, 1000000.0}, {Level::kilo, 0.0}}},
      {"early from mega",  true,  Level::mega, {{Level::giga, 1000000000.0}, {Level::mega, 0.0}}},
  };
  // clang-format on
  for (const Case& c : cases) {
    const Ladder ladder = rateLadder({{"early-upgrade", c.early}}, c.lowest);
    ASSERT_EQ(ladder.size(), c.rungs.size()) << c.why;
    for (std::size_t i = 0; i < ladder.size(); ++i) {
      EXPECT_EQ(ladder[i].level, c.rungs[i].first) << c.why;
      EXPECT_EQ(ladder[i].threshold, c.rungs[i].second) << c.why;
      EXPECT_EQ(ladder[i].test == bytes::Test::otherwise, i + 1 == ladder.size()) << c.why;
    }
  }
}

TEST(Ladder, FactorsAreThePublishedOnes) {
  const Ladder ladder = rateLadder({}, Level::kilo);
  EXPECT_EQ(ladder[0].shown.factor, 9.313225746154785e-10);
  EXPECT_EQ(ladder[1].shown.factor, 9.5367431640625e-07);
  EXPECT_EQ(ladder[2].shown.factor, 0.0009765625);
}

TEST(Ladder, DividingIsNotMultiplyingByTheReciprocal) {
  EXPECT_EQ(over(10.0)(3.0), 0.3);
  EXPECT_EQ(times(0.1)(3.0), 0.30000000000000004);
}

TEST(Ladder, OneThatCannotEndIsRefused) {
  static constexpr Rung kNoEnd[] = {{Level::kilo, bytes::Test::atMost, 1.0, times(1.0)}};
  // clang-format off
  static constexpr Rung kEndsEarly[] = {
      {Level::kilo, bytes::Test::otherwise, 0.0, times(1.0)},
      {Level::mega, bytes::Test::otherwise, 0.0, times(1.0)},
  };
  // clang-format on
  static_assert(!wellFormed(kNoEnd) && !wellFormed(kEndsEarly) && !wellFormed({}));
  SUCCEED();
}

TEST(Ladder, AHostsTableWithoutTheUnitGivesNoText) {
  const Dictionary brief{{"short", true}};
  const std::shared_ptr<Cache> before = KZMUtilities::shared().cache();
  const auto other = std::make_shared<Cache>();
  other->set("Localizations-Units-Memory", Dictionary{{"%@M", "%@ Mo"}});
  KZMUtilities::shared().setCache(other);
  EXPECT_EQ(KZMUtilitiesFormatMemory(brief, 3145728.0), "3 Mo") << "the host's text is used by the next call";
  EXPECT_EQ(KZMUtilitiesFormatMemory(brief, 2048.0), "");
  EXPECT_EQ(KZMUtilitiesFormatMemoryWithAttributes(brief, 2048.0).runs(), Runs{});
  EXPECT_EQ(*KZMUtilitiesMemoryData(brief, 2048.0).find("format"), Value());
  KZMUtilities::shared().setCache(before);
  EXPECT_EQ(KZMUtilitiesFormatMemory(brief, 3145728.0), "3M");
}

}  // namespace
}  // namespace kzm::bytes
