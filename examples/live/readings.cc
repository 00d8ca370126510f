#include "readings.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <utility>

#include <KZMUtilities/KZMUtilities.h>

#include "cli/words.h"
#include "machine/disks.h"
#include "machine/memory.h"
#include "machine/network.h"
#include "machine/sensors.h"

namespace kzm::live {
namespace {

std::string temperatureText(const Dictionary& options, double celsius) {
  return KZMUtilitiesFormatSensor(SensorType::temperature, options, celsius);
}

struct Row {
  const char* topic;
  const char* column;  // may be null
  TextFamily family;
  std::string (*text)(const Dictionary& options, double value);
};

// clang-format off
constexpr Row kTable[kRows] = {
    {"Topics.Network",       "Columns.received", TextFamily::bandwidth,         KZMUtilitiesFormatBandwidth},
    {"Topics.Network",       "Columns.sent",     TextFamily::bandwidth,         KZMUtilitiesFormatBandwidth},
    {"Topics.Disk activity", "Columns.read",     TextFamily::diskActivity,      KZMUtilitiesFormatDiskActivity},
    {"Topics.Disk activity", "Columns.written",  TextFamily::diskActivity,      KZMUtilitiesFormatDiskActivity},
    {"Topics.Memory",        "Columns.used",     TextFamily::memory,            KZMUtilitiesFormatMemory},
    {"Topics.Temperatures",  nullptr,            TextFamily::sensorTemperature, temperatureText},
};
// clang-format on

// Three digits that count, whatever the size.
const Options& options() {
  static const Array threeDigits = decimalsRules({{10.0, 2}, {100.0, 1}});
  static const Options all{{"space", true},
                           {"units", true},
                           {"decimals-kb", decimalsRules({{100.0, 1}})},
                           {"decimals-mb", threeDigits},
                           {"decimals-gb", threeDigits}};
  return all;
}

using Reading = std::optional<double>;

// All interfaces, or all disks, together.
std::pair<Reading, Reading> total(machine::Sample& before, machine::Sample now) {
  std::pair<Reading, Reading> sum;
  for (const machine::Rate& rate : machine::ratesBetween(before, now)) {
    if (rate.name == "lo") continue;
    if (rate.in.has_value()) sum.first = sum.first.value_or(0.0) + *rate.in;
    if (rate.out.has_value()) sum.second = sum.second.value_or(0.0) + *rate.out;
  }
  before = std::move(now);
  return sum;
}

Reading memoryUsed(const machine::Root& root) {
  const machine::Memory memory = machine::readMemory(root);
  if (!memory.total.has_value() || !memory.available.has_value()) return std::nullopt;
  return static_cast<double>(*memory.total - *memory.available);
}

Reading highestTemperature(const machine::Root& root) {
  Reading highest;
  for (const machine::SensorReading& sensor : machine::readSensors(root)) {
    if (sensor.kind == machine::Kind::temperature) highest = std::max(highest.value_or(sensor.value), sensor.value);
  }
  return highest;
}

}  // namespace

// The line itself has no letter outside of its isolates: a mark says in which direction it is to be read.
std::string labelOf(std::size_t row) {
  const std::string topic = (isRightToLeft() ? "\u200F" : "") + isolated(cli::word(kTable[row].topic));
  return kTable[row].column == nullptr ? topic : topic + " · " + isolated(cli::word(kTable[row].column));
}

std::string widestOf(std::size_t row, const TextMeasure& measure) {
  return widestText(kTable[row].family, options(), measure);
}

std::string timeText() {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale locale(currentLocale().c_str());
  const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createInstanceForSkeleton("jms", locale, status));
  if (U_FAILURE(status)) return {};
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  icu::UnicodeString text;
  std::string utf8;
  return format->format(std::chrono::duration<double, std::milli>(now).count(), text).toUTF8String(utf8);
}

bool isRightToLeft() { return hasRightToLeft(cli::word("Topics.Memory")); }

std::array<std::string, kRows> Readings::next() {
  const double seconds = machine::secondsNow();
  const auto [received, sent] = total(network_, machine::readNetwork(root_, seconds));
  const auto [read, written] = total(disks_, machine::readDisks(root_, seconds));
  const Reading values[kRows] = {received, sent, read, written, memoryUsed(root_), highestTemperature(root_)};
  std::array<std::string, kRows> texts;
  for (std::size_t i = 0; i < kRows; ++i) texts[i] = values[i] ? kTable[i].text(options(), *values[i]) : "–";
  return texts;
}

}  // namespace kzm::live
