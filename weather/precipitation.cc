#include <cstdint>

#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

struct PrecipitationRow {
  MeasurementUnit unit;
  Conversion fromMillimeters;
  std::int64_t digits;
  Unit shown;
};

// clang-format off
//   unit                          from mm    digits  shown in; the last row serves any other unit
constexpr PrecipitationRow kRain[] = {
    {MeasurementUnit::inches,      mmToInch,  2,      Unit::inches},
    {MeasurementUnit::millimeters, unchanged, 1,      Unit::millimeters},
};
constexpr PrecipitationRow kSnow[] = {
    {MeasurementUnit::inches,      mmToInch,  2,      Unit::inches},
    {MeasurementUnit::centimeters, mmToCm,    1,      Unit::centimeters},
};
// clang-format on

// Deliberate: snow, too, follows the unit of rain (WeatherSnow.FollowsTheUnitOfRain).
template <std::size_t N>
std::string amount(const PrecipitationRow (&rows)[N], double millimeters) {
  const PrecipitationRow& row = rowFor(rows, KZMUtilitiesDefaultUnits::shared().rainUnit());
  return text(row.shown, atMost(row.digits, row.fromMillimeters(millimeters)));
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherRainAmount(double millimeters) {
  return kzm::weather::amount(kzm::weather::kRain, millimeters);
}

std::string KZMUtilitiesFormatWeatherSnowAmount(double millimeters) {
  return kzm::weather::amount(kzm::weather::kSnow, millimeters);
}
