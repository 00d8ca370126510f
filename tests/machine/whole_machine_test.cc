// Every reader on a machine with nothing, on one full of garbage, and on the one that the test runs on.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <gtest/gtest.h>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "machine/disks.h"
#include "machine/memory.h"
#include "machine/network.h"
#include "machine/processor.h"
#include "machine/sensors.h"
#include "machine/volumes.h"
#include "tests/support/kernel_files.h"
#include "tests/support/scratch_directory.h"

namespace kzm::machine {
namespace {

constexpr const char* kFiles[] = {
    "proc/net/dev",
    "proc/diskstats",
    "proc/self/mounts",
    "proc/meminfo",
    "proc/stat",
    "proc/loadavg",
    "proc/cpuinfo",
    "sys/block/sda/stat",
    "sys/block/sda/size",
    "sys/class/hwmon/hwmon0/name",
    "sys/class/hwmon/hwmon0/temp1_input",
    "sys/class/hwmon/hwmon0/temp1_label",
    "sys/class/hwmon/hwmon0/temp2_input",
    "sys/class/hwmon/hwmon0/temp2_fault",
    "sys/class/thermal/thermal_zone0/type",
    "sys/class/thermal/thermal_zone0/temp",
    "sys/devices/system/cpu/cpu0/cpufreq/scaling_cur_freq",
    "sys/bus/iio/devices/iio:device0/in_illuminance_raw",
    "sys/bus/iio/devices/iio:device0/in_illuminance_scale",
    "sys/class/power_supply/BAT0/type",
    "sys/class/power_supply/BAT0/capacity",
    "sys/class/power_supply/BAT0/energy_now",
    "sys/class/power_supply/BAT0/voltage_now",
};

void expectShowable(const std::string& text) { EXPECT_EQ(shownText(text), text); }

// What a renderer may rely on, whatever is in the files.
void expectSane(const Root& root) {
  for (const Sample& sample : {readNetwork(root, 0), readDisks(root, 0)}) {
    for (const Counter& counter : sample.counters) expectShowable(counter.name);
  }
  for (const Volume& volume : readVolumes(root, [](const std::string&) { return std::optional(Space{2, 1, 1}); })) {
    expectShowable(volume.name);
  }
  (void)readMemory(root);
  (void)readLoadAverages(root);
  for (const ProcessorTime& time : readProcessor(root)) EXPECT_LE(time.idle, time.total);
  std::vector<SensorReading> readings = readSensors(root);
  for (const Battery& battery : readBatteries(root)) {
    readings.insert(readings.end(), battery.readings.begin(), battery.readings.end());
  }
  for (const SensorReading& reading : readings) {
    EXPECT_TRUE(std::isfinite(reading.value)) << reading.label;
    EXPECT_FALSE(reading.label.empty());
    expectShowable(reading.label);
    expectShowable(reading.source);
  }
}

TEST(WholeMachine, WithNothingGivesNothing) {
  const tests::ScratchDirectory scratch;
  const Root root(scratch.path("nowhere"));
  EXPECT_TRUE(readNetwork(root, 0).counters.empty());
  EXPECT_TRUE(readDisks(root, 0).counters.empty());
  EXPECT_TRUE(readVolumes(root).empty());
  const Memory memory = readMemory(root);
  EXPECT_FALSE(memory.total || memory.available || memory.swapTotal || memory.swapFree);
  EXPECT_TRUE(readProcessor(root).empty());
  EXPECT_FALSE(readLoadAverages(root).has_value());
  EXPECT_TRUE(readSensors(root).empty());
  EXPECT_TRUE(readBatteries(root).empty());
}

TEST(WholeMachine, WithPipesForFilesDoesNotWait) {
  const tests::ScratchDirectory scratch;
  for (const char* file : kFiles) {
    scratch.write(file, "");
    ASSERT_EQ(std::remove(scratch.path(file).c_str()), 0);
    ASSERT_EQ(mkfifo(scratch.path(file).c_str(), 0600), 0);
  }
  EXPECT_TRUE(readNetwork(Root(scratch.path("")), 0).counters.empty());
  EXPECT_TRUE(readSensors(Root(scratch.path(""))).empty());
  expectSane(Root(scratch.path("")));
}

// Pieces that the readers look for, in any order, are worse garbage than bytes alone.
std::string garbage(std::mt19937& random) {
  constexpr const char* kPieces[] = {
      "cpu",       "cpu0 ",     "MemTotal:",       " ",    "\n",    ":",           "18446744073709551615",
      "-1",        "1e308",     "0 0 0 0 0 0 0 0", "\\04", "\\040", "ext4",        "/",
      "\x1b[",     "\xff",      "\xe2\x80",        "sda",  "nan",   "4294967296 ", "1",
      "Battery\n", "processor", "cpu MHz",         "\t",   "1e-9",  "SwapFree: ",  "eth0: "};
  std::string text;
  for (std::size_t count = random() % 40; count > 0; --count) text += kPieces[random() % std::size(kPieces)];
  return text;
}

TEST(WholeMachine, WithGarbageEverywhereStaysSane) {
  std::mt19937 random(42);  // the same garbage in every run
  for (int round = 0; round < 50; ++round) {
    const tests::ScratchDirectory scratch;
    for (const char* file : kFiles) scratch.write(file, garbage(random));
    if (round % 2 == 0) scratch.write("sys/class/power_supply/BAT0/type", "Battery\n");
    expectSane(Root(scratch.path("")));
    if (testing::Test::HasFailure()) break;
  }
}

class ThisMachine : public tests::KernelFiles {};

TEST_F(ThisMachine, HasMemoryAndAProcessor) {
  const Root root("/");
  EXPECT_TRUE(readMemory(root).total.has_value());
  EXPECT_FALSE(readProcessor(root).empty());
  expectSane(root);
}

}  // namespace
}  // namespace kzm::machine
