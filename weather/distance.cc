#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "units/measurement_unit.h"
#include "weather/amounts.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

// clang-format off
//   unit                         from km    shown in; the last row serves any other unit
constexpr ChosenUnit kDistances[] = {
    {MeasurementUnit::miles,      KmToMiles, Unit::miles},
    {MeasurementUnit::kilometers, unchanged, Unit::kilometers},
};
// clang-format on
static_assert(haveRows(units::kDistances, kDistances), "a unit has no row");

const ChosenUnit& distanceRow() { return rowFor(kDistances, KZMUtilitiesDefaultUnits::shared().distanceUnit()); }

core::Amount amountOf(const ChosenUnit& row, double kilometers) {
  return {core::Digits::wholeByThrees, 0, row.fromBase(kilometers)};
}

}  // namespace

core::Amount distanceAmount(double kilometers) { return amountOf(distanceRow(), kilometers); }

}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherDistance(double kilometers) {
  using namespace kzm::weather;
  const ChosenUnit& row = distanceRow();
  return text(row.shownUnit, amountOf(row, kilometers));
}

// Deliberate: a visibility is neither converted nor grouped, only labeled with the unit of distances
// (WeatherVisibility.IsNeitherConvertedNorGrouped).
std::string KZMUtilitiesFormatWeatherVisibility(double distance) {
  using namespace kzm::weather;
  return text(distanceRow().shownUnit, plainAmount(distance));
}
