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
//   name                     a value is                 shown by; below: what it takes
constexpr Family kFamilies[] = {
    {"bandwidth",             "bytes per second",        KZMUtilitiesFormatBandwidth,
     "bits from-mega reverse-type unit-size short space early-upgrade decimals-kb decimals-mb "
     "decimals-gb"},
    {"disk",                  "bytes per second",        diskText,
     "short space early-upgrade hide-bytes decimals-kb decimals-mb decimals-gb"},
    {"space",                 "bytes",                   KZMUtilitiesFormatSpace,
     "short space decimals-kb decimals-mb decimals-gb decimals-tb decimals-pb"},
    {"memory",                "bytes",                   KZMUtilitiesFormatMemory,
     "short space decimals-kb decimals-mb decimals-gb decimals-tb decimals-pb"},
    {"percentage",            "percent",                 KZMUtilitiesFormatPercentage,
     "decimals space"},
    {"number",                "a number",                KZMUtilitiesFormatNumber,
     "decimals"},
    {"sensor temperature",    "degrees Celsius",         sensorText<SensorType::temperature>,
     "units space reverse-type strip"},
    {"sensor percentage",     "a fraction, 1 is 100 %",  sensorText<SensorType::percentage>,
     "units space strip"},
    {"sensor fan",            "revolutions per minute",  sensorText<SensorType::fan>,
     "units space off strip"},
    {"sensor current",        "amperes",                 sensorText<SensorType::current>,
     "units space strip decimals-amperage"},
    {"sensor power",          "watts",                   sensorText<SensorType::power>,
     "units space strip decimals-power"},
    {"sensor voltage",        "volts",                   sensorText<SensorType::voltage>,
     "units space strip decimals-voltage"},
    {"sensor light",          "lux",                     sensorText<SensorType::light>,
     "units space short strip"},
    {"sensor frequency",      "megahertz",               sensorText<SensorType::frequency>,
     "units space short strip decimals-frequency"},
    {"sensor multiplier",     "a factor",                sensorText<SensorType::multiplier>,
     "units space strip"},
    {"sensor capacity",       "milliampere-hours",       sensorText<SensorType::capacity>,
     "units space strip"},
    {"weather temperature",   "degrees Celsius",         KZMUtilitiesFormatWeatherTemperature,
     "units decimals reverse"},
    {"weather wind",          "meters per second",       KZMUtilitiesFormatWeatherWindSpeed,
     "units space"},
    {"weather direction",     "degrees, 90 is east",     withoutOptions<KZMUtilitiesFormatWeatherWindDirection>,
     ""},
    {"weather pressure",      "hectopascals",            KZMUtilitiesFormatWeatherPressure,
     "units space decimals"},
    {"weather distance",      "kilometers",              withoutOptions<KZMUtilitiesFormatWeatherDistance>,
     ""},
    {"weather visibility",    "the user's unit",         withoutOptions<KZMUtilitiesFormatWeatherVisibility>,
     ""},
    {"weather rain",          "millimeters",             withoutOptions<KZMUtilitiesFormatWeatherRainAmount>,
     ""},
    {"weather snow",          "millimeters",             withoutOptions<KZMUtilitiesFormatWeatherSnowAmount>,
     ""},
    {"weather uv",            "an index",                withoutOptions<KZMUtilitiesFormatWeatherUV>,
     ""},
    {"weather humidity",      "percent",                 withoutOptions<KZMUtilitiesFormatWeatherHumidity>,
     ""},
    {"weather altitude",      "degrees",                 KZMUtilitiesFormatWeatherAltitude,
     "decimals"},
    {"weather azimuth",       "degrees",                 KZMUtilitiesFormatWeatherAzimuth,
     "decimals"},
    {"weather days",          "days",                    withoutOptions<KZMUtilitiesFormatWeatherDays>,
     ""},
    {"weather illumination",  "percent",                 withoutOptions<KZMUtilitiesFormatWeatherIllumination>,
     ""},
};
// clang-format on

bool isAmong(std::string_view names, std::string_view name) {
  for (;;) {
    const std::size_t space = names.find(' ');
    if (names.substr(0, space) == name) return true;
    if (space == std::string_view::npos) return false;
    names.remove_prefix(space + 1);
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
