#include "catalogue/callables.h"

#include <algorithm>
#include <utility>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/conversions.h>
#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/guards.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/text.h>
#include <KZMUtilities/time_items.h>
#include <KZMUtilities/weather.h>

#include "catalogue/adapted.h"
#include "catalogue/errors.h"
#include "catalogue/names.h"

namespace kzm::catalogue {
namespace {

template <auto F>
constexpr Callable row(std::string_view name, std::string_view parameters, std::string_view documentation) {
  return {name, parameters, documentation, adapt<F>, kKinds<F>, kResultKind<F>};
}

// The function; its name, the names of its parameters, and a line of documentation.
constexpr Callable kCallables[] = {
    row<KZMUtilitiesDecimalFormatterWithFractions>(
        "KZMUtilitiesDecimalFormatterWithFractions", "minimum maximum",
        "The shared number formatter with at least and at most the given numbers of fraction digits."),
    row<KZMUtilitiesDecimalFormatterWithMaximum>(
        "KZMUtilitiesDecimalFormatterWithMaximum", "maximum",
        "The shared number formatter with at most the given number of fraction digits."),
    row<KZMUtilitiesPosixLocale>("KZMUtilitiesPosixLocale", "locale",
                                 "The identifier of the locale's POSIX variant; its own where there is none."),
    row<KZMUtilitiesFormatNumber>("KZMUtilitiesFormatNumber", "options value", "The number alone, as text."),
    row<KZMLocalizedStringFromTableInBundle>(
        "KZMLocalizedStringFromTableInBundle", "key table comment",
        "The text for the key in the user's language; the key's template where there is none."),
    row<KZMUtilitiesFormatPercentage>("KZMUtilitiesFormatPercentage", "options percent",
                                      "A percentage as text; 0.5 is half a percent."),
    row<KZMUtilitiesFormatPercentageWithAttributes>("KZMUtilitiesFormatPercentageWithAttributes", "options percent",
                                                    "The text of a percentage in two styles."),
    row<celciusToFahrenheit>("celciusToFahrenheit", "celsius", "Degrees Celsius in degrees Fahrenheit."),
    row<fahrenheitToCelcius>("fahrenheitToCelcius", "fahrenheit", "Degrees Fahrenheit in degrees Celsius."),
    row<celciusToKelvin>("celciusToKelvin", "celsius", "Degrees Celsius in kelvins."),
    row<kelvinToCelcius>("kelvinToCelcius", "kelvin", "Kelvins in degrees Celsius."),
    row<inchToCm>("inchToCm", "inches", "Inches in centimeters."),
    row<cmToInch>("cmToInch", "centimeters", "Centimeters in inches."),
    row<inchToMm>("inchToMm", "inches", "Inches in millimeters."),
    row<mmToInch>("mmToInch", "millimeters", "Millimeters in inches."),
    row<mmToCm>("mmToCm", "millimeters", "Millimeters in centimeters."),
    row<cmToMm>("cmToMm", "centimeters", "Centimeters in millimeters."),
    row<milesToKm>("milesToKm", "miles", "Miles in kilometers."),
    row<KmToMiles>("KmToMiles", "kilometers", "Kilometers in miles."),
    row<mpsToKph>("mpsToKph", "metersPerSecond", "Meters per second in kilometers per hour."),
    row<kphToMps>("kphToMps", "kilometersPerHour", "Kilometers per hour in meters per second."),
    row<mpsToMph>("mpsToMph", "metersPerSecond", "Meters per second in miles per hour."),
    row<mphToMps>("mphToMps", "milesPerHour", "Miles per hour in meters per second."),
    row<mpsToKnots>("mpsToKnots", "metersPerSecond", "Meters per second in knots."),
    row<inchToMillibar>("inchToMillibar", "inchesOfMercury", "Inches of mercury in millibars."),
    row<windSpeedUnit>("windSpeedUnit", "", "The user's unit of wind speed."),
    row<sensorsTemperatureUnit>("sensorsTemperatureUnit", "", "The user's unit of sensor temperatures."),
    row<weatherTemperatureUnit>("weatherTemperatureUnit", "", "The user's unit of air temperatures."),
    row<distanceUnit>("distanceUnit", "", "The user's unit of distance."),
    row<pressureUnit>("pressureUnit", "", "The user's unit of air pressure."),
    row<rainUnit>("rainUnit", "", "The user's unit of rain."),
    row<snowUnit>("snowUnit", "", "The user's unit of snow."),
    row<KZMUtilitiesBandwidthData>(
        "KZMUtilitiesBandwidthData", "options bytesPerSecond",
        "A throughput scaled into kilo, mega or giga units: its unit text, fraction digits and number."),
    row<KZMUtilitiesFormatBandwidth>("KZMUtilitiesFormatBandwidth", "options bytesPerSecond", "A throughput as text."),
    row<KZMUtilitiesFormatBandwidthWithAttributes>("KZMUtilitiesFormatBandwidthWithAttributes",
                                                   "options bytesPerSecond", "The text of a throughput in two styles."),
    row<KZMUtilitiesDiskActivityData>(
        "KZMUtilitiesDiskActivityData", "options bytesPerSecond",
        "A disk's rate scaled into kilo, mega or giga units: its unit text, fraction digits and number."),
    row<KZMUtilitiesFormatDiskActivity>("KZMUtilitiesFormatDiskActivity", "options bytesPerSecond",
                                        "A disk's rate as text."),
    row<KZMUtilitiesFormatDiskActivityWithAttributes>("KZMUtilitiesFormatDiskActivityWithAttributes",
                                                      "options bytesPerSecond",
                                                      "The text of a disk's rate in two styles."),
    row<KZMUtilitiesSpaceData>(
        "KZMUtilitiesSpaceData", "options bytes",
        "A disk size scaled into kilo to peta units, 1000-based: its unit text, fraction digits and number."),
    row<KZMUtilitiesFormatSpace>("KZMUtilitiesFormatSpace", "options bytes", "A disk size as text, 1000-based."),
    row<KZMUtilitiesFormatSpaceWithAttributes>("KZMUtilitiesFormatSpaceWithAttributes", "options bytes",
                                               "The text of a disk size in two styles."),
    row<KZMUtilitiesMemoryData>(
        "KZMUtilitiesMemoryData", "options bytes",
        "A memory size scaled into kilo to peta units, 1024-based: its unit text, fraction digits and number."),
    row<KZMUtilitiesFormatMemory>("KZMUtilitiesFormatMemory", "options bytes", "A memory size as text, 1024-based."),
    row<KZMUtilitiesFormatMemoryWithAttributes>("KZMUtilitiesFormatMemoryWithAttributes", "options bytes",
                                                "The text of a memory size in two styles."),
    row<KZMUtilitiesFormatWeatherTemperature>("KZMUtilitiesFormatWeatherTemperature", "options celsius",
                                              "An air temperature as text, in the user's unit."),
    row<KZMUtilitiesFormatWeatherWindSpeed>("KZMUtilitiesFormatWeatherWindSpeed", "options metersPerSecond",
                                            "A wind speed as text, in the user's unit."),
    row<KZMUtilitiesFormatWeatherWindDirection>("KZMUtilitiesFormatWeatherWindDirection", "degrees",
                                                "The name of the compass direction; 0 is north, 90 east."),
    row<KZMUtilitiesFormatWeatherPressure>("KZMUtilitiesFormatWeatherPressure", "options hectopascals",
                                           "An air pressure as text, in the user's unit."),
    row<KZMUtilitiesFormatWeatherDistance>("KZMUtilitiesFormatWeatherDistance", "kilometers",
                                           "A distance as text, in the user's unit."),
    row<KZMUtilitiesFormatWeatherVisibility>(
        "KZMUtilitiesFormatWeatherVisibility", "distance",
        "A visibility as text: the number as it comes, with the name of the user's unit."),
    row<KZMUtilitiesFormatWeatherRainAmount>("KZMUtilitiesFormatWeatherRainAmount", "millimeters",
                                             "An amount of rain as text, in the user's unit."),
    row<KZMUtilitiesFormatWeatherSnowAmount>("KZMUtilitiesFormatWeatherSnowAmount", "millimeters",
                                             "An amount of snow as text, in the user's unit of rain."),
    row<KZMUtilitiesFormatWeatherUV>("KZMUtilitiesFormatWeatherUV", "index", "An ultraviolet index as text."),
    row<KZMUtilitiesFormatWeatherHumidity>("KZMUtilitiesFormatWeatherHumidity", "percent",
                                           "A relative humidity as text."),
    row<KZMUtilitiesFormatWeatherAltitude>("KZMUtilitiesFormatWeatherAltitude", "options degrees",
                                           "An angle above the horizon as text."),
    row<KZMUtilitiesFormatWeatherAzimuth>("KZMUtilitiesFormatWeatherAzimuth", "options degrees",
                                          "An angle along the horizon as text."),
    row<KZMUtilitiesFormatWeatherDays>("KZMUtilitiesFormatWeatherDays", "days", "A number of days as text."),
    row<KZMUtilitiesFormatWeatherIllumination>("KZMUtilitiesFormatWeatherIllumination", "percent",
                                               "The illuminated part of a disc as text."),
    row<KZMUtilitiesSensorData>("KZMUtilitiesSensorData", "type options value",
                                "A sensor's reading, converted and scaled: its fraction digits, number and unit text; "
                                "null for an unknown type."),
    row<KZMUtilitiesFormatSensor>("KZMUtilitiesFormatSensor", "type options value",
                                  "A sensor's reading as text; empty for an unknown type."),
    row<KZMUtilitiesTimeItems>("KZMUtilitiesTimeItems", "",
                               "The groups of items from which a user composes a clock or date display."),
    row<dayStart>("dayStart", "t", "The start of the time point's day in the default zone."),
    row<dayStartWithTimezone>("dayStartWithTimezone:", "t zone",
                              "The start of the time point's day in the given zone."),
    row<addDaysTimezone>("addDays:timezone:", "t days zone",
                         "The same wall time of the given zone, the given number of days later."),
    row<addDays>("addDays:", "t days", "The same wall time of the default zone, the given number of days later."),
    row<addHours>("addHours:", "t hours", "The given number of elapsed hours later."),
    row<addMonths>("addMonths:", "t months",
                   "The same day and wall time of the default zone, the given number of months later; cut to the "
                   "month's last day."),
    row<components>("components:", "t units", "The asked calendar fields of the time point in the default zone."),
    row<corrected>("corrected", "t", "The time point plus the default zone's offset then."),
    row<utcStart>("utcStart", "t", "The UTC midnight of the day that the time point has in the default zone."),
    row<converFromTimezoneToUTC>("converFromTimezoneToUTC:", "t zone",
                                 "The time point minus the given zone's offset then."),
    row<converToTimezone>("converToTimezone:", "t zone",
                          "The time point minus the system zone's offset then, plus the given zone's."),
    row<converFromTimezone>("converFromTimezone:", "t zone",
                            "The time point minus the given zone's offset then, plus the system zone's."),
    row<ordinalSuffix>("ordinalSuffix", "t",
                       "The English ordinal suffix of the time point's day of the month in the default zone."),
    row<dateFromComponents>("dateFromComponents:", "units",
                            "The time point with the asked calendar fields of now, in the default zone."),
    row<timeIntervalFromComponents>("timeIntervalFromComponents:", "units",
                                    "The same in seconds since 1970; 0 when there is no such date."),
    row<utcStartForToday>("utcStartForToday", "", "The UTC midnight of today's date in the default zone."),
    row<ordinalSuffixFromDay>("ordinalSuffixFromDay:", "day", "The English ordinal suffix of a day of the month."),
    row<replaceStringWithStringAttributes>(
        "replaceString:withString:attributes:", "receiver target replacement attributes",
        "The receiver with the target's first occurrence replaced by a text in one style."),
    row<replaceStringWithAttributedString>(
        "replaceString:withAttributedString:", "receiver target replacement",
        "The receiver with the target's first occurrence replaced by a text with its own styles."),
    row<doesStringMatchExpression>("doesStringMatchExpression:", "text pattern",
                                   "Whether the pattern is found in the text and its capture group 1 took part."),
    row<matchForExpression>("matchForExpression:", "text pattern",
                            "The text of capture group 1 in the pattern's first match; null where there is none."),
    row<KZMMAXDouble>("KZMMAXDouble", "a b", "The greater of the finite arguments; 0 when neither is finite."),
    row<KZMMINDouble>("KZMMINDouble", "a b", "The lesser of the finite arguments; 0 when neither is finite."),
};

}  // namespace

std::span<const Callable> callables() { return kCallables; }

const Callable& callableNamed(std::string_view name, std::size_t arguments) {
  const auto* callable = std::ranges::find(kCallables, name, &Callable::name);
  if (callable == std::end(kCallables)) throw InputError("no function is named \"" + std::string(name) + "\"");
  if (arguments != callable->kinds.size()) {
    throw InputError("wrong number of arguments (" + std::to_string(arguments) + ") for " + described(*callable));
  }
  return *callable;
}

std::vector<Parameter> parametersOf(const Callable& callable) {
  std::vector<Parameter> parameters;
  std::string_view names = callable.parameters;
  for (const std::string_view kind : callable.kinds) {
    const std::string_view name = names.substr(0, names.find(' '));
    names.remove_prefix(std::min(names.size(), name.size() + 1));
    parameters.push_back({name, kind});
  }
  return parameters;
}

std::string described(const Callable& callable) {
  std::string text(callable.name);
  for (const auto& [name, kind] : parametersOf(callable)) text.append(" ").append(name).append(":").append(kind);
  return text;
}

std::string describedInJson(const Callable& callable) {
  Array parameters;
  for (const auto& [name, kind] : parametersOf(callable)) {
    parameters.push_back(Dictionary{{"name", std::string(name)}, {"kind", std::string(kind)}});
  }
  return jsonText(Dictionary{{"name", std::string(callable.name)},
                             {"c", cName(callable.name)},
                             {"parameters", std::move(parameters)},
                             {"result", std::string(callable.result)},
                             {"documentation", std::string(callable.documentation)}});
}

}  // namespace kzm::catalogue
