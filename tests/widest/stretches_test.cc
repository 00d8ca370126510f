#include "widest/stretches.h"

#include <gtest/gtest.h>
#include <limits>

#include "tests/support/settings.h"

namespace kzm::widest {
namespace {

using Ends = std::vector<std::pair<double, double>>;

Ends endsOf(TextFamily family, const Dictionary& options, ValueRange values) {
  Ends ends;
  for (const Stretch& stretch : stretchesOf(familyOf(family), options, values))
    ends.emplace_back(stretch.from, stretch.to);
  return ends;
}

Array rules(std::initializer_list<std::pair<double, std::int64_t>> entries) {
  Array all;
  for (const auto& [value, decimals] : entries) all.emplace_back(Dictionary{{"value", value}, {"decimals", decimals}});
  return all;
}

TEST(Stretches, EndWhereTheUnitChanges) {
  EXPECT_EQ(endsOf(TextFamily::bandwidth, {}, {1.0, 1e12}),
            (Ends{{1.0, 1048575.9999999999}, {1048576.0, 1073741823.9999999}, {1073741824.0, 1e12}}));
  EXPECT_EQ(endsOf(TextFamily::memory, {}, {1.0, 2097152.0}), (Ends{{1.0, 1048576.0}, {1048576.0000000002, 2097152.0}}))
      << "the first threshold belongs to the values below";
}

TEST(Stretches, EndWhereARuleDoes) {
  EXPECT_EQ(endsOf(TextFamily::memory, {{"decimals-kb", rules({{10.0, 1}})}}, {1024.0, 1048576.0}),
            (Ends{{1024.0, 10239.999999999998}, {10240.0, 1048576.0}}));
}

TEST(Stretches, KeepApartWhatIsShownInItsOwnWay) {
  constexpr double kLeast = std::numeric_limits<double>::denorm_min();
  EXPECT_EQ(endsOf(TextFamily::sensorFan, {}, {0.0, 3000.0}), (Ends{{0.0, 0.0}, {kLeast, 3000.0}}));
  EXPECT_EQ(
      endsOf(TextFamily::sensorVoltage, {}, {-5.0, 5.0}),
      (Ends{
          {-5.0, -1.0}, {-0.99999999999999988898, -kLeast}, {0.0, 0.0}, {kLeast, 0.99999999999999988898}, {1.0, 5.0}}));
}

TEST(Stretches, EndWhereTheSignChanges) {
  tests::useOnlySetting("Weather.Global.Units.Degrees", 2);
  const Ends ends = endsOf(TextFamily::weatherTemperature, {}, {-20.0, -10.0});
  ASSERT_EQ(ends.size(), 2U);
  EXPECT_NEAR(ends[1].first, -17.7777, 0.001) << "zero degrees Fahrenheit";
  tests::useNoSettings();
}

TEST(Stretches, HoldInfinitiesByThemselves) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kMost = std::numeric_limits<double>::max();
  EXPECT_EQ(endsOf(TextFamily::weatherUV, {}, {1.0, kInfinity}), (Ends{{1.0, kMost}, {kInfinity, kInfinity}}));
  EXPECT_EQ(endsOf(TextFamily::weatherUV, {}, {kInfinity, kInfinity}), (Ends{{kInfinity, kInfinity}}));
  EXPECT_EQ(endsOf(TextFamily::weatherUV, {}, {-kInfinity, -kInfinity}), (Ends{{-kInfinity, -kInfinity}}));
}

TEST(Stretches, ARangeWithoutValuesHasNone) {
  EXPECT_TRUE(endsOf(TextFamily::memory, {}, {2.0, 1.0}).empty());
  EXPECT_TRUE(endsOf(TextFamily::memory, {}, {std::numeric_limits<double>::quiet_NaN(), 1.0}).empty());
  EXPECT_TRUE(endsOf(TextFamily::memory, {}, {1.0, std::numeric_limits<double>::quiet_NaN()}).empty());
}

}  // namespace
}  // namespace kzm::widest
