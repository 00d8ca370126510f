// In which unit the user wants to see each kind of quantity.
//
// The answer is the user's choice in the settings when there is one, read afresh on every question, and otherwise the
// unit that the user's region prefers: that of the locale which the host chose with kzm::setCurrentLocale, else of the
// first of LC_ALL, LC_MEASUREMENT and LANG that is not empty. The locale's keywords count: "rg" names another region,
// "measure" a whole system (metric, ussystem, uksystem), "mu" the temperature (celsius, fahrenheit); so
// "en_US@measure=metric" is English in metric units. C, POSIX and names of no known language are metric.
//
// Every function may be called from any thread at any time.
#ifndef KZMUTILITIES_DEFAULT_UNITS_H
#define KZMUTILITIES_DEFAULT_UNITS_H

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include <KZMUtilities/export.h>

namespace kzm {

// ---- Units ----------------------------------------------------------------------------------------------------------

/// The units in which weather and sensor quantities are shown.
enum class MeasurementUnit : std::uint8_t {
  celsius,
  fahrenheit,
  kelvin,
  metersPerSecond,
  kilometersPerHour,
  milesPerHour,
  knots,
  hectopascals,
  millibars,
  inchesOfMercury,
  kilometers,
  miles,
  millimeters,
  centimeters,
  inches,
};

/// The member's name as it is written above, such as "metersPerSecond". A number that is no member gives "".
///
/// Example:
///   measurementUnitName(MeasurementUnit::metersPerSecond)  // "metersPerSecond"
[[nodiscard]] KZM_EXPORT std::string_view measurementUnitName(MeasurementUnit unit) noexcept;

/// Units by the kind of quantity: "windspeed", "pressure", "temperature", "distance", "rain", "snow".
using PreferredUnits = std::map<std::string, MeasurementUnit, std::less<>>;

}  // namespace kzm

// ---- The user's units -----------------------------------------------------------------------------------------------

/// Holder of the region's preferred units, and the one who asks the settings.
///
/// Each accessor reads one setting as an integer ("2", 2.9 and 2 are code 2, true is code 1). A code of its list gives
/// that unit; no setting, 0 and any other code give the preferred unit.
///
/// Example (English): in the United States, without settings
///   KZMUtilitiesDefaultUnits units;
///   units.windSpeedUnit()  // MeasurementUnit::milesPerHour
///   units.sensorsTemperatureUnit()  // MeasurementUnit::fahrenheit
///   units.weatherTemperatureUnit()  // MeasurementUnit::fahrenheit
///   units.distanceUnit()  // MeasurementUnit::miles
///   units.pressureUnit()  // MeasurementUnit::inchesOfMercury
///   units.rainUnit()  // MeasurementUnit::inches
///   units.snowUnit()  // MeasurementUnit::inches
///   units.units().at("distance")  // MeasurementUnit::miles
class KZM_EXPORT KZMUtilitiesDefaultUnits {
 public:
  /// `shared` The one instance that the library works with, made on the first call; it lives until the process ends.
  /// The region is looked at when it is made, and never again.
  [[nodiscard]] static KZMUtilitiesDefaultUnits& shared();

  /// `init` An instance with the preferred units of the region as it is now.
  KZMUtilitiesDefaultUnits();
  KZMUtilitiesDefaultUnits(const KZMUtilitiesDefaultUnits&) = delete;
  KZMUtilitiesDefaultUnits& operator=(const KZMUtilitiesDefaultUnits&) = delete;
  ~KZMUtilitiesDefaultUnits();

  /// "Weather.Global.Units.WindSpeed": 1 metersPerSecond, 2 kilometersPerHour, 3 milesPerHour, 4 knots;
  /// otherwise the preferred "windspeed".
  ///
  /// Example (knots):
  ///   KZMUtilitiesDefaultUnits::shared().windSpeedUnit()  // MeasurementUnit::knots
  [[nodiscard]] kzm::MeasurementUnit windSpeedUnit() const;

  /// "Sensors.Global.Degrees.Format": 1 celsius, 2 fahrenheit, 3 kelvin; otherwise the preferred "temperature".
  [[nodiscard]] kzm::MeasurementUnit sensorsTemperatureUnit() const;

  /// "Weather.Global.Units.Degrees": 1 celsius, 2 fahrenheit, 3 kelvin; otherwise the preferred "temperature".
  [[nodiscard]] kzm::MeasurementUnit weatherTemperatureUnit() const;

  /// "Weather.Global.Units.Distance": 1 kilometers, 2 miles; otherwise the preferred "distance".
  [[nodiscard]] kzm::MeasurementUnit distanceUnit() const;

  /// "Weather.Global.Units.Pressure": 1 hectopascals, 2 millibars, 3 inchesOfMercury; otherwise the preferred
  /// "pressure".
  [[nodiscard]] kzm::MeasurementUnit pressureUnit() const;

  /// "Weather.Global.Units.Precipitation": 1 millimeters, 2 inches; otherwise the preferred "rain".
  [[nodiscard]] kzm::MeasurementUnit rainUnit() const;

  /// "Weather.Global.Units.Precipitation", the same setting: 1 centimeters, 2 inches; otherwise the preferred "snow".
  [[nodiscard]] kzm::MeasurementUnit snowUnit() const;

  /// `units` A copy of the preferred units; to change them, pass a changed copy to `setUnits:`. After `init` all six
  /// keys are there, and kelvin and knots are never among the units.
  [[nodiscard]] kzm::PreferredUnits units() const;

  /// `setUnits:` Puts other preferred units in place, for the next question on. An accessor whose key is missing
  /// answers with the metric unit of its kind: kilometersPerHour, hectopascals, celsius, kilometers, millimeters or
  /// centimeters. Further keys are kept unread.
  ///
  /// Example:
  ///   KZMUtilitiesDefaultUnits defaults;
  ///   kzm::PreferredUnits units = defaults.units();
  ///   units["distance"] = kzm::MeasurementUnit::kilometers;
  ///   defaults.setUnits(units);
  ///   defaults.distanceUnit()  // MeasurementUnit::kilometers
  void setUnits(kzm::PreferredUnits units);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

namespace kzm {

// ---- Settings -------------------------------------------------------------------------------------------------------

/// One setting by which the user chooses a unit.
struct UnitSetting {
  std::string_view keyPath;
  std::span<const MeasurementUnit> units;                     // of the codes 1, 2, ...
  MeasurementUnit (KZMUtilitiesDefaultUnits::*unit)() const;  // the accessor that reads it
};

/// All of them, one for each accessor: rain and snow have two rows with one key path.
///
/// Example:
///   unitSettings().front().keyPath  // "Weather.Global.Units.WindSpeed"
[[nodiscard]] KZM_EXPORT std::span<const UnitSetting> unitSettings() noexcept;

}  // namespace kzm

#endif
