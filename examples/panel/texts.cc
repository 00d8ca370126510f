#include "texts.h"

#include <cstdint>
#include <limits>
#include <optional>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/text.h>

namespace kzm::panel {
namespace {

Dictionary rule(int below, int decimals) { return {{"value", below}, {"decimals", decimals}}; }

Dictionary options(const Styles& styles) {
  return {{"space", true}, {"attributes-main", styles.main}, {"attributes-units", styles.units}};
}

// Three digits that count: 1.25, 12.5, 125.
Dictionary sizeOptions(const Styles& styles) {
  const Value threeDigits(Array{rule(10, 2), rule(100, 1)});
  Dictionary all = options(styles);
  for (const char* level : {"decimals-mb", "decimals-gb", "decimals-tb", "decimals-pb"}) all.set(level, threeDigits);
  return all;
}

// One decimal at least: without decimals the number of a throughput would be in plain digits, whatever the locale's.
Dictionary rateOptions(const Styles& styles) {
  const Dictionary one = rule(std::numeric_limits<int>::max(), 1);
  Dictionary all = options(styles);
  all.set("decimals-kb", Array{one});
  for (const char* level : {"decimals-mb", "decimals-gb"}) all.set(level, Array{rule(10, 2), one});
  return all;
}

}  // namespace

AttributedString labelText(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : " · ") + isolated(part);
  return AttributedString(text, labelStyle());
}

AttributedString networkText(const Styles& styles, double bytesPerSecond) {
  return KZMUtilitiesFormatBandwidthWithAttributes(rateOptions(styles), bytesPerSecond);
}

AttributedString diskText(const Styles& styles, double bytesPerSecond) {
  return KZMUtilitiesFormatDiskActivityWithAttributes(rateOptions(styles), bytesPerSecond);
}

AttributedString spaceText(const Styles& styles, double bytes) {
  return KZMUtilitiesFormatSpaceWithAttributes(sizeOptions(styles), bytes);
}

AttributedString memoryText(const Styles& styles, double bytes) {
  return KZMUtilitiesFormatMemoryWithAttributes(sizeOptions(styles), bytes);
}

AttributedString partText(const Styles& styles, double part) {
  constexpr double kPercent = 100.0;
  return KZMUtilitiesFormatPercentageWithAttributes(options(styles), part * kPercent);
}

// Sensors have a data call, of which text in two styles is made here: the unit's text, then the number in its place.
AttributedString sensorText(const Styles& styles, machine::Kind kind, double value) {
  const std::optional<Dictionary> data =
      KZMUtilitiesSensorData(static_cast<std::int64_t>(kind), options(styles), value);
  if (!data.has_value()) return {};
  const auto formatter = KZMUtilitiesDecimalFormatterWithMaximum(*data->find("decimals")->integer());
  AttributedString text(*data->find("format")->string(), styles.units);
  text.replaceFirst("%@", AttributedString(formatter->string(*data->find("value")->real()), styles.main));
  return text;
}

}  // namespace kzm::panel
