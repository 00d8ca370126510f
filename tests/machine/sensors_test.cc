#include "machine/sensors.h"

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "tests/support/scratch_directory.h"

namespace kzm::machine {
namespace {

struct File {
  const char* name;
  const char* text;
};

class Sensors : public testing::Test {
 protected:
  tests::ScratchDirectory scratch_;
  Root root_{scratch_.path("")};

  void record(const std::string& directory, const std::vector<File>& files) {
    for (const File& file : files) scratch_.write(directory + "/" + file.name, file.text);
  }
};

void expectReadings(const std::vector<SensorReading>& actual, const std::vector<SensorReading>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) {
    EXPECT_EQ(actual[i].kind, expected[i].kind) << expected[i].label;
    EXPECT_DOUBLE_EQ(actual[i].value, expected[i].value) << expected[i].label;
    EXPECT_EQ(actual[i].source, expected[i].source) << expected[i].label;
    EXPECT_EQ(actual[i].label, expected[i].label);
  }
}

TEST_F(Sensors, OfChipsComeInTheLibrarysUnits) {
  record("sys/class/hwmon/hwmon0", {
                                       {"name", "laptop\n"},
                                       {"temp10_input", "38000\n"},
                                       {"temp2_input", "-5500\n"},
                                       {"temp2_label", "Outside\n"},
                                       {"fan1_input", "0\n"},
                                       {"in0_input", "11980\n"},
                                       {"curr1_input", "1250\n"},
                                       {"power1_input", "15500000\n"},
                                       {"power1_average", "14000000\n"},
                                       {"power2_average", "250000\n"},
                                       {"freq1_input", "400000000"},
                                   });
  expectReadings(readChips(root_), {
                                       {Kind::temperature, -5.5, "laptop", "Outside"},
                                       {Kind::temperature, 38, "laptop", "Temperature 10"},
                                       {Kind::fan, 0, "laptop", "Fan 1"},
                                       {Kind::voltage, 11.98, "laptop", "Voltage 0"},
                                       {Kind::current, 1.25, "laptop", "Current 1"},
                                       {Kind::power, 15.5, "laptop", "Power 1"},
                                       {Kind::power, 0.25, "laptop", "Power 2"},
                                       {Kind::frequency, 400, "laptop", "Frequency 1"},
                                   });
}

TEST_F(Sensors, ThatFailLeaveTheOthersAlone) {
  record("sys/class/hwmon/hwmon3", {
                                       {"temp1_input", "40000\n"},
                                       {"temp1_fault", "1\n"},
                                       {"temp2_input", "41000\n"},
                                       {"temp2_fault", "0\n"},
                                       {"temp3_input", ""},
                                       {"temp4_input", "N/A\n"},
                                       {"temp5_input", "1e999\n"},
                                       {"temp_input", "1000\n"},
                                       {"tempx_input", "1000\n"},
                                       {"intrusion0_alarm", "1\n"},
                                       {"fan1_input", "900\n"},
                                       {"fan1_label", "\x1b[2Jcpu\n"},
                                   });
  ASSERT_EQ(mkfifo(scratch_.path("sys/class/hwmon/hwmon3/temp6_input").c_str(), 0600), 0);
  ASSERT_EQ(mkdir(scratch_.path("sys/class/hwmon/hwmon3/temp7_input").c_str(), 0700), 0);
  expectReadings(readChips(root_), {
                                       {Kind::temperature, 41, "", "Temperature 2"},
                                       {Kind::fan, 900, "", "[2Jcpu"},
                                   });
}

TEST_F(Sensors, OfZonesAreThoseThatNoChipReports) {
  record("sys/class/hwmon/hwmon0", {{"name", "coretemp\n"}, {"temp1_input", "50000\n"}});
  record("sys/class/hwmon/hwmon1", {{"name", "pch_cannonlake\n"}, {"temp1_input", "44000\n"}});
  record("sys/class/hwmon/hwmon2", {{"name", "acpitz\n"}, {"fan1_input", "44\n"}});
  const File kTypes[] = {
      {"thermal_zone0", "x86_pkg_temp\n"},
      {"thermal_zone1", "pch-cannonlake\n"},
      {"thermal_zone2", "acpitz\n"},
      {"thermal_zone10", "soc-thermal\n"},
      {"thermal_zone11", "\n"},
      {"cooling_device", "fan\n"},
  };
  for (const File& zone : kTypes) {
    record(std::string("sys/class/thermal/") + zone.name, {{"type", zone.text}, {"temp", "27500\n"}});
  }
  expectReadings(readZones(root_), {
                                       {Kind::temperature, 27.5, "thermal", "acpitz"},
                                       {Kind::temperature, 27.5, "thermal", "soc-thermal"},
                                       {Kind::temperature, 27.5, "thermal", "thermal_zone11"},
                                   });
}

TEST_F(Sensors, FrequenciesComeFromTheDriverElseFromTheProcessor) {
  const std::string info =
      "processor\t: 0\ncpu MHz\t\t: 2400.5\n\nprocessor\t: 1\ncpu MHz\t\t: 0\n\n"
      "processor : x\ncpu MHz : 9\nprocessor\t: 12\nmodel name : cpu MHz\ncpu MHz : 800\ncpu MHz\ncpu MHz : 801 802\n"
      "processor : 13\ncpu MHz : 0.5\n";
  scratch_.write("proc/cpuinfo", info);
  expectReadings(readFrequencies(root_), {
                                             {Kind::frequency, 2400.5, "cpu", "CPU 0"},
                                             {Kind::frequency, 800, "cpu", "CPU 12"},
                                             {Kind::frequency, 0.5, "cpu", "CPU 13"},
                                         });
  const std::vector<File> kCpus = {
      {"cpu10/cpufreq/scaling_cur_freq", "3100000\n"},
      {"cpu2/cpufreq/scaling_cur_freq", "1200000\n"},
      {"cpu3/cpufreq/scaling_cur_freq", "<unknown>"},
      {"cpufreq/scaling_cur_freq", "1\n"},
      {"online", "0-10\n"},
  };
  record("sys/devices/system/cpu", kCpus);
  expectReadings(readFrequencies(root_), {
                                             {Kind::frequency, 1200, "cpu", "CPU 2"},
                                             {Kind::frequency, 3100, "cpu", "CPU 10"},
                                         });
}

TEST_F(Sensors, LightIsReadFinishedOrRaw) {
  record("sys/bus/iio/devices/iio:device0", {{"name", "als\n"}, {"in_illuminance_input", "120.5\n"}});
  record("sys/bus/iio/devices/iio:device1", {{"name", "als2\n"},
                                             {"in_illuminance0_raw", "40\n"},
                                             {"in_illuminance0_offset", "2\n"},
                                             {"in_illuminance0_scale", "0.5\n"}});
  record("sys/bus/iio/devices/iio:device2", {{"name", "accel\n"}, {"in_accel_x_raw", "5\n"}});
  record("sys/bus/iio/devices/iio:device3", {{"in_illuminance_raw", "-5\n"}});
  record("sys/bus/iio/devices/iio:device4", {{"in_illuminance_raw", "0\n"}});
  record("sys/bus/iio/devices/iio:device5", {{"in_illuminance_raw", "7\n"}});
  expectReadings(readLight(root_), {
                                       {Kind::light, 120.5, "als", "Ambient light"},
                                       {Kind::light, 21, "als2", "Ambient light"},
                                       {Kind::light, 0, "", "Ambient light"},
                                       {Kind::light, 7, "", "Ambient light"},
                                   });
}

TEST_F(Sensors, OfBatteriesGiveLevelAndChargeFromChargeOrEnergy) {
  record("sys/class/power_supply/AC", {{"type", "Mains\n"}, {"online", "1\n"}});
  record("sys/class/power_supply/BAT0", {{"type", "Battery\n"},
                                         {"status", "Discharging\n"},
                                         {"capacity", "76\n"},
                                         {"charge_now", "3200000\n"},
                                         {"charge_full", "4200000\n"}});
  record("sys/class/power_supply/BAT1", {{"type", "Battery\n"},
                                         {"capacity", "103\n"},
                                         {"energy_now", "22800000\n"},
                                         {"energy_full", "garbage\n"},
                                         {"energy_full_design", "57000000\n"},
                                         {"voltage_min_design", "11400000\n"}});
  record("sys/class/power_supply/BAT2", {{"type", "Battery\n"}, {"energy_now", "1\n"}, {"voltage_now", "0\n"}});
  record("sys/class/power_supply/BAT3", {{"type", "Battery\n"},
                                         {"capacity", "-1\n"},
                                         {"charge_now", "0\n"},
                                         {"charge_full", "-1\n"},
                                         {"energy_full_design", "2\n"},
                                         {"voltage_now", "1\n"}});
  const std::vector<Battery> batteries = readBatteries(root_);
  ASSERT_EQ(batteries.size(), 3U);
  EXPECT_EQ(batteries[0].status, "Discharging");
  EXPECT_EQ(batteries[1].status, "");
  expectReadings(batteries[0].readings, {
                                            {Kind::percentage, 0.76, "BAT0", "Level"},
                                            {Kind::capacity, 3200, "BAT0", "Charge"},
                                            {Kind::capacity, 4200, "BAT0", "Full charge"},
                                        });
  expectReadings(batteries[1].readings, {
                                            {Kind::percentage, 1, "BAT1", "Level"},
                                            {Kind::capacity, 2000, "BAT1", "Charge"},
                                            {Kind::capacity, 5000, "BAT1", "Design charge"},
                                        });
  expectReadings(batteries[2].readings, {
                                            {Kind::percentage, 0, "BAT3", "Level"},
                                            {Kind::capacity, 0, "BAT3", "Charge"},
                                            {Kind::capacity, 2000, "BAT3", "Design charge"},
                                        });
}

}  // namespace
}  // namespace kzm::machine
