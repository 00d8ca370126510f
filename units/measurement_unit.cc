#include "units/measurement_unit.h"

#include <cstddef>
#include <iterator>

#include "core/rows.h"

namespace kzm {
namespace units {
namespace {

struct UnitFacts {
  MeasurementUnit unit;
  std::string_view name;
  std::string_view symbol;
  std::string_view sample;  // the number that the sample of this kind of quantity shows in this unit
};

// clang-format off
//   unit                                name                 symbol  sample
constexpr UnitFacts kFacts[] = {
    {MeasurementUnit::celsius,           "celsius",           "°C",   "0"},
    {MeasurementUnit::fahrenheit,        "fahrenheit",        "°F",   "32"},
    {MeasurementUnit::kelvin,            "kelvin",            "K",    "273.15"},
    {MeasurementUnit::metersPerSecond,   "metersPerSecond",   "m/s",  "0"},
    {MeasurementUnit::kilometersPerHour, "kilometersPerHour", "km/h", "0"},
    {MeasurementUnit::milesPerHour,      "milesPerHour",      "mph",  "0"},
    {MeasurementUnit::knots,             "knots",             "kn",   "0"},
    {MeasurementUnit::hectopascals,      "hectopascals",      "hPa",  "0"},
    {MeasurementUnit::millibars,         "millibars",         "mbar", "0"},
    {MeasurementUnit::inchesOfMercury,   "inchesOfMercury",   "inHg", "0"},
    {MeasurementUnit::kilometers,        "kilometers",        "km",   "0"},
    {MeasurementUnit::miles,             "miles",             "mi",   "0"},
    {MeasurementUnit::millimeters,       "millimeters",       "mm",   "30"},
    {MeasurementUnit::centimeters,       "centimeters",       "cm",   "3"},
    {MeasurementUnit::inches,            "inches",            "in",   "1.181"},
};
// clang-format on

// Each unit's row is at the unit's own number.
static_assert(core::areInOrder(kFacts, &UnitFacts::unit), "a unit has no row, or not its place");

// A number that is no unit has no facts.
constexpr UnitFacts factsOf(MeasurementUnit unit) noexcept {
  const auto position = static_cast<std::size_t>(unit);
  return position < std::size(kFacts) ? kFacts[position] : UnitFacts{};
}

}  // namespace

std::string_view symbolOf(MeasurementUnit unit) noexcept { return factsOf(unit).symbol; }

std::string sampleIn(MeasurementUnit unit) {
  std::string text(factsOf(unit).sample);
  return text.append(" ").append(factsOf(unit).symbol);
}

}  // namespace units

std::string_view measurementUnitName(MeasurementUnit unit) noexcept { return units::factsOf(unit).name; }

}  // namespace kzm
