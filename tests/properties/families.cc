#include "tests/properties/families.h"

#include <array>
#include <cmath>
#include <cstdio>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/text.h>

namespace kzm::tests {
namespace {

// ---- Options --------------------------------------------------------------------------------------------------------

Dictionary asGiven(Dictionary options) { return options; }

template <std::int64_t format>
Dictionary inFormat(Dictionary options) {
  options.remove("reverse-type");
  options.set("bandwidthformat", format);
  return options;
}

template <bool hides>
Dictionary hiding(Dictionary options) {
  options.set("hide-bytes", hides);
  return options;
}

Dictionary withUnits(Dictionary options) {
  options.remove("strip");
  options.set("units", true);
  return options;
}

// ---- Calls ----------------------------------------------------------------------------------------------------------

template <SensorType::Kind kind>
Dictionary sensorData(const Dictionary& options, double value) {
  return KZMUtilitiesSensorData(kind, options, value).value();
}

template <SensorType::Kind kind>
std::string sensorText(const Dictionary& options, double value) {
  return KZMUtilitiesFormatSensor(kind, options, value);
}

// ---- Attributed texts that are meant to differ ----------------------------------------------------------------------

const Value& attributesIn(const Dictionary& options, const char* key) {
  static const Value none;
  const Value* attributes = options.find(key);
  return attributes != nullptr ? *attributes : none;
}

bool wholeIsPlain(const Dictionary& options, double /*rate*/, const Dictionary& data, AttributedString& text) {
  if (decimalsIn(data) > 0) return false;
  std::array<char, 400> digits{};
  std::snprintf(digits.data(), digits.size(), "%.0f", valueIn(data));
  text = composed(formatIn(data), std::isnan(valueIn(data)) ? "nan" : digits.data(), options);
  return true;
}

bool hiddenIsADash(const Dictionary& options, double rate, const Dictionary& /*data*/, AttributedString& text) {
  if (!(rate < 1024.0)) return false;
  text = AttributedString("-", attributesIn(options, "attributes-main"));
  return true;
}

// ---- Levels ---------------------------------------------------------------------------------------------------------

constexpr Level kOfBytes[] = {{"K", 0x1p10}, {"M", 0x1p20}, {"G", 0x1p30}, {"T", 0x1p40}, {"P", 0x1p50}};
constexpr Level kOfBits[] = {{"K", 0x1p7}, {"M", 0x1p17}, {"G", 0x1p27}};
constexpr Level kOfDecimalBytes[] = {{"K", 1e3}, {"M", 1e6}, {"G", 1e9}, {"T", 1e12}, {"P", 999999995904e3}};
constexpr Level kOfVolts[] = {{"mV", 1e-3}, {"V", 1.0}};
constexpr Level kOfAmperes[] = {{"mA", 1e-3}, {"A", 1.0}};
constexpr Level kOfWatts[] = {{"mW", 1e-3}, {"W", 1.0}};
constexpr Level kOfMegahertz[] = {{"G", 1e3}};
constexpr Level kOfTurns[] = {{"rpm", 1.0}};
constexpr Level kOfLux[] = {{"L", 1.0}};
constexpr Level kOfFactors[] = {{"x", 1.0}};
constexpr Level kOfCapacity[] = {{"mAh", 1.0}};
constexpr std::span<const Level> kNoLevels;
constexpr double kTwoRoundings = 0x1p-51;

// ---- The families ---------------------------------------------------------------------------------------------------

template <SensorType::Kind kind>
constexpr Family sensor(const char* name, std::span<const Level> levels, double precision = 0.0) {
  return {name, withUnits, sensorData<kind>, sensorText<kind>, nullptr, nullptr, true, levels, precision};
}

template <auto options>
constexpr Family bandwidth(const char* name, std::span<const Level> levels) {
  return {name,
          options,
          KZMUtilitiesBandwidthData,
          KZMUtilitiesFormatBandwidth,
          KZMUtilitiesFormatBandwidthWithAttributes,
          wholeIsPlain,
          false,
          levels,
          0.0};
}

template <bool hides>
constexpr Family diskActivity(const char* name) {
  return {name,
          hiding<hides>,
          KZMUtilitiesDiskActivityData,
          KZMUtilitiesFormatDiskActivity,
          KZMUtilitiesFormatDiskActivityWithAttributes,
          hides ? hiddenIsADash : nullptr,
          false,
          kOfBytes,
          0.0};
}

constexpr Family kFamilies[] = {
    bandwidth<asGiven>("bandwidth", kNoLevels),
    bandwidth<inFormat<0>>("bandwidth in bytes", kOfBytes),
    bandwidth<inFormat<1>>("bandwidth in megabytes or more", kOfBytes),
    bandwidth<inFormat<2>>("bandwidth in bits", kOfBits),
    bandwidth<inFormat<3>>("bandwidth in megabits or more", kOfBits),
    diskActivity<false>("disk activity"),
    diskActivity<true>("disk activity that hides bytes"),
    {"disk space", asGiven, KZMUtilitiesSpaceData, KZMUtilitiesFormatSpace, KZMUtilitiesFormatSpaceWithAttributes,
     nullptr, true, kOfDecimalBytes, kTwoRoundings},
    {"memory", asGiven, KZMUtilitiesMemoryData, KZMUtilitiesFormatMemory, KZMUtilitiesFormatMemoryWithAttributes,
     nullptr, false, kOfBytes, 0.0},
    sensor<SensorType::temperature>("temperature", kNoLevels),
    sensor<SensorType::percentage>("percentage", kNoLevels),
    sensor<SensorType::fan>("fan", kOfTurns),
    sensor<SensorType::current>("current", kOfAmperes, kTwoRoundings),
    sensor<SensorType::power>("power", kOfWatts, kTwoRoundings),
    sensor<SensorType::voltage>("voltage", kOfVolts, kTwoRoundings),
    sensor<SensorType::light>("light", kOfLux),
    sensor<SensorType::frequency>("frequency", kOfMegahertz, kTwoRoundings),
    sensor<SensorType::multiplier>("multiplier", kOfFactors),
    sensor<SensorType::capacity>("capacity", kOfCapacity),
};

}  // namespace

std::span<const Family> families() { return kFamilies; }

AttributedString composed(const std::string& format, const std::string& number, const Dictionary& options) {
  AttributedString text(format, attributesIn(options, "attributes-units"));
  replaceStringWithStringAttributes(text, "%@", number, attributesIn(options, "attributes-main"));
  return text;
}

}  // namespace kzm::tests
