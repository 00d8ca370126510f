#include "port/clocks.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace kzm::port {
namespace {

constexpr double kNanosecondsPerSecond = 1e9;

TEST(Clocks, TheTimeOfAFileIsInNanoseconds) {
  EXPECT_EQ(nanosecondsOf({0, 7}), 7);
  EXPECT_EQ(nanosecondsOf({2, 5}), 2'000'000'005);
  EXPECT_EQ(nanosecondsOf({-1, 999'999'999}), -1);
}

TEST(Clocks, TheSteadyOneGoesOnWhileAMillisecondPasses) {
  const double before = steadySeconds();
  sleepAMillisecond();
  EXPECT_GE(steadySeconds() - before, 0.001 - 1e-6);
}

TEST(Clocks, TheCoarseOneIsNeverAheadOfTheSteadyOne) {
  const double coarse = static_cast<double>(coarseNanoseconds()) / kNanosecondsPerSecond;
  const double steady = steadySeconds();
  EXPECT_LE(coarse, steady + 1e-6);
  EXPECT_GT(coarse, steady - 60) << "it is the same clock";
}

TEST(Clocks, MillisecondsAreThoseOfTheCoarseOne) {
  const std::int64_t before = coarseNanoseconds() / 1'000'000;
  const std::int64_t milliseconds = coarseMilliseconds();
  EXPECT_GE(milliseconds, before);
  EXPECT_LE(milliseconds, coarseNanoseconds() / 1'000'000);
}

}  // namespace
}  // namespace kzm::port
