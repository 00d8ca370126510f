// What is known about each unit: its name, its symbol, and how a sample measurement reads in it.
#ifndef KZM_UNITS_MEASUREMENT_UNIT_H
#define KZM_UNITS_MEASUREMENT_UNIT_H

#include <string>
#include <string_view>

#include <KZMUtilities/default_units.h>

namespace kzm::units {

// The units that the settings offer, in the order of their codes, which begin with 1.
inline constexpr MeasurementUnit kWindSpeeds[] = {MeasurementUnit::metersPerSecond, MeasurementUnit::kilometersPerHour,
                                                  MeasurementUnit::milesPerHour, MeasurementUnit::knots};
inline constexpr MeasurementUnit kTemperatures[] = {MeasurementUnit::celsius, MeasurementUnit::fahrenheit,
                                                    MeasurementUnit::kelvin};
inline constexpr MeasurementUnit kDistances[] = {MeasurementUnit::kilometers, MeasurementUnit::miles};
inline constexpr MeasurementUnit kPressures[] = {MeasurementUnit::hectopascals, MeasurementUnit::millibars,
                                                 MeasurementUnit::inchesOfMercury};
inline constexpr MeasurementUnit kRains[] = {MeasurementUnit::millimeters, MeasurementUnit::inches};
inline constexpr MeasurementUnit kSnows[] = {MeasurementUnit::centimeters, MeasurementUnit::inches};

/// The unit's international symbol, such as "mph".
[[nodiscard]] std::string_view symbolOf(MeasurementUnit unit) noexcept;

/// The other of Celsius and Fahrenheit; any other unit stays.
[[nodiscard]] constexpr MeasurementUnit reversed(MeasurementUnit unit) noexcept {
  if (unit == MeasurementUnit::fahrenheit) return MeasurementUnit::celsius;
  return unit == MeasurementUnit::celsius ? MeasurementUnit::fahrenheit : unit;
}

/// The sample measurement of the unit's kind, shown in this unit: "0 mph", "32 °F", "1.181 in". The samples are no
/// wind, no pressure, 0 °C, no distance, 30 mm of rain and 3 cm of snow.
[[nodiscard]] std::string sampleIn(MeasurementUnit unit);

}  // namespace kzm::units

#endif
