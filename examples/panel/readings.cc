#include "readings.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <thread>
#include <utility>

#include <KZMUtilities/text.h>

#include "activity.h"
#include "cli/words.h"
#include "machine/memory.h"
#include "machine/processor.h"
#include "machine/sensors.h"
#include "machine/volumes.h"
#include "styles.h"
#include "texts.h"

namespace kzm::panel {
namespace {

using machine::Kind;
using machine::Root;

constexpr std::chrono::milliseconds kBetweenSamples{500};
constexpr std::size_t kMostBars = 16;  // more would be too narrow to read

// ---- Memory and volumes: a part of a whole --------------------------------------------------------------------------

using Text = AttributedString (*)(const Styles& styles, double bytes);

void addPart(Row row, const char* topic, Text text, double used, double free, std::vector<Row>& rows) {
  row.main = {labelText({cli::word(topic), cli::word("Columns.used")}), text(valueStyles(), used)};
  row.side = {labelText({cli::word("Columns.free")}), text(sideStyles(), free)};
  row.levels = {used / (used + free)};
  rows.push_back(std::move(row));
}

void addMemory(const Root& root, std::vector<Row>& rows) {
  const machine::Memory memory = machine::readMemory(root);
  if (memory.total.value_or(0) == 0 || !memory.available.has_value()) return;
  const auto free = static_cast<double>(*memory.available);
  const double used = static_cast<double>(*memory.total) - free;
  addPart(rowOf(Icon::memory, 0.76, {}), "Topics.Memory", memoryText, used, free, rows);
}

void addSpace(const Root& root, std::vector<Row>& rows) {
  double used = 0.0;
  double free = 0.0;
  for (const machine::Volume& volume : machine::readVolumes(root)) {
    used += static_cast<double>(volume.space.used);
    free += static_cast<double>(volume.space.free);
  }
  if (used + free <= 0.0) return;
  addPart(rowOf(Icon::space, 0.11, {}), "Topics.Volumes", spaceText, used, free, rows);
}

// ---- Processors and sensors: a bar for each, the greatest as text ---------------------------------------------------

using machine::ProcessorTime;

// Beside the figure of a row: the names of the first bar and of the last one. Too many bars become one, of the figure.
void addBars(const std::vector<double>& levels, const std::vector<std::string>& names, double figure, Row& row) {
  row.levels = levels.empty() || levels.size() > kMostBars ? std::vector{figure} : levels;
  if (names.empty()) return;
  std::string all = isolated(names.front());
  if (names.size() > 1) all += " – " + isolated(names.back());
  row.side.label = labelText({all});
}

// The first load is that of all processors together.
void addLoad(const std::vector<ProcessorTime>& earlier, const std::vector<ProcessorTime>& later,
             std::vector<Row>& rows) {
  const std::vector<machine::ProcessorLoad> loads = machine::loadBetween(earlier, later);
  if (loads.empty() || !loads[0].busy.has_value()) return;
  Row made = rowOf(Icon::load, 0.96, {labelText({cli::word("Topics.Load")}), partText(valueStyles(), *loads[0].busy)});
  std::vector<double> levels;
  std::vector<std::string> names;
  for (std::size_t i = 1; i < loads.size(); ++i) {
    levels.push_back(loads[i].busy.value_or(0.0));
    names.push_back(loads[i].name);
  }
  addBars(levels, names, *loads[0].busy, made);
  rows.push_back(std::move(made));
}

struct SensorRow {
  Kind kind;
  Icon icon;
  const char* topic;
  double hue;
  double full;  // fills the bar, in the reading's own unit
};
constexpr SensorRow kSensorRows[] = {
    {Kind::frequency, Icon::frequency, "Topics.Frequencies", 0.46, 5000.0},
    {Kind::temperature, Icon::temperature, "Topics.Temperatures", 0.03, 100.0},
    {Kind::fan, Icon::fan, "Topics.Fans", 0.53, 5000.0},
};

void addSensors(const Root& root, std::vector<Row>& rows) {
  const std::vector<machine::SensorReading> readings = machine::readSensors(root);
  for (const SensorRow& wanted : kSensorRows) {
    std::vector<double> levels;
    std::vector<std::string> names;
    for (const machine::SensorReading& reading : readings) {
      if (reading.kind != wanted.kind) continue;
      levels.push_back(reading.value / wanted.full);
      names.push_back(reading.label);
    }
    if (levels.empty()) continue;
    const double greatest = *std::max_element(levels.begin(), levels.end());
    const AttributedString value = sensorText(valueStyles(), wanted.kind, greatest * wanted.full);
    rows.push_back(rowOf(wanted.icon, wanted.hue, {labelText({cli::word(wanted.topic)}), value}));
    addBars(levels, names, greatest, rows.back());
  }
}

void addBatteries(const Root& root, std::vector<Row>& rows) {
  for (const machine::Battery& battery : machine::readBatteries(root)) {
    for (const machine::SensorReading& reading : battery.readings) {
      if (reading.kind != Kind::percentage) continue;
      const AttributedString label = labelText({cli::word("Topics.Battery")});
      rows.push_back(
          rowOf(Icon::battery, 0.30, {label, partText(valueStyles(), reading.value)}, {labelText({battery.name}), {}}));
      rows.back().levels = segments(reading.value, 10);
    }
  }
}

}  // namespace

std::vector<Row> readRows(const Root& root) {
  const ActivitySamples activity = readActivity(root);
  const std::vector<ProcessorTime> processor = machine::readProcessor(root);
  std::this_thread::sleep_for(kBetweenSamples);

  std::vector<Row> rows = activityRows(activity, readActivity(root));
  addMemory(root, rows);
  addSpace(root, rows);
  addLoad(processor, machine::readProcessor(root), rows);
  addSensors(root, rows);
  addBatteries(root, rows);
  return rows;
}

}  // namespace kzm::panel
