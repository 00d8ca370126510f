#include <gtest/gtest.h>

#include <KZMUtilities/weather.h>

#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

constexpr auto kSetting = "Weather.Global.Units.Distance";
constexpr std::int64_t kKilometers = 1;
constexpr std::int64_t kMiles = 2;

TEST(WeatherDistance, IsConvertedAndGrouped) {
  const UnitCase cases[] = {
      {"kilometers", kKilometers, kNone, 1234.4, "1,234 km"},
      {"miles", kMiles, kNone, 1234.4, "767 miles"},
      {"half to even", kKilometers, kNone, 2.5, "2 km"},
      {"rounded up", kKilometers, kNone, 999.5, "1,000 km"},
      {"half to even", kKilometers, kNone, 1000.5, "1,000 km"},
      {"millions", kKilometers, kNone, 1234567.0, "1,234,567 km"},
      {"no distance", kMiles, kNone, 0.0, "0 miles"},
      {"negative", kKilometers, kNone, -1234.4, "-1,234 km"},
      {"nearly nothing", kKilometers, kNone, -0.4, "-0 km"},
      {"not a number", kKilometers, kNone, kNan, "NaN km"},
      {"infinite", kMiles, kNone, kInfinity, "∞ miles"},
      {"infinite", kMiles, kNone, -kInfinity, "-∞ miles"},
  };
  for (const UnitCase& c : cases) {
    tests::useOnlySetting(kSetting, c.code);
    EXPECT_EQ(KZMUtilitiesFormatWeatherDistance(c.value), c.text) << c.why;
  }
}

TEST(WeatherVisibility, IsNeitherConvertedNorGrouped) {
  const UnitCase cases[] = {
      {"miles are only a label", kMiles, kNone, 9.6, "10 miles"},
      {"kilometers", kKilometers, kNone, 9.6, "10 km"},
      {"not converted", kMiles, kNone, 10.0, "10 miles"},
      {"half to even", kMiles, kNone, 0.5, "0 miles"},
      {"half to even", kMiles, kNone, 1.5, "2 miles"},
      {"half to even", kMiles, kNone, 2.5, "2 miles"},
      {"not grouped", kKilometers, kNone, 1234567.0, "1234567 km"},
      {"negative zero", kKilometers, kNone, -0.2, "-0 km"},
      {"not a number", kKilometers, kNone, kNan, "nan km"},
      {"not a number, signed", kKilometers, kNone, -kNan, "nan km"},
      {"infinite", kKilometers, kNone, kInfinity, "inf km"},
      {"infinite", kKilometers, kNone, -kInfinity, "-inf km"},
  };
  for (const UnitCase& c : cases) {
    tests::useOnlySetting(kSetting, c.code);
    EXPECT_EQ(KZMUtilitiesFormatWeatherVisibility(c.value), c.text) << c.why;
  }
}

}  // namespace
}  // namespace kzm::weather
