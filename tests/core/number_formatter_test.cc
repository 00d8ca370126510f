#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>

#include <KZMUtilities/formatters.h>
#include <KZMUtilities/shared.h>

#include "tests/support/shared_state.h"

namespace kzm {
namespace {

class NumberFormatters : public tests::SharedState {};

TEST_F(NumberFormatters, AreMadeOnceUnderTheirKeys) {
  struct Case {
    std::int64_t minimum;
    std::int64_t maximum;
    const char* key;
    std::int64_t keptMaximum;
  };
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
  const Case cases[] = {
      {1, 1, "NumberFormatter-Decimal-1.1", 1},
      {0, 0, "NumberFormatter-Decimal-0.0", 0},
      {2, 2, "NumberFormatter-Decimal-2.2", 2},
      {-1, -1, "NumberFormatter-Decimal--1.-1", -1},
      {3, 1, "NumberFormatter-Decimal-3.1", 3},
      {kLeast, kMost, "NumberFormatter-Decimal--9223372036854775808.9223372036854775807", kMost},
  };
  for (const Case& c : cases) {
    const std::size_t before = cache()->size();
    const auto formatter = KZMUtilitiesDecimalFormatterWithFractions(c.minimum, c.maximum);
    EXPECT_EQ(cache()->find(c.key).object(), formatter.get()) << c.key;
    EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(c.minimum, c.maximum), formatter) << c.key;
    EXPECT_EQ(cache()->size(), before + 1) << c.key;
    EXPECT_EQ(formatter->minimumFractionDigits(), c.minimum) << c.key;
    EXPECT_EQ(formatter->maximumFractionDigits(), c.keptMaximum) << c.key;
  }
}

TEST_F(NumberFormatters, AMaximumAloneIsAnEntryOfItsOwn) {
  const auto fixed = KZMUtilitiesDecimalFormatterWithFractions(0, 0);
  const auto atMost = KZMUtilitiesDecimalFormatterWithMaximum(0);
  EXPECT_NE(fixed, atMost);
  EXPECT_EQ(cache()->find("NumberFormatter-Decimal-0.0").object(), fixed.get());
  EXPECT_EQ(cache()->find("NumberFormatter-Decimal--.0").object(), atMost.get());
  const auto negative = KZMUtilitiesDecimalFormatterWithMaximum(-1);
  EXPECT_EQ(cache()->find("NumberFormatter-Decimal--.-1").object(), negative.get());
  EXPECT_EQ(negative->maximumFractionDigits(), -1);
  EXPECT_EQ(negative->string(2.5), "2");
}

TEST_F(NumberFormatters, ShowTheirDigits) {
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(2, 2)->string(3.0), "3.00");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithMaximum(2)->string(3.0), "3");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithMaximum(2)->string(3.14159), "3.14");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(3, 1)->string(1.5), "1.500");
  EXPECT_EQ(KZMUtilitiesDecimalFormatterWithFractions(1000000, 1000000)->string(1.0), "1." + std::string(340, '0'));
}

TEST_F(NumberFormatters, NumbersFormatByTheirDecimals) {
  struct Case {
    const char* why;
    Dictionary options;
    double value;
    const char* text;
  };
  const Case cases[] = {
      {"half to even", {}, 2.5, "2"},
      {"half to even", {}, 3.5, "4"},
      {"a text is a number", {{"decimals", "2"}}, 2.675, "2.68"},
      {"at most", {{"decimals", 2}}, 3.0, "3"},
      {"truncated", {{"decimals", 1.9}}, 1.25, "1.2"},
      {"negative is none", {{"decimals", -3}}, 1.25, "1"},
      {"mistyped is none", {{"decimals", Array{}}}, 1.25, "1"},
      {"null is none", {{"decimals", nullptr}}, 1.25, "1"},
      {"grouped", {}, 1234567, "1,234,567"},
  };
  for (const Case& c : cases) EXPECT_EQ(KZMUtilitiesFormatNumber(c.options, c.value), c.text) << c.why;
}

}  // namespace
}  // namespace kzm
