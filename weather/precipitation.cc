#include <cstdint>

#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "units/measurement_unit.h"
#include "weather/amounts.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

struct PrecipitationRow {
  MeasurementUnit unit;
  Conversion fromMillimeters;
  std::int64_t decimals;
  Unit shownUnit;
};

// clang-format off
//   unit                          from mm    decimals  shown in; the last row serves any other unit
constexpr PrecipitationRow kRain[] = {
    {MeasurementUnit::inches,      mmToInch,  2,        Unit::inches},
    {MeasurementUnit::millimeters, unchanged, 1,        Unit::millimeters},
};
constexpr PrecipitationRow kSnow[] = {
    {MeasurementUnit::inches,      mmToInch,  2,        Unit::inches},
    {MeasurementUnit::centimeters, mmToCm,    1,        Unit::centimeters},
};
// clang-format on
static_assert(haveRows(units::kRains, kRain), "a unit has no row");
static_assert(haveRows(units::kSnows, kSnow), "a unit has no row");

// Deliberate: snow, too, follows the unit of rain (WeatherSnow.FollowsTheUnitOfRain).
template <std::size_t N>
const PrecipitationRow& rowOf(const PrecipitationRow (&rows)[N]) {
  return rowFor(rows, KZMUtilitiesDefaultUnits::shared().rainUnit());
}

core::Amount amountOf(const PrecipitationRow& row, double millimeters) {
  return atMost(row.decimals, row.fromMillimeters(millimeters));
}

std::string amountText(const PrecipitationRow& row, double millimeters) {
  return text(row.shownUnit, amountOf(row, millimeters));
}

}  // namespace

core::Amount rainAmount(double millimeters) { return amountOf(rowOf(kRain), millimeters); }
core::Amount snowAmount(double millimeters) { return amountOf(rowOf(kSnow), millimeters); }

}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherRainAmount(double millimeters) {
  return kzm::weather::amountText(kzm::weather::rowOf(kzm::weather::kRain), millimeters);
}

std::string KZMUtilitiesFormatWeatherSnowAmount(double millimeters) {
  return kzm::weather::amountText(kzm::weather::rowOf(kzm::weather::kSnow), millimeters);
}
