#include "units/locale_units.h"

#include <string_view>

#include "units/measurement_unit.h"

namespace kzm::units {
namespace {

// Where a quantity is not shown in the metric unit of kMetric.
struct Habit {
  Quantity quantity;
  std::string_view regions;
  MeasurementUnit unit;
};

// Wind: the two countries whose speed limits are in miles, and the six whose weather services use m/s.
// Pressure: what the barometers read in the US, and where the hectopascal kept its old name.
// Temperature: the countries whose forecasts are in Fahrenheit; Liberia, too, keeps the US measures.
// Distance: two countries have miles on their road signs. Rain and snow: only the US measures them in inches.
// clang-format off
//   quantity               regions                 unit
constexpr Habit kHabits[] = {
    {Quantity::windSpeed,   "US GB",                MeasurementUnit::milesPerHour},
    {Quantity::windSpeed,   "FI KR NO PL RU SE",    MeasurementUnit::metersPerSecond},
    {Quantity::pressure,    "US",                   MeasurementUnit::inchesOfMercury},
    {Quantity::pressure,    "BR EG GB IL TH",       MeasurementUnit::millibars},
    {Quantity::temperature, "US BS BZ KY LR PR PW", MeasurementUnit::fahrenheit},
    {Quantity::distance,    "US GB",                MeasurementUnit::miles},
    {Quantity::rain,        "US",                   MeasurementUnit::inches},
    {Quantity::snow,        "US",                   MeasurementUnit::inches},
};
// clang-format on

constexpr std::size_t kCodeLength = 2;  // of a country; "001" and its like are parts of the world and have no habits

// The first rule of a quantity whose text contains the symbol decides.
struct Rule {
  Quantity quantity;
  Quantity sample;
  MeasurementUnit symbol;
  MeasurementUnit decision;
};

// Deliberate: the second rule of snow looks at the sample of rain. And miles in a sample of rain or snow mean inches:
// a text in miles shows a locale that measures in the old units
// (UnitsFromTexts.TheSecondRuleOfSnowLooksAtTheSampleOfRain, UnitsFromTexts.MilesInASampleOfRainOrSnowMeanInches).
// clang-format off
//   quantity               in the sample of       for the symbol of                 decides for
constexpr Rule kRules[] = {
    {Quantity::windSpeed,   Quantity::windSpeed,   MeasurementUnit::knots,           MeasurementUnit::knots},
    {Quantity::windSpeed,   Quantity::windSpeed,   MeasurementUnit::milesPerHour,    MeasurementUnit::milesPerHour},
    {Quantity::windSpeed,   Quantity::windSpeed,   MeasurementUnit::metersPerSecond, MeasurementUnit::metersPerSecond},
    {Quantity::pressure,    Quantity::pressure,    MeasurementUnit::millibars,       MeasurementUnit::millibars},
    {Quantity::pressure,    Quantity::pressure,    MeasurementUnit::inchesOfMercury, MeasurementUnit::inchesOfMercury},
    {Quantity::temperature, Quantity::temperature, MeasurementUnit::fahrenheit,      MeasurementUnit::fahrenheit},
    {Quantity::distance,    Quantity::distance,    MeasurementUnit::miles,           MeasurementUnit::miles},
    {Quantity::rain,        Quantity::rain,        MeasurementUnit::miles,           MeasurementUnit::inches},
    {Quantity::rain,        Quantity::rain,        MeasurementUnit::inches,          MeasurementUnit::inches},
    {Quantity::snow,        Quantity::snow,        MeasurementUnit::miles,           MeasurementUnit::inches},
    {Quantity::snow,        Quantity::rain,        MeasurementUnit::inches,          MeasurementUnit::inches},
};
// clang-format on

constexpr std::size_t at(Quantity quantity) { return static_cast<std::size_t>(quantity); }

// The units in which the region's people think.
Preferences unitsOfRegion(std::string_view region) {
  Preferences units = kMetric;
  for (const Habit& habit : kHabits) {
    const bool holds = region.size() == kCodeLength && habit.regions.find(region) != std::string_view::npos;
    if (holds) units[at(habit.quantity)] = habit.unit;
  }
  return units;
}

}  // namespace

Samples samplesIn(const port::MeasurementHabits& habits) {
  Preferences units = unitsOfRegion(habits.region);
  for (const MeasurementUnit scale : kTemperatures) {
    if (habits.temperature == measurementUnitName(scale)) units[at(Quantity::temperature)] = scale;
  }
  Samples samples;
  for (std::size_t i = 0; i < kQuantities; ++i) samples[i] = sampleIn(units[i]);
  return samples;
}

Preferences preferencesFrom(const Samples& samples) {
  Preferences decided = kMetric;
  std::array<bool, kQuantities> isDecided{};
  for (const Rule& rule : kRules) {
    const std::size_t i = at(rule.quantity);
    if (isDecided[i] || samples[at(rule.sample)].find(symbolOf(rule.symbol)) == std::string::npos) continue;
    decided[i] = rule.decision;
    isDecided[i] = true;
  }
  return decided;
}

}  // namespace kzm::units
