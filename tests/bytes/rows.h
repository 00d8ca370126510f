// What the tests of all byte families share: rows of expected results, and how one is compared.
#ifndef KZM_TESTS_BYTES_ROWS_H
#define KZM_TESTS_BYTES_ROWS_H

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/bytes.h>

#include "tests/support/runs.h"

namespace kzm::bytes {

using tests::Runs;

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kLargest = std::numeric_limits<double>::max();
inline constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
inline constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
inline constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

/// A quantity and what a family's data call makes of it.
struct DataRow {
  const char* why;
  Dictionary options;
  double quantity;
  const char* format;
  double value;
  std::int64_t decimals = 0;
};

/// Options, a quantity and the text that both renderings give.
struct TextRow {
  const char* why;
  Dictionary options;
  double quantity;
  const char* text;
};

inline bool isSame(double a, double b) {
  return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

inline void expectData(const DataRow& row, const Dictionary& result) {
  SCOPED_TRACE(row.why);
  ASSERT_EQ(result.size(), 3U);
  ASSERT_TRUE(result.contains("format") && result.contains("decimals") && result.contains("value"));
  EXPECT_EQ(*result.find("format"), Value(row.format));
  EXPECT_EQ(*result.find("decimals"), Value(row.decimals));
  const double* value = result.find("value")->real();
  ASSERT_NE(value, nullptr);
  EXPECT_TRUE(isSame(*value, row.value)) << std::hexfloat << *value << " is not " << row.value;
}

/// A decimals rule: so many digits below the bound.
inline Value rule(Value bound, Value decimals) {
  return Dictionary{{"value", std::move(bound)}, {"decimals", std::move(decimals)}};
}

/// Options with one more.
inline Dictionary with(Dictionary options, const char* key, Value value) {
  options.set(key, std::move(value));
  return options;
}

}  // namespace kzm::bytes

#endif
