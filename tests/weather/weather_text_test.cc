#include "weather/weather_text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/weather.h>

#include "core/rows.h"
#include "tests/support/allocations.h"
#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

TEST(WeatherUnits, AUnitThatASettingOffersWithoutARowIsMissed) {
  constexpr MeasurementUnit kOffered[] = {MeasurementUnit::kilometers, MeasurementUnit::miles};
  constexpr ChosenUnit kBoth[] = {{MeasurementUnit::miles, unchanged, Unit::miles},
                                  {MeasurementUnit::kilometers, unchanged, Unit::kilometers}};
  constexpr ChosenUnit kOne[] = {{MeasurementUnit::miles, unchanged, Unit::miles}};
  constexpr ChosenUnit kAnother[] = {{MeasurementUnit::miles, unchanged, Unit::miles},
                                     {MeasurementUnit::knots, unchanged, Unit::knots}};
  EXPECT_TRUE(haveRows(kOffered, kBoth));
  EXPECT_FALSE(haveRows(kOffered, kOne));
  EXPECT_FALSE(haveRows(kOffered, kAnother));
}

TEST(WeatherTexts, EveryUnitThatCanBeChosenHasATextOfItsOwn) {
  struct Case {
    const char* keyPath;
    std::string (*shown)();
  };
  const Case cases[] = {
      {"Weather.Global.Units.WindSpeed", [] { return KZMUtilitiesFormatWeatherWindSpeed(kUnits, 100.0); }},
      {"Weather.Global.Units.Degrees", [] { return KZMUtilitiesFormatWeatherTemperature(kUnits, 100.0); }},
      {"Weather.Global.Units.Pressure", [] { return KZMUtilitiesFormatWeatherPressure(kUnits, 100.0); }},
      {"Weather.Global.Units.Distance", [] { return KZMUtilitiesFormatWeatherDistance(100.0); }},
      {"Weather.Global.Units.Precipitation", [] { return KZMUtilitiesFormatWeatherRainAmount(100.0); }},
      {"Weather.Global.Units.Precipitation", [] { return KZMUtilitiesFormatWeatherSnowAmount(100.0); }},
  };
  for (const Case& c : cases) {
    const auto setting = std::ranges::find(unitSettings(), c.keyPath, &UnitSetting::keyPath);
    ASSERT_NE(setting, unitSettings().end()) << c.keyPath;
    std::set<std::string> texts;
    for (std::int64_t code = 1; code <= std::ssize(setting->units); ++code) {
      tests::useOnlySetting(c.keyPath, code);
      EXPECT_TRUE(texts.insert(c.shown()).second) << c.keyPath << " " << code << ": " << c.shown();
    }
  }
  tests::useNoSettings();
}

TEST(WeatherTexts, HaveTheirEnglishText) {
  struct Case {
    Unit unit;
    const char* spaced;
    const char* tight;
  };
  const Case cases[] = {
      {Unit::degrees, "%@°", "%@°"},
      {Unit::kelvin, "%@K", "%@K"},
      {Unit::knots, "%@ knots", "%@knots"},
      {Unit::milesPerHour, "%@ mph", "%@mph"},
      {Unit::kilometersPerHour, "%@ km/h", "%@km/h"},
      {Unit::metersPerSecond, "%@ m/s", "%@m/s"},
      {Unit::north, "North", "North"},
      {Unit::northEast, "North East", "North East"},
      {Unit::east, "East", "East"},
      {Unit::southEast, "South East", "South East"},
      {Unit::south, "South", "South"},
      {Unit::southWest, "South West", "South West"},
      {Unit::west, "West", "West"},
      {Unit::northWest, "North West", "North West"},
      {Unit::hectopascals, "%@ hPa", "%@hPa"},
      {Unit::millibars, "%@ mb", "%@mb"},
      {Unit::inches, "%@\"", "%@\""},
      {Unit::miles, "%@ miles", "%@ miles"},
      {Unit::kilometers, "%@ km", "%@ km"},
      {Unit::millimeters, "%@mm", "%@mm"},
      {Unit::centimeters, "%@cm", "%@cm"},
      {Unit::days, "%@ Days", "%@ Days"},
      {Unit::percent, "%@%%", "%@%%"},
  };
  static_assert(std::size(cases) == core::countEnumerators<Unit>());
  for (const Case& c : cases) {
    EXPECT_EQ(localizedText(c.unit, Spacing::spaced), c.spaced) << c.spaced;
    EXPECT_EQ(localizedText(c.unit, Spacing::tight), c.tight) << c.spaced;
  }
}

TEST(WeatherTexts, DigitCountsAreClamped) {
  EXPECT_EQ(core::text(atMost(std::numeric_limits<std::int64_t>::min(), 1.5)), "2");
  EXPECT_EQ(core::text(atMost(std::numeric_limits<std::int64_t>::max(), 1.5)), "1.5");
  EXPECT_EQ(core::text(atMost(341, 5e-324)), core::text(atMost(340, 5e-324)));
}

TEST(WeatherTexts, AChangeOfLanguageOrLocaleShowsInTheVeryNextCall) {
  tests::useOnlySetting("Weather.Global.Units.Pressure", 1);
  const Dictionary options{{"units", true}, {"space", true}, {"decimals", true}};
  struct Case {
    const char* language;
    const char* locale;
    const char* pressure;
  };
  const Case cases[] = {
      {"ru", "ru_RU", "1\u00A0013,2 гПа"},
      {"en", "en_US", "1,013.2 hPa"},
      {"de", "de_CH", "1’013.2 hPa"},
      {"en", "en_US", "1,013.2 hPa"},
  };
  for (const Case& c : cases) {
    KZMLocalizationSetLanguages(std::vector<std::string>{c.language});
    setCurrentLocale(c.locale);
    EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(options, 1013.25), c.pressure) << c.locale;
  }
}

// One call of each family.
std::vector<std::string> everyText() {
  return {KZMUtilitiesFormatWeatherTemperature(kUnits, 21.5), KZMUtilitiesFormatWeatherWindSpeed(kSpaced, 10.0),
          KZMUtilitiesFormatWeatherWindDirection(270.0),      KZMUtilitiesFormatWeatherPressure(kNone, 1013.25),
          KZMUtilitiesFormatWeatherDistance(1234.4),          KZMUtilitiesFormatWeatherVisibility(9.6),
          KZMUtilitiesFormatWeatherRainAmount(25.4),          KZMUtilitiesFormatWeatherSnowAmount(25.4),
          KZMUtilitiesFormatWeatherAltitude(kNone, 41.0),     KZMUtilitiesFormatWeatherDays(1.5),
          KZMUtilitiesFormatWeatherIllumination(50.0)};
}

TEST(WeatherConcurrency, ManyThreadsGetTheSameTexts) {
  tests::useNoSettings();
  std::vector<std::thread> threads;
  std::vector<std::vector<std::string>> texts(4);
  for (auto& mine : texts) {
    threads.emplace_back([&mine] {
      for (int round = 0; round < 50; ++round) mine = everyText();
    });
  }
  for (std::thread& thread : threads) thread.join();
  const std::vector<std::string> expected = {"71°", "22 mph", "West", "29.92\"",  "767 miles", "10 miles",
                                             "1\"", "1\"",    "41°",  "1.5 Days", "50%"};
  for (const auto& mine : texts) EXPECT_EQ(mine, expected);
}

TEST(WeatherAllocations, ShortTextsTakeNone) {
  tests::useNoSettings();
  const auto shortTexts = [] {
    EXPECT_EQ(KZMUtilitiesFormatWeatherTemperature(kUnits, 21.5), "71°");
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindSpeed(kSpaced, 10.0), "22 mph");
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindDirection(270.0), "West");
    EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(kNone, 1013.25), "29.92\"");
    EXPECT_EQ(KZMUtilitiesFormatWeatherDistance(1234.4), "767 miles");
    EXPECT_EQ(KZMUtilitiesFormatWeatherVisibility(9.6), "10 miles");
    EXPECT_EQ(KZMUtilitiesFormatWeatherSnowAmount(25.4), "1\"");
    EXPECT_EQ(KZMUtilitiesFormatWeatherHumidity(57.0), "57%");
    EXPECT_EQ(KZMUtilitiesFormatWeatherDays(1.5), "1.5 Days");
  };
  shortTexts();
  const std::size_t before = tests::allocations();
  shortTexts();
  EXPECT_EQ(tests::allocations() - before, 0U);
}

}  // namespace
}  // namespace kzm::weather
