#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include <KZMUtilities/percentage.h>

#include "tests/support/runs.h"

namespace kzm {
namespace {

using tests::Runs;

TEST(Percentage, TextsInBothRenderings) {
  struct Case {
    const char* why;
    Dictionary options;
    double percent;
    const char* text;
  };
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const Case cases[] = {
      {"whole", {}, 42.0, "42%"},
      {"rounded", {}, 99.6, "100%"},
      {"spaced", {{"space", true}}, 42.0, "42 %"},
      {"half to even", {{"space", true}, {"decimals", 1}}, 42.25, "42.2 %"},
      {"never scaled", {{"decimals", 1}}, 0.5, "0.5%"},
      {"at most three digits", {{"decimals", 3}}, 7.0, "7%"},
      {"a text says yes", {{"space", "yes"}}, 1.0, "1 %"},
      {"grouped", {}, 12345.0, "12,345%"},
      {"negative", {}, -3.0, "-3%"},
      {"infinite", {}, -kInfinity, "-∞%"},
      {"not a number", {}, std::numeric_limits<double>::quiet_NaN(), "NaN%"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(KZMUtilitiesFormatPercentage(c.options, c.percent), c.text) << c.why;
    EXPECT_EQ(KZMUtilitiesFormatPercentageWithAttributes(c.options, c.percent).text(), c.text) << c.why;
  }
}

TEST(Percentage, TheNumberIsMainAndTheSignIsUnit) {
  const Dictionary options{{"space", true}, {"decimals", 1}, {"attributes-main", "bold"}, {"attributes-units", "gray"}};
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatPercentageWithAttributes(options, 42.25)),
            (Runs{{"42.2", "bold"}, {" %", "gray"}}));
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatPercentageWithAttributes({}, 42.25)), (Runs{{"42%", nullptr}}));
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatPercentageWithAttributes({{"attributes-main", Dictionary{}}}, 5.0)),
            (Runs{{"5", Dictionary{}}, {"%", nullptr}}))
      << "an empty set is a set";
  EXPECT_EQ(tests::runsOf(KZMUtilitiesFormatPercentageWithAttributes({{"attributes-main", nullptr}}, 5.0)),
            (Runs{{"5%", nullptr}}));
}

}  // namespace
}  // namespace kzm
