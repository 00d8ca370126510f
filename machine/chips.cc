#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "machine/files.h"
#include "machine/sensors.h"

namespace kzm::machine {
namespace {

// The prefix and the suffix are around the number of the sensor; the unit of the file is "scale" units of the reading.
struct SensorRow {
  std::string_view prefix;
  std::string_view suffix;
  Kind kind;
  double scale;
  std::string_view label;  // where the chip gives none
};

// clang-format off
//   prefix   suffix      kind               scale  label
constexpr SensorRow kRows[] = {
    {"temp",  "_input",   Kind::temperature, 1e-3,  "Temperature"},
    {"fan",   "_input",   Kind::fan,         1,     "Fan"},
    {"in",    "_input",   Kind::voltage,     1e-3,  "Voltage"},
    {"curr",  "_input",   Kind::current,     1e-3,  "Current"},
    {"power", "_input",   Kind::power,       1e-6,  "Power"},
    {"power", "_average", Kind::power,       1e-6,  "Power"},
    {"freq",  "_input",   Kind::frequency,   1e-6,  "Frequency"},
};
// clang-format on

// The number of a sensor in its file's name; empty when the name is another row's.
std::string_view numberOf(std::string_view file, const SensorRow& row) {
  if (!file.starts_with(row.prefix) || !file.ends_with(row.suffix)) return {};
  if (file.size() <= row.prefix.size() + row.suffix.size()) return {};
  const std::string_view number = file.substr(row.prefix.size(), file.size() - row.prefix.size() - row.suffix.size());
  return countIn(number) ? number : std::string_view();
}

std::optional<SensorReading> readSensor(const std::string& chip, const SensorRow& row, std::string_view number) {
  const std::string sensor = chip + "/" + std::string(row.prefix) + std::string(number);
  if (readNumber(sensor + "_fault").value_or(0) != 0) return std::nullopt;
  const std::optional<double> value = readNumber(sensor + std::string(row.suffix));
  if (!value) return std::nullopt;
  std::string label = readLabel(sensor + "_label");
  if (label.empty()) label = std::string(row.label) + " " + std::string(number);
  return SensorReading{row.kind, *value * row.scale, {}, label};
}

// A chip may give the power of one sensor both at present and on average: the first row wins.
bool holds(const std::vector<std::string>& files, const std::string& file) {
  return std::ranges::find(files, file) != files.end();
}

void addReadings(const std::string& chip, const SensorRow& row, std::vector<SensorReading>& readings) {
  const std::vector<std::string> files = namesIn(chip);
  std::string source = readLabel(chip + "/name");
  for (const std::string& file : files) {
    const std::string_view number = numberOf(file, row);
    if (number.empty()) continue;
    if (row.suffix == "_average" && holds(files, std::string(row.prefix) + std::string(number) + "_input")) continue;
    if (std::optional<SensorReading> reading = readSensor(chip, row, number)) {
      reading->source = source;
      readings.push_back(*reading);
    }
  }
}

}  // namespace

std::vector<SensorReading> readChips(const Root& root) {
  std::vector<SensorReading> readings;
  for (const std::string& name : namesIn(root.at("sys/class/hwmon"))) {
    for (const SensorRow& row : kRows) addReadings(root.at("sys/class/hwmon/" + name), row, readings);
  }
  return readings;
}

std::vector<SensorReading> readSensors(const Root& root) {
  std::vector<SensorReading> all;
  for (const auto& read : {readChips, readZones, readFrequencies, readLight}) {
    const std::vector<SensorReading> readings = read(root);
    all.insert(all.end(), readings.begin(), readings.end());
  }
  return all;
}

}  // namespace kzm::machine
