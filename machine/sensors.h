// The hardware sensors that the kernel offers, in the units in which the library takes them.
#ifndef KZM_MACHINE_SENSORS_H
#define KZM_MACHINE_SENSORS_H

#include <cstdint>
#include <string>
#include <vector>

#include <KZMUtilities/sensors.h>

#include "machine/files.h"

namespace kzm::machine {

/// What a sensor measures, by the numbers of KZMUtilitiesSensorData.
enum class Kind : std::int64_t {
  temperature = SensorType::temperature,  // degrees Celsius
  percentage = SensorType::percentage,    // a fraction, 0 to 1
  fan = SensorType::fan,                  // revolutions per minute
  current = SensorType::current,          // amperes
  power = SensorType::power,              // watts
  voltage = SensorType::voltage,          // volts
  light = SensorType::light,              // lux
  frequency = SensorType::frequency,      // megahertz
  capacity = SensorType::capacity,        // milliampere-hours
};

struct SensorReading {
  Kind kind = Kind::temperature;
  double value = 0;
  std::string source;  // the device, such as "coretemp" or "BAT0"
  std::string label;   // what is measured there, such as "Core 0" or "Fan 1"

  friend bool operator==(const SensorReading&, const SensorReading&) = default;
};

struct Battery {
  std::string name;
  std::string status;  // the kernel's word, such as "Discharging"; may be empty
  std::vector<SensorReading> readings;
};

/// The monitoring chips: temperatures, fans, voltages, currents, power and frequencies. A sensor that reports a fault
/// or does not answer is left out.
[[nodiscard]] std::vector<SensorReading> readChips(const Root& root);

/// The temperature zones that no chip of readChips reports.
[[nodiscard]] std::vector<SensorReading> readZones(const Root& root);

/// The present frequency of every processor.
[[nodiscard]] std::vector<SensorReading> readFrequencies(const Root& root);

/// The light around the machine.
[[nodiscard]] std::vector<SensorReading> readLight(const Root& root);

/// The batteries: level, charge and full charge as far as the kernel knows them.
[[nodiscard]] std::vector<Battery> readBatteries(const Root& root);

/// All of them but the batteries.
[[nodiscard]] std::vector<SensorReading> readSensors(const Root& root);

}  // namespace kzm::machine

#endif
