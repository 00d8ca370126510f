#include "units/locale_units.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

#include "units/measurement_unit.h"

namespace kzm::units {
namespace {

using Unit = MeasurementUnit;

constexpr Preferences kUnitedStates = {Unit::milesPerHour, Unit::inchesOfMercury, Unit::fahrenheit,
                                       Unit::miles,        Unit::inches,          Unit::inches};

TEST(UnitsFromTexts, FollowTheSymbols) {
  struct Case {
    const char* why;
    Samples samples;
    Preferences expected;
  };
  const Case cases[] = {
      {"a metric locale",
       {"0 km/h", "0 hPa", "0°C", "0 km", "30 mm", "3 cm"},
       {Unit::kilometersPerHour, Unit::hectopascals, Unit::celsius, Unit::kilometers, Unit::millimeters,
        Unit::centimeters}                                                                                                              },
      {"the United States",                       {"0 mph", "0 inHg", "32°F", "0 mi", "1.181 in", "1.181 in"},            kUnitedStates},
      {"no symbol at all",                        {},                                                                      kMetric      },
      {"metres per second and millibars",
       {"0 m/s", "0 mbar", "0°C", "0 km", "30 mm", "3 cm"},
       {Unit::metersPerSecond, Unit::millibars, Unit::celsius, Unit::kilometers, Unit::millimeters, Unit::centimeters}                  },
      {"knots go first",
       {"0 m/s 0 mph 0 kn", "", "", "", "", ""},
       {Unit::knots, Unit::hectopascals, Unit::celsius, Unit::kilometers, Unit::millimeters, Unit::centimeters}                         },
      {"miles per hour before metres per second",
       {"0 m/s 0 mph", "", "", "", "", ""},
       {Unit::milesPerHour, Unit::hectopascals, Unit::celsius, Unit::kilometers, Unit::millimeters, Unit::centimeters}                  },
      {"millibars before inches",
       {"", "0 inHg 0 mbar", "", "", "", ""},
       {Unit::kilometersPerHour, Unit::millibars, Unit::celsius, Unit::kilometers, Unit::millimeters,
        Unit::centimeters}                                                                                                              },
      {"kelvin is never a default",               {"0 km/h", "0 hPa", "273.15 K", "0 km", "30 mm", "3 cm"},                kMetric      },
      {"a symbol counts anywhere",
       {"knots", "0 millimbars", "°F 32", "0 smil", "", ""},
       {Unit::knots, Unit::millibars, Unit::fahrenheit, Unit::miles, Unit::millimeters, Unit::centimeters}                              },
      {"case counts",                             {"0 MPH 0 KN 0 M/S", "0 MBAR", "32°f", "0 MI", "1.181 IN", "1.181 IN"}, kMetric      },
      {"hostile texts",                           {"%@%n%s", std::string(3, '\0'), "\xC2", "\xFF\xFE", "%", "°"},         kMetric      },
  };
  for (const Case& c : cases) EXPECT_EQ(preferencesFrom(c.samples), c.expected) << c.why;
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
      {Quantity::windSpeed,   "US GB",                   Unit::milesPerHour     },
      {Quantity::windSpeed,   "FI KR NO PL RU SE",       Unit::metersPerSecond  },
      {Quantity::windSpeed,   "DE FR CA IN LR MM BR EG", Unit::kilometersPerHour},
      {Quantity::pressure,    "US",                      Unit::inchesOfMercury  },
      {Quantity::pressure,    "BR EG GB IL TH",          Unit::millibars        },
      {Quantity::pressure,    "DE FR CA IN MX RU SE PR", Unit::hectopascals     },
      {Quantity::temperature, "US BS BZ KY LR PR PW",    Unit::fahrenheit       },
      {Quantity::temperature, "GB DE FR CA IN MM GU",    Unit::celsius          },
      {Quantity::distance,    "US GB",                   Unit::miles            },
      {Quantity::distance,    "DE SE LR PR IE CA",       Unit::kilometers       },
      {Quantity::rain,        "US",                      Unit::inches           },
      {Quantity::rain,        "GB BR LR PR DE",          Unit::millimeters      },
      {Quantity::snow,        "US",                      Unit::inches           },
      {Quantity::snow,        "GB BR LR PR DE",          Unit::centimeters      },
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

TEST(MeasurementUnits, HaveNamesAndSymbols) {
  struct Case {
    Unit unit;
    const char* name;
    const char* symbol;
  };
  const Case cases[] = {
      {Unit::celsius,           "celsius",           "°C" },
      {Unit::fahrenheit,        "fahrenheit",        "°F" },
      {Unit::kelvin,            "kelvin",            "K"   },
      {Unit::metersPerSecond,   "metersPerSecond",   "m/s" },
      {Unit::kilometersPerHour, "kilometersPerHour", "km/h"},
      {Unit::milesPerHour,      "milesPerHour",      "mph" },
      {Unit::knots,             "knots",             "kn"  },
      {Unit::hectopascals,      "hectopascals",      "hPa" },
      {Unit::millibars,         "millibars",         "mbar"},
      {Unit::inchesOfMercury,   "inchesOfMercury",   "inHg"},
      {Unit::kilometers,        "kilometers",        "km"  },
      {Unit::miles,             "miles",             "mi"  },
      {Unit::millimeters,       "millimeters",       "mm"  },
      {Unit::centimeters,       "centimeters",       "cm"  },
      {Unit::inches,            "inches",            "in"  },
  };
  static_assert(std::size(cases) == 15);
  for (const Case& c : cases) {
    EXPECT_EQ(measurementUnitName(c.unit), c.name);
    EXPECT_EQ(symbolOf(c.unit), c.symbol);
  }
  EXPECT_EQ(measurementUnitName(static_cast<Unit>(200)), "");
}

}  // namespace
}  // namespace kzm::units
