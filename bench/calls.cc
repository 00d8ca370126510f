#include "bench/calls.h"

#include <array>
#include <charconv>
#include <memory>
#include <optional>
#include <string>
#include <unicode/numberformatter.h>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/weather.h>

#include "bench/icu_texts.h"
#include "bench/options.h"
#include "bench/values.h"
#include "c/kzm.h"

namespace kzm::bench {
namespace {

// Makes the call with these options, if it takes some, and each value.
template <auto Function, auto... Options>
void each(Span values) {
  const auto pass = [values](const auto&... options) {
    for (const double value : values) keep(Function(options..., value));
  };
  pass(Options().dictionary...);
}

template <SensorType::Kind Type>
void eachSensor(Span values) {
  const Dictionary& options = withUnit().dictionary;
  for (const double value : values) keep(KZMUtilitiesFormatSensor(Type, options, value));
}

std::optional<Dictionary> powerData(const Dictionary& options, double value) {
  return KZMUtilitiesSensorData(SensorType::power, options, value);
}

using CText = std::unique_ptr<char, decltype(&kzm_free)>;

// The same in C: the options are a text, and so is the result, which is given back.
template <auto Function, auto Options>
void eachInC(Span values) {
  for (const double value : values) keep(CText(Function(Options().json, value), &kzm_free));
}

// Options that were never seen before.
void eachInCWithNewOptions(Span values) {
  static std::size_t number = 0;
  for (const double value : values) {
    const std::string options = "{\"space\": true, \"number\": " + std::to_string(number++) + "}";
    keep(CText(kzm_format_memory(options.c_str(), value), &kzm_free));
  }
}

// clang-format off
//   name                              reach  values    pass
constexpr Call kPlain[] = {
    {"bandwidth, typical options",     0.8,   rates,    each<KZMUtilitiesFormatBandwidth, typicalRate>},
    {"bandwidth, no options",          0.8,   rates,    each<KZMUtilitiesFormatBandwidth, none>},
    {"disk activity, typical options", 1.0,   rates,    each<KZMUtilitiesFormatDiskActivity, typicalRate>},
    {"disk activity, no options",      1.0,   rates,    each<KZMUtilitiesFormatDiskActivity, none>},
    {"disk space, typical options",    1.0,   sizes,    each<KZMUtilitiesFormatSpace, typicalSize>},
    {"disk space, no options",         1.0,   sizes,    each<KZMUtilitiesFormatSpace, none>},
    {"memory, typical options",        1.0,   sizes,    each<KZMUtilitiesFormatMemory, typicalSize>},
    {"memory, no options",             1.0,   sizes,    each<KZMUtilitiesFormatMemory, none>},
    {"sensor temperature",             1.0,   readings, eachSensor<SensorType::temperature>},
    {"sensor percentage",              1.0,   readings, eachSensor<SensorType::percentage>},
    {"sensor fan",                     1.0,   readings, eachSensor<SensorType::fan>},
    {"sensor current",                 1.0,   readings, eachSensor<SensorType::current>},
    {"sensor power",                   1.0,   readings, eachSensor<SensorType::power>},
    {"sensor voltage",                 1.0,   readings, eachSensor<SensorType::voltage>},
    {"sensor light",                   1.0,   readings, eachSensor<SensorType::light>},
    {"sensor frequency",               1.0,   readings, eachSensor<SensorType::frequency>},
    {"sensor multiplier",              1.0,   readings, eachSensor<SensorType::multiplier>},
    {"sensor capacity",                1.0,   readings, eachSensor<SensorType::capacity>},
    {"percentage",                     1.0,   readings, each<KZMUtilitiesFormatPercentage, oneDigit>},
    {"number",                         1.0,   readings, each<KZMUtilitiesFormatNumber, oneDigit>},
};

//   name                      reach  values    pass
constexpr Call kWeather[] = {
    {"weather temperature",    1.6,   readings, each<KZMUtilitiesFormatWeatherTemperature, withUnit>},
    {"weather wind speed",     1.6,   readings, each<KZMUtilitiesFormatWeatherWindSpeed, withUnit>},
    {"weather wind direction", 1.25,  readings, each<KZMUtilitiesFormatWeatherWindDirection>},
    {"weather pressure",       1.6,   readings, each<KZMUtilitiesFormatWeatherPressure, withUnit>},
    {"weather distance",       1.6,   readings, each<KZMUtilitiesFormatWeatherDistance>},
    {"weather visibility",     1.6,   readings, each<KZMUtilitiesFormatWeatherVisibility>},
    {"weather rain",           1.6,   readings, each<KZMUtilitiesFormatWeatherRainAmount>},
    {"weather snow",           1.6,   readings, each<KZMUtilitiesFormatWeatherSnowAmount>},
    {"weather UV index",       1.25,  readings, each<KZMUtilitiesFormatWeatherUV>},
    {"weather humidity",       1.25,  readings, each<KZMUtilitiesFormatWeatherHumidity>},
    {"weather altitude",       1.25,  readings, each<KZMUtilitiesFormatWeatherAltitude, none>},
    {"weather azimuth",        1.25,  readings, each<KZMUtilitiesFormatWeatherAzimuth, none>},
    {"weather days",           1.6,   readings, each<KZMUtilitiesFormatWeatherDays>},
    {"weather illumination",   1.6,   readings, each<KZMUtilitiesFormatWeatherIllumination>},
};

//   name                         reach  values    pass
constexpr Call kAttributed[] = {
    {"bandwidth, attributed",     2.0,   rates,    each<KZMUtilitiesFormatBandwidthWithAttributes, styledRate>},
    {"disk activity, attributed", 2.0,   rates,    each<KZMUtilitiesFormatDiskActivityWithAttributes, styledRate>},
    {"disk space, attributed",    2.0,   sizes,    each<KZMUtilitiesFormatSpaceWithAttributes, styledSize>},
    {"memory, attributed",        2.0,   sizes,    each<KZMUtilitiesFormatMemoryWithAttributes, styledSize>},
    {"percentage, attributed",    2.0,   readings, each<KZMUtilitiesFormatPercentageWithAttributes, styledDigit>},
};

//   name                   reach  values    pass
constexpr Call kData[] = {
    {"bandwidth, data",     1.5,   rates,    each<KZMUtilitiesBandwidthData, typicalRate>},
    {"disk activity, data", 1.5,   rates,    each<KZMUtilitiesDiskActivityData, typicalRate>},
    {"disk space, data",    1.5,   sizes,    each<KZMUtilitiesSpaceData, typicalSize>},
    {"memory, data",        1.5,   sizes,    each<KZMUtilitiesMemoryData, typicalSize>},
    {"sensor, data",        1.5,   readings, each<powerData, withUnit>},
};

//   name                                  reach  values  pass
constexpr Call kC[] = {
    {"C: bandwidth, typical options",      0.0,   rates,  eachInC<kzm_format_bandwidth, typicalRate>},
    {"C: bandwidth, no options",           0.0,   rates,  eachInC<kzm_format_bandwidth, none>},
    {"C: bandwidth, attributed",           0.0,   rates,  eachInC<kzm_format_bandwidth_with_attributes, styledRate>},
    {"C: bandwidth, data",                 0.0,   rates,  eachInC<kzm_bandwidth_data, typicalRate>},
    {"C: disk activity, typical options",  0.0,   rates,  eachInC<kzm_format_disk_activity, typicalRate>},
    {"C: disk space, typical options",     0.0,   sizes,  eachInC<kzm_format_space, typicalSize>},
    {"C: memory, typical options",         0.0,   sizes,  eachInC<kzm_format_memory, typicalSize>},
    {"C: memory, another text of options", 0.0,   sizes,  eachInCWithNewOptions},
};
// clang-format on

}  // namespace

std::span<const Call> calls(Kind kind) {
  switch (kind) {
    case Kind::plain:
      return kPlain;
    case Kind::weather:
      return kWeather;
    case Kind::attributed:
      return kAttributed;
    case Kind::data:
      return kData;
    case Kind::c:
      return kC;
  }
  return {};
}

void floorPass(Span scaled) {
  for (const double value : scaled) {
    std::array<char, 64> digits;
    char* end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 1).ptr;
    std::string text(digits.data(), end);
    text += " Mb/s";
    keep(text);
  }
}

void icuPass(Span scaled) {
  using icu::number::NumberFormatter;
  static const auto formatter =
      NumberFormatter::withLocale(icu::Locale::getUS()).precision(icu::number::Precision::fixedFraction(1));
  keepIcuTexts(formatter, scaled);
}

}  // namespace kzm::bench
