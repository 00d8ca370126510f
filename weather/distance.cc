#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "core/number_text.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

struct DistanceRow {
  MeasurementUnit unit;
  Conversion fromKilometers;
  Text text;
};

// clang-format off
constexpr DistanceRow kDistances[] = {
    {MeasurementUnit::miles,      KmToMiles, Text::miles     },
    {MeasurementUnit::kilometers, unchanged, Text::kilometers},
};
// clang-format on

const DistanceRow& distanceRow() { return rowFor(kDistances, KZMUtilitiesDefaultUnits::shared().distanceUnit()); }

// The pattern "#,###": the locale's separators, minus and minimum grouping, but groups of three in every locale.
NumberSymbols groupedByThree() {
  NumberSymbols symbols = NumberFormatter(0, 0).symbols();
  symbols.primaryGroup = 3;
  symbols.secondaryGroup = 3;
  return symbols;
}

core::NumberText wholeNumber(double value) {
  static const NumberSymbols& symbols = *new NumberSymbols(groupedByThree());
  return {symbols, 0, 0, value};
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherDistance(double kilometers) {
  using namespace kzm::weather;
  const DistanceRow& row = distanceRow();
  return filled(row.text, wholeNumber(row.fromKilometers(kilometers)));
}

// Deliberate: the number is neither converted nor grouped, only labelled with the unit of distances.
std::string KZMUtilitiesFormatWeatherVisibility(double distance) {
  using namespace kzm::weather;
  return textOf(distanceRow().text).filled(kzm::core::plainWhole(distance));
}
