#include "catalogue/names.h"

#include <gtest/gtest.h>
#include <set>

#include "catalogue/callables.h"

namespace kzm::catalogue {
namespace {

TEST(Names, FollowOneRule) {
  struct Case {
    const char* why;
    const char* published;
    const char* cpp;
    const char* c;
  };
  constexpr Case kCases[] = {
      {"the prefix goes", "KZMUtilitiesFormatMemory", "KZMUtilitiesFormatMemory", "kzm_format_memory"},
      {"the shorter prefix too", "KZMMAXDouble", "KZMMAXDouble", "kzm_max_double"},
      {"capitals at the end are one word", "KZMUtilitiesFormatWeatherUV", "KZMUtilitiesFormatWeatherUV",
       "kzm_format_weather_uv"},
      {"no prefix", "mpsToKph", "mpsToKph", "kzm_mps_to_kph"},
      {"a capital at the start", "KmToMiles", "KmToMiles", "kzm_km_to_miles"},
      {"one word and a colon", "addDays:", "addDays", "kzm_add_days"},
      {"two words", "addDays:timezone:", "addDaysTimezone", "kzm_add_days_timezone"},
      {"capitals after a small letter", "converFromTimezoneToUTC:", "converFromTimezoneToUTC",
       "kzm_conver_from_timezone_to_utc"},
      {"three words", "replaceString:withString:attributes:", "replaceStringWithStringAttributes",
       "kzm_replace_string_with_string_attributes"},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(cppName(c.published), c.cpp) << c.why;
    EXPECT_EQ(cName(c.published), c.c) << c.why;
  }
}

TEST(Names, WordsInLowerCase) {
  EXPECT_EQ(snakeCase("bytesPerSecond"), "bytes_per_second");
  EXPECT_EQ(snakeCase("UVIndex"), "uv_index");
  EXPECT_EQ(snakeCase("a"), "a");
  EXPECT_EQ(snakeCase(""), "");
}

TEST(Names, NoTwoCallablesShareOne) {
  std::set<std::string> names;
  for (const Callable& callable : callables()) {
    EXPECT_TRUE(names.insert(cName(callable.name)).second) << cName(callable.name);
  }
  EXPECT_EQ(names.size(), callables().size());
}

}  // namespace
}  // namespace kzm::catalogue
