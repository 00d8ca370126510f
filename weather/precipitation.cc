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
  Text text;
};

// clang-format off
constexpr PrecipitationRow kRain[] = {
    {MeasurementUnit::inches,      mmToInch,  2, Text::inches     },
    {MeasurementUnit::millimeters, unchanged, 1, Text::millimeters},
};
// clang-format on
// clang-format off
constexpr PrecipitationRow kSnow[] = {
    {MeasurementUnit::inches,      mmToInch, 2, Text::inches     },
    {MeasurementUnit::centimeters, mmToCm,   1, Text::centimeters},
};
// clang-format on

// Deliberate: snow, too, follows the unit of rain.
template <std::size_t N>
std::string amount(const PrecipitationRow (&rows)[N], double millimeters) {
  const PrecipitationRow& row = rowFor(rows, KZMUtilitiesDefaultUnits::shared().rainUnit());
  return filled(row.text, decimalNumber(row.digits, row.fromMillimeters(millimeters)));
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherRainAmount(double millimeters) {
  return kzm::weather::amount(kzm::weather::kRain, millimeters);
}

std::string KZMUtilitiesFormatWeatherSnowAmount(double millimeters) {
  return kzm::weather::amount(kzm::weather::kSnow, millimeters);
}
