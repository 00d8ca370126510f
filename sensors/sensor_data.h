// From a raw sensor reading to the number, its decimals and its unit.
#ifndef KZM_SENSORS_SENSOR_DATA_H
#define KZM_SENSORS_SENSOR_DATA_H

#include <cstdint>
#include <optional>

#include <KZMUtilities/dictionary.h>

#include "sensors/sensor_table.h"

namespace kzm::sensors {

/// What a reading is shown as.
struct Reading {
  Unit unit;
  double value;
  std::int64_t decimals = 0;  // at most
};

/// Nothing for a kind that does not exist.
[[nodiscard]] std::optional<Reading> readingOf(std::int64_t type, const Dictionary& options, double value);

/// The text of the reading's unit, in the style that the options ask for; null when the shared cache's table lacks it.
/// Good until this thread's next call.
[[nodiscard]] const core::Template* unitText(const Reading& reading, const Dictionary& options);

}  // namespace kzm::sensors

#endif
