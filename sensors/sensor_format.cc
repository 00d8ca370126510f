#include <algorithm>
#include <string>
#include <string_view>

#include <KZMUtilities/sensors.h>

#include "core/number_text.h"
#include "core/options.h"
#include "core/reading.h"
#include "core/warm.h"
#include "sensors/sensor_data.h"

namespace kzm::sensors {
namespace {

constexpr Key kStrip = "strip";

// Deliberate: this runs on the finished text, so that blanks within the unit go too, and of the separators only those
// that a locale writes as a comma or a point.
void strip(std::string& text, bool isWhole) {
  const std::string_view unwanted = isWhole ? " ,." : " ";
  std::erase_if(text, [unwanted](char c) { return unwanted.find(c) != std::string_view::npos; });
}

}  // namespace
}  // namespace kzm::sensors

std::string KZMUtilitiesFormatSensor(std::int64_t type, const kzm::Dictionary& options, double value) {
  using namespace kzm::sensors;
  using namespace kzm::core;
  const std::optional<Reading> reading = readingOf(type, options, value);
  if (!reading.has_value()) return {};
  // The number before the unit: what is held of the unit is good until the next call only.
  const NumberText number(warmFormatter(DigitRule::atMost, reading->decimals), reading->value);
  const Template* unit = unitText(*reading, options);
  if (unit == nullptr) return {};
  std::string text = readBoolean(options.find(kUnits)) ? unit->filled(number) : number.string();
  if (options.contains(kStrip)) strip(text, reading->decimals == 0);
  return text;
}
