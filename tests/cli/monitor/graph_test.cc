#include "cli/monitor/graph.h"

#include <gtest/gtest.h>
#include <limits>

namespace kzm::cli {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Case {
  const char* why;
  std::deque<double> values;
  const char* text;
};
const Case kCases[] = {
    {"nothing yet", {}, "        "},
    {"the latest is at the right", {0.0, 7.0}, "      ▁█"},
    {"a block for each height", {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0}, "▁▂▃▄▅▆▇█"},
    {"a little is more than nothing", {0.0, 0.001}, "      ▁▂"},
    {"what has no room", {7.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0}, "▁▁▁▁▁▁▁▁"},
    {"beyond the top", {1e300, std::numeric_limits<double>::infinity()}, "      ██"},
    {"below zero", {-5.0}, "       ▁"},
    {"what is not known", {7.0, kNaN, 7.0}, "     █ █"},
};

TEST(Graph, OneBlockForEachValue) {
  for (const Case& row : kCases) EXPECT_EQ(graph(row.values, 8, 7.0), row.text) << row.why;
}

TEST(Graph, TheTopIsTheGreatestThatIsShown) {
  EXPECT_EQ(topOf({9.0, 3.0, kNaN, 2.0}, 3, 1.0), 3.0);
  EXPECT_EQ(topOf({0.5}, 3, 1.0), 1.0);
  EXPECT_EQ(topOf({}, 3, 1.0), 1.0);
}

}  // namespace
}  // namespace kzm::cli
