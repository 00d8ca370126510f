#include "readings.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "activity.h"
#include "cli/machine/memory.h"
#include "cli/machine/processor.h"
#include "cli/machine/sensors.h"
#include "cli/machine/volumes.h"
#include "styles.h"
#include "texts.h"

namespace kzm::panel {
namespace {

using machine::Kind;
using machine::Root;

constexpr std::chrono::milliseconds kBetweenSamples{500};
constexpr std::size_t kMostBars = 16;  // more would be too narrow to read

// ---- Memory and volumes: a part of a whole --------------------------------------------------------------------------

void addPart(Row made, AttributedString whole, double part, std::vector<Row>& rows) {
  made.detail = std::move(whole);
  made.levels = {part};
  rows.push_back(std::move(made));
}

void addMemory(const Root& root, std::vector<Row>& rows) {
  const machine::Memory memory = machine::readMemory(root);
  if (memory.total.value_or(0) == 0 || !memory.available.has_value()) return;
  const auto total = static_cast<double>(*memory.total);
  const double used = total - static_cast<double>(*memory.available);
  addPart(rowOf(Icon::memory, 0.76, memoryText(valueStyles(), used)), memoryText(detailStyles(), total), used / total,
          rows);
}

void addSpace(const Root& root, std::vector<Row>& rows) {
  double used = 0.0;
  double total = 0.0;
  for (const machine::Volume& volume : machine::readVolumes(root)) {
    used += static_cast<double>(volume.space.used);
    total += static_cast<double>(volume.space.used + volume.space.free);
  }
  if (total <= 0.0) return;
  addPart(rowOf(Icon::space, 0.11, spaceText(valueStyles(), used)), spaceText(detailStyles(), total), used / total,
          rows);
}

// ---- Processors and sensors: a bar for each, the greatest as text ---------------------------------------------------

using machine::ProcessorTime;

// The first load is that of all processors together.
void addLoad(const std::vector<ProcessorTime>& earlier, const std::vector<ProcessorTime>& later,
             std::vector<Row>& rows) {
  const std::vector<machine::ProcessorLoad> loads = machine::loadBetween(earlier, later);
  if (loads.empty() || !loads[0].busy.has_value()) return;
  Row made = rowOf(Icon::load, 0.96, partText(valueStyles(), *loads[0].busy));
  for (std::size_t i = 1; i < loads.size(); ++i) made.levels.push_back(loads[i].busy.value_or(0.0));
  if (made.levels.empty() || made.levels.size() > kMostBars) made.levels = {*loads[0].busy};
  rows.push_back(std::move(made));
}

struct SensorRow {
  Kind kind;
  Icon icon;
  double hue;
  double full;  // fills the bar, in the reading's own unit
};
constexpr SensorRow kSensorRows[] = {
    {Kind::frequency, Icon::frequency, 0.46, 5000.0},
    {Kind::temperature, Icon::temperature, 0.03, 100.0},
    {Kind::fan, Icon::fan, 0.53, 5000.0},
};

void addSensors(const Root& root, std::vector<Row>& rows) {
  const std::vector<machine::Reading> readings = machine::readSensors(root);
  for (const SensorRow& wanted : kSensorRows) {
    std::vector<double> levels;
    for (const machine::Reading& reading : readings) {
      if (reading.kind == wanted.kind) levels.push_back(reading.value / wanted.full);
    }
    if (levels.empty()) continue;
    const double greatest = *std::max_element(levels.begin(), levels.end());
    if (levels.size() > kMostBars) levels = {greatest};
    rows.push_back(rowOf(wanted.icon, wanted.hue, sensorText(valueStyles(), wanted.kind, greatest * wanted.full)));
    rows.back().levels = std::move(levels);
  }
}

void addBatteries(const Root& root, std::vector<Row>& rows) {
  for (const machine::Battery& battery : machine::readBatteries(root)) {
    for (const machine::Reading& reading : battery.readings) {
      if (reading.kind != Kind::percentage) continue;
      rows.push_back(rowOf(Icon::battery, 0.30, partText(valueStyles(), reading.value)));
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
