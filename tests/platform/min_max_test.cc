#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

#include <KZMUtilities/guards.h>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kMax = std::numeric_limits<double>::max();

// Distinguishes the two zeros, which == does not.
std::uint64_t bits(double value) { return std::bit_cast<std::uint64_t>(value); }

TEST(MinMax, PassOverWhatIsNotFinite) {
  struct Case {
    const char* why;
    double a;
    double b;
    double greater;
    double lesser;
  };
  constexpr Case cases[] = {
      {"the second is greater", 3.0, 5.0, 5.0, 3.0},
      {"the first is greater", 5.0, 3.0, 5.0, 3.0},
      {"negative numbers", -3.0, -5.0, -3.0, -5.0},
      {"the ends of the range", -kMax, kMax, kMax, -kMax},
      {"NaN first", kNan, 5.0, 5.0, 5.0},
      {"NaN second", 5.0, kNan, 5.0, 5.0},
      {"infinity second", 5.0, kInf, 5.0, 5.0},
      {"minus infinity first", -kInf, 3.0, 3.0, 3.0},
      {"minus infinity second", -3.0, -kInf, -3.0, -3.0},
      {"a finite minus zero stays one", kNan, -0.0, -0.0, -0.0},
      {"neither: the two infinities", kInf, -kInf, 0.0, 0.0},
      {"neither: two NaNs", kNan, kNan, 0.0, 0.0},
      {"neither: positive zero results", -kInf, kNan, 0.0, 0.0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(bits(KZMMAXDouble(c.a, c.b)), bits(c.greater)) << c.why;
    EXPECT_EQ(bits(KZMMINDouble(c.a, c.b)), bits(c.lesser)) << c.why;
  }
}

TEST(MinMax, ATieIsTheFirstArgumentOfTheMaximumAndTheSecondOfTheMinimum) {
  EXPECT_EQ(bits(KZMMAXDouble(0.0, -0.0)), bits(0.0));
  EXPECT_EQ(bits(KZMMAXDouble(-0.0, 0.0)), bits(-0.0));
  EXPECT_EQ(bits(KZMMINDouble(0.0, -0.0)), bits(-0.0));
  EXPECT_EQ(bits(KZMMINDouble(-0.0, 0.0)), bits(0.0));
}

TEST(NamesWithoutContent, HaveNoState) {
  EXPECT_TRUE(std::is_empty_v<KZMMath>);
  EXPECT_TRUE(std::is_empty_v<KZMUtilitiesBatteryIcons>);
  [[maybe_unused]] const KZMMath math;
  [[maybe_unused]] const KZMUtilitiesBatteryIcons icons;
}

}  // namespace
