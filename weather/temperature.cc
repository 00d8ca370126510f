#include <cstdint>
#include <string>
#include <string_view>

#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "core/option_values.h"
#include "units/measurement_unit.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

constexpr Key kReverse = "reverse";

struct TemperatureRow {
  MeasurementUnit unit;
  Conversion fromCelsius;
  bool honorsDecimals;  // the others are whole numbers
  Unit shown;
};

// clang-format off
//   unit                         from °C              decimals  shown in; the last row serves any other unit
constexpr TemperatureRow kTemperatures[] = {
    {MeasurementUnit::kelvin,     celciusToKelvin,     false,    Unit::kelvin},
    {MeasurementUnit::fahrenheit, celciusToFahrenheit, false,    Unit::degrees},
    {MeasurementUnit::celsius,    unchanged,           true,     Unit::degrees},
};
// clang-format on

// Deliberate: made so that a rounded zero has no minus, this takes the minus off -0.4 too, wherever the locale writes
// it as the ASCII sign next to an ASCII digit (WeatherTemperature.TheMinusBeforeAZeroIsDropped).
void dropMinusBeforeZero(std::string& text) {
  constexpr std::string_view kMinusZero = "-0";
  for (std::size_t i = text.find(kMinusZero); i != std::string::npos; i = text.find(kMinusZero, i + 1)) {
    text.erase(i, 1);
  }
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherTemperature(const kzm::Dictionary& options, double celsius) {
  using namespace kzm::weather;
  using namespace kzm::core;
  kzm::MeasurementUnit unit = KZMUtilitiesDefaultUnits::shared().weatherTemperatureUnit();
  if (readBoolean(options.find(kReverse))) unit = kzm::units::reversed(unit);
  const TemperatureRow& row = rowFor(kTemperatures, unit);
  const std::int64_t digits = row.honorsDecimals ? readInteger(options.find(kDecimals)) : 0;
  const Amount amount = atMost(digits, row.fromCelsius(celsius));
  std::string shown = readBoolean(options.find(kUnits)) ? text(row.shown, amount) : text(amount);
  dropMinusBeforeZero(shown);
  return shown;
}
