#include <string>
#include <string_view>

#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "core/option_values.h"
#include "units/measurement_unit.h"
#include "weather/amounts.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

constexpr Key kReverse = "reverse";

struct TemperatureRow {
  MeasurementUnit unit;
  Conversion fromCelsius;
  bool honorsDecimals;  // the others are whole numbers
  Unit shownUnit;
};

// clang-format off
//   unit                         from °C              decimals  shown in; the last row serves any other unit
constexpr TemperatureRow kTemperatures[] = {
    {MeasurementUnit::kelvin,     celciusToKelvin,     false,    Unit::kelvin},
    {MeasurementUnit::fahrenheit, celciusToFahrenheit, false,    Unit::degrees},
    {MeasurementUnit::celsius,    unchanged,           true,     Unit::degrees},
};
// clang-format on
static_assert(haveRows(units::kTemperatures, kTemperatures), "a unit has no row");

// Deliberate: the clean-up that keeps a rounded zero from a minus takes it off -0.4 too, wherever the locale writes it
// as the ASCII sign next to an ASCII digit (WeatherTemperature.TheMinusBeforeAZeroIsDropped).
void dropMinusBeforeZero(std::string& text) {
  constexpr std::string_view kMinusZero = "-0";
  for (std::size_t i = text.find(kMinusZero); i != std::string::npos; i = text.find(kMinusZero, i + 1)) {
    text.erase(i, 1);
  }
}

const TemperatureRow& temperatureRow(const Dictionary& options) {
  const MeasurementUnit unit = KZMUtilitiesDefaultUnits::shared().weatherTemperatureUnit();
  return rowFor(kTemperatures, core::readBoolean(options.find(kReverse)) ? units::reversed(unit) : unit);
}

core::Amount amountOf(const TemperatureRow& row, const Dictionary& options, double celsius) {
  return atMost(row.honorsDecimals ? core::readInteger(options.find(core::kDecimals)) : 0, row.fromCelsius(celsius));
}

}  // namespace

core::Amount temperatureAmount(const Dictionary& options, double celsius) {
  return amountOf(temperatureRow(options), options, celsius);
}

}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherTemperature(const kzm::Dictionary& options, double celsius) {
  using namespace kzm::weather;
  using namespace kzm::core;
  const TemperatureRow& row = temperatureRow(options);
  const Amount amount = amountOf(row, options, celsius);
  std::string result = readBoolean(options.find(kUnits)) ? text(row.shownUnit, amount) : text(amount);
  dropMinusBeforeZero(result);
  return result;
}
