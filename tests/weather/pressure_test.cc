#include <gtest/gtest.h>

#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

constexpr auto kSetting = "Weather.Global.Units.Pressure";
constexpr std::int64_t kHectopascals = 1;
constexpr std::int64_t kMillibars = 2;
constexpr std::int64_t kInches = 3;

TEST(WeatherPressure, InTheUsersUnit) {
  const UnitCase cases[] = {
      {"hectopascals", kHectopascals, kSpaced, 1013.25, "1,013 hPa"},
      {"hectopascals, tight", kHectopascals, kUnits, 1013.25, "1,013hPa"},
      {"hectopascals, alone", kHectopascals, kNone, 1013.25, "1,013"},
      {"half to even", kHectopascals, withDecimals(true), 1013.25, "1,013.2hPa"},
      {"millibars", kMillibars, kSpaced, 1013.25, "1,013 mb"},
      {"millibars, tight", kMillibars, kUnits, 1013.25, "1,013mb"},
      {"millibars, alone", kMillibars, kNone, 1013.25, "1,013"},
      {"millibars, a digit", kMillibars, withDecimals(1), 1013.27, "1,013.3mb"},
      {"no digit needed", kMillibars, withDecimals(1), 1013.0, "1,013mb"},
      {"not a number", kHectopascals, kSpaced, kNan, "NaN hPa"},
      {"infinite", kMillibars, kSpaced, -kInfinity, "-∞ mb"},
      {"negative zero", kHectopascals, kUnits, -0.0, "-0hPa"},
  };
  for (const UnitCase& c : cases) {
    tests::useOnlySetting(kSetting, c.code);
    EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(c.options, c.value), c.text) << c.why;
  }
}

TEST(WeatherPressure, InchesIgnoreTheOptions) {
  tests::useOnlySetting(kSetting, kInches);
  for (const Dictionary& options : {kNone, kUnits, kSpaced, withDecimals(0), withDecimals(1), withDecimals(5)}) {
    EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(options, 1013.25), "29.92\"");
  }
  EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(kNone, 0.0), "0\"");
  EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(kNone, 33.86388666666671), "1\"");
}

TEST(WeatherPressure, DecimalsAreABoolean) {
  tests::useOnlySetting(kSetting, kHectopascals);
  for (const Value& decimals :
       {Value(true), Value(1), Value(2), Value(3), Value(5), Value(-1), Value(0.5), Value("yes"), Value("2")}) {
    EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(withDecimals(decimals), 1000.06), "1,000.1hPa");
  }
  for (const Value& decimals : {Value(false), Value(0), Value(nullptr), Value("no"), Value("0"), Value(Array())}) {
    EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(withDecimals(decimals), 1000.06), "1,000hPa");
  }
}

TEST(WeatherPressure, AUnitOfAnotherKindIsHectopascals) {
  tests::useNoSettings();
  KZMUtilitiesDefaultUnits& units = KZMUtilitiesDefaultUnits::shared();
  const PreferredUnits before = units.units();
  PreferredUnits odd;
  odd["pressure"] = MeasurementUnit::celsius;
  units.setUnits(odd);
  EXPECT_EQ(KZMUtilitiesFormatWeatherPressure(kSpaced, 1000.0), "1,000 hPa");
  units.setUnits(before);
}

}  // namespace
}  // namespace kzm::weather
