#include <gtest/gtest.h>

#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

constexpr auto kSetting = "Weather.Global.Units.Precipitation";
constexpr std::int64_t kMetric = 1;
constexpr std::int64_t kInches = 2;

TEST(WeatherRain, InTheUsersUnit) {
  const UnitCase cases[] = {
      {"millimeters", kMetric, kNone, 2.54, "2.5mm"},
      {"inches, no zeros", kInches, kNone, 2.54, "0.1\""},
      {"inches", kInches, kNone, 30.0, "1.18\""},
      {"nothing", kMetric, kNone, 0.0, "0mm"},
      {"whole", kMetric, kNone, 3.0, "3mm"},
      {"half to even", kMetric, kNone, 2.25, "2.2mm"},
      {"half to even", kMetric, kNone, 2.35, "2.4mm"},
      {"a flood", kMetric, kNone, 12345.6, "12,345.6mm"},
      {"negative zero", kMetric, kNone, -0.01, "-0mm"},
      {"not a number", kInches, kNone, kNan, "NaN\""},
      {"infinite", kMetric, kNone, kInfinity, "∞mm"},
  };
  for (const UnitCase& c : cases) {
    tests::useOnlySetting(kSetting, c.code);
    EXPECT_EQ(KZMUtilitiesFormatWeatherRainAmount(c.value), c.text) << c.why;
  }
}

TEST(WeatherSnow, InTheUsersUnit) {
  const UnitCase cases[] = {
      {"centimeters", kMetric, kNone, 25.0, "2.5cm"},   {"inches", kInches, kNone, 25.0, "0.98\""},
      {"nothing", kMetric, kNone, 0.0, "0cm"},          {"half to even", kMetric, kNone, 22.5, "2.2cm"},
      {"deep", kMetric, kNone, 12345.0, "1,234.5cm"},   {"not a number", kMetric, kNone, kNan, "NaNcm"},
      {"infinite", kInches, kNone, -kInfinity, "-∞\""},
  };
  for (const UnitCase& c : cases) {
    tests::useOnlySetting(kSetting, c.code);
    EXPECT_EQ(KZMUtilitiesFormatWeatherSnowAmount(c.value), c.text) << c.why;
  }
}

TEST(WeatherSnow, FollowsTheUnitOfRain) {
  tests::useNoSettings();
  KZMUtilitiesDefaultUnits& units = KZMUtilitiesDefaultUnits::shared();
  const PreferredUnits before = units.units();
  PreferredUnits mixed;
  mixed["rain"] = MeasurementUnit::inches;
  mixed["snow"] = MeasurementUnit::centimeters;
  units.setUnits(mixed);
  EXPECT_EQ(KZMUtilitiesFormatWeatherSnowAmount(25.0), "0.98\"");
  mixed["rain"] = MeasurementUnit::millimeters;
  mixed["snow"] = MeasurementUnit::inches;
  units.setUnits(mixed);
  EXPECT_EQ(KZMUtilitiesFormatWeatherSnowAmount(25.0), "2.5cm");
  units.setUnits(before);
}

}  // namespace
}  // namespace kzm::weather
