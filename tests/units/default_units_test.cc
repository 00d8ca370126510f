#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <span>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <KZMSettings/KZMSettings.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/formatters.h>

#include "core/rows.h"
#include "tests/support/settings.h"

namespace kzm {
namespace {

using Unit = MeasurementUnit;
using Accessor = Unit (KZMUtilitiesDefaultUnits::*)() const;

class DefaultUnits : public testing::Test {
 protected:
  DefaultUnits() { tests::useNoSettings(); }
  ~DefaultUnits() override { tests::useNoSettings(); }
};

constexpr auto kWind = "Weather.Global.Units.WindSpeed";
constexpr auto kSensors = "Sensors.Global.Degrees.Format";
constexpr auto kDegrees = "Weather.Global.Units.Degrees";
constexpr auto kDistance = "Weather.Global.Units.Distance";
constexpr auto kPressure = "Weather.Global.Units.Pressure";
constexpr auto kPrecipitation = "Weather.Global.Units.Precipitation";

using Units = KZMUtilitiesDefaultUnits;

// The units of the codes from 1 on.
constexpr Unit kSpeeds[] = {Unit::metersPerSecond, Unit::kilometersPerHour, Unit::milesPerHour, Unit::knots};
constexpr Unit kTemperatures[] = {Unit::celsius, Unit::fahrenheit, Unit::kelvin};
constexpr Unit kDistances[] = {Unit::kilometers, Unit::miles};
constexpr Unit kPressures[] = {Unit::hectopascals, Unit::millibars, Unit::inchesOfMercury};
constexpr Unit kRains[] = {Unit::millimeters, Unit::inches};
constexpr Unit kSnows[] = {Unit::centimeters, Unit::inches};

struct Row {
  const char* name;
  Accessor ask;
  const char* keyPath;
  std::span<const Unit> codes;
  const char* key;
  Unit mark;  // a unit of none of the codes
};

const Row kRows[] = {
    {"windSpeedUnit", &Units::windSpeedUnit, kWind, kSpeeds, "windspeed", Unit::inches},
    {"sensorsTemperatureUnit", &Units::sensorsTemperatureUnit, kSensors, kTemperatures, "temperature", Unit::inches},
    {"weatherTemperatureUnit", &Units::weatherTemperatureUnit, kDegrees, kTemperatures, "temperature", Unit::inches},
    {"distanceUnit", &Units::distanceUnit, kDistance, kDistances, "distance", Unit::inches},
    {"pressureUnit", &Units::pressureUnit, kPressure, kPressures, "pressure", Unit::inches},
    {"rainUnit", &Units::rainUnit, kPrecipitation, kRains, "rain", Unit::knots},
    {"snowUnit", &Units::snowUnit, kPrecipitation, kSnows, "snow", Unit::knots},
};

PreferredUnits preferred(Unit wind, Unit pressure, Unit temperature, Unit distance, Unit rain, Unit snow) {
  PreferredUnits units;
  units["windspeed"] = wind;
  units["pressure"] = pressure;
  units["temperature"] = temperature;
  units["distance"] = distance;
  units["rain"] = rain;
  units["snow"] = snow;
  return units;
}

PreferredUnits only(const char* key, Unit unit) {
  PreferredUnits units;
  units[key] = unit;
  return units;
}

TEST_F(DefaultUnits, EveryCodeOfEverySettingGivesItsUnit) {
  const KZMUtilitiesDefaultUnits units;
  for (const Row& row : kRows) {
    for (std::size_t i = 0; i < row.codes.size(); ++i) {
      tests::useOnlySetting(row.keyPath, static_cast<std::int64_t>(i + 1));
      EXPECT_EQ((units.*row.ask)(), row.codes[i]) << row.name << " " << i + 1;
    }
  }
}

// What is answered when the row's mark is the preferred unit.
Unit answerTo(const Row& row, const Value& setting) {
  KZMUtilitiesDefaultUnits units;
  units.setUnits(only(row.key, row.mark));
  tests::useOnlySetting(row.keyPath, setting);
  return (units.*row.ask)();
}

TEST_F(DefaultUnits, AnyOtherCodeGivesThePreferredUnit) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
  for (const Row& row : kRows) {
    const auto beyond = static_cast<std::int64_t>(row.codes.size()) + 1;
    for (const std::int64_t code : {std::int64_t{0}, std::int64_t{-1}, beyond, kMost, kLeast}) {
      EXPECT_EQ(answerTo(row, code), row.mark) << row.name << " " << code;
    }
    EXPECT_EQ(answerTo(row, nullptr), row.mark) << row.name << " without a setting";
  }
}

TEST_F(DefaultUnits, SettingsAreReadAsIntegers) {
  struct Case {
    const char* why;
    Value setting;
    Unit expected;
  };
  Dictionary nested;
  nested.set("value", 2);
  const Array listed(1, 2);
  const std::string endless(1000, '9');
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const Case cases[] = {
      {"a text", "2", Unit::millibars},
      {"a text with spaces", "  3x", Unit::inchesOfMercury},
      {"a fraction is cut", 2.9, Unit::millibars},
      {"a text's fraction is cut", "2.9", Unit::millibars},
      {"true is one", true, Unit::hectopascals},
      {"false is none", false, Unit::miles},
      {"null", nullptr, Unit::miles},
      {"a word", "millibars", Unit::miles},
      {"an array", listed, Unit::miles},
      {"a dictionary", nested, Unit::miles},
      {"not a number", kNan, Unit::miles},
      {"infinite", kInfinity, Unit::miles},
      {"less than one", 0.99, Unit::miles},
      {"just below four", 3.9999999999999996, Unit::inchesOfMercury},
      {"four", 4.0, Unit::miles},
      {"an endless text", endless, Unit::miles},
  };
  KZMUtilitiesDefaultUnits units;
  units.setUnits(only("pressure", Unit::miles));
  for (const Case& c : cases) {
    tests::useOnlySetting(kPressure, c.setting);
    EXPECT_EQ(units.pressureUnit(), c.expected) << c.why;
  }
}

TEST_F(DefaultUnits, RainAndSnowShareOneSetting) {
  const KZMUtilitiesDefaultUnits units;
  tests::useOnlySetting(kPrecipitation, 1);
  EXPECT_EQ(units.rainUnit(), Unit::millimeters);
  EXPECT_EQ(units.snowUnit(), Unit::centimeters);
}

TEST_F(DefaultUnits, TheTwoTemperaturesDifferInTheirSettingOnly) {
  const KZMUtilitiesDefaultUnits units;
  Dictionary settings;
  settings.set(kSensors, 3);
  settings.set(kDegrees, 2);
  KZMSettingsUseObjects(settings);
  EXPECT_EQ(units.sensorsTemperatureUnit(), Unit::kelvin);
  EXPECT_EQ(units.weatherTemperatureUnit(), Unit::fahrenheit);
}

TEST_F(DefaultUnits, AChangeOfTheSettingsIsSeenByTheNextCall) {
  const KZMUtilitiesDefaultUnits units;
  tests::useOnlySetting(kSensors, 1);
  EXPECT_EQ(units.sensorsTemperatureUnit(), Unit::celsius);
  tests::useOnlySetting(kSensors, 3);
  EXPECT_EQ(units.sensorsTemperatureUnit(), Unit::kelvin);
}

TEST_F(DefaultUnits, AMissingKeyIsMetric) {
  KZMUtilitiesDefaultUnits units;
  units.setUnits({});
  EXPECT_EQ(units.windSpeedUnit(), Unit::kilometersPerHour);
  EXPECT_EQ(units.pressureUnit(), Unit::hectopascals);
  EXPECT_EQ(units.sensorsTemperatureUnit(), Unit::celsius);
  EXPECT_EQ(units.weatherTemperatureUnit(), Unit::celsius);
  EXPECT_EQ(units.distanceUnit(), Unit::kilometers);
  EXPECT_EQ(units.rainUnit(), Unit::millimeters);
  EXPECT_EQ(units.snowUnit(), Unit::centimeters);
}

TEST_F(DefaultUnits, UnitsAreGivenBackAsTheyWereSet) {
  KZMUtilitiesDefaultUnits units;
  PreferredUnits odd = only("windspeed", Unit::inches);
  odd["tide"] = Unit::miles;
  units.setUnits(odd);
  EXPECT_EQ(units.units(), odd);
  EXPECT_EQ(units.windSpeedUnit(), Unit::inches);
}

TEST_F(DefaultUnits, EveryUnitCanBeChosen) {
  for (std::size_t i = 0; i < core::countEnumerators<Unit>(); ++i) {
    const auto unit = static_cast<Unit>(i);
    const auto offers = [unit](const UnitSetting& setting) { return std::ranges::count(setting.units, unit) > 0; };
    EXPECT_TRUE(std::ranges::any_of(unitSettings(), offers)) << measurementUnitName(unit);
  }
}

TEST_F(DefaultUnits, UnitsAreACopy) {
  KZMUtilitiesDefaultUnits units;
  units.setUnits(only("windspeed", Unit::knots));
  PreferredUnits copy = units.units();
  copy["windspeed"] = Unit::milesPerHour;
  EXPECT_EQ(units.windSpeedUnit(), Unit::knots);
  units.setUnits(copy);
  EXPECT_EQ(units.windSpeedUnit(), Unit::milesPerHour);
}

TEST_F(DefaultUnits, FollowTheLocaleInForceWhenMade) {
  struct Case {
    const char* locale;
    PreferredUnits expected;
  };
  const PreferredUnits metric = preferred(Unit::kilometersPerHour, Unit::hectopascals, Unit::celsius, Unit::kilometers,
                                          Unit::millimeters, Unit::centimeters);
  const PreferredUnits american =
      preferred(Unit::milesPerHour, Unit::inchesOfMercury, Unit::fahrenheit, Unit::miles, Unit::inches, Unit::inches);
  const PreferredUnits british =
      preferred(Unit::milesPerHour, Unit::millibars, Unit::celsius, Unit::miles, Unit::millimeters, Unit::centimeters);
  const PreferredUnits northern = preferred(Unit::metersPerSecond, Unit::hectopascals, Unit::celsius, Unit::kilometers,
                                            Unit::millimeters, Unit::centimeters);
  const PreferredUnits egyptian = preferred(Unit::kilometersPerHour, Unit::millibars, Unit::celsius, Unit::kilometers,
                                            Unit::millimeters, Unit::centimeters);
  const Case cases[] = {
      {"en_US", american},
      {"en_US.UTF-8", american},
      {"en_GB", british},
      {"de_DE", metric},
      {"fr_FR", metric},
      {"es_ES", metric},
      {"hi_IN", metric},
      {"sv_SE", northern},
      {"ru_RU", northern},
      {"ar_EG", egyptian},
      {"en_001", metric},
      {"C", metric},
      {"POSIX", metric},
      {"xx_YY", metric},
      {"en", american},
      {"de", metric},
      {"en_US@measure=metric", metric},
      {"en_US@rg=gbzzzz", british},
      {"de_DE@measure=ussystem", american},
      {"sv_SE@measure=metric", metric},
  };
  for (const Case& c : cases) {
    setCurrentLocale(c.locale);
    EXPECT_EQ(KZMUtilitiesDefaultUnits().units(), c.expected) << c.locale;
  }
  setCurrentLocale("de_DE@mu=fahrenheit");
  EXPECT_EQ(KZMUtilitiesDefaultUnits().weatherTemperatureUnit(), Unit::fahrenheit);
  setCurrentLocale("en_US@mu=celsius");
  EXPECT_EQ(KZMUtilitiesDefaultUnits().weatherTemperatureUnit(), Unit::celsius);
  setCurrentLocale("en_US");
}

TEST_F(DefaultUnits, TheSharedOneIsMadeOnceAndKeepsItsLocale) {
  KZMUtilitiesDefaultUnits& shared = KZMUtilitiesDefaultUnits::shared();
  const PreferredUnits before = shared.units();
  setCurrentLocale("sv_SE@rg=uszzzz");
  EXPECT_EQ(&KZMUtilitiesDefaultUnits::shared(), &shared);
  EXPECT_EQ(shared.units(), before);
  setCurrentLocale("en_US");
}

TEST_F(DefaultUnits, ManyThreadsAskWhileOthersChange) {
  KZMUtilitiesDefaultUnits& shared = KZMUtilitiesDefaultUnits::shared();
  const PreferredUnits before = shared.units();
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&shared, i] {
      for (int round = 0; round < 300; ++round) {
        if (i == 0) {
          shared.setUnits(only("windspeed", round % 2 == 0 ? Unit::knots : Unit::milesPerHour));
        } else if (i == 1) {
          tests::useOnlySetting(kPressure, round % 4);
        }
        EXPECT_LE(shared.units().size(), 6U);
        EXPECT_NE(measurementUnitName(shared.windSpeedUnit()), "");
        EXPECT_NE(measurementUnitName(shared.pressureUnit()), "");
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  shared.setUnits(before);
}

}  // namespace
}  // namespace kzm
