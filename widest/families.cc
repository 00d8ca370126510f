#include "widest/families.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <iterator>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/weather.h>

#include "bytes/readings.h"
#include "core/amounts.h"
#include "core/rows.h"
#include "sensors/sensor_data.h"
#include "weather/amounts.h"

namespace kzm::widest {
namespace {

// Calls a function that may do without options.
template <auto function>
auto called(const Dictionary& options, double value) {
  if constexpr (requires { function(value); }) {
    return function(value);
  } else {
    return function(options, value);
  }
}

template <auto format>
std::string text(const Dictionary& options, double value) {
  auto result = called<format>(options, value);
  if constexpr (std::same_as<decltype(result), AttributedString>) {
    return result.text();
  } else {
    return result;
  }
}

// A family that gives its number alone has one unit at a time.
template <auto number>
std::optional<core::Reading> reading(const Dictionary& options, double value) {
  const auto result = called<number>(options, value);
  if constexpr (std::same_as<decltype(result), const core::Amount>) {
    return core::Reading{0, result};
  } else {
    return result;
  }
}

constexpr double kZero[] = {0.0};
constexpr double kCompass[] = {0.0, 45.0, 90.0, 135.0, 180.0, 225.0, 270.0, 315.0};
constexpr double kUnknownAndZero[] = {-1.0, 0.0};

template <auto format, auto number>
consteval Family family(TextFamily name, ValueRange usual, std::span<const double> apart = kZero) {
  return {name, text<format>, reading<number>, usual, apart};
}

template <SensorType::Kind kind>
consteval Family sensor(TextFamily name, ValueRange usual, std::span<const double> apart = kZero) {
  return {name, [](const Dictionary& options, double value) { return KZMUtilitiesFormatSensor(kind, options, value); },
          [](const Dictionary& options, double value) { return sensors::readingOf(kind, options, value); }, usual,
          apart};
}

using enum TextFamily;

// The family's function and the amount that it shows; its name, its usual range, and values shown in their own way.
// clang-format off
constexpr Family kFamilies[] = {
    family<KZMUtilitiesFormatNumber, core::unitlessAmount>(number, {0.0, 1e6}),
    family<KZMUtilitiesFormatPercentage, core::unitlessAmount>(percentage, {0.0, 100.0}),
    family<KZMUtilitiesFormatBandwidth, bytes::bandwidth>(bandwidth, {0.0, 1e12}),
    family<KZMUtilitiesFormatBandwidthWithAttributes, bytes::attributedBandwidth>(bandwidthWithAttributes, {0.0, 1e12}),
    family<KZMUtilitiesFormatDiskActivity, bytes::diskActivity>(diskActivity, {0.0, 1e12}),
    family<KZMUtilitiesFormatDiskActivityWithAttributes, bytes::diskActivity>(diskActivityWithAttributes, {0.0, 1e12}),
    family<KZMUtilitiesFormatSpace, bytes::diskSpace>(space, {0.0, 1e15}),
    family<KZMUtilitiesFormatMemory, bytes::memory>(memory, {0.0, 1e13}),
    family<KZMUtilitiesFormatWeatherTemperature, weather::temperatureAmount>(weatherTemperature, {-90.0, 60.0}),
    family<KZMUtilitiesFormatWeatherWindSpeed, weather::windSpeedAmount>(weatherWindSpeed, {0.0, 120.0}),
    family<KZMUtilitiesFormatWeatherWindDirection, weather::plainAmount>(weatherWindDirection, {0.0, 360.0}, kCompass),
    family<KZMUtilitiesFormatWeatherPressure, weather::pressureAmount>(weatherPressure, {850.0, 1100.0}),
    family<KZMUtilitiesFormatWeatherDistance, weather::distanceAmount>(weatherDistance, {0.0, 20040.0}),
    family<KZMUtilitiesFormatWeatherVisibility, weather::plainAmount>(weatherVisibility, {0.0, 300.0}),
    family<KZMUtilitiesFormatWeatherRainAmount, weather::rainAmount>(weatherRainAmount, {0.0, 2000.0}),
    family<KZMUtilitiesFormatWeatherSnowAmount, weather::snowAmount>(weatherSnowAmount, {0.0, 20000.0}),
    family<KZMUtilitiesFormatWeatherUV, weather::plainAmount>(weatherUV, {0.0, 20.0}),
    family<KZMUtilitiesFormatWeatherHumidity, weather::plainAmount>(weatherHumidity, {0.0, 100.0}),
    family<KZMUtilitiesFormatWeatherAltitude, weather::angleAmount>(weatherAltitude, {-90.0, 90.0}),
    family<KZMUtilitiesFormatWeatherAzimuth, weather::angleAmount>(weatherAzimuth, {0.0, 360.0}),
    family<KZMUtilitiesFormatWeatherDays, weather::finelyDividedAmount>(weatherDays, {0.0, 366.0}),
    family<KZMUtilitiesFormatWeatherIllumination, weather::finelyDividedAmount>(weatherIllumination, {0.0, 100.0}),
    sensor<SensorType::temperature>(sensorTemperature, {-50.0, 150.0}),
    sensor<SensorType::percentage>(sensorPercentage, {0.0, 1.0}, kUnknownAndZero),
    sensor<SensorType::fan>(sensorFan, {0.0, 20000.0}),
    sensor<SensorType::current>(sensorCurrent, {-100.0, 100.0}),
    sensor<SensorType::power>(sensorPower, {-2000.0, 2000.0}),
    sensor<SensorType::voltage>(sensorVoltage, {-20.0, 400.0}),
    sensor<SensorType::light>(sensorLight, {0.0, 200000.0}),
    sensor<SensorType::frequency>(sensorFrequency, {0.0, 10000.0}),
    sensor<SensorType::multiplier>(sensorMultiplier, {0.0, 100.0}),
    sensor<SensorType::capacity>(sensorCapacity, {0.0, 100000.0}),
};
// clang-format on
static_assert(core::areInOrder(kFamilies, &Family::name), "a family has no row");

}  // namespace

// A number that names no family is served by the last row.
const Family& familyOf(TextFamily name) noexcept {
  return kFamilies[std::min(static_cast<std::size_t>(name), std::size(kFamilies) - 1)];
}

}  // namespace kzm::widest
