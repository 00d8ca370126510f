#include "cli/show/placing.h"

#include <gtest/gtest.h>
#include <limits>

namespace kzm::cli {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Placing, TextsThatAreTooLongEndInADot) {
  EXPECT_EQ(cutTo("eth0", 4), "eth0");
  EXPECT_EQ(cutTo("eth0", 3), "et…");
  EXPECT_EQ(cutTo("東京都", 4), "東…") << "characters stay whole";
  EXPECT_EQ(cutTo("eth0", 0), "");
}

TEST(Placing, OnlyTextFromRightToLeftIsIsolated) {
  EXPECT_EQ(inLine("eth0"), "eth0");
  EXPECT_EQ(inLine("דיסק"), "\u2068דיסק\u2069");
}

struct BarCase {
  double part;
  const char* full;
  const char* empty;
};
constexpr BarCase kBars[] = {
    {0.0, "", "░░░░"}, {0.1, "▌", "░░░"},  {0.5, "██", "░░"}, {1.0, "████", ""},
    {2.0, "████", ""}, {-1.0, "", "░░░░"}, {0.9, "███▌", ""}, {kNaN, "", "░░░░"},
};

TEST(Bar, InHalves) {
  for (const BarCase& row : kBars) {
    const Bar bar = barOf(row.part, 4);
    EXPECT_EQ(bar.full, row.full) << row.part;
    EXPECT_EQ(bar.empty, row.empty) << row.part;
  }
}

}  // namespace
}  // namespace kzm::cli
