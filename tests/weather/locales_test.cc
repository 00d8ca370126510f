// The weather family in other locales and languages.
#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <span>
#include <string>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/weather.h>

#include "tests/support/settings.h"

namespace kzm {
namespace {

using Format = std::string (*)();

std::string textIn(const char* locale, const char* language, Format format) {
  setCurrentLocale(locale);
  const std::array<std::string, 1> languages = {language};
  KZMLocalizationSetLanguages(languages);
  Dictionary metric;
  for (const char* key : {"Degrees", "Distance", "Pressure", "Precipitation"}) {
    metric.set(std::string("Weather.Global.Units.") + key, 1);
  }
  metric.set("Weather.Global.Units.WindSpeed", 3);
  KZMSettingsUseObjects(metric);
  return format();
}

std::string longDistance() { return KZMUtilitiesFormatWeatherDistance(1234567.0); }
std::string fourDigits() { return KZMUtilitiesFormatWeatherDistance(1234.0); }
std::string backwards() { return KZMUtilitiesFormatWeatherDistance(-1234567.0); }
std::string visibility() { return KZMUtilitiesFormatWeatherVisibility(1234567.0); }
std::string days() { return KZMUtilitiesFormatWeatherDays(1234567.5); }
std::string fewDays() { return KZMUtilitiesFormatWeatherDays(1234.5); }
std::string frost() { return KZMUtilitiesFormatWeatherTemperature({{"units", true}, {"decimals", 1}}, -0.34); }
std::string nearFrost() { return KZMUtilitiesFormatWeatherTemperature({{"units", true}}, -0.3); }
std::string noNumber() { return KZMUtilitiesFormatWeatherDays(std::numeric_limits<double>::quiet_NaN()); }
std::string notPlain() { return KZMUtilitiesFormatWeatherUV(-0.2); }
std::string direction() { return KZMUtilitiesFormatWeatherWindDirection(45.0); }
std::string wind() { return KZMUtilitiesFormatWeatherWindSpeed({{"units", true}, {"space", true}}, 10.0); }

TEST(WeatherLocales, NumbersAreWrittenInTheLocalesStyle) {
  struct Case {
    const char* locale;
    Format format;
    const char* text;
  };
  const Case cases[] = {
      {"en_US", longDistance, "1,234,567 km"},
      {"en_GB", longDistance, "1,234,567 km"},
      {"de_DE", longDistance, "1.234.567 km"},
      {"de_AT", longDistance, "1\u00A0234\u00A0567 km"},
      {"de_CH", longDistance, "1’234’567 km"},
      {"fr_FR", longDistance, "1\u202F234\u202F567 km"},
      {"sv_SE", longDistance, "1\u00A0234\u00A0567 km"},
      {"ru_RU", longDistance, "1\u00A0234\u00A0567 km"},
      {"ar_EG", longDistance, "١٬٢٣٤٬٥٦٧ km"},
      {"es_ES", longDistance, "1.234.567 km"},
      {"es_ES", fourDigits, "1234 km"},
      {"es_MX", fourDigits, "1,234 km"},
      {"pl_PL", fourDigits, "1234 km"},
      {"sv_SE", backwards, "−1\u00A0234\u00A0567 km"},
      {"ar_EG", backwards, "\u061C-١٬٢٣٤٬٥٦٧ km"},
      {"de_DE", days, "1.234.567,5 Days"},
      {"hi_IN", days, "12,34,567.5 Days"},
      {"es_ES", fewDays, "1234,5 Days"},
      {"ar_EG", fewDays, "١٬٢٣٤٫٥ Days"},
      {"ru_RU", noNumber, "не\u00A0число Days"},
      {"ar_EG", visibility, "1234567 km"},
      {"hi_IN", visibility, "1234567 km"},
      {"ar_EG", notPlain, "-0"},
      {"sv_SE", notPlain, "-0"},
  };
  for (const Case& c : cases) EXPECT_EQ(textIn(c.locale, "en", c.format), c.text) << c.locale;
}

TEST(WeatherLocales, DistanceIsGroupedByThreeEvenWhereNumbersAreNot) {
  EXPECT_EQ(textIn("hi_IN", "en", longDistance), "1,234,567 km");
  EXPECT_EQ(textIn("en_US_POSIX", "en", longDistance), "1,234,567 km");
  EXPECT_EQ(textIn("en_US_POSIX", "en", days), "1234567.5 Days");
}

TEST(WeatherLocales, TheMinusBeforeAZeroIsDroppedWhenItIsTheAsciiSignBeforeAnAsciiDigit) {
  struct Case {
    const char* locale;
    Format format;
    const char* text;
  };
  const Case cases[] = {
      {"de_DE", frost, "0,3°"},    {"fr_FR", nearFrost, "0°"},        {"sv_SE", frost, "−0,3°"},
      {"sv_SE", nearFrost, "−0°"}, {"ar_EG", nearFrost, "\u061C-٠°"}, {"he_IL", nearFrost, "\u200E0°"},
  };
  for (const Case& c : cases) EXPECT_EQ(textIn(c.locale, "en", c.format), c.text) << c.locale;
}

TEST(WeatherLocales, TextsAreInTheUsersLanguage) {
  EXPECT_EQ(textIn("de_DE", "de", direction), "Nordosten");
  EXPECT_EQ(textIn("fr_FR", "fr", direction), "Nord-Est");
  EXPECT_EQ(textIn("en_US", "sv", direction), "Nordost");
  EXPECT_EQ(textIn("en_US", "tlh", direction), "North East") << "a language without texts";
  EXPECT_EQ(textIn("en_US", "en", wind), "22 mph");
}

}  // namespace
}  // namespace kzm
