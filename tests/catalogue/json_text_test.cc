#include "catalogue/json_text.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string_view>

namespace kzm::catalogue {
namespace {

TEST(JsonText, NumbersAreTheShortestThatReadBackAndHaveAPoint) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  struct Case {
    const char* why;
    double number;
    std::string_view text;
  };
  const Case cases[] = {
      {"zero", 0.0, "0.0"},
      {"minus zero", -0.0, "-0.0"},
      {"whole", 36.0, "36.0"},
      {"a fraction", 0.1, "0.1"},
      {"eighteen digits", 123456789012345680.0, "123456789012345680.0"},
      {"more digits than a double has", 1234567890123456768.0, "1.2345678901234568e+18"},
      {"with an exponent", 1e300, "1e+300"},
      {"the least", 5e-324, "5e-324"},
      {"not a number", std::numeric_limits<double>::quiet_NaN(), "\"NaN\""},
      {"infinite", kInfinity, "\"Infinity\""},
      {"minus infinite", -kInfinity, "\"-Infinity\""},
  };
  for (const Case& c : cases) EXPECT_EQ(jsonText(c.number), c.text) << c.why;
}

TEST(JsonText, StringsAreEscapedWhereJsonDemandsIt) {
  struct Case {
    const char* why;
    std::string_view string;
    std::string_view text;
  };
  const Case cases[] = {
      {"empty", "", "\"\""},
      {"plain", "1.5 GB", "\"1.5 GB\""},
      {"a quote", "7\"", "\"7\\\"\""},
      {"a backslash", "a\\b", "\"a\\\\b\""},
      {"a line end", "a\nb", "\"a\\nb\""},
      {"a control character", "\x01", "\"\\u0001\""},
      {"beyond ASCII", "21°", "\"21°\""},
      {"no UTF-8", "\xff", "\"\uFFFD\""},
  };
  for (const Case& c : cases) EXPECT_EQ(jsonText(c.string), c.text) << c.why;
}

TEST(JsonText, ValuesOfEachKind) {
  struct Case {
    const char* why;
    Value value;
    std::string_view text;
  };
  const Case cases[] = {
      {"null", nullptr, "null"},
      {"a boolean", true, "true"},
      {"the other", false, "false"},
      {"an integer", std::int64_t{-5}, "-5"},
      {"a number", 1.5, "1.5"},
      {"a string", "a", "\"a\""},
      {"an array", Array{1, "a", nullptr}, "[1, \"a\", null]"},
      {"an empty array", Array{}, "[]"},
      {"a dictionary", Dictionary{{"b", 1}, {"a", Array{2.0}}}, "{\"b\": 1, \"a\": [2.0]}"},
      {"an empty dictionary", Dictionary{}, "{}"},
  };
  for (const Case& c : cases) EXPECT_EQ(jsonText(c.value), c.text) << c.why;
}

TEST(JsonText, AnAttributedStringIsItsTextAndItsRuns) {
  AttributedString text("3", "bold");
  text.append(" MB", nullptr);
  EXPECT_EQ(jsonText(text),
            R"({"text": "3 MB", "runs": [{"text": "3", "attributes": "bold"}, {"text": " MB", "attributes": null}]})");
  EXPECT_EQ(jsonText(AttributedString()), R"({"text": "", "runs": []})");
}

}  // namespace
}  // namespace kzm::catalogue
