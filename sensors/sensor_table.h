// The unit texts of the sensor family.
#ifndef KZM_SENSORS_SENSOR_TABLE_H
#define KZM_SENSORS_SENSOR_TABLE_H

#include <cstdint>

#include "core/template.h"

namespace kzm::sensors {

enum class Unit : std::uint8_t {
  degrees,
  kelvin,
  off,
  rpm,
  volts,
  millivolts,
  amperes,
  milliamperes,
  watts,
  milliwatts,
  gigahertzShort,
  gigahertz,
  luxShort,
  lux,
  milliampereHours,
  times,
  percent,
};

/// Whether a blank stands between number and unit. A unit that has one form only has it in both styles.
enum class Style : std::uint8_t { spaced, tight };

/// The unit's text; null when the table in the shared cache lacks it. Good until this thread's next call.
[[nodiscard]] const core::Template* unitText(Unit unit, Style style);

}  // namespace kzm::sensors

#endif
