// From a raw sensor reading to the number, its decimals and its unit.
#ifndef KZM_SENSORS_SENSOR_DATA_H
#define KZM_SENSORS_SENSOR_DATA_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

#include <KZMUtilities/dictionary.h>

#include "core/rendering.h"
#include "sensors/sensor_table.h"

namespace kzm::sensors {

/// The row of a percentage: beyond the table.
/// Deliberate: the percent sign of a sensor is not looked up (SensorData.ThePercentageIsNotLookedUp).
inline constexpr std::size_t kPercentRow = std::size(kTexts);

/// What a reading is shown as. Nothing for a kind that does not exist, and for a unit that a host's own table lacks.
/// The family's texts are looked up before anything else is asked.
[[nodiscard]] std::optional<core::Reading> readingOf(std::int64_t type, const Dictionary& options, double value);

}  // namespace kzm::sensors

#endif
