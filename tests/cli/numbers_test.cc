#include "cli/numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "cli/errors.h"

namespace kzm::cli {
namespace {

TEST(Numbers, AreReadWhole) {
  struct Case {
    std::string_view text;
    double number;
  };
  const Case cases[] = {
      {"0", 0.0},
      {"-1.5", -1.5},
      {"1e3", 1000.0},
      {"5.", 5.0},
      {"Infinity", std::numeric_limits<double>::infinity()},
      {"-Infinity", -std::numeric_limits<double>::infinity()},
  };
  for (const Case& c : cases) EXPECT_EQ(numberIn(c.text), c.number) << c.text;
  EXPECT_TRUE(std::signbit(numberIn("-0")));
  EXPECT_TRUE(std::isnan(numberIn("NaN")));
}

TEST(Numbers, NothingElseIsOne) {
  for (const std::string_view text :
       {"", " 1", "1 ", "+1", "1,5", "0x1", "nan", "inf", "-inf", "infinity", "-NaN", "1e", "1e999", "e3", "٤"}) {
    EXPECT_THROW(static_cast<void>(numberIn(text)), InputError) << text;
  }
}

TEST(Numbers, WholeOnesHaveBounds) {
  EXPECT_EQ(integerIn("1", 1, 3), 1);
  EXPECT_EQ(integerIn("3", 1, 3), 3);
  EXPECT_EQ(integerIn("-9223372036854775808", std::numeric_limits<std::int64_t>::min(), 0),
            std::numeric_limits<std::int64_t>::min());
  for (const std::string_view text : {"0", "4", "", "1.0", "1e0", "x", "9223372036854775808"}) {
    EXPECT_THROW(static_cast<void>(integerIn(text, 1, 3)), InputError) << text;
  }
}

}  // namespace
}  // namespace kzm::cli
