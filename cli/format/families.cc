#include "cli/format/families.h"

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/weather.h>

#include "cli/format/option_flags.h"

namespace kzm::cli {
namespace {

// Only the attributed call of disk activity knows "hide-bytes"; its text is otherwise that of the plain call.
std::string diskText(const Dictionary& options, double bytesPerSecond) {
  return KZMUtilitiesFormatDiskActivityWithAttributes(options, bytesPerSecond).text();
}

template <std::int64_t Type>
std::string sensorText(const Dictionary& options, double value) {
  return KZMUtilitiesFormatSensor(Type, options, value);
}

template <auto Format>
std::string withoutOptions(const Dictionary& /*options*/, double value) {
  return Format(value);
}

// clang-format off
//   name                     a value is                flags                                          text
constexpr Family kFamilies[] = {
    {"bandwidth",             "bytes per second",       "bits from-mega reverse-type unit-size short space early-upgrade "
                                                        "decimals-kb decimals-mb decimals-gb",         KZMUtilitiesFormatBandwidth},
    {"disk",                  "bytes per second",       "short space early-upgrade hide-bytes "
                                                        "decimals-kb decimals-mb decimals-gb",         diskText},
    {"space",                 "bytes",                  "short space decimals-kb decimals-mb decimals-gb decimals-tb "
                                                        "decimals-pb",                                 KZMUtilitiesFormatSpace},
    {"memory",                "bytes",                  "short space decimals-kb decimals-mb decimals-gb decimals-tb "
                                                        "decimals-pb",                                 KZMUtilitiesFormatMemory},
    {"percentage",            "percent",                "decimals space",                              KZMUtilitiesFormatPercentage},
    {"number",                "a number",               "decimals",                                    KZMUtilitiesFormatNumber},
    {"sensor temperature",    "degrees Celsius",        "units space reverse-type strip",              sensorText<SensorType::temperature>},
    {"sensor percentage",     "a fraction, 1 is 100 %", "units space strip",                           sensorText<SensorType::percentage>},
    {"sensor fan",            "revolutions per minute", "units space off strip",                       sensorText<SensorType::fan>},
    {"sensor current",        "amperes",                "units space strip decimals-amperage",         sensorText<SensorType::current>},
    {"sensor power",          "watts",                  "units space strip decimals-power",            sensorText<SensorType::power>},
    {"sensor voltage",        "volts",                  "units space strip decimals-voltage",          sensorText<SensorType::voltage>},
    {"sensor light",          "lux",                    "units space short strip",                     sensorText<SensorType::light>},
    {"sensor frequency",      "megahertz",              "units space short strip decimals-frequency",  sensorText<SensorType::frequency>},
    {"sensor multiplier",     "a factor",               "units space strip",                           sensorText<SensorType::multiplier>},
    {"sensor capacity",       "milliampere-hours",      "units space strip",                           sensorText<SensorType::capacity>},
    {"weather temperature",   "degrees Celsius",        "units decimals reverse",                      KZMUtilitiesFormatWeatherTemperature},
    {"weather wind",          "metres per second",      "units space",                                 KZMUtilitiesFormatWeatherWindSpeed},
    {"weather direction",     "degrees, 90 is east",    "",                                            withoutOptions<KZMUtilitiesFormatWeatherWindDirection>},
    {"weather pressure",      "hectopascals",           "units space decimals",                        KZMUtilitiesFormatWeatherPressure},
    {"weather distance",      "kilometres",             "",                                            withoutOptions<KZMUtilitiesFormatWeatherDistance>},
    {"weather visibility",    "the user's unit",        "",                                            withoutOptions<KZMUtilitiesFormatWeatherVisibility>},
    {"weather rain",          "millimetres",            "",                                            withoutOptions<KZMUtilitiesFormatWeatherRainAmount>},
    {"weather snow",          "millimetres",            "",                                            withoutOptions<KZMUtilitiesFormatWeatherSnowAmount>},
    {"weather uv",            "an index",               "",                                            withoutOptions<KZMUtilitiesFormatWeatherUV>},
    {"weather humidity",      "percent",                "",                                            withoutOptions<KZMUtilitiesFormatWeatherHumidity>},
    {"weather altitude",      "degrees",                "decimals",                                    KZMUtilitiesFormatWeatherAltitude},
    {"weather azimuth",       "degrees",                "decimals",                                    KZMUtilitiesFormatWeatherAzimuth},
    {"weather days",          "days",                   "",                                            withoutOptions<KZMUtilitiesFormatWeatherDays>},
    {"weather illumination",  "percent",                "",                                            withoutOptions<KZMUtilitiesFormatWeatherIllumination>},
};
// clang-format on

bool isAmong(std::string_view names, std::string_view name) {
  for (;;) {
    const std::size_t blank = names.find(' ');
    if (names.substr(0, blank) == name) return true;
    if (blank == std::string_view::npos) return false;
    names.remove_prefix(blank + 1);
  }
}

}  // namespace

std::span<const Family> families() { return kFamilies; }

std::vector<OptionFlag> flagsOf(const Family& family) {
  std::vector<OptionFlag> flags;
  for (const OptionFlag& flag : optionFlags()) {
    if (isAmong(family.flags, flag.name.substr(2))) flags.push_back(flag);
  }
  return flags;
}

}  // namespace kzm::cli
