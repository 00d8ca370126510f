// Readings as cells. Every number and every unit is written by the library.
#ifndef KZM_CLI_SHOW_TEXTS_H
#define KZM_CLI_SHOW_TEXTS_H

#include <optional>
#include <string>

#include <KZMUtilities/dictionary.h>

#include "cli/show/layout.h"
#include "machine/sensors.h"

namespace kzm::cli {

/// Bytes per second of a network interface; the options are those of KZMUtilitiesFormatBandwidth. What is not known is
/// a faint dash, here and below.
[[nodiscard]] Cell networkCell(const Dictionary& options, std::optional<double> bytesPerSecond);

/// Bytes per second of a disk; less than one kilobyte is a dash.
[[nodiscard]] Cell diskCell(std::optional<double> bytesPerSecond);

/// The size of a volume, in bytes.
[[nodiscard]] Cell spaceCell(double bytes);

/// An amount of memory, in bytes.
[[nodiscard]] Cell memoryCell(std::optional<double> bytes);

/// A part of the whole, 0 to 1, in percent.
[[nodiscard]] Cell partCell(std::optional<double> part);

/// How many programs wanted to run.
[[nodiscard]] Cell loadCell(double programs);

/// "5 min": the load of that time.
[[nodiscard]] std::string minutesText(double minutes);

/// A reading of a sensor.
[[nodiscard]] Cell sensorCell(machine::Kind kind, double value);

}  // namespace kzm::cli

#endif
