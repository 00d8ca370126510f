#include "core/option_values.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>

namespace kzm::core {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

struct Opaque final : Object {};

TEST(OptionValues, EveryKindOfValueHasAnAnswer) {
  struct Case {
    const char* why;
    Value value;
    std::int64_t integer;
    double real;
    bool boolean;
  };
  const Case cases[] = {
      {"null", nullptr, 0, 0.0, false},
      {"true", true, 1, 1.0, true},
      {"false", false, 0, 0.0, false},
      {"an integer", -7, -7, -7.0, true},
      {"the largest integer", kMost, kMost, 0x1p63, true},
      {"zero", 0, 0, 0.0, false},
      {"a double is truncated", 2.9, 2, 2.9, true},
      {"toward zero", -2.9, -2, -2.9, true},
      {"a small double is not zero", 0.5, 0, 0.5, true},
      {"negative zero is zero", -0.0, 0, -0.0, false},
      {"beyond the integers", 1e19, kMost, 1e19, true},
      {"exactly two to the 63", 0x1p63, kMost, 0x1p63, true},
      {"just below two to the 63", 0x1.fffffffffffffp62, 9223372036854774784, 0x1.fffffffffffffp62, true},
      {"below the integers", -1e19, kLeast, -1e19, true},
      {"exactly minus two to the 63", -0x1p63, kLeast, -0x1p63, true},
      {"infinity", kInfinity, kMost, kInfinity, true},
      {"minus infinity", -kInfinity, kLeast, -kInfinity, true},
      {"an array", Array{1, 2}, 0, 0.0, false},
      {"a dictionary", Dictionary{{"a", 1}}, 0, 0.0, false},
      {"attributes", std::make_shared<const Opaque>(), 0, 0.0, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(readInteger(&c.value), c.integer) << c.why;
    EXPECT_EQ(readDouble(&c.value), c.real) << c.why;
    EXPECT_EQ(std::signbit(readDouble(&c.value)), std::signbit(c.real)) << c.why;
    EXPECT_EQ(readBoolean(&c.value), c.boolean) << c.why;
  }
}

TEST(OptionValues, AbsentKeysAreZero) {
  EXPECT_EQ(readInteger(nullptr), 0);
  EXPECT_EQ(readDouble(nullptr), 0.0);
  EXPECT_FALSE(readBoolean(nullptr));
}

TEST(OptionValues, NaNIsNoIntegerButTrue) {
  const Value value = kNaN;
  EXPECT_EQ(readInteger(&value), 0);
  EXPECT_TRUE(std::isnan(readDouble(&value)));
  EXPECT_TRUE(readBoolean(&value));
}

TEST(OptionValues, StringsReadAsWhatTheySpell) {
  struct Case {
    const char* text;
    std::int64_t integer;
    double real;
    bool boolean;
  };
  const Case cases[] = {
      {"", 0, 0.0, false},
      {" \t\n ", 0, 0.0, false},
      {"2", 2, 2.0, true},
      {" \n 2", 2, 2.0, true},
      {"2.9", 2, 2.9, true},
      {"2,9", 2, 2.0, true},
      {"+2", 2, 2.0, false},
      {"-2", -2, -2.0, false},
      {"- 2", 0, 0.0, false},
      {"--2", 0, 0.0, false},
      {"01", 1, 1.0, false},
      {"1e3", 1, 1000.0, true},
      {"1e", 1, 1.0, true},
      {"1e+", 1, 1.0, true},
      {"1E-2x", 1, 0.01, true},
      {"12abc", 12, 12.0, true},
      {"abc", 0, 0.0, false},
      {".5", 0, 0.5, false},
      {"5.", 5, 5.0, true},
      {".", 0, 0.0, false},
      {"-.5e1", 0, -5.0, false},
      {"0x10", 0, 0.0, false},
      {"nan", 0, 0.0, false},
      {"infinity", 0, 0.0, false},
      {"9223372036854775807", kMost, 0x1p63, true},
      {"9223372036854775808", kMost, 0x1p63, true},
      {"-9223372036854775808", kLeast, -0x1p63, false},
      {"-9223372036854775809", kLeast, -0x1p63, false},
      {"99999999999999999999999", kMost, 1e23, true},
      {"1e999", 1, kInfinity, true},
      {"-1e999", -1, -kInfinity, false},
      {"1e-999", 1, 0.0, true},
      {"0e999", 0, 0.0, false},
      {"1e99999999999999999999", 1, kInfinity, true},
      {"1e-99999999999999999999", 1, 0.0, true},
      {"0.00001e400", 0, kInfinity, false},
      {"10000e-400", 10000, 0.0, true},
      {"yes", 0, 0.0, true},
      {"Y", 0, 0.0, true},
      {"true", 0, 0.0, true},
      {" True", 0, 0.0, true},
      {"no", 0, 0.0, false},
      {"on", 0, 0.0, false},
      {"9", 9, 9.0, true},
      {"0", 0, 0.0, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(integerFromText(c.text), c.integer) << '"' << c.text << '"';
    EXPECT_EQ(doubleFromText(c.text), c.real) << '"' << c.text << '"';
    EXPECT_EQ(booleanFromText(c.text), c.boolean) << '"' << c.text << '"';
  }
}

TEST(OptionValues, StringsMayBeOfManyDigits) {
  const std::string large(400, '9');
  const std::string small = "0." + std::string(400, '0') + "1";
  EXPECT_EQ(doubleFromText(large), kInfinity);
  EXPECT_EQ(doubleFromText(large + "x-500"), kInfinity) << "that is no exponent";
  EXPECT_EQ(doubleFromText(large + "e-400"), 1.0);
  EXPECT_EQ(doubleFromText(small), 0.0);
  EXPECT_EQ(doubleFromText(small + "x500"), 0.0);
  EXPECT_EQ(doubleFromText(small + "e401"), 1.0);
}

Value rule(Value value, Value decimals) {
  return Dictionary{{"value", std::move(value)}, {"decimals", std::move(decimals)}};
}

TEST(OptionValues, TheFirstRuleAboveTheNumberGivesTheDecimals) {
  const Value usual = Array{rule(10, 2), rule(100, 1)};
  Array entries = {7, nullptr, "x", Array(), Dictionary()};
  entries.push_back(rule("5.5", "3"));
  entries.push_back(rule(true, nullptr));
  entries.push_back(rule(1e300, -1));
  const Value odd = entries;
  struct Case {
    const char* why;
    const Value& rules;
    double number;
    std::int64_t decimals;
  };
  const Value none;
  const Value text = "10";
  const Case cases[] = {
      {"below the first bound", usual, 9.999, 2},
      {"one ulp below it", usual, std::nextafter(10.0, 0.0), 2},
      {"on a bound the next rule is tried", usual, 10.0, 1},
      {"one ulp above it", usual, std::nextafter(10.0, 99.0), 1},
      {"on the last bound", usual, 100.0, -9},
      {"negative", usual, -1e300, 2},
      {"NaN matches none", usual, kNaN, -9},
      {"infinity", usual, kInfinity, -9},
      {"an empty rule has the bound zero", odd, -1.0, 0},
      {"texts are read as numbers", odd, 5.25, 3},
      {"negative decimals pass", odd, 6.0, -1},
      {"no rules", none, 1.0, -9},
      {"a text is no array", text, 1.0, -9},
  };
  for (const Case& c : cases) EXPECT_EQ(readDecimals(&c.rules, c.number, -9), c.decimals) << c.why;
  EXPECT_EQ(readDecimals(nullptr, 1.0), 0);
}

}  // namespace
}  // namespace kzm::core
