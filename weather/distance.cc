#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "weather/amounts.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

struct DistanceRow {
  MeasurementUnit unit;
  Conversion fromKilometers;
  Unit shown;
};

// clang-format off
//   unit                         from km    shown in; the last row serves any other unit
constexpr DistanceRow kDistances[] = {
    {MeasurementUnit::miles,      KmToMiles, Unit::miles},
    {MeasurementUnit::kilometers, unchanged, Unit::kilometers},
};
// clang-format on

const DistanceRow& distanceRow() { return rowFor(kDistances, KZMUtilitiesDefaultUnits::shared().distanceUnit()); }

core::Amount amountOf(const DistanceRow& row, double kilometers) {
  return {core::Digits::wholeByThrees, 0, row.fromKilometers(kilometers)};
}

}  // namespace

core::Amount distanceAmount(double kilometers) { return amountOf(distanceRow(), kilometers); }

}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherDistance(double kilometers) {
  using namespace kzm::weather;
  const DistanceRow& row = distanceRow();
  return text(row.shown, amountOf(row, kilometers));
}

// Deliberate: the number is neither converted nor grouped, only labeled with the unit of distances
// (WeatherVisibility.IsNeitherConvertedNorGrouped).
std::string KZMUtilitiesFormatWeatherVisibility(double distance) {
  using namespace kzm::weather;
  return text(distanceRow().shown, plainAmount(distance));
}
