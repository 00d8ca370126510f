// A tree of kernel files with any bytes in them: what is read are finite numbers and names that can be shown.
#include <cmath>
#include <string>

#include "machine/disks.h"
#include "machine/files.h"
#include "machine/memory.h"
#include "machine/network.h"
#include "machine/processor.h"
#include "machine/rates.h"
#include "machine/sensors.h"
#include "machine/volumes.h"
#include "tests/fuzz/input.h"
#include "tests/support/scratch_directory.h"

namespace kzm::fuzz {
namespace {

constexpr std::string_view kFiles[] = {
    "proc/meminfo",
    "proc/stat",
    "proc/loadavg",
    "proc/net/dev",
    "proc/diskstats",
    "proc/self/mounts",
    "proc/cpuinfo",
    "sys/block/sda/size",
    "sys/class/hwmon/hwmon0/name",
    "sys/class/hwmon/hwmon0/temp1_input",
    "sys/class/hwmon/hwmon0/temp1_label",
    "sys/class/hwmon/hwmon0/fan1_input",
    "sys/class/hwmon/hwmon0/in0_input",
    "sys/class/hwmon/hwmon0/curr1_input",
    "sys/class/hwmon/hwmon0/power1_average",
    "sys/class/thermal/thermal_zone0/type",
    "sys/class/thermal/thermal_zone0/temp",
    "sys/class/power_supply/BAT0/type",
    "sys/class/power_supply/BAT0/status",
    "sys/class/power_supply/BAT0/capacity",
    "sys/class/power_supply/BAT0/energy_now",
    "sys/class/power_supply/BAT0/voltage_now",
    "sys/class/power_supply/BAT0/current_now",
    "sys/devices/system/cpu/cpu0/cpufreq/scaling_cur_freq",
    "sys/bus/iio/devices/iio:device0/in_illuminance_raw",
    "sys/bus/iio/devices/iio:device0/in_illuminance_scale",
};

void checkName(const std::string& name) { demand(machine::shownText(name) == name, "a name can be shown"); }

void checkReadings(const std::vector<machine::SensorReading>& readings) {
  for (const machine::SensorReading& reading : readings) {
    checkName(reading.source);
    checkName(reading.label);
    demand(std::isfinite(reading.value), "a reading is finite");
  }
}

void checkRates(const machine::Sample& sample) {
  for (const machine::Rate& rate : machine::ratesBetween(sample, sample)) checkName(rate.name);
}

void readAll(const machine::Root& root) {
  checkReadings(machine::readSensors(root));
  for (const machine::Battery& battery : machine::readBatteries(root)) {
    checkName(battery.name);
    checkName(battery.status);
    checkReadings(battery.readings);
  }
  checkRates(machine::readNetwork(root, 1.0));
  checkRates(machine::readDisks(root, 1.0));
  static_cast<void>(machine::readMemory(root));
  static_cast<void>(machine::loadBetween(machine::readProcessor(root), machine::readProcessor(root)));
  static_cast<void>(machine::readLoadAverages(root));
  const auto noSpace = [](const std::string&) {
    return std::optional<machine::Space>({.total = 2, .used = 1, .free = 1});
  };
  for (const machine::Volume& volume : machine::readVolumes(root, noSpace)) checkName(volume.name);
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kzm::fuzz;
  static const auto& scratch = *new kzm::tests::ScratchDirectory;
  Input input(bytes, size);
  std::filesystem::remove_all(scratch.path("machine"));
  while (!input.empty()) {
    const std::string_view file = input.any(kFiles);
    scratch.write("machine/" + std::string(file), input.textTo('\0'));
  }
  readAll(kzm::machine::Root(scratch.path("machine")));
  return 0;
}
