#include "cli/settings/unit_settings.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

#include <KZMSettings/KZMSettings.h>

#include "cli/errors.h"
#include "cli/listing.h"

namespace kzm::cli {
namespace {

using Units = KZMUtilitiesDefaultUnits;

// What is measured in the units of each setting, and the order in which they are listed.
struct Listed {
  std::string_view keyPath;
  std::string_view what;
};
// clang-format off
constexpr Listed kListed[] = {
    {"Sensors.Global.Degrees.Format",      "temperature of sensors"},
    {"Weather.Global.Units.Degrees",       "temperature of the air"},
    {"Weather.Global.Units.WindSpeed",     "speed of the wind"},
    {"Weather.Global.Units.Pressure",      "pressure of the air"},
    {"Weather.Global.Units.Distance",      "distances"},
    {"Weather.Global.Units.Precipitation", "rain and snow (snow in centimeters when rain is in millimeters)"},
};
// clang-format on

// The library's settings, each once. One that is not listed above comes last, by its key path alone.
std::vector<ListedSetting> makeList() {
  std::vector<ListedSetting> settings;
  const auto add = [&](std::string_view keyPath, std::string_view what) {
    for (const UnitSetting& setting : unitSettings()) {
      const auto isListed = [&](const ListedSetting& other) { return other.keyPath == setting.keyPath; };
      if (setting.keyPath != keyPath || std::ranges::any_of(settings, isListed)) continue;
      settings.push_back({setting.keyPath, what, setting.units, setting.unit});
    }
  };
  for (const Listed& listed : kListed) add(listed.keyPath, listed.what);
  for (const UnitSetting& setting : unitSettings()) add(setting.keyPath, "");
  return settings;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

std::int64_t codes(const ListedSetting& setting) { return std::ssize(setting.meanings) + 1; }

// The setting's unit in a region that prefers the one given for everything.
MeasurementUnit unitInRegionOf(const ListedSetting& setting, MeasurementUnit preferred) {
  Units region;
  PreferredUnits units = region.units();
  for (auto& [key, unit] : units) unit = preferred;
  region.setUnits(std::move(units));
  return (region.*setting.unit)();
}

}  // namespace

std::span<const ListedSetting> listedSettings() {
  static const std::vector<ListedSetting> settings = makeList();
  return settings;
}

const ListedSetting& settingAt(std::string_view keyPath) {
  std::string names;
  for (const ListedSetting& setting : listedSettings()) {
    if (setting.keyPath == keyPath) return setting;
    addToList(names, setting.keyPath);
  }
  throw InputError("settings: no setting " + inQuotes(keyPath) + "; there are " + names);
}

std::int64_t codeIn(const ListedSetting& setting, std::string_view text) {
  std::string meanings;
  for (std::int64_t code = kRegionsChoice; code < codes(setting); ++code) {
    if (text == std::to_string(code) || equalIgnoringCase(text, meaningOf(setting, code))) return code;
    addToList(meanings, std::to_string(code));
    meanings.append(" ").append(meaningOf(setting, code));
  }
  throw InputError("settings: " + std::string(setting.keyPath) + " has no code " + inQuotes(text) + "; there are " +
                   meanings);
}

std::string_view meaningOf(const ListedSetting& setting, std::int64_t code) {
  return code == kRegionsChoice ? "region" : measurementUnitName(setting.meanings[static_cast<std::size_t>(code - 1)]);
}

std::int64_t codeInForce(const ListedSetting& setting) {
  // Whatever is stored, the library alone knows how it reads it. Where the answer depends on what the region prefers,
  // the region decides.
  const MeasurementUnit unit = unitInRegionOf(setting, MeasurementUnit::knots);
  if (unit != unitInRegionOf(setting, MeasurementUnit::kelvin)) return kRegionsChoice;
  return std::ranges::find(setting.meanings, unit) - setting.meanings.begin() + 1;
}

}  // namespace kzm::cli
