#include "cli/show/texts.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>

#include "cli/words.h"

namespace kzm::cli {
namespace {

// The number's attributes; the unit has none.
const Value kStrong = true;

Dictionary rule(int below, int decimals) { return {{"value", below}, {"decimals", decimals}}; }

// Three digits that count: 1.25, 12.5, 125.
const Value& threeDigits() {
  static const Value rules = Array{rule(10, 2), rule(100, 1)};
  return rules;
}

Dictionary sizeOptions() {
  return {{"space", true},
          {"decimals-mb", threeDigits()},
          {"decimals-gb", threeDigits()},
          {"decimals-tb", threeDigits()},
          {"decimals-pb", threeDigits()},
          {"attributes-main", kStrong}};
}

// One decimal at least: without decimals the number of an attributed throughput is in plain digits, in every locale.
Dictionary rateOptions() {
  const Dictionary one = rule(std::numeric_limits<int>::max(), 1);
  Dictionary all = sizeOptions();
  all.set("decimals-kb", Array{one});
  for (const char* level : {"decimals-mb", "decimals-gb"}) all.set(level, Array{rule(10, 2), one});
  return all;
}

Cell cellOf(const AttributedString& text) {
  Cell cell;
  for (const AttributedString::Run& run : text.runs()) {
    cell.push_back({std::string(run.text), run.attributes == kStrong ? Emphasis::strong : Emphasis::plain});
  }
  return cell;
}

// A reading's kind is passed on as the number that the library has for it.
// clang-format off
constexpr std::pair<machine::Kind, SensorType::Kind> kKinds[] = {
    {machine::Kind::temperature, SensorType::temperature},
    {machine::Kind::percentage,  SensorType::percentage},
    {machine::Kind::fan,         SensorType::fan},
    {machine::Kind::current,     SensorType::current},
    {machine::Kind::power,       SensorType::power},
    {machine::Kind::voltage,     SensorType::voltage},
    {machine::Kind::light,       SensorType::light},
    {machine::Kind::frequency,   SensorType::frequency},
    {machine::Kind::capacity,    SensorType::capacity},
};
// clang-format on
static_assert(std::ranges::all_of(kKinds, [](const auto& kind) {
  return static_cast<std::int64_t>(kind.first) == static_cast<std::int64_t>(kind.second);
}));

Cell dash() { return {{"–", Emphasis::faint}}; }

}  // namespace

Cell networkCell(const Dictionary& options, std::optional<double> bytesPerSecond) {
  if (!bytesPerSecond.has_value()) return dash();
  Dictionary all = rateOptions();
  for (const Dictionary::Entry& entry : options) all.set(entry.key, entry.value);
  return cellOf(KZMUtilitiesFormatBandwidthWithAttributes(all, *bytesPerSecond));
}

Cell diskCell(std::optional<double> bytesPerSecond) {
  static const Dictionary options = [] {
    Dictionary all = sizeOptions();
    all.set("hide-bytes", true);
    return all;
  }();
  return bytesPerSecond.has_value() ? cellOf(KZMUtilitiesFormatDiskActivityWithAttributes(options, *bytesPerSecond))
                                    : dash();
}

Cell spaceCell(double bytes) {
  static const Dictionary options = sizeOptions();
  return cellOf(KZMUtilitiesFormatSpaceWithAttributes(options, bytes));
}

Cell memoryCell(std::optional<double> bytes) {
  static const Dictionary options = sizeOptions();
  return bytes.has_value() ? cellOf(KZMUtilitiesFormatMemoryWithAttributes(options, *bytes)) : dash();
}

Cell partCell(std::optional<double> part) {
  static const Dictionary options{{"attributes-main", kStrong}};
  constexpr double kPercent = 100.0;
  return part.has_value() ? cellOf(KZMUtilitiesFormatPercentageWithAttributes(options, *part * kPercent)) : dash();
}

Cell loadCell(double programs) {
  return {{KZMUtilitiesDecimalFormatterWithFractions(2, 2)->string(programs), Emphasis::strong}};
}

std::string minutesText(double minutes) {
  std::string text = word("Load.%@ min");
  const std::size_t place = text.find("%@");
  return place == std::string::npos ? text : text.replace(place, 2, KZMUtilitiesFormatNumber({}, minutes));
}

Cell sensorCell(machine::Kind kind, double value) {
  static const Dictionary options{{"units", true}, {"space", true}, {"off", true}};
  return {{KZMUtilitiesFormatSensor(static_cast<std::int64_t>(kind), options, value), Emphasis::strong}};
}

}  // namespace kzm::cli
