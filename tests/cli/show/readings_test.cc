#include "cli/show/readings.h"

#include <gtest/gtest.h>
#include <limits>

namespace kzm::cli {
namespace {

struct Case {
  const char* why;
  Quantity quantity;
  double value;
  Level level;
};
constexpr Case kCases[] = {
    {"a part below", Quantity::part, 0.7999, Level::normal},
    {"a part at its first bound", Quantity::part, 0.8, Level::warning},
    {"a part between", Quantity::part, 0.9499, Level::warning},
    {"a part at its second bound", Quantity::part, 0.95, Level::critical},
    {"hot", Quantity::temperature, 80.0, Level::warning},
    {"too hot", Quantity::temperature, 95.0, Level::critical},
    {"a good battery", Quantity::level, 0.21, Level::normal},
    {"a low battery", Quantity::level, 0.2, Level::warning},
    {"a battery at its end", Quantity::level, 0.05, Level::critical},
    {"no rate is too high", Quantity::bandwidth, 1e300, Level::normal},
    {"nor is any load", Quantity::load, 1000.0, Level::normal},
    {"not a number", Quantity::part, std::numeric_limits<double>::quiet_NaN(), Level::normal},
};

TEST(Readings, Levels) {
  for (const Case& row : kCases) EXPECT_EQ(levelOf({"value", row.quantity, row.value}), row.level) << row.why;
  EXPECT_EQ(levelOf({"value", Quantity::level}), Level::normal) << "what is not known";
}

TEST(Readings, Units) {
  EXPECT_EQ(unitOf(Quantity::bandwidth), "B/s");
  EXPECT_EQ(unitOf(Quantity::part), "1");
  EXPECT_EQ(unitOf(Quantity::frequency), "MHz");
  EXPECT_EQ(unitOf(Quantity::state), "");
}

TEST(Readings, PartsAndRates) {
  EXPECT_TRUE(isPart(Quantity::level));
  EXPECT_FALSE(isPart(Quantity::load));
  EXPECT_TRUE(isRate(Quantity::diskActivity));
  EXPECT_FALSE(isRate(Quantity::memory));
}

}  // namespace
}  // namespace kzm::cli
