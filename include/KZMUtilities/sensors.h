// Readings of hardware sensors as text: temperatures, fans, currents, power, voltages, light, frequencies and more.
//
// The data call converts and scales a reading and gives {"decimals": how many fraction digits at most, "value": the
// number, "format": the unit text with "%@" where the number goes}; the format call makes text of it.
//
// Options are only read. Absent or mistyped ones read as zero, false or no rule. Decimals rules are arrays of
// {"value", "decimals"}: the first whose "value" is greater than the scaled number gives the most fraction digits.
// Every function takes any double, never fails, and may be called from any thread at any time. Numbers and texts follow
// the locale in force when the first of them was made; the user's temperature unit is asked for on every call. Results
// are new and belong to the caller.
#ifndef KZMUTILITIES_SENSORS_H
#define KZMUTILITIES_SENSORS_H

#include <cstdint>
#include <optional>
#include <string>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

namespace kzm {

/// The kinds of reading. The numbers are published. The kind is passed as an integer; an unknown one yields nothing.
struct SensorType {
  enum Kind : std::int64_t {
    temperature = 1,  // in degrees Celsius; shown in the user's sensor temperature unit, always whole
    percentage = 2,   // as a fraction: 1.0 is 100 %; shown whole, never above 100 (NaN is 100), and -1.0 is 0
    fan = 3,          // in revolutions per minute
    current = 4,      // in amperes; shown in milliamperes when its magnitude is below 1 and not 0
    power = 5,        // in watts; shown in milliwatts by the same rule
    voltage = 6,      // in volts; shown in millivolts by the same rule
    light = 7,        // in lux
    frequency = 8,    // in megahertz; shown in gigahertz
    multiplier = 9,   // a plain factor
    capacity = 100,   // in milliampere-hours
  };
};

}  // namespace kzm

/// Converts and scales a reading. Gives nothing for a kind that does not exist, and for a unit that a host's own unit
/// texts lack.
///
/// options:
///   "space"                boolean    one space between number and unit, of those that have a form with one
///   "reverse-type"         presence   temperature: swaps Celsius and Fahrenheit; Kelvin stays
///   "off"                  presence   fan: a speed of exactly 0 is the word for "Off"
///   "short"                boolean    light and frequency: the short unit, "Lx" and "G"
///   "decimals-amperage", "decimals-power", "decimals-voltage"   decimals rules of current, power and voltage; without
///                          one that holds 1, but 0 in the small unit and for a value of 0
///   "decimals-frequency"   decimals rules of frequency; without one that holds 2
/// type  one of kzm::SensorType
///
/// Example (English):
///   *KZMUtilitiesSensorData(kzm::SensorType::voltage, {}, 0.95)->find("value")  // 950.0
[[nodiscard]] KZM_EXPORT std::optional<kzm::Dictionary> KZMUtilitiesSensorData(std::int64_t type,
                                                                               const kzm::Dictionary& options,
                                                                               double value);

/// Renders a reading; the empty string where KZMUtilitiesSensorData gives nothing.
///
/// options  as above, and:
///   "units"   boolean    the number with its unit; else the number alone
///   "strip"   presence   takes every space out of the finished text, and every "," and "." too when the number has no
///                        decimals. Separators that are another kind of space stay.
///
/// Example (English):
///   KZMUtilitiesFormatSensor(kzm::SensorType::fan, {{"units", true}, {"space", true}}, 1200.0)  // "1,200 rpm"
[[nodiscard]] KZM_EXPORT std::string KZMUtilitiesFormatSensor(std::int64_t type, const kzm::Dictionary& options,
                                                              double value);

#endif
