#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "core/option_values.h"
#include "units/measurement_unit.h"
#include "weather/amounts.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

// clang-format off
//   unit                                from m/s    shown in; the last row serves any other unit
constexpr ChosenUnit kWinds[] = {
    {MeasurementUnit::knots,             mpsToKnots, Unit::knots},
    {MeasurementUnit::milesPerHour,      mpsToMph,   Unit::milesPerHour},
    {MeasurementUnit::kilometersPerHour, mpsToKph,   Unit::kilometersPerHour},
    {MeasurementUnit::metersPerSecond,   unchanged,  Unit::metersPerSecond},
};
// clang-format on
static_assert(haveRows(units::kWindSpeeds, kWinds), "a unit has no row");

const ChosenUnit& windRow() { return rowFor(kWinds, KZMUtilitiesDefaultUnits::shared().windSpeedUnit()); }

core::Amount amountOf(const ChosenUnit& row, double metersPerSecond) {
  return atMost(0, row.fromBase(metersPerSecond));
}

// A sector of the compass, 45 degrees wide, and the bearing at which the next one begins.
struct Sector {
  double endDegrees;
  Unit name;
};

// Deliberate: bearings are not reduced to one turn. All below 22.5, the negative ones too, and all from 337.5 on are
// north, and so is NaN (WeatherWindDirection.BearingsAreNotReducedToOneTurn).
// clang-format off
//   up to  direction
constexpr Sector kSectors[] = {
    {22.5,  Unit::north},
    {67.5,  Unit::northEast},
    {112.5, Unit::east},
    {157.5, Unit::southEast},
    {202.5, Unit::south},
    {247.5, Unit::southWest},
    {292.5, Unit::west},
    {337.5, Unit::northWest},
};
// clang-format on

constexpr Unit directionOf(double degrees) noexcept {
  for (const Sector& sector : kSectors) {
    if (degrees < sector.endDegrees) return sector.name;
  }
  return Unit::north;
}

}  // namespace

core::Amount windSpeedAmount(double metersPerSecond) { return amountOf(windRow(), metersPerSecond); }

}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherWindSpeed(const kzm::Dictionary& options, double metersPerSecond) {
  using namespace kzm::weather;
  using namespace kzm::core;
  const ChosenUnit& row = windRow();
  const Amount amount = amountOf(row, metersPerSecond);
  return readBoolean(options.find(kUnits)) ? text(row.shownUnit, readSpacing(options), amount) : text(amount);
}

std::string KZMUtilitiesFormatWeatherWindDirection(double degrees) {
  using namespace kzm::weather;
  return localizedText(directionOf(degrees));
}
