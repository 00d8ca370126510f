#include "tests/cli/monitor/example.h"

#include <cmath>

#include "cli/show/topics.h"

namespace kzm::tests {
namespace {

using cli::Activity;
using cli::Snapshot;
using machine::Kind;

constexpr int kSeconds = 200;  // of the past; a graph of the widest screen is full

// From 0 to 1, slowly up and down, with a fast ripple of its own.
double wave(int second, double period) {
  const double slow = 0.5 + 0.5 * std::sin(second / period);
  return slow * (0.7 + 0.3 * std::sin(second * 1.7));
}

Activity activity(const char* name, double in, double out) { return {{name, in, out}, true}; }

void addRates(int second, Snapshot& snapshot) {
  snapshot.network = {
      activity("lo", 0.0, 0.0),
      activity("eth0", 12e6 * wave(second, 9.0), 800e3 * wave(second, 14.0)),
      activity("wlan0", 300e3 * wave(second, 5.0), 40e3 * wave(second, 21.0)),
  };
  snapshot.disks = {activity("nvme0n1", 250e6 * wave(second, 11.0), 60e6 * wave(second, 6.0))};
  snapshot.processor = {{"cpu", wave(second, 17.0)}};
  snapshot.loadAverages = {2.4 * wave(second, 30.0), 1.25, 0.8};
}

void addAmounts(Snapshot& snapshot) {
  snapshot.volumes = {
      {"/", "ext4", {.total = 250'000'000'000, .used = 61'000'000'000, .free = 189'000'000'000}},
      {"/home", "ext4", {.total = 1'000'000'000'000, .used = 870'000'000'000, .free = 130'000'000'000}},
  };
  snapshot.memory = {.total = 34359738368, .available = 15032385536, .swapTotal = 2147483648, .swapFree = 2147483648};
}

void addSensors(Snapshot& snapshot) {
  snapshot.sensors = {
      {Kind::temperature, 52.0, "coretemp", "Package id 0"},
      {Kind::temperature, 96.0, "nvme", "Composite"},
      {Kind::fan, 1240.0, "thinkpad", "Fan 1"},
      {Kind::frequency, 2600.0, "cpu", "CPU 0"},
      {Kind::frequency, 3400.0, "cpu", "CPU 1"},
  };
  snapshot.batteries = {
      {"BAT0", "Discharging", {{Kind::percentage, 0.18, "BAT0", "Level"}, {Kind::capacity, 620.0, "BAT0", "Charge"}}}};
}

std::vector<cli::Group> groupsAt(int second) {
  Snapshot snapshot;
  addRates(second, snapshot);
  addAmounts(snapshot);
  addSensors(snapshot);
  std::vector<cli::Group> groups;
  for (const cli::Topic& topic : cli::topics()) groups.push_back({&topic, topic.items(snapshot, {})});
  return groups;
}

}  // namespace

Example example() {
  Example example;
  for (int second = 0; second < kSeconds; ++second) {
    example.groups = groupsAt(second);
    example.tracks.add(example.groups, 1.0);
  }
  return example;
}

}  // namespace kzm::tests
