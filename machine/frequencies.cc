#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "machine/files.h"
#include "machine/sensors.h"

namespace kzm::machine {
namespace {

void add(std::string_view number, double megahertz, std::vector<SensorReading>& readings) {
  if (megahertz > 0) readings.push_back({Kind::frequency, megahertz, "cpu", "CPU " + std::string(number)});
}

// Written in kilohertz by the driver that sets the frequency.
std::vector<SensorReading> frequenciesSet(const Root& root) {
  std::vector<SensorReading> readings;
  for (const std::string& name : namesIn(root.at("sys/devices/system/cpu"))) {
    const std::string_view number = std::string_view(name).substr(name.starts_with("cpu") ? 3 : name.size());
    if (!countIn(number)) continue;
    const auto kilohertz = readNumber(root.at("sys/devices/system/cpu/" + name + "/cpufreq/scaling_cur_freq"));
    if (kilohertz) add(number, *kilohertz * 1e-3, readings);
  }
  return readings;
}

// Lines such as "processor : 0" and then "cpu MHz : 2400.000", where the frequency is never set.
std::vector<SensorReading> frequenciesMeasured(const Root& root) {
  std::vector<SensorReading> readings;
  const std::string text = readText(root.at("proc/cpuinfo"));
  std::string_view number;
  for (const std::string_view line : linesOf(text)) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos) continue;
    const std::vector<std::string_view> value = fieldsOf(line.substr(colon + 1));
    if (value.size() != 1) continue;
    if (line.starts_with("processor")) number = countIn(value[0]) ? value[0] : std::string_view();
    if (!line.starts_with("cpu MHz") || number.empty()) continue;
    if (const std::optional<double> megahertz = numberIn(value[0])) add(number, *megahertz, readings);
  }
  return readings;
}

}  // namespace

std::vector<SensorReading> readFrequencies(const Root& root) {
  std::vector<SensorReading> readings = frequenciesSet(root);
  return readings.empty() ? frequenciesMeasured(root) : readings;
}

}  // namespace kzm::machine
