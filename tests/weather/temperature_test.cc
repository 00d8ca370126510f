#include <gtest/gtest.h>
#include <string>

#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

constexpr auto kSetting = "Weather.Global.Units.Degrees";
constexpr std::int64_t kCelsius = 1;
constexpr std::int64_t kFahrenheit = 2;
constexpr std::int64_t kKelvin = 3;

std::string temperature(std::int64_t code, const Dictionary& options, double celsius) {
  tests::useOnlySetting(kSetting, code);
  return KZMUtilitiesFormatWeatherTemperature(options, celsius);
}

Dictionary reversed(std::int64_t decimals) {
  Dictionary options = withDecimals(decimals);
  options.set("reverse", true);
  return options;
}

TEST(WeatherTemperature, InTheUsersUnit) {
  const UnitCase cases[] = {
      {"whole", kCelsius, kUnits, 21.6, "22°"},
      {"number alone", kCelsius, kNone, 21.6, "22"},
      {"decimals in Celsius", kCelsius, withDecimals(1), 21.64, "21.6°"},
      {"at most three", kCelsius, withDecimals(3), 21.5, "21.5°"},
      {"half to even", kCelsius, kUnits, 20.5, "20°"},
      {"half to even", kCelsius, kUnits, 21.5, "22°"},
      {"decimals as text", kCelsius, withDecimals("2"), 1.234, "1.23°"},
      {"negative decimals are none", kCelsius, withDecimals(-1), 1.5, "2°"},
      {"endless decimals", kCelsius, withDecimals(99999999), 0.1, "0.1°"},
      {"cold", kCelsius, kUnits, -12.0, "-12°"},
      {"grouped", kCelsius, kUnits, 15000000, "15,000,000°"},
      {"Fahrenheit is whole", kFahrenheit, withDecimals(2), 21.6, "71°"},
      {"Fahrenheit alone", kFahrenheit, kNone, 37.0, "99"},
      {"zero in Fahrenheit", kFahrenheit, kUnits, 0.0, "32°"},
      {"below zero in Fahrenheit", kFahrenheit, kUnits, -40.0, "-40°"},
      {"Kelvin is whole", kKelvin, withDecimals(2), 21.6, "295K"},
      {"Kelvin alone", kKelvin, kNone, 21.6, "295"},
      {"absolute zero", kKelvin, kUnits, -273.15, "0K"},
      {"not a number", kCelsius, kUnits, kNan, "NaN°"},
      {"not a number, with sign", kCelsius, kUnits, -kNan, "NaN°"},
      {"infinite", kFahrenheit, kUnits, kInfinity, "∞°"},
      {"infinite", kKelvin, kUnits, -kInfinity, "-∞K"},
  };
  for (const UnitCase& c : cases) EXPECT_EQ(temperature(c.code, c.options, c.value), c.text) << c.why;
}

TEST(WeatherTemperature, TheMinusBeforeAZeroIsDropped) {
  const UnitCase cases[] = {
      {"rounded to zero", kCelsius, kUnits, -0.3, "0°"},
      {"zero itself", kCelsius, kUnits, -0.0, "0°"},
      {"a true minus goes too", kCelsius, withDecimals(1), -0.3, "0.3°"},
      {"a true minus goes too", kCelsius, withDecimals(2), -0.04, "0.04°"},
      {"not before other digits", kCelsius, withDecimals(1), -10.0, "-10°"},
      {"in Fahrenheit", kFahrenheit, kUnits, -17.9, "0°"},
      {"in Kelvin", kKelvin, kUnits, -273.2, "0K"},
      {"without unit", kCelsius, kNone, -0.3, "0"},
      {"the last that rounds to zero", kCelsius, kUnits, -0.5, "0°"},
      {"the first that does not", kCelsius, kUnits, below(-0.5), "-1°"},
  };
  for (const UnitCase& c : cases) EXPECT_EQ(temperature(c.code, c.options, c.value), c.text) << c.why;
}

TEST(WeatherTemperature, ReverseSwapsCelsiusAndFahrenheitOnly) {
  const UnitCase cases[] = {
      {"Fahrenheit to Celsius, with its decimals", kFahrenheit, reversed(1), 21.64, "21.6°"},
      {"Celsius to Fahrenheit, whole", kCelsius, reversed(1), 21.64, "71°"},
      {"Kelvin stays", kKelvin, reversed(1), 21.64, "295K"},
  };
  for (const UnitCase& c : cases) EXPECT_EQ(temperature(c.code, c.options, c.value), c.text) << c.why;
  Dictionary unreversed = kUnits;
  unreversed.set("reverse", false);
  EXPECT_EQ(temperature(kFahrenheit, unreversed, 0.0), "32°") << "read as a boolean, not by presence";
}

TEST(WeatherTemperature, AUnitOfAnotherKindIsCelsiusAndNotReversed) {
  tests::useNoSettings();
  KZMUtilitiesDefaultUnits& units = KZMUtilitiesDefaultUnits::shared();
  const PreferredUnits before = units.units();
  PreferredUnits odd;
  odd["temperature"] = MeasurementUnit::knots;
  units.setUnits(odd);
  EXPECT_EQ(KZMUtilitiesFormatWeatherTemperature(withDecimals(1), 21.64), "21.6°");
  EXPECT_EQ(KZMUtilitiesFormatWeatherTemperature(reversed(1), 21.64), "21.6°");
  units.setUnits(before);
}

}  // namespace
}  // namespace kzm::weather
