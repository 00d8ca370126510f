// The widest text that a family shows, so that a host can lay out its columns once and no reading ever moves them.
//
// Every function may be called from any thread at any time. The texts are those of this moment: when the user's units,
// the language or the locale change, the widest text has to be asked for again. A number that names no family counts as
// the last one.
#ifndef KZMUTILITIES_WIDEST_TEXT_H
#define KZMUTILITIES_WIDEST_TEXT_H

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>

namespace kzm {

/// The families of texts, each named after the function that makes them. Texts with attributes are the same texts, but
/// for the two that have a name of their own here.
enum class TextFamily : std::uint8_t {
  number,      // KZMUtilitiesFormatNumber
  percentage,  // KZMUtilitiesFormatPercentage
  bandwidth,   // KZMUtilitiesFormatBandwidth
  bandwidthWithAttributes,
  diskActivity,  // KZMUtilitiesFormatDiskActivity
  diskActivityWithAttributes,
  space,               // KZMUtilitiesFormatSpace
  memory,              // KZMUtilitiesFormatMemory
  weatherTemperature,  // KZMUtilitiesFormatWeatherTemperature, and so on
  weatherWindSpeed,
  weatherWindDirection,
  weatherPressure,
  weatherDistance,
  weatherVisibility,
  weatherRainAmount,
  weatherSnowAmount,
  weatherUV,
  weatherHumidity,
  weatherAltitude,
  weatherAzimuth,
  weatherDays,
  weatherIllumination,
  sensorTemperature,  // KZMUtilitiesFormatSensor with kzm::SensorType::temperature, and so on
  sensorPercentage,
  sensorFan,
  sensorCurrent,
  sensorPower,
  sensorVoltage,
  sensorLight,
  sensorFrequency,
  sensorMultiplier,
  sensorCapacity,
};

/// The values from `lowest` to `highest`, in the unit of the family's function.
struct ValueRange {
  double lowest;
  double highest;
};

/// What a desktop monitor may well meet: up to a terabyte per second, 150 degrees or 20,000 turns a minute, say.
/// Temperatures, currents, powers, voltages and altitudes begin below zero.
///
/// Example:
///   usualRange(TextFamily::sensorFan).highest  // 20000.0
[[nodiscard]] KZM_EXPORT ValueRange usualRange(TextFamily family) noexcept;

/// How wide a text is: in pixels, say. Of two texts that differ in digits, the one with the wider digits has to be the
/// wider one. An empty one throws std::bad_function_call when it is asked. A measure must not give NaN: any text of the
/// range may then be the widest.
using TextMeasure = std::function<double(std::string_view)>;

/// The measure of terminals and status bars: displayWidth.
///
/// Example:
///   widthInColumns("21°")  // 3.0
[[nodiscard]] KZM_EXPORT double widthInColumns(std::string_view text);

/// The widest text that the family's function makes of a value in the range, with these options; of several the first
/// that is found. No value in the range has a wider text, as long as the text has no more than 15 digits that count.
/// NaN is in no range: a host that shows it compares its text with this one. A range without values has no text.
///
/// It takes up to about a millisecond, and a thousand calls of the measure: too slow to be called at each refresh.
///
/// Example (English):
///   widestText(TextFamily::memory, {{"space", true}}, {0.0, 16e9})  // "1,024 KB"
///   widestText(TextFamily::sensorFan, {{"units", true}, {"space", true}}, {0.0, 4000.0})  // "4,000 rpm"
[[nodiscard]] KZM_EXPORT std::string widestText(TextFamily family, const Dictionary& options, ValueRange values,
                                                const TextMeasure& measure = widthInColumns);

/// The same for the family's usual range.
///
/// Example (English):
///   widestText(TextFamily::bandwidth, {{"space", true}})  // "1,024 KB/s"
[[nodiscard]] KZM_EXPORT std::string widestText(TextFamily family, const Dictionary& options,
                                                const TextMeasure& measure = widthInColumns);

}  // namespace kzm

#endif
