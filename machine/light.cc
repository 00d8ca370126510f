#include <optional>
#include <string>
#include <vector>

#include "machine/files.h"
#include "machine/sensors.h"

namespace kzm::machine {
namespace {

// The finished value in lux, or the raw one with the way to it.
std::optional<double> luxOf(const std::string& channel) {
  if (const std::optional<double> lux = readNumber(channel + "_input")) return lux;
  const std::optional<double> raw = readNumber(channel + "_raw");
  if (!raw) return std::nullopt;
  return (*raw + readNumber(channel + "_offset").value_or(0)) * readNumber(channel + "_scale").value_or(1);
}

}  // namespace

std::vector<SensorReading> readLight(const Root& root) {
  std::vector<SensorReading> readings;
  for (const std::string& name : namesIn(root.at("sys/bus/iio/devices"))) {
    const std::string device = root.at("sys/bus/iio/devices/" + name);
    for (const char* channel : {"/in_illuminance", "/in_illuminance0"}) {
      const std::optional<double> lux = luxOf(device + channel);
      if (lux && *lux >= 0) readings.push_back({Kind::light, *lux, readLabel(device + "/name"), "Ambient light"});
    }
  }
  return readings;
}

}  // namespace kzm::machine
