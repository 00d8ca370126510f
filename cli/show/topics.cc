#include "cli/show/topics.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "cli/show/texts.h"
#include "cli/words.h"
#include "machine/disks.h"
#include "machine/network.h"

namespace kzm::cli {
namespace {

using machine::Kind;
using machine::Root;
using Items = std::vector<Item>;

// ---- Measurements --------------------------------------------------------------------------------------------------

void countNetwork(const Root& root, Counters& counters) {
  counters.network = machine::readNetwork(root, counters.seconds);
}
void countDisks(const Root& root, Counters& counters) { counters.disks = machine::readDisks(root, counters.seconds); }
void countProcessor(const Root& root, Counters& counters) { counters.processor = machine::readProcessor(root); }

void readNothing(const Root& /*root*/, Snapshot& /*snapshot*/) {}
void readVolumes(const Root& root, Snapshot& snapshot) { snapshot.volumes = machine::readVolumes(root); }
void readMemory(const Root& root, Snapshot& snapshot) { snapshot.memory = machine::readMemory(root); }
void readLoad(const Root& root, Snapshot& snapshot) { snapshot.loadAverages = machine::readLoadAverages(root); }
void readSensors(const Root& root, Snapshot& snapshot) {
  if (snapshot.sensors.empty()) snapshot.sensors = machine::readSensors(root);
}
void readBatteries(const Root& root, Snapshot& snapshot) { snapshot.batteries = machine::readBatteries(root); }

// ---- Items ---------------------------------------------------------------------------------------------------------

bool isChosen(const Activity& activity, const RowChoice& choice) {
  if (choice.interfaces.empty()) return choice.all || activity.wasUsed;
  return std::ranges::find(choice.interfaces, activity.rate.name) != choice.interfaces.end();
}

Items networkItems(const Snapshot& snapshot, const RowChoice& choice) {
  Items items;
  for (const Activity& activity : snapshot.network) {
    if (!isChosen(activity, choice)) continue;
    const auto& [name, in, out] = activity.rate;
    items.push_back({name, name, {{"received", Quantity::bandwidth, in}, {"sent", Quantity::bandwidth, out}}});
  }
  return items;
}

Items diskItems(const Snapshot& snapshot, const RowChoice& choice) {
  Items items;
  for (const Activity& activity : snapshot.disks) {
    if (!choice.all && !activity.wasUsed) continue;
    const auto& [name, in, out] = activity.rate;
    items.push_back({name, name, {{"read", Quantity::diskActivity, in}, {"written", Quantity::diskActivity, out}}});
  }
  return items;
}

std::vector<Measured> filling(Quantity quantity, double used, double free) {
  const double all = used + free;
  const double part = all > 0 ? used / all : 0.0;
  return {{"used", quantity, used}, {"free", quantity, free}, {"part", Quantity::part, part}};
}

Items volumeItems(const Snapshot& snapshot, const RowChoice& /*choice*/) {
  Items items;
  for (const machine::Volume& volume : snapshot.volumes) {
    const auto used = static_cast<double>(volume.space.used);
    const auto free = static_cast<double>(volume.space.free);
    items.push_back({volume.name, volume.name, filling(Quantity::space, used, free)});
  }
  return items;
}

// What a row is called in every language: its word's key without the family.
std::string idOf(std::string_view key) { return std::string(key.substr(key.find('.') + 1)); }

void addMemory(std::string_view key, std::optional<std::uint64_t> total, std::optional<std::uint64_t> free,
               Items& items) {
  if (total.value_or(0) == 0) return;
  if (free.has_value()) {
    const auto left = static_cast<double>(*free);
    const double used = static_cast<double>(*total) - left;
    items.push_back({idOf(key), word(key), filling(Quantity::memory, used, left)});
  } else {
    items.push_back({idOf(key), word(key), {{"used", Quantity::memory}, {"free", Quantity::memory}}});
  }
}

Items memoryItems(const Snapshot& snapshot, const RowChoice& /*choice*/) {
  Items items;
  addMemory("Rows.main", snapshot.memory.total, snapshot.memory.available, items);
  addMemory("Rows.swap", snapshot.memory.swapTotal, snapshot.memory.swapFree, items);
  return items;
}

// The first load is that of all processors together.
Items loadItems(const Snapshot& snapshot, const RowChoice& choice) {
  Items items;
  for (const machine::ProcessorLoad& load : snapshot.processor) {
    const bool isAll = &load == &snapshot.processor.front();
    if (!isAll && !choice.all) break;
    items.push_back({load.name, isAll ? word("Rows.processor") : load.name, {{"busy", Quantity::part, load.busy}}});
  }
  constexpr int kMinutes[] = {1, 5, 15};
  for (std::size_t i = 0; snapshot.loadAverages.has_value() && i < std::size(kMinutes); ++i) {
    const Measured average{"programs", Quantity::load, (*snapshot.loadAverages)[i]};
    items.push_back({std::to_string(kMinutes[i]) + "min", minutesText(kMinutes[i]), {average}});
  }
  return items;
}

// A kind without its case does not build.
Quantity quantityOf(Kind kind) {
  switch (kind) {
    case Kind::temperature:
      return Quantity::temperature;
    case Kind::percentage:
      return Quantity::level;
    case Kind::fan:
      return Quantity::fan;
    case Kind::current:
      return Quantity::current;
    case Kind::power:
      return Quantity::power;
    case Kind::voltage:
      return Quantity::voltage;
    case Kind::light:
      return Quantity::light;
    case Kind::frequency:
      return Quantity::frequency;
    case Kind::capacity:
      return Quantity::capacity;
  }
  return Quantity::state;  // no kind at all
}

Measured readingOf(std::string_view name, const machine::SensorReading& reading) {
  return {name, quantityOf(reading.kind), reading.value};
}

std::string joined(const std::string& source, std::string_view between, const std::string& label) {
  return source.empty() ? label : source + std::string(between) + label;
}

std::string idOf(const machine::SensorReading& reading) { return joined(reading.source, " ", reading.label); }
std::string nameOf(const machine::SensorReading& reading) { return joined(reading.source, "  ", reading.label); }

std::vector<machine::SensorReading> readingsOf(const Snapshot& snapshot, Kind kind) {
  std::vector<machine::SensorReading> readings;
  std::ranges::copy_if(snapshot.sensors, std::back_inserter(readings),
                       [kind](const machine::SensorReading& reading) { return reading.kind == kind; });
  return readings;
}

Item extreme(const machine::SensorReading& reading, std::string_view key) {
  return {idOf(key), nameOf(reading) + " (" + word(key) + ")", {readingOf("value", reading)}};
}

// Two devices of one kind may have the same names.
Items numbered(Items items) {
  for (auto item = items.begin(); item != items.end(); ++item) {
    const std::string id = item->id;
    for (int number = 2; std::ranges::find(items.begin(), item, item->id, &Item::id) != item; ++number) {
      item->id = id + " " + std::to_string(number);
    }
  }
  return items;
}

// More readings of one kind than these are shown by their least and their greatest.
constexpr std::size_t kSingly = 16;

template <Kind K>
Items sensorItems(const Snapshot& snapshot, const RowChoice& choice) {
  const std::vector<machine::SensorReading> readings = readingsOf(snapshot, K);
  if (readings.size() > kSingly && !choice.all) {
    const auto [least, greatest] = std::ranges::minmax_element(readings, {}, &machine::SensorReading::value);
    return {extreme(*least, "Rows.least"), extreme(*greatest, "Rows.greatest")};
  }
  Items items;
  for (const machine::SensorReading& reading : readings) {
    items.push_back({idOf(reading), nameOf(reading), {readingOf("value", reading)}});
  }
  return numbered(std::move(items));
}

// What the machine calls a battery's state, or one of its readings; names that are not in the table stay.
std::string batteryWord(const std::string& name) { return word("Battery." + name); }

Items batteryItems(const Snapshot& snapshot, const RowChoice& /*choice*/) {
  Items items;
  for (const machine::Battery& battery : snapshot.batteries) {
    const Measured state{"state", Quantity::state, {}, batteryWord(battery.status)};
    if (!battery.status.empty()) items.push_back({battery.name, battery.name, {state}});
    for (const machine::SensorReading& reading : battery.readings) {
      machine::SensorReading named = reading;
      named.label = batteryWord(reading.label);
      items.push_back({idOf(reading), nameOf(named), {readingOf("value", reading)}});
    }
  }
  return numbered(std::move(items));
}

// ---- The table -----------------------------------------------------------------------------------------------------

// The name, what it shows, the title and the columns; then what counts, what reads and what makes the items.
// clang-format off
constexpr Topic kTopics[] = {
    {"network", "what every interface receives and sends", "Topics.Network", {"Columns.received", "Columns.sent"},
     countNetwork, readNothing, networkItems},
    {"disks", "what every disk reads and writes", "Topics.Disk activity", {"Columns.read", "Columns.written"},
     countDisks, readNothing, diskItems},
    {"volumes", "used and free space", "Topics.Volumes", {"Columns.used", "Columns.free"},
     nullptr, readVolumes, volumeItems},
    {"memory", "used and free memory", "Topics.Memory", {"Columns.used", "Columns.free"},
     nullptr, readMemory, memoryItems},
    {"load", "how busy the processor is", "Topics.Load", {}, countProcessor, readLoad, loadItems},
    {"temperatures", "in the user's unit", "Topics.Temperatures", {},
     nullptr, readSensors, sensorItems<Kind::temperature>},
    {"fans", "their speed", "Topics.Fans", {}, nullptr, readSensors, sensorItems<Kind::fan>},
    {"voltages", "of every sensor", "Topics.Voltages", {}, nullptr, readSensors, sensorItems<Kind::voltage>},
    {"currents", "of every sensor", "Topics.Currents", {}, nullptr, readSensors, sensorItems<Kind::current>},
    {"power", "what is drawn", "Topics.Power", {}, nullptr, readSensors, sensorItems<Kind::power>},
    {"frequencies", "of the processors", "Topics.Frequencies", {}, nullptr, readSensors, sensorItems<Kind::frequency>},
    {"light", "around the machine", "Topics.Light", {}, nullptr, readSensors, sensorItems<Kind::light>},
    {"battery", "level and charge", "Topics.Battery", {}, nullptr, readBatteries, batteryItems},
};
// clang-format on

}  // namespace

std::span<const Topic> topics() { return kTopics; }

}  // namespace kzm::cli
