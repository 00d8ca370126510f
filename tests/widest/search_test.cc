#include "widest/search.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <iterator>
#include <limits>

namespace kzm::widest {
namespace {

TEST(Search, EveryDoubleHasItsPlace) {
  constexpr double kInOrder[] = {
      -std::numeric_limits<double>::infinity(), -1e300, -1.0, -5e-324, 0.0, 5e-324, 1.0, 1.0000000000000002,
      std::numeric_limits<double>::infinity()};
  for (std::size_t i = 0; i < std::size(kInOrder); ++i) {
    EXPECT_EQ(numberAt(placeOf(kInOrder[i])), kInOrder[i]);
  }
  for (std::size_t i = 1; i < std::size(kInOrder); ++i) EXPECT_LT(placeOf(kInOrder[i - 1]), placeOf(kInOrder[i]));
  EXPECT_EQ(placeOf(-0.0), 0);
}

TEST(Search, NeighborsAreOneStepAway) {
  EXPECT_EQ(nextAfter(1.0), 1.0000000000000002);
  EXPECT_EQ(nextBefore(1.0), 0.99999999999999988898);
  EXPECT_EQ(nextAfter(0.0), 5e-324);
  EXPECT_EQ(nextBefore(0.0), -5e-324);
}

TEST(Search, FindsTheFirstNumberThere) {
  const auto from = [](double limit) { return [limit](double number) { return number >= limit; }; };
  EXPECT_EQ(firstWhere(0.0, 1e308, from(1048576.0)), 1048576.0);
  EXPECT_EQ(firstWhere(-1e308, 1e308, from(-0.1)), -0.1);
  EXPECT_EQ(firstWhere(1.0, 2.0, from(2.0)), 2.0) << "the end, where it has to hold";
}

}  // namespace
}  // namespace kzm::widest
