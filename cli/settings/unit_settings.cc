#include "cli/settings/unit_settings.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include <KZMSettings/KZMSettings.h>

#include "cli/errors.h"

namespace kzm::cli {
namespace {

using enum MeasurementUnit;
using Units = KZMUtilitiesDefaultUnits;

constexpr MeasurementUnit kDegrees[] = {celsius, fahrenheit, kelvin};
constexpr MeasurementUnit kSpeeds[] = {metersPerSecond, kilometersPerHour, milesPerHour, knots};
constexpr MeasurementUnit kDistances[] = {kilometers, miles};
constexpr MeasurementUnit kPressures[] = {hectopascals, millibars, inchesOfMercury};
constexpr MeasurementUnit kDepths[] = {millimeters, inches};

// clang-format off
const UnitSetting kSettings[] = {
    {"Sensors.Global.Degrees.Format",      "temperature of sensors", kDegrees,   &Units::sensorsTemperatureUnit},
    {"Weather.Global.Units.Degrees",       "temperature of the air", kDegrees,   &Units::weatherTemperatureUnit},
    {"Weather.Global.Units.WindSpeed",     "speed of the wind",      kSpeeds,    &Units::windSpeedUnit},
    {"Weather.Global.Units.Pressure",      "pressure of the air",    kPressures, &Units::pressureUnit},
    {"Weather.Global.Units.Distance",      "distances",              kDistances, &Units::distanceUnit},
    {"Weather.Global.Units.Precipitation", "rain and snow (snow in centimeters when rain is in millimeters)",
                                                                     kDepths,    &Units::rainUnit},
};
// clang-format on

bool isSame(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

std::int64_t codes(const UnitSetting& setting) { return std::ssize(setting.meanings) + 1; }

// The setting's unit in a region that prefers the one given for everything.
MeasurementUnit unitInRegionOf(const UnitSetting& setting, MeasurementUnit preferred) {
  Units region;
  PreferredUnits units = region.units();
  for (auto& [key, unit] : units) unit = preferred;
  region.setUnits(std::move(units));
  return (region.*setting.unit)();
}

}  // namespace

std::span<const UnitSetting> unitSettings() { return kSettings; }

const UnitSetting& settingAt(std::string_view keyPath) {
  std::string names;
  for (const UnitSetting& setting : kSettings) {
    if (setting.keyPath == keyPath) return setting;
    names.append(names.empty() ? "" : ", ").append(setting.keyPath);
  }
  throw InputError("settings: no setting " + inQuotes(keyPath) + "; there are " + names);
}

std::int64_t codeIn(const UnitSetting& setting, std::string_view text) {
  std::string meanings;
  for (std::int64_t code = kRegionsChoice; code < codes(setting); ++code) {
    if (text == std::to_string(code) || isSame(text, meaningOf(setting, code))) return code;
    meanings.append(meanings.empty() ? "" : ", ").append(std::to_string(code)).append(" ");
    meanings.append(meaningOf(setting, code));
  }
  throw InputError("settings: " + std::string(setting.keyPath) + " has no code " + inQuotes(text) + "; there are " +
                   meanings);
}

std::string_view meaningOf(const UnitSetting& setting, std::int64_t code) {
  return code == kRegionsChoice ? "region" : measurementUnitName(setting.meanings[static_cast<std::size_t>(code - 1)]);
}

std::int64_t codeInForce(const UnitSetting& setting) {
  // Whatever is stored, the library alone knows how it reads it. Where the answer depends on what the region prefers,
  // the region decides.
  const MeasurementUnit unit = unitInRegionOf(setting, MeasurementUnit::knots);
  if (unit != unitInRegionOf(setting, MeasurementUnit::kelvin)) return kRegionsChoice;
  return std::find(setting.meanings.begin(), setting.meanings.end(), unit) - setting.meanings.begin() + 1;
}

}  // namespace kzm::cli
