#include "settings/json.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>

#include <KZMUtilities/dictionary.h>

namespace kzm::settings {
namespace {

std::string nested(std::size_t levels) {
  return "{\"a\":" + std::string(levels - 1, '[') + std::string(levels - 1, ']') + "}";
}

Value nestedValue(int levels) {
  Value value = 1;
  for (int i = 0; i < levels; ++i) value = Array{value};
  return value;
}

TEST(Json, SaysWhyATextHoldsNoSettings) {
  struct Case {
    const char* why;
    std::string text;
    const char* fault;
  };
  const std::string bracketsInTexts = R"({"[[\"{": ")" + std::string(200, '[') + "\"}";
  const std::string hostile = "{\"a\":" + std::string(1000000, '[');
  const Case kCases[] = {
      {"empty object", "{}", ""},
      {"one member", "{\"a\": 1}\n", ""},
      {"brackets in texts", bracketsInTexts, ""},
      {"nothing at all", "", ""},
      {"only white space", "  \n ", ""},
      {"a byte-order mark", "\xEF\xBB\xBF{}", ""},
      {"a zero byte after it", std::string("{\n}\0,\"a\":1}", 11), "line 2 is not JSON"},
      {"cut off", "{\n\"a\": 1,\n\"b\": ", "line 3 is not JSON"},
      {"a comma too many", "{\n\"a\": 1,\n}", "line 3 is not JSON"},
      {"something after it", "{} {}", "line 1 is not JSON"},
      {"not UTF-8", "{\"a\": \"\xff\"}", "line 1 is not JSON"},
      {"half a surrogate pair", "{\"a\": \"\\ud800\"}", "line 1 is not JSON"},
      {"NaN is not JSON", "{\"a\": NaN}", "line 1 is not JSON"},
      {"a number beyond the doubles", "{\"a\": 1e999}", "it holds a number out of range"},
      {"an array", "[1]", "it is not one JSON object"},
      {"a bare null", "null", "it is not one JSON object"},
      {"as deep as may be", nested(64), ""},
      {"one level deeper", nested(65), "it nests deeper than 64 levels"},
      {"hostile depth", hostile, "it nests deeper than 64 levels"},
  };
  for (const Case& row : kCases) EXPECT_EQ(parse(row.text).fault, row.fault) << row.why;
}

TEST(Json, ReadsEveryKindOfMember) {
  const Parsed parsed =
      parse(R"({"no": null, "yes": true, "int": -7, "big": 18446744073709551615, "real": 2.5, "text": "a\"\u00e9",)"
            R"( "list": [1, "x", null], "map": {"k": {"deep": false}}})");
  const Array list{1, "x", nullptr};
  const Dictionary deep{{"k", Dictionary{{"deep", false}}}};
  const Dictionary expected{
      {"yes", true},  {"int", -7},   {"big", 18446744073709551616.0}, {"real", 2.5}, {"text", "a\"\u00e9"},
      {"list", list}, {"map", deep},
  };
  EXPECT_EQ(settingsIn(parsed.members), expected);
}

TEST(Json, WritesEveryMemberBackAsItCame) {
  for (const char* text :
       {"12345678901234567890123", "0.10000000000000000001", "1E3", "1.50", "-0.0", "18446744073709551615", "null",
        R"("\u0001 \"quoted\" \\ \t")", "[]", "{}", R"(["a", {"b": [1, {}]}])"}) {
    const Members members = parse("{\"a\": " + std::string(text) + "}").members;
    ASSERT_EQ(members.count("a"), 1U) << text;
    const Members again = parse(textOf(members)).members;
    EXPECT_EQ(again.at("a").text, members.at("a").text) << text;
    EXPECT_EQ(again.at("a").value, members.at("a").value) << text;
    const bool isContainer = text[0] == '[' || text[0] == '{';
    EXPECT_TRUE(isContainer || members.at("a").text == text) << text;
  }
}

TEST(Json, WritesEachPartOnALineOfItsOwn) {
  EXPECT_EQ(textOf(parse(R"({"a": ["x", {"b": [1, {}], "c": null}], "d": []})").members),
            R"({
  "a": [
    "x",
    {
      "b": [
        1,
        {}
      ],
      "c": null
    }
  ],
  "d": []
}
)");
  EXPECT_EQ(textOf({}), "{}\n");
}

TEST(Json, WritesAValueAsItReadsIt) {
  const Value value = Array{1, 2.0, Dictionary{{"k", Array{true, nullptr, "x"}}}};
  EXPECT_EQ(memberFor(value)->text, parse(R"({"a": [1, 2.0, {"k": [true, null, "x"]}]})").members.at("a").text);
}

TEST(Json, RefusesWhatAFileCannotHold) {
  struct Case {
    const char* why;
    Value value;
    bool holds;
  };
  const Value nanInside = Array{1, Dictionary{{"a", std::nan("")}}};
  const Value badKey = Dictionary{{"\xff", 1}};
  const double infinity = std::numeric_limits<double>::infinity();
  const Case kCases[] = {
      {"null", nullptr, true},
      {"largest double", std::numeric_limits<double>::max(), true},
      {"NaN", std::nan(""), false},
      {"infinity", infinity, false},
      {"NaN inside", nanInside, false},
      {"opaque object", std::make_shared<Object>(), false},
      {"opaque object inside", Array{std::make_shared<Object>()}, false},
      {"text that is not UTF-8", "\xc3", false},
      {"key that is not UTF-8", badKey, false},
      {"as deep as may be", nestedValue(63), true},
      {"one level deeper", nestedValue(64), false},
      {"very deep", nestedValue(2000), false},
  };
  for (const Case& row : kCases) EXPECT_EQ(memberFor(row.value).has_value(), row.holds) << row.why;
}

TEST(Json, TheDeepestMemberCanBeReadAgain) {
  const Members members{{"a", *memberFor(nestedValue(63))}};
  EXPECT_EQ(parse(textOf(members)).fault, "");
}

TEST(Json, WritesOneSortedLineForEachMember) {
  EXPECT_EQ(textOf(parse(R"({"b": 1, "a": 2.0})").members), "{\n  \"a\": 2.0,\n  \"b\": 1\n}\n");
}

}  // namespace
}  // namespace kzm::settings
