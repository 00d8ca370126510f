#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "machine/files.h"
#include "machine/sensors.h"

namespace kzm::machine {
namespace {

// The chip that reports the same temperature as a zone of this type has its name, but for one.
std::string chipOf(std::string type) {
  if (type == "x86_pkg_temp") return "coretemp";
  std::replace(type.begin(), type.end(), '-', '_');
  return type;
}

bool hasTemperature(const std::vector<SensorReading>& chips, const std::string& chip) {
  return std::ranges::any_of(chips, [&chip](const SensorReading& reading) {
    return reading.kind == Kind::temperature && reading.source == chip;
  });
}

}  // namespace

std::vector<SensorReading> readZones(const Root& root) {
  const std::vector<SensorReading> chips = readChips(root);
  std::vector<SensorReading> readings;
  for (const std::string& name : namesIn(root.at("sys/class/thermal"))) {
    if (!name.starts_with("thermal_zone")) continue;
    const std::string zone = root.at("sys/class/thermal/" + name);
    const std::string type = readLabel(zone + "/type");
    const std::optional<double> millidegrees = readNumber(zone + "/temp");
    if (!millidegrees || hasTemperature(chips, chipOf(type))) continue;
    readings.push_back({Kind::temperature, *millidegrees * 1e-3, "thermal", type.empty() ? shownText(name) : type});
  }
  return readings;
}

}  // namespace kzm::machine
