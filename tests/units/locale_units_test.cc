#include "units/locale_units.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace kzm::units {
namespace {

using Unit = MeasurementUnit;

constexpr Preferences kUnitedStates = {Unit::milesPerHour, Unit::inchesOfMercury, Unit::fahrenheit,
                                       Unit::miles,        Unit::inches,          Unit::inches};

TEST(UnitsFromTexts, FollowTheSymbols) {
  struct Case {
    const char* why;
    Quantity quantity;
    const char* sample;
    Unit expected;
  };
  const Case cases[] = {
      {"knots", Quantity::windSpeed, "0 kn", Unit::knots},
      {"knots go first", Quantity::windSpeed, "0 m/s 0 mph 0 kn", Unit::knots},
      {"miles per hour", Quantity::windSpeed, "0 mph", Unit::milesPerHour},
      {"they go before meters", Quantity::windSpeed, "0 m/s 0 mph", Unit::milesPerHour},
      {"meters", Quantity::windSpeed, "0 m/s", Unit::metersPerSecond},
      {"kilometers", Quantity::windSpeed, "0 km/h", Unit::kilometersPerHour},
      {"a symbol counts anywhere", Quantity::windSpeed, "0 km/sa", Unit::metersPerSecond},
      {"a symbol counts anywhere", Quantity::windSpeed, "unknown", Unit::knots},
      {"case counts", Quantity::windSpeed, "0 MPH 0 KN 0 M/S", Unit::kilometersPerHour},
      {"millibars", Quantity::pressure, "0 mbar", Unit::millibars},
      {"they go before inches", Quantity::pressure, "0 inHg 0 mbar", Unit::millibars},
      {"inches", Quantity::pressure, "0 inHg", Unit::inchesOfMercury},
      {"hectopascals", Quantity::pressure, "0 hPa", Unit::hectopascals},
      {"another unit", Quantity::pressure, "0 mmHg", Unit::hectopascals},
      {"Fahrenheit", Quantity::temperature, "32°F", Unit::fahrenheit},
      {"Celsius", Quantity::temperature, "0°C", Unit::celsius},
      {"kelvin is never chosen", Quantity::temperature, "273.15 K", Unit::celsius},
      {"case counts", Quantity::temperature, "32°f", Unit::celsius},
      {"miles", Quantity::distance, "0 mi", Unit::miles},
      {"a symbol counts anywhere", Quantity::distance, "0 smil", Unit::miles},
      {"kilometers", Quantity::distance, "0 km", Unit::kilometers},
      {"inches of rain", Quantity::rain, "1.181 in", Unit::inches},
      {"millimeters of rain", Quantity::rain, "30 mm", Unit::millimeters},
      {"centimeters of snow", Quantity::snow, "3 cm", Unit::centimeters},
      {"no place is a symbol", Quantity::windSpeed, "%@%n%s", Unit::kilometersPerHour},
      {"half a letter", Quantity::temperature, "\xC2", Unit::celsius},
  };
  for (const Case& c : cases) {
    Samples samples;
    samples[static_cast<std::size_t>(c.quantity)] = c.sample;
    EXPECT_EQ(preferencesFrom(samples)[static_cast<std::size_t>(c.quantity)], c.expected) << c.why;
  }
}

TEST(UnitsFromTexts, OfSixTexts) {
  EXPECT_EQ(preferencesFrom({"0 km/h", "0 hPa", "0°C", "0 km", "30 mm", "3 cm"}), kMetric);
  EXPECT_EQ(preferencesFrom({"0 mph", "0 inHg", "32°F", "0 mi", "1.181 in", "1.181 in"}), kUnitedStates);
  EXPECT_EQ(preferencesFrom({}), kMetric) << "no symbol at all";
  EXPECT_EQ(kMetric, (Preferences{Unit::kilometersPerHour, Unit::hectopascals, Unit::celsius, Unit::kilometers,
                                  Unit::millimeters, Unit::centimeters}));
}

TEST(UnitsFromTexts, TheSecondRuleOfSnowLooksAtTheSampleOfRain) {
  const Preferences rainInInches = preferencesFrom({"", "", "", "", "1.181 in", "3 cm"});
  EXPECT_EQ(rainInInches[4], Unit::inches);
  EXPECT_EQ(rainInInches[5], Unit::inches);
  const Preferences snowInInches = preferencesFrom({"", "", "", "", "30 mm", "1.181 in"});
  EXPECT_EQ(snowInInches[4], Unit::millimeters);
  EXPECT_EQ(snowInInches[5], Unit::centimeters);
}

TEST(UnitsFromTexts, MilesInASampleOfRainOrSnowMeanInches) {
  const Preferences rain = preferencesFrom({"", "", "", "", "30 milimita", "3 cm"});
  EXPECT_EQ(rain[4], Unit::inches);
  EXPECT_EQ(rain[5], Unit::centimeters);
  const Preferences snow = preferencesFrom({"", "", "", "", "30 mm", "0 mi"});
  EXPECT_EQ(snow[4], Unit::millimeters);
  EXPECT_EQ(snow[5], Unit::inches);
}

TEST(UnitsFromTexts, WindLooksAtNoOtherSample) {
  EXPECT_EQ(preferencesFrom({"0 km/h", "mph", "kn", "m/s mph", "mph", "kn"})[0], Unit::kilometersPerHour);
}

TEST(UnitsOfRegions, FollowTheTable) {
  struct Case {
    Quantity quantity;
    const char* regions;
    Unit unit;
  };
  const Case cases[] = {
      {Quantity::windSpeed, "US GB", Unit::milesPerHour},
      {Quantity::windSpeed, "FI KR NO PL RU SE", Unit::metersPerSecond},
      {Quantity::windSpeed, "DE FR CA IN LR MM BR EG", Unit::kilometersPerHour},
      {Quantity::pressure, "US", Unit::inchesOfMercury},
      {Quantity::pressure, "BR EG GB IL TH", Unit::millibars},
      {Quantity::pressure, "DE FR CA IN MX RU SE PR", Unit::hectopascals},
      {Quantity::temperature, "US BS BZ KY LR PR PW", Unit::fahrenheit},
      {Quantity::temperature, "GB DE FR CA IN MM GU", Unit::celsius},
      {Quantity::distance, "US GB", Unit::miles},
      {Quantity::distance, "DE SE LR PR IE CA", Unit::kilometers},
      {Quantity::rain, "US", Unit::inches},
      {Quantity::rain, "GB BR LR PR DE", Unit::millimeters},
      {Quantity::snow, "US", Unit::inches},
      {Quantity::snow, "GB BR LR PR DE", Unit::centimeters},
  };
  for (const Case& c : cases) {
    for (std::string regions = c.regions; !regions.empty(); regions.erase(0, 3)) {
      const std::string region = regions.substr(0, 2);
      EXPECT_EQ(preferencesFrom(samplesIn({region, ""}))[static_cast<std::size_t>(c.quantity)], c.unit) << region;
    }
  }
}

TEST(UnitsOfRegions, WhatIsNoCountryIsMetric) {
  for (const char* region : {"", "001", "150", "419", "us", "U", "USA", "US GB", "XX"}) {
    EXPECT_EQ(preferencesFrom(samplesIn({region, ""})), kMetric) << region;
  }
}

TEST(UnitsOfRegions, ATemperatureAskedForByNameGoesFirst) {
  const auto temperature = [](const char* region, const char* scale) {
    return preferencesFrom(samplesIn({region, scale}))[static_cast<std::size_t>(Quantity::temperature)];
  };
  EXPECT_EQ(temperature("US", "celsius"), Unit::celsius);
  EXPECT_EQ(temperature("DE", "fahrenheit"), Unit::fahrenheit);
  EXPECT_EQ(temperature("DE", "kelvin"), Unit::celsius) << "its sample shows no °F";
  EXPECT_EQ(temperature("US", "kelvin"), Unit::celsius);
  EXPECT_EQ(temperature("US", "miles"), Unit::fahrenheit) << "no scale of that name";
}

TEST(Samples, ReadAsTheRegionsShowThem) {
  EXPECT_EQ(samplesIn({"US", ""}), (Samples{"0 mph", "0 inHg", "32 °F", "0 mi", "1.181 in", "1.181 in"}));
  EXPECT_EQ(samplesIn({"GB", ""}), (Samples{"0 mph", "0 mbar", "0 °C", "0 mi", "30 mm", "3 cm"}));
  EXPECT_EQ(samplesIn({"SE", "kelvin"}), (Samples{"0 m/s", "0 hPa", "273.15 K", "0 km", "30 mm", "3 cm"}));
}

}  // namespace
}  // namespace kzm::units
