#include "weather/weather_text.h"

#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include <KZMUtilities/weather.h>

#include "tests/support/allocations.h"
#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

TEST(WeatherTexts, HaveTheirEnglishText) {
  struct Case {
    Text text;
    const char* english;
  };
  const Case cases[] = {
      {Text::number, "%@"},
      {Text::degrees, "%@°"},
      {Text::kelvin, "%@K"},
      {Text::knotsSpaced, "%@ knots"},
      {Text::knots, "%@knots"},
      {Text::milesPerHourSpaced, "%@ mph"},
      {Text::milesPerHour, "%@mph"},
      {Text::kilometersPerHourSpaced, "%@ km/h"},
      {Text::kilometersPerHour, "%@km/h"},
      {Text::metersPerSecondSpaced, "%@ m/s"},
      {Text::metersPerSecond, "%@m/s"},
      {Text::north, "North"},
      {Text::northEast, "North East"},
      {Text::east, "East"},
      {Text::southEast, "South East"},
      {Text::south, "South"},
      {Text::southWest, "South West"},
      {Text::west, "West"},
      {Text::northWest, "North West"},
      {Text::hectopascalsSpaced, "%@ hPa"},
      {Text::hectopascals, "%@hPa"},
      {Text::millibarsSpaced, "%@ mb"},
      {Text::millibars, "%@mb"},
      {Text::inches, "%@\""},
      {Text::miles, "%@ miles"},
      {Text::kilometers, "%@ km"},
      {Text::millimeters, "%@mm"},
      {Text::centimeters, "%@cm"},
      {Text::days, "%@ Days"},
      {Text::percent, "%@%%"},
  };
  static_assert(std::size(cases) == static_cast<std::size_t>(Text::percent) + 1);
  for (const Case& c : cases) EXPECT_EQ(textOf(c.text).text(), c.english);
}

TEST(WeatherTexts, DigitCountsAreClamped) {
  EXPECT_EQ(decimalNumber(std::numeric_limits<std::int64_t>::min(), 1.5).string(), "2");
  EXPECT_EQ(decimalNumber(std::numeric_limits<std::int64_t>::max(), 1.5).string(), "1.5");
  EXPECT_EQ(decimalNumber(341, 5e-324).string(), decimalNumber(340, 5e-324).string());
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
