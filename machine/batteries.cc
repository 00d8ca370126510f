#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "machine/files.h"
#include "machine/sensors.h"

namespace kzm::machine {
namespace {

struct ChargeRow {
  std::string_view charge;  // file with microampere-hours
  std::string_view energy;  // file with microwatt-hours, where there is no charge
  std::string_view label;
};

constexpr ChargeRow kCharges[] = {
    {"/charge_now", "/energy_now", "Charge"},
    {"/charge_full", "/energy_full", "Full charge"},
    {"/charge_full_design", "/energy_full_design", "Design charge"},
};

// Microvolts at which the battery's energy counts: the designed ones, else the present ones.
std::optional<double> microvoltsOf(const std::string& battery) {
  for (const char* file : {"/voltage_min_design", "/voltage_now"}) {
    const std::optional<double> microvolts = readNumber(battery + file);
    if (microvolts && *microvolts > 0) return microvolts;
  }
  return std::nullopt;
}

// In milliampere-hours.
std::optional<double> chargeOf(const std::string& battery, const ChargeRow& row) {
  if (const auto charge = readNumber(battery + std::string(row.charge))) return *charge * 1e-3;
  const std::optional<double> energy = readNumber(battery + std::string(row.energy));
  const std::optional<double> microvolts = microvoltsOf(battery);
  if (!energy || !microvolts) return std::nullopt;
  return *energy / *microvolts * 1e3;
}

Battery readBattery(const std::string& directory, const std::string& name) {
  Battery battery{shownText(name), readLabel(directory + "/status"), {}};
  if (const std::optional<double> percent = readNumber(directory + "/capacity")) {
    battery.readings.push_back({Kind::percentage, std::clamp(*percent / 100, 0.0, 1.0), battery.name, "Level"});
  }
  for (const ChargeRow& row : kCharges) {
    const std::optional<double> charge = chargeOf(directory, row);
    if (!charge || *charge < 0) continue;
    battery.readings.push_back({Kind::capacity, *charge, battery.name, std::string(row.label)});
  }
  return battery;
}

}  // namespace

std::vector<Battery> readBatteries(const Root& root) {
  std::vector<Battery> batteries;
  for (const std::string& name : namesIn(root.at("sys/class/power_supply"))) {
    const std::string directory = root.at("sys/class/power_supply/" + name);
    if (readLabel(directory + "/type") != "Battery") continue;
    Battery battery = readBattery(directory, name);
    if (!battery.readings.empty()) batteries.push_back(battery);
  }
  return batteries;
}

}  // namespace kzm::machine
