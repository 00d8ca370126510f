#include <algorithm>
#include <string>
#include <string_view>

#include <KZMUtilities/sensors.h>

#include "core/option_values.h"
#include "sensors/sensor_data.h"

namespace kzm::sensors {
namespace {

constexpr Key kStrip = "strip";

// Deliberate: "strip" runs on the finished text, so that spaces within the unit go too, and of the separators only
// those that a locale writes as a comma or a point (SensorFormat.StripRunsOnTheFinishedText).
void strip(std::string& text, bool isWhole) {
  const std::string_view unwanted = isWhole ? " ,." : " ";
  std::erase_if(text, [unwanted](char c) { return unwanted.find(c) != std::string_view::npos; });
}

std::string textOf(const core::Reading& reading, bool withUnit) {
  if (!withUnit) return core::text(reading.amount);
  return reading.row == kPercentRow ? core::text(core::kPercent, reading.amount) : core::text<kSensorTable>(reading);
}

}  // namespace
}  // namespace kzm::sensors

std::string KZMUtilitiesFormatSensor(std::int64_t type, const kzm::Dictionary& options, double value) {
  using namespace kzm::sensors;
  using namespace kzm::core;
  const std::optional<Reading> reading = readingOf(type, options, value);
  if (!reading.has_value()) return {};
  std::string text = textOf(*reading, readBoolean(options.find(kUnits)));
  // Deliberate: "strip" takes separators for a count of decimals of exactly 0; -1, which shows none either, keeps them
  // (SensorFormat.StripTakesSeparatorsOnlyWithoutDecimals).
  if (options.contains(kStrip)) strip(text, reading->amount.decimals == 0);
  return text;
}
