#include "port/week_rules.h"

#include <gtest/gtest.h>

#include "port/environment_locale.h"

namespace kzm::port {
namespace {

TEST(WeekRules, AreThoseOfTheRegion) {
  struct Case {
    const char* locale;
    int firstWeekday;
    int daysInFirstWeek;
  };
  const Case cases[] = {
      {"en_US", 1, 1},
      {"de_DE", 2, 4},
      {"fr_FR", 2, 4},
      {"en_GB", 2, 4},
      {"ar_EG", 7, 1},
      {"th_TH", 1, 1},
      {"en_001", 2, 1},
      {"pt_PT", 1, 4},
      {"de", 2, 4},
      {"en_ZZ", 2, 1},
      {"en_US@rg=gbzzzz", 2, 4},
      {"en_US@calendar=iso8601", 2, 4},
      {"en_US@calendar=ISO8601", 2, 4},
      {"ar_EG@calendar=buddhist", 7, 1},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(weekRulesOf(c.locale).firstWeekday, c.firstWeekday) << c.locale;
    EXPECT_EQ(weekRulesOf(c.locale).daysInFirstWeek, c.daysInFirstWeek) << c.locale;
  }
}

TEST(WeekRules, TheLocaleForDatesComesFromItsOwnVariables) {
  const Environment environment = [](const char* name) -> const char* {
    if (std::string_view(name) == "LC_TIME") return "de_CH.UTF-8";
    return std::string_view(name) == "LANG" ? "en_US.UTF-8" : nullptr;
  };
  EXPECT_EQ(dateLocale(environment), "de_CH");
  EXPECT_EQ(dateLocale([](const char*) -> const char* { return nullptr; }), "en_001");
}

TEST(WeekRules, OfTheProcessAreReadFromTheEnvironment) {
  EXPECT_EQ(weekRules().firstWeekday, 1) << "the tests run with LANG=en_US.UTF-8";
}

}  // namespace
}  // namespace kzm::port
