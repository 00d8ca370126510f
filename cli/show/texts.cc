#include "cli/show/texts.h"

#include <cstddef>
#include <limits>
#include <string>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/widest_text.h>

#include "cli/words.h"
#include "core/rows.h"

namespace kzm::cli {
namespace {

// The number's attributes; the unit has none.
constexpr bool kStrong = true;

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

// ---- Options of each quantity --------------------------------------------------------------------------------------

const Dictionary& amountOptions() {
  static const Dictionary options = sizeOptions();
  return options;
}

// Less than one kilobyte is a dash.
const Dictionary& diskOptions() {
  static const Dictionary options = [] {
    Dictionary all = sizeOptions();
    all.set("hide-bytes", true);
    return all;
  }();
  return options;
}

const Dictionary& partOptions() {
  static const Dictionary options{{"attributes-main", kStrong}};
  return options;
}

const Dictionary& loadOptions() {
  static const Dictionary options{{"decimals", 2}};
  return options;
}

const Dictionary& sensorOptions() {
  static const Dictionary options{{"units", true}, {"space", true}, {"off", true}};
  return options;
}

// ---- Writers -------------------------------------------------------------------------------------------------------

constexpr double kPercent = 100.0;

using Options = const Dictionary&;

template <AttributedString (*Format)(Options options, double value)>
Cell attributed(Options options, double value) {
  return cellOf(Format(options, value));
}

Cell part(Options options, double part) {
  return cellOf(KZMUtilitiesFormatPercentageWithAttributes(options, part * kPercent));
}

// With all its decimals, so that the points are below each other.
Cell load(Options /*options*/, double programs) {
  return {{KZMUtilitiesDecimalFormatterWithFractions(2, 2)->string(programs), Emphasis::strong}};
}

template <SensorType::Kind Kind>
Cell sensor(Options options, double value) {
  return {{KZMUtilitiesFormatSensor(Kind, options, value), Emphasis::strong}};
}

struct WriterRow {
  Quantity quantity;
  const Dictionary& (*options)();  // null for the network, whose options are the user's
  Cell (*write)(Options options, double value);
  TextFamily family;
  double most = 0;  // beyond which nobody expects a value; 0 for what is usual in the family
};

// A state is a word already.
// clang-format off
constexpr WriterRow kWriters[] = {
    {Quantity::bandwidth,    nullptr,       attributed<KZMUtilitiesFormatBandwidthWithAttributes>,
     TextFamily::bandwidthWithAttributes},
    {Quantity::diskActivity, diskOptions,   attributed<KZMUtilitiesFormatDiskActivityWithAttributes>,
     TextFamily::diskActivityWithAttributes},
    {Quantity::space,        amountOptions, attributed<KZMUtilitiesFormatSpaceWithAttributes>,  TextFamily::space},
    {Quantity::memory,       amountOptions, attributed<KZMUtilitiesFormatMemoryWithAttributes>, TextFamily::memory},
    {Quantity::part,         partOptions,   part,                             TextFamily::percentage},
    {Quantity::load,         loadOptions,   load,                             TextFamily::number,  999.99},
    {Quantity::temperature,  sensorOptions, sensor<SensorType::temperature>,  TextFamily::sensorTemperature},
    {Quantity::level,        sensorOptions, sensor<SensorType::percentage>,   TextFamily::sensorPercentage},
    {Quantity::fan,          sensorOptions, sensor<SensorType::fan>,          TextFamily::sensorFan},
    {Quantity::current,      sensorOptions, sensor<SensorType::current>,      TextFamily::sensorCurrent},
    {Quantity::power,        sensorOptions, sensor<SensorType::power>,        TextFamily::sensorPower},
    {Quantity::voltage,      sensorOptions, sensor<SensorType::voltage>,      TextFamily::sensorVoltage},
    {Quantity::light,        sensorOptions, sensor<SensorType::light>,        TextFamily::sensorLight},
    {Quantity::frequency,    sensorOptions, sensor<SensorType::frequency>,    TextFamily::sensorFrequency},
    {Quantity::capacity,     sensorOptions, sensor<SensorType::capacity>,     TextFamily::sensorCapacity},
};
// clang-format on
static_assert(core::areInOrder(kWriters, &WriterRow::quantity, 1), "a quantity has no row, or not its place");

const WriterRow& writerOf(Quantity quantity) { return kWriters[static_cast<std::size_t>(quantity)]; }

}  // namespace

Texts::Texts(const Dictionary& bandwidth) : bandwidth_(rateOptions()) {
  for (const Dictionary::Entry& entry : bandwidth) bandwidth_.set(entry.key, entry.value);
}

const Dictionary& Texts::optionsOf(Quantity quantity) const {
  const WriterRow& row = writerOf(quantity);
  return row.options == nullptr ? bandwidth_ : row.options();
}

Cell Texts::cell(const Measured& reading) const {
  if (reading.quantity == Quantity::state) return {{reading.word}};
  if (!reading.value.has_value()) return {{"–", Emphasis::faint}};
  return writerOf(reading.quantity).write(optionsOf(reading.quantity), *reading.value);
}

std::string Texts::text(const Measured& reading) const {
  std::string text;
  for (const Piece& piece : cell(reading)) text += piece.text;
  return text;
}

std::string Texts::widest(const Measured& reading) const {
  if (reading.quantity == Quantity::state) return reading.word;
  std::string& widest = widest_[static_cast<std::size_t>(reading.quantity)];
  if (!widest.empty()) return widest;
  const WriterRow& row = writerOf(reading.quantity);
  ValueRange values = usualRange(row.family);
  if (row.most > 0) values.highest = row.most;
  widest = widestText(row.family, optionsOf(reading.quantity), values);
  return widest;
}

std::string minutesText(double minutes) {
  std::string text = word("Load.%@ min");
  const std::size_t place = text.find("%@");
  return place == std::string::npos ? text : text.replace(place, 2, KZMUtilitiesFormatNumber({}, minutes));
}

}  // namespace kzm::cli
