#include <cstdint>

#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "core/option_values.h"
#include "units/factors.h"
#include "units/measurement_unit.h"
#include "weather/amounts.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

// What the published conversions lack; inchToMillibar divides by the same factor.
constexpr double hectopascalsToInches(double hectopascals) noexcept {
  return hectopascals * units::kInchesOfMercuryInAMillibar;
}

enum class Showing : std::uint8_t {
  chosen,    // the options say whether the unit is shown, with or without a space, and one fraction digit or none
  complete,  // always with its unit and up to two fraction digits
};

struct PressureRow {
  MeasurementUnit unit;
  Conversion fromHectopascals;
  Showing showing;
  Unit shownUnit;
};

// Deliberate: inches of mercury alone ignore the options (WeatherPressure.InchesIgnoreTheOptions).
// clang-format off
//   unit                              from hPa              showing            shown in; the last row serves all others
constexpr PressureRow kPressures[] = {
    {MeasurementUnit::millibars,       unchanged,            Showing::chosen,   Unit::millibars},
    {MeasurementUnit::inchesOfMercury, hectopascalsToInches, Showing::complete, Unit::inches},
    {MeasurementUnit::hectopascals,    unchanged,            Showing::chosen,   Unit::hectopascals},
};
// clang-format on
static_assert(haveRows(units::kPressures, kPressures), "a unit has no row");

constexpr std::int64_t kInchDecimals = 2;

// Deliberate: "decimals" of a pressure is a boolean: 5 means one digit (WeatherPressure.DecimalsAreABoolean).
std::int64_t decimalsOf(const PressureRow& row, const Dictionary& options) noexcept {
  if (row.showing == Showing::complete) return kInchDecimals;
  return core::readBoolean(options.find(core::kDecimals)) ? 1 : 0;
}

bool showsUnit(const PressureRow& row, const Dictionary& options) noexcept {
  return row.showing == Showing::complete || core::readBoolean(options.find(core::kUnits));
}

const PressureRow& pressureRow() { return rowFor(kPressures, KZMUtilitiesDefaultUnits::shared().pressureUnit()); }

core::Amount amountOf(const PressureRow& row, const Dictionary& options, double hectopascals) {
  return atMost(decimalsOf(row, options), row.fromHectopascals(hectopascals));
}

}  // namespace

core::Amount pressureAmount(const Dictionary& options, double hectopascals) {
  return amountOf(pressureRow(), options, hectopascals);
}

}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherPressure(const kzm::Dictionary& options, double hectopascals) {
  using namespace kzm::weather;
  using namespace kzm::core;
  const PressureRow& row = pressureRow();
  const Amount amount = amountOf(row, options, hectopascals);
  return showsUnit(row, options) ? text(row.shownUnit, readSpacing(options), amount) : text(amount);
}
