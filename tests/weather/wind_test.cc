#include <gtest/gtest.h>

#include <KZMUtilities/weather.h>

#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

constexpr auto kSetting = "Weather.Global.Units.WindSpeed";
constexpr std::int64_t kMetersPerSecond = 1;
constexpr std::int64_t kKilometersPerHour = 2;
constexpr std::int64_t kMilesPerHour = 3;
constexpr std::int64_t kKnots = 4;

TEST(WeatherWindSpeed, InTheUsersUnit) {
  const UnitCase cases[] = {
      {"knots", kKnots, kSpaced, 10.0, "19 knots"},
      {"miles per hour", kMilesPerHour, kSpaced, 10.0, "22 mph"},
      {"kilometers", kKilometersPerHour, kSpaced, 10.0, "36 km/h"},
      {"meters", kMetersPerSecond, kSpaced, 10.0, "10 m/s"},
      {"knots, tight", kKnots, kUnits, 10.0, "19knots"},
      {"miles, tight", kMilesPerHour, kUnits, 10.0, "22mph"},
      {"kilometers, tight", kKilometersPerHour, kUnits, 10.0, "36km/h"},
      {"meters, tight", kMetersPerSecond, kUnits, 10.0, "10m/s"},
      {"converted without unit", kKilometersPerHour, kNone, 10.0, "36"},
      {"half to even", kMetersPerSecond, kUnits, 2.5, "2m/s"},
      {"half to even, up", kMetersPerSecond, kUnits, 3.5, "4m/s"},
      {"grouped", kMetersPerSecond, kSpaced, 1234.0, "1,234 m/s"},
      {"decimals are not read", kMetersPerSecond, withDecimals(2), 1.25, "1m/s"},
      {"not a number", kKnots, kSpaced, kNan, "NaN knots"},
      {"infinite", kKnots, kSpaced, kInfinity, "∞ knots"},
  };
  for (const UnitCase& c : cases) {
    tests::useOnlySetting(kSetting, c.code);
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindSpeed(c.options, c.value), c.text) << c.why;
  }
}

TEST(WeatherWindSpeed, AMinusBeforeAZeroStays) {
  tests::useOnlySetting(kSetting, kMetersPerSecond);
  EXPECT_EQ(KZMUtilitiesFormatWeatherWindSpeed(kUnits, -0.3), "-0m/s");
}

TEST(WeatherWindDirection, ABoundaryBelongsToTheNextSector) {
  struct Sector {
    double end;
    const char* before;
    const char* from;
  };
  const Sector sectors[] = {
      {22.5, "North", "North East"},  {67.5, "North East", "East"},   {112.5, "East", "South East"},
      {157.5, "South East", "South"}, {202.5, "South", "South West"}, {247.5, "South West", "West"},
      {292.5, "West", "North West"},  {337.5, "North West", "North"},
  };
  for (const Sector& sector : sectors) {
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindDirection(below(sector.end)), sector.before) << sector.end;
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindDirection(sector.end), sector.from) << sector.end;
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindDirection(above(sector.end)), sector.from) << sector.end;
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindDirection(sector.end - 22.5), sector.before) << "in the middle";
  }
}

TEST(WeatherWindDirection, BearingsAreNotReducedToOneTurn) {
  for (const double degrees : {-0.0, 0.0, 22.4, -10.0, -180.0, -1e300, 337.5, 360.0, 450.0, 540.0, 720.0, 1e300, kNan,
                               -kNan, kInfinity, -kInfinity}) {
    EXPECT_EQ(KZMUtilitiesFormatWeatherWindDirection(degrees), "North") << degrees;
  }
  EXPECT_EQ(KZMUtilitiesFormatWeatherWindDirection(337.49), "North West");
}

}  // namespace
}  // namespace kzm::weather
