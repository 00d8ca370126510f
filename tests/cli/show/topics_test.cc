// From readings made by hand to rows.
#include "cli/show/topics.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "cli/show/watch.h"

namespace kzm::cli {
namespace {

using machine::Kind;
using Lines = std::vector<std::string>;

Group groupOf(std::string_view name, const Snapshot& snapshot, const RowChoice& choice = {}) {
  const auto topic = std::ranges::find(topics(), name, &Topic::name);
  return {&*topic, topic->items(snapshot, choice)};
}

Lines shown(std::string_view name, const Snapshot& snapshot, const RowChoice& choice = {},
            const Dictionary& bandwidth = {}) {
  Lines lines = laidOut({sectionOf(groupOf(name, snapshot, choice), Texts(bandwidth))}, {});
  if (!lines.empty()) lines.erase(lines.begin());
  return lines;
}

Snapshot network() {
  Snapshot snapshot;
  snapshot.network = {
      {{"lo", 0.0, 0.0}, true},
      {{"eth0", 1500000.0, 2048.0}, true},
      {{"wlan0", std::nullopt, std::nullopt}, true},
      {{"ifb0", 0.0, 0.0}, false},
  };
  return snapshot;
}

TEST(Topics, Network) {
  EXPECT_EQ(shown("network", network()), (Lines{
                                             "  lo                        0.0 KB/s      0.0 KB/s",
                                             "  eth0                     1.43 MB/s      2.0 KB/s",
                                             "  wlan0                            –             –",
                                         }));
  EXPECT_EQ(shown("network", network(), {.all = true}).size(), 4U) << "also what was never used";
  EXPECT_EQ(shown("network", network(), {.interfaces = {"eth0"}}, {{"bandwidthformat", 2}}),
            (Lines{"  eth0                     11.4 Mb/s     16.0 Kb/s"}));
  EXPECT_EQ(shown("network", network(), {.interfaces = {"ifb0"}}, {{"unitsize", 1}}),
            (Lines{"  ifb0                         0.0 K         0.0 K"}))
      << "what is asked for is shown, used or not";
}

TEST(Topics, DisksHideBytes) {
  Snapshot snapshot;
  snapshot.disks = {
      {{"sda", 1023.0, 3145728.0}, true},
      {{"sdb", 0.0, 0.0}, false},
  };
  EXPECT_EQ(shown("disks", snapshot), (Lines{"  sda                              -     3.00 MB/s"}));
  EXPECT_EQ(shown("disks", snapshot, {.all = true}).size(), 2U);
}

TEST(Topics, TheNumberIsStrongAndTheUnitIsPlain) {
  Snapshot snapshot;
  snapshot.disks = {{{"sda", 3145728.0, 0.0}, true}};
  const Section section = sectionOf(groupOf("disks", snapshot), Texts());
  EXPECT_EQ(section.rows[0].cells[0], (Cell{{"3.00", Emphasis::strong}, {" MB/s", Emphasis::plain}}));
  EXPECT_EQ(section.rows[0].cells[1], (Cell{{"-", Emphasis::strong}}));
}

TEST(Topics, Volumes) {
  Snapshot snapshot;
  snapshot.volumes = {
      {"/", "ext4", {.total = 100'000'000'000, .used = 25'000'000'000, .free = 75'000'000'000}},
      {"/empty", "tmpfs", {.total = 0, .used = 0, .free = 0}},
  };
  EXPECT_EQ(shown("volumes", snapshot),
            (Lines{
                "  /                            25 GB         75 GB           25%  █████░░░░░░░░░░░░░░░",
                "  /empty                        0 KB          0 KB            0%  ░░░░░░░░░░░░░░░░░░░░",
            }));
}

TEST(Topics, Memory) {
  Snapshot snapshot;
  snapshot.memory = {.total = 8589934592, .available = 6442450944, .swapTotal = 0, .swapFree = 0};
  EXPECT_EQ(shown("memory", snapshot),
            (Lines{"  main                       2.00 GB       6.00 GB           25%  █████░░░░░░░░░░░░░░░"}))
      << "no line for swap space that is not there";
  snapshot.memory = {.total = 1024, .available = std::nullopt, .swapTotal = std::nullopt, .swapFree = std::nullopt};
  EXPECT_EQ(shown("memory", snapshot), (Lines{"  main                             –             –"}));
  EXPECT_EQ(shown("memory", {}), Lines{});
}

TEST(Topics, Load) {
  Snapshot snapshot;
  snapshot.processor = {{"cpu", 0.5}, {"cpu0", 1.0}, {"cpu1", std::nullopt}};
  snapshot.loadAverages = {0.5, 12.345, 0.0};
  EXPECT_EQ(shown("load", snapshot), (Lines{
                                         "  processor                      50%  ██████████░░░░░░░░░░",
                                         "  1 min                         0.50",
                                         "  5 min                        12.34",
                                         "  15 min                        0.00",
                                     }));
  EXPECT_EQ(shown("load", snapshot, {.all = true}).size(), 6U) << "every processor";
}

TEST(Topics, SensorsByKind) {
  Snapshot snapshot;
  snapshot.sensors = {
      {Kind::temperature, 45.0, "coretemp", "Core 0"},
      {Kind::fan, 0.0, "nct", "Fan 1"},
      {Kind::fan, 1200.0, "nct", "Fan 2"},
      {Kind::voltage, 1.25, "nct", "in0"},
      {Kind::current, 0.25, "ina", "curr1"},
      {Kind::power, 12.3, "ina", "power1"},
      {Kind::frequency, 2600.0, "cpu", "CPU 0"},
      {Kind::light, 300.0, "", "Ambient light"},
  };
  EXPECT_EQ(shown("temperatures", snapshot), (Lines{"  coretemp  Core 0              113°"}));
  EXPECT_EQ(shown("fans", snapshot), (Lines{
                                         "  nct  Fan 1                     Off",
                                         "  nct  Fan 2               1,200 rpm",
                                     }));
  EXPECT_EQ(shown("voltages", snapshot), (Lines{"  nct  in0                     1.2 V"}));
  EXPECT_EQ(shown("currents", snapshot), (Lines{"  ina  curr1                  250 mA"}));
  EXPECT_EQ(shown("power", snapshot), (Lines{"  ina  power1                 12.3 W"}));
  EXPECT_EQ(shown("frequencies", snapshot), (Lines{"  cpu  CPU 0                 2.6 GHz"}));
  EXPECT_EQ(shown("light", snapshot), (Lines{"  Ambient light              300 Lux"}));
}

TEST(Topics, ManySensorsOfAKindAreShownByTheirExtremes) {
  Snapshot snapshot;
  for (int i = 0; i < 17; ++i) {
    snapshot.sensors.push_back({Kind::frequency, 1000.0 + 100.0 * i, "cpu", "CPU " + std::to_string(i)});
  }
  EXPECT_EQ(shown("frequencies", snapshot), (Lines{
                                                "  cpu  CPU 0 (least)             1 GHz",
                                                "  cpu  CPU 16 (greatest)       2.6 GHz",
                                            }));
  EXPECT_EQ(shown("frequencies", snapshot, {.all = true}).size(), 17U);
  snapshot.sensors.pop_back();
  EXPECT_EQ(shown("frequencies", snapshot).size(), 16U) << "sixteen are still listed";
}

TEST(Topics, Battery) {
  Snapshot snapshot;
  snapshot.batteries = {
      {"BAT0", "Discharging", {{Kind::percentage, 0.75, "BAT0", "Level"}, {Kind::capacity, 3000.0, "BAT0", "Charge"}}}};
  EXPECT_EQ(shown("battery", snapshot), (Lines{
                                            "  BAT0                   Discharging",
                                            "  BAT0  Level                    75%  ███████████████░░░░░",
                                            "  BAT0  Charge             3,000 mAh",
                                        }));
}

TEST(Topics, AMachineThatReportsNothingHasNoRows) {
  for (const Topic& topic : topics()) EXPECT_TRUE(topic.items({}, {.all = true}).empty()) << topic.name;
}

TEST(Topics, AnEmptyMachineIsReadWithoutAFuss) {
  Topics all;
  for (const Topic& topic : topics()) all.push_back(&topic);
  Watch watch(machine::Root("/nowhere/at/all"), all, {});
  for (const Group& group : watch.read()) EXPECT_TRUE(group.items.empty()) << group.topic->name;
}

TEST(Topics, IdentifiersAreTheSameInEveryLanguage) {
  Snapshot snapshot;
  snapshot.memory = {.total = 1024, .available = 512, .swapTotal = 1024, .swapFree = 0};
  snapshot.processor = {{"cpu", 0.5}};
  snapshot.loadAverages = {0.5, 12.345, 0.0};
  const auto ids = [&](std::string_view name) {
    Lines all;
    for (const Item& item : groupOf(name, snapshot).items) all.push_back(item.id);
    return all;
  };
  EXPECT_EQ(ids("memory"), (Lines{"main", "swap"}));
  EXPECT_EQ(ids("load"), (Lines{"cpu", "1min", "5min", "15min"}));
  for (int i = 0; i < 3; ++i) snapshot.sensors.push_back({Kind::temperature, 40.0, "nvme", "Composite"});
  EXPECT_EQ(ids("temperatures"), (Lines{"nvme Composite", "nvme Composite 2", "nvme Composite 3"})) << "once each";
}

}  // namespace
}  // namespace kzm::cli
