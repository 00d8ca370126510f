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

/// Options, and the text of a size at each level.
struct StyleRow {
  const char* why;
  Dictionary options;
  const char* texts[5];
};

inline bool isSameNumber(double a, double b) {
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
  EXPECT_TRUE(isSameNumber(*value, row.value)) << std::hexfloat << *value << " is not " << row.value;
}

/// The three calls of a family. Rows are compared with what they give.
struct FamilyCalls {
  Dictionary (*data)(const Dictionary& options, double quantity);
  std::string (*plain)(const Dictionary& options, double quantity);
  AttributedString (*attributed)(const Dictionary& options, double quantity);

  void expectAll(std::span<const DataRow> rows) const {
    for (const DataRow& row : rows) expectData(row, data(row.options, row.quantity));
  }
  void expectText(const char* why, const Dictionary& options, double quantity, const char* text) const {
    EXPECT_EQ(plain(options, quantity), text) << why;
    EXPECT_EQ(attributed(options, quantity).text(), text) << why;
  }
  void expectAll(std::span<const TextRow> rows) const {
    for (const TextRow& row : rows) expectText(row.why, row.options, row.quantity, row.text);
  }
  void expectAll(std::span<const StyleRow> rows, const double (&sizes)[5]) const {
    for (const StyleRow& row : rows) {
      for (std::size_t level = 0; level < 5; ++level) expectText(row.why, row.options, sizes[level], row.texts[level]);
    }
  }
};

/// A decimals rule: the given number of digits below the bound.
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
