#include "cli/show/topics.h"

#include <algorithm>
#include <utility>

#include "cli/show/texts.h"
#include "cli/words.h"

namespace kzm::cli {
namespace {

using machine::Kind;

// ---- Readings: those of the counters come by themselves ------------------------------------------------------------

void readNothing(const machine::Root& /*root*/, Snapshot& /*snapshot*/) {}
void readVolumes(const machine::Root& root, Snapshot& snapshot) { snapshot.volumes = machine::readVolumes(root); }
void readMemory(const machine::Root& root, Snapshot& snapshot) { snapshot.memory = machine::readMemory(root); }
void readLoad(const machine::Root& root, Snapshot& snapshot) {
  snapshot.loadAverages = machine::readLoadAverages(root);
}
void readSensors(const machine::Root& root, Snapshot& snapshot) {
  if (snapshot.sensors.empty()) snapshot.sensors = machine::readSensors(root);
}
void readBatteries(const machine::Root& root, Snapshot& snapshot) { snapshot.batteries = machine::readBatteries(root); }

// ---- Rows ----------------------------------------------------------------------------------------------------------

bool isChosen(const Activity& activity, const RowChoice& choice) {
  if (choice.interfaces.empty()) return choice.all || activity.wasUsed;
  return std::find(choice.interfaces.begin(), choice.interfaces.end(), activity.rate.name) != choice.interfaces.end();
}

Section networkSection(const Snapshot& snapshot, const RowChoice& choice) {
  Section section{word("Topics.Network"), {word("Columns.received"), word("Columns.sent")}, {}};
  for (const Activity& activity : snapshot.network) {
    if (!isChosen(activity, choice)) continue;
    const auto& [name, in, out] = activity.rate;
    section.rows.push_back({name, {networkCell(choice.bandwidth, in), networkCell(choice.bandwidth, out)}});
  }
  return section;
}

Section disksSection(const Snapshot& snapshot, const RowChoice& choice) {
  Section section{word("Topics.Disk activity"), {word("Columns.read"), word("Columns.written")}, {}};
  for (const Activity& activity : snapshot.disks) {
    if (!choice.all && !activity.wasUsed) continue;
    section.rows.push_back({activity.rate.name, {diskCell(activity.rate.in), diskCell(activity.rate.out)}});
  }
  return section;
}

// Bars are in the fourth column, whatever the row has before it.
void addBar(double part, Row& row) {
  row.cells.resize(3);
  row.cells.push_back(bar(part));
}

double partOf(double some, double all) { return all > 0 ? some / all : 0.0; }

Section volumesSection(const Snapshot& snapshot, const RowChoice& /*choice*/) {
  Section section{word("Topics.Volumes"), {word("Columns.used"), word("Columns.free")}, {}};
  for (const machine::Volume& volume : snapshot.volumes) {
    const auto used = static_cast<double>(volume.space.used);
    const auto free = static_cast<double>(volume.space.free);
    const double part = partOf(used, used + free);
    section.rows.push_back({volume.name, {spaceCell(used), spaceCell(free), partCell(part), bar(part)}});
  }
  return section;
}

void addMemory(std::string name, std::optional<std::uint64_t> total, std::optional<std::uint64_t> free,
               Section& section) {
  if (total.value_or(0) == 0) return;
  const auto all = static_cast<double>(*total);
  if (!free.has_value()) {
    section.rows.push_back({std::move(name), {memoryCell(std::nullopt), memoryCell(std::nullopt)}});
    return;
  }
  const auto left = static_cast<double>(*free);
  const double part = partOf(all - left, all);
  section.rows.push_back({std::move(name), {memoryCell(all - left), memoryCell(left), partCell(part), bar(part)}});
}

Section memorySection(const Snapshot& snapshot, const RowChoice& /*choice*/) {
  Section section{word("Topics.Memory"), {word("Columns.used"), word("Columns.free")}, {}};
  addMemory(word("Rows.main"), snapshot.memory.total, snapshot.memory.available, section);
  addMemory(word("Rows.swap"), snapshot.memory.swapTotal, snapshot.memory.swapFree, section);
  return section;
}

// The first load is that of all processors together.
Section loadSection(const Snapshot& snapshot, const RowChoice& choice) {
  Section section{word("Topics.Load"), {}, {}};
  for (const machine::ProcessorLoad& load : snapshot.processor) {
    const bool isAll = &load == &snapshot.processor.front();
    if (!isAll && !choice.all) break;
    section.rows.push_back(
        {isAll ? word("Rows.processor") : load.name, {partCell(load.busy), {}, {}, bar(load.busy.value_or(0))}});
  }
  constexpr double kMinutes[] = {1, 5, 15};
  for (std::size_t i = 0; snapshot.loadAverages.has_value() && i < std::size(kMinutes); ++i) {
    section.rows.push_back({minutesText(kMinutes[i]), {loadCell((*snapshot.loadAverages)[i])}});
  }
  return section;
}

// More readings of one kind than these are shown by their least and their greatest.
constexpr std::size_t kSingly = 16;

std::vector<machine::SensorReading> readingsOf(const Snapshot& snapshot, Kind kind) {
  std::vector<machine::SensorReading> readings;
  std::copy_if(snapshot.sensors.begin(), snapshot.sensors.end(), std::back_inserter(readings),
               [kind](const machine::SensorReading& reading) { return reading.kind == kind; });
  return readings;
}

std::string nameOf(const machine::SensorReading& reading) {
  return reading.source.empty() ? reading.label : reading.source + "  " + reading.label;
}

void addExtremes(const std::vector<machine::SensorReading>& readings, Section& section) {
  const auto [least, greatest] = std::minmax_element(readings.begin(), readings.end(),
                                                     [](const auto& a, const auto& b) { return a.value < b.value; });
  section.rows.push_back({nameOf(*least) + " (" + word("Rows.least") + ")", {sensorCell(least->kind, least->value)}});
  section.rows.push_back(
      {nameOf(*greatest) + " (" + word("Rows.greatest") + ")", {sensorCell(greatest->kind, greatest->value)}});
}

Section sensorSection(const char* title, Kind kind, const Snapshot& snapshot, const RowChoice& choice) {
  Section section{word(title), {}, {}};
  const std::vector<machine::SensorReading> readings = readingsOf(snapshot, kind);
  if (readings.size() > kSingly && !choice.all) {
    addExtremes(readings, section);
    return section;
  }
  for (const machine::SensorReading& reading : readings) {
    section.rows.push_back({nameOf(reading), {sensorCell(kind, reading.value)}});
  }
  return section;
}

// What the machine calls a battery's state, or one of its readings; names that are not in the table stay.
std::string batteryWord(const std::string& name) { return word("Battery." + name); }

Section batterySection(const Snapshot& snapshot, const RowChoice& /*choice*/) {
  Section section{word("Topics.Battery"), {}, {}};
  for (const machine::Battery& battery : snapshot.batteries) {
    if (!battery.status.empty()) section.rows.push_back({battery.name, {{Piece{batteryWord(battery.status)}}}});
    for (const machine::SensorReading& reading : battery.readings) {
      machine::SensorReading named = reading;
      named.label = batteryWord(reading.label);
      section.rows.push_back({nameOf(named), {sensorCell(reading.kind, reading.value)}});
      if (reading.kind == Kind::percentage) addBar(reading.value, section.rows.back());
    }
  }
  return section;
}

// ---- The table -----------------------------------------------------------------------------------------------------

template <Kind K, const char* Title>
Section sensors(const Snapshot& snapshot, const RowChoice& choice) {
  return sensorSection(Title, K, snapshot, choice);
}

constexpr char kTemperatures[] = "Topics.Temperatures";
constexpr char kFans[] = "Topics.Fans";
constexpr char kVoltages[] = "Topics.Voltages";
constexpr char kCurrents[] = "Topics.Currents";
constexpr char kPower[] = "Topics.Power";
constexpr char kFrequencies[] = "Topics.Frequencies";
constexpr char kLight[] = "Topics.Light";

constexpr bool kRates = true;
constexpr bool kAtOnce = false;

constexpr Topic kTopics[] = {
    {"network", "what every interface receives and sends", kRates, readNothing, networkSection},
    {"disks", "what every disk reads and writes", kRates, readNothing, disksSection},
    {"volumes", "used and free space", kAtOnce, readVolumes, volumesSection},
    {"memory", "used and free memory", kAtOnce, readMemory, memorySection},
    {"load", "how busy the processor is", kRates, readLoad, loadSection},
    {"temperatures", "in the user's unit", kAtOnce, readSensors, sensors<Kind::temperature, kTemperatures>},
    {"fans", "their speed", kAtOnce, readSensors, sensors<Kind::fan, kFans>},
    {"voltages", "of every sensor", kAtOnce, readSensors, sensors<Kind::voltage, kVoltages>},
    {"currents", "of every sensor", kAtOnce, readSensors, sensors<Kind::current, kCurrents>},
    {"power", "what is drawn", kAtOnce, readSensors, sensors<Kind::power, kPower>},
    {"frequencies", "of the processors", kAtOnce, readSensors, sensors<Kind::frequency, kFrequencies>},
    {"light", "around the machine", kAtOnce, readSensors, sensors<Kind::light, kLight>},
    {"battery", "level and charge", kAtOnce, readBatteries, batterySection},
};

}  // namespace

std::span<const Topic> topics() { return kTopics; }

}  // namespace kzm::cli
