#include "catalogue/arguments.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "catalogue/errors.h"
#include "catalogue/json_text.h"

namespace kzm::catalogue {
namespace {

template <class T>
auto read(const char* json) {
  return Argument<T>::read(parseJson(json));
}

struct Refused {
  const char* json;
  const char* why;
};

template <class T, std::size_t N>
void expectRefused(const Refused (&cases)[N]) {
  for (const Refused& c : cases) {
    try {
      static_cast<void>(read<T>(c.json));
      ADD_FAILURE() << "taken: " << c.json;
    } catch (const InputError& error) {
      EXPECT_STREQ(error.what(), c.why) << c.json;
    }
  }
}

TEST(Argument, NumbersMayHaveNames) {
  EXPECT_EQ(read<double>("2.5"), 2.5);
  EXPECT_EQ(read<double>("-3"), -3.0);
  EXPECT_EQ(read<double>("18446744073709551616"), 0x1p64);
  EXPECT_TRUE(std::isnan(read<double>(R"("NaN")")));
  EXPECT_EQ(read<double>(R"("Infinity")"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(read<double>(R"("-Infinity")"), -std::numeric_limits<double>::infinity());
  expectRefused<double>({
      {R"("2.5")", R"(expected a number, "NaN", "Infinity" or "-Infinity", not string)"},
      {"null", R"(expected a number, "NaN", "Infinity" or "-Infinity", not null)"},
      {"[1]", R"(expected a number, "NaN", "Infinity" or "-Infinity", not array)"},
  });
}

TEST(Argument, IntegersHave64Bits) {
  EXPECT_EQ(read<std::int64_t>("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(read<std::int64_t>("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
  expectRefused<std::int64_t>({
      {"9223372036854775808", "the integer is out of range"},
      {"1.0", "expected an integer, not number"},
      {"true", "expected an integer, not boolean"},
  });
}

TEST(Argument, TextsAreStrings) {
  EXPECT_EQ(read<std::string_view>(R"("a\u0000b")"), std::string("a\0b", 3));
  expectRefused<std::string_view>({{"1", "expected a string, not number"}});
  EXPECT_EQ(read<std::optional<std::string>>(R"("")"), "");
  EXPECT_EQ(read<std::optional<std::string>>("null"), std::nullopt);
  expectRefused<std::optional<std::string>>({{"{}", "expected a string, not object"}});
}

TEST(Argument, OptionsAreAnObjectOrNone) {
  EXPECT_EQ(read<Dictionary>("null"), Dictionary());
  EXPECT_EQ(read<Dictionary>(R"({"space": true})"), (Dictionary{{"space", true}}));
  expectRefused<Dictionary>({{"[]", "expected an object or null, not array"}});
}

TEST(Argument, TimesAreNumbersOrNone) {
  EXPECT_EQ(read<TimePoint>("null"), TimePoint());
  EXPECT_EQ(read<TimePoint>("1.5"), TimePoint(1.5));
  expectRefused<TimePoint>({{"false", R"(expected a number, "NaN", "Infinity" or "-Infinity", not boolean)"}});
}

TEST(Argument, ZonesAndLocalesHaveNames) {
  EXPECT_EQ(read<TimeZone>(R"("Asia/Tokyo")").identifier(), "Asia/Tokyo");
  expectRefused<TimeZone>({
      {R"("Mars/Olympus")", R"(no time zone is named "Mars/Olympus")"},
      {"null", "expected a string, not null"},
  });
  EXPECT_EQ(read<std::shared_ptr<const Locale>>(R"("de_CH")")->identifier(), "de_CH");
  expectRefused<std::shared_ptr<const Locale>>({{"1", "expected a locale identifier, not number"}});
}

TEST(Argument, TextInTwoStylesIsItsRuns) {
  constexpr const char* kText =
      R"({"text": "3 MB", "runs": [{"text": "3", "attributes": "bold"}, {"text": " MB", "attributes": null}]})";
  EXPECT_EQ(jsonText(read<AttributedString>(kText)), kText);
  constexpr const char* kLessSaid = R"({"runs": [{"text": "3", "attributes": "bold"}, {"text": " "}, {"text": "MB"}]})";
  EXPECT_EQ(jsonText(read<AttributedString>(kLessSaid)), kText);
  EXPECT_EQ(read<AttributedString>(R"({"runs": []})"), AttributedString());
  expectRefused<AttributedString>({
      {R"({"text": "3 GB", "runs": [{"text": "3 MB"}]})", R"("text" is not that of the runs)"},
      {R"({"text": "3"})", R"(expected an object with "text" and "runs", not object)"},
      {R"({"runs": "3"})", R"(expected an object with "text" and "runs", not object)"},
      {R"("3")", R"(expected an object with "text" and "runs", not string)"},
      {R"({"runs": ["3"]})", R"(expected a run with "text" and "attributes", not string)"},
      {R"({"runs": [{}]})", R"(expected a run with "text" and "attributes", not object)"},
  });
}

}  // namespace
}  // namespace kzm::catalogue
