#include "port/measurement_habits.h"

#include <gtest/gtest.h>

namespace kzm::port {
namespace {

TEST(MeasurementHabits, NamesTheRegionAndTheScale) {
  struct Case {
    const char* why;
    const char* identifier;
    const char* region;
    const char* temperature;
  };
  const Case cases[] = {
      {"a country", "en_US", "US", ""},
      {"a script between", "zh_Hant_TW", "TW", ""},
      {"a variant after it", "ca_ES_VALENCIA", "ES", ""},
      {"POSIX after it", "en_US_POSIX", "US", ""},
      {"an old name of a country", "en_UK", "GB", ""},
      {"the world", "en_001", "001", ""},
      {"a part of the world", "es_419", "419", ""},
      {"a language alone", "sv", "SE", ""},
      {"English alone", "en", "US", ""},
      {"a language with a script", "zh_Hant", "TW", ""},
      {"another region", "en_US@rg=gbzzzz", "GB", ""},
      {"another region in capitals", "en_US@rg=GBZZZZ", "GB", ""},
      {"a part of another region", "en_US@rg=gbsct", "GB", ""},
      {"a country is no region override", "en_US@rg=gb", "US", ""},
      {"too long an override", "en_US@rg=gbzzzzz", "US", ""},
      {"no letters in an override", "en_US@rg=12zzzz", "US", ""},
      {"a letter and a digit in an override", "en_US@rg=g2zzzz", "US", ""},
      {"a digit and a letter in an override", "en_US@rg=2bzzzz", "US", ""},
      {"an override for a language", "de@rg=uszzzz", "US", ""},
      {"metric", "en_US@measure=metric", "001", ""},
      {"metric where m/s are customary", "sv_SE@measure=metric", "001", ""},
      {"the US system", "de_DE@measure=ussystem", "US", ""},
      {"the UK system", "de_DE@measure=uksystem", "GB", ""},
      {"no such system", "de_DE@measure=troy", "DE", ""},
      {"the system before the region", "de_DE@measure=metric;rg=uszzzz", "001", ""},
      {"a scale", "en_US@mu=celsius", "US", "celsius"},
      {"a scale", "de_DE@mu=fahrenheit", "DE", "fahrenheit"},
      {"a scale, as tags write it", "de_DE@mu=fahrenhe", "DE", "fahrenheit"},
      {"a scale", "de_DE@mu=kelvin", "DE", "kelvin"},
      {"no such scale", "de_DE@mu=rankine", "DE", ""},
      {"all at once", "fr_FR@measure=ussystem;mu=celsius;rg=gbzzzz", "US", "celsius"},
      {"a language tag", "en-US-u-ms-metric-mu-fahrenhe", "001", "fahrenheit"},
      {"nothing", "", "US", ""},
      {"no such language", "xx", "", ""},
  };
  for (const Case& c : cases) {
    const MeasurementHabits locale = measurementHabitsOf(c.identifier);
    EXPECT_EQ(locale.region, c.region) << c.why << ": " << c.identifier;
    EXPECT_EQ(locale.temperature, c.temperature) << c.why << ": " << c.identifier;
  }
}

TEST(MeasurementHabits, TakesHostileIdentifiers) {
  for (const std::string& identifier :
       {std::string(10000, 'a'), std::string("@"), std::string("@rg"), std::string("en_US@rg="),
        std::string("en_US@measure==;;"), std::string("\xFF\xFE"), std::string("../../x")}) {
    EXPECT_LE(measurementHabitsOf(identifier).region.size(), 3U) << identifier.substr(0, 20);
  }
}

}  // namespace
}  // namespace kzm::port
