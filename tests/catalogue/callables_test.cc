#include "catalogue/callables.h"

#include <gtest/gtest.h>

namespace kzm::catalogue {
namespace {

TEST(Callables, AreDescribed) {
  struct Case {
    const char* name;
    std::size_t arguments;
    const char* listed;
    const char* json;
  };
  constexpr Case kCases[] = {
      {"snowUnit", 0, "snowUnit",
       R"({"name": "snowUnit", "c": "kzm_snow_unit", "parameters": [], "result": "unit", )"
       R"("documentation": "The user's unit of snow."})"},
      {"addDays:timezone:", 3, "addDays:timezone: t:time|null days:integer zone:timezone",
       R"({"name": "addDays:timezone:", "c": "kzm_add_days_timezone", )"
       R"("parameters": [{"name": "t", "kind": "time|null"}, {"name": "days", "kind": "integer"}, )"
       R"({"name": "zone", "kind": "timezone"}], "result": "time|null", )"
       R"("documentation": "The same wall time of the given zone, the given number of days later."})"},
  };
  for (const Case& c : kCases) {
    const Callable& callable = callableNamed(c.name, c.arguments);
    EXPECT_EQ(described(callable), c.listed);
    EXPECT_EQ(describedInJson(callable), c.json);
  }
}

TEST(Callables, SayWhatTheyGive) {
  struct Case {
    const char* name;
    std::size_t arguments;
    const char* result;
  };
  constexpr Case kCases[] = {
      {"KZMUtilitiesDecimalFormatterWithMaximum", 1, "formatter"},
      {"KZMUtilitiesPosixLocale", 1, "locale"},
      {"KZMUtilitiesFormatNumber", 2, "string"},
      {"KZMUtilitiesFormatPercentageWithAttributes", 2, "attributedstring"},
      {"mpsToKph", 1, "double"},
      {"KZMUtilitiesMemoryData", 2, "dictionary"},
      {"KZMUtilitiesSensorData", 3, "dictionary|null"},
      {"KZMUtilitiesTimeItems", 0, "array"},
      {"components:", 2, "dictionary|null"},
      {"ordinalSuffix", 1, "string|null"},
      {"doesStringMatchExpression:", 2, "boolean"},
  };
  for (const Case& c : kCases) EXPECT_EQ(callableNamed(c.name, c.arguments).result, c.result) << c.name;
}

TEST(Callables, HaveAsManyNamesAsKindsAndOneSentenceOfDocumentation) {
  for (const Callable& callable : callables()) {
    std::string names;
    for (const Parameter& parameter : parametersOf(callable)) {
      EXPECT_FALSE(parameter.name.empty()) << callable.name;
      names.append(names.empty() ? "" : " ").append(parameter.name);
    }
    EXPECT_EQ(names, callable.parameters) << callable.name;
    EXPECT_TRUE(callable.documentation.ends_with('.')) << callable.name;
    EXPECT_EQ(callable.documentation.find('\n'), std::string_view::npos) << callable.name;
  }
}

}  // namespace
}  // namespace kzm::catalogue
