#include "catalogue/callables.h"

#include <algorithm>

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/conversions.h>
#include <KZMUtilities/dates.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/formatters.h>
#include <KZMUtilities/guards.h>
#include <KZMUtilities/percentage.h>
#include <KZMUtilities/resources.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/text.h>
#include <KZMUtilities/time_items.h>
#include <KZMUtilities/weather.h>

namespace kzm::catalogue {
namespace {

// The bundle is always the library's own.
std::string localizedString(std::string_view key, std::string_view table, const std::optional<std::string>& comment) {
  return KZMLocalizedStringFromTableInBundle(key, table, bundleWithIdentifier(kBundleIdentifier),
                                             comment.has_value() ? comment->c_str() : nullptr);
}

// Operations that change their receiver answer with the changed receiver.
AttributedString replacedByText(AttributedString receiver, std::string_view target, std::string_view replacement,
                                const Value& attributes) {
  replaceStringWithStringAttributes(receiver, target, replacement, attributes);
  return receiver;
}
AttributedString replacedByAttributed(AttributedString receiver, std::string_view target,
                                      const AttributedString& replacement) {
  replaceStringWithAttributedString(receiver, target, replacement);
  return receiver;
}

// An operation of the shared default units.
template <MeasurementUnit (KZMUtilitiesDefaultUnits::*Unit)() const>
MeasurementUnit ofSharedUnits() {
  return (KZMUtilitiesDefaultUnits::shared().*Unit)();
}

template <auto F>
constexpr Callable row(std::string_view name, std::string_view parameters) {
  return {name, parameters, adapt<F>, kKinds<F>};
}

const Callable kCallables[] = {
    row<KZMUtilitiesDecimalFormatterWithFractions>("KZMUtilitiesDecimalFormatterWithFractions", "minimum maximum"),
    row<KZMUtilitiesDecimalFormatterWithMaximum>("KZMUtilitiesDecimalFormatterWithMaximum", "maximum"),
    row<KZMUtilitiesPosixLocale>("KZMUtilitiesPosixLocale", "locale"),
    row<KZMUtilitiesFormatNumber>("KZMUtilitiesFormatNumber", "options value"),
    row<localizedString>("KZMLocalizedStringFromTableInBundle", "key table comment"),
    row<KZMUtilitiesFormatPercentage>("KZMUtilitiesFormatPercentage", "options percent"),
    row<KZMUtilitiesFormatPercentageWithAttributes>("KZMUtilitiesFormatPercentageWithAttributes", "options percent"),
    row<celciusToFahrenheit>("celciusToFahrenheit", "celsius"),
    row<fahrenheitToCelcius>("fahrenheitToCelcius", "fahrenheit"),
    row<celciusToKelvin>("celciusToKelvin", "celsius"),
    row<kelvinToCelcius>("kelvinToCelcius", "kelvin"),
    row<inchToCm>("inchToCm", "inches"),
    row<cmToInch>("cmToInch", "centimeters"),
    row<inchToMm>("inchToMm", "inches"),
    row<mmToInch>("mmToInch", "millimeters"),
    row<mmToCm>("mmToCm", "millimeters"),
    row<cmToMm>("cmToMm", "centimeters"),
    row<milesToKm>("milesToKm", "miles"),
    row<KmToMiles>("KmToMiles", "kilometers"),
    row<mpsToKph>("mpsToKph", "metersPerSecond"),
    row<kphToMps>("kphToMps", "kilometersPerHour"),
    row<mpsToMph>("mpsToMph", "metersPerSecond"),
    row<mphToMps>("mphToMps", "milesPerHour"),
    row<mpsToKnots>("mpsToKnots", "metersPerSecond"),
    row<inchToMillibar>("inchToMillibar", "inchesOfMercury"),
    row<ofSharedUnits<&KZMUtilitiesDefaultUnits::windSpeedUnit>>("windSpeedUnit", ""),
    row<ofSharedUnits<&KZMUtilitiesDefaultUnits::sensorsTemperatureUnit>>("sensorsTemperatureUnit", ""),
    row<ofSharedUnits<&KZMUtilitiesDefaultUnits::weatherTemperatureUnit>>("weatherTemperatureUnit", ""),
    row<ofSharedUnits<&KZMUtilitiesDefaultUnits::distanceUnit>>("distanceUnit", ""),
    row<ofSharedUnits<&KZMUtilitiesDefaultUnits::pressureUnit>>("pressureUnit", ""),
    row<ofSharedUnits<&KZMUtilitiesDefaultUnits::rainUnit>>("rainUnit", ""),
    row<ofSharedUnits<&KZMUtilitiesDefaultUnits::snowUnit>>("snowUnit", ""),
    row<KZMUtilitiesBandwidthData>("KZMUtilitiesBandwidthData", "options bytesPerSecond"),
    row<KZMUtilitiesFormatBandwidth>("KZMUtilitiesFormatBandwidth", "options bytesPerSecond"),
    row<KZMUtilitiesFormatBandwidthWithAttributes>("KZMUtilitiesFormatBandwidthWithAttributes",
                                                   "options bytesPerSecond"),
    row<KZMUtilitiesDiskActivityData>("KZMUtilitiesDiskActivityData", "options bytesPerSecond"),
    row<KZMUtilitiesFormatDiskActivity>("KZMUtilitiesFormatDiskActivity", "options bytesPerSecond"),
    row<KZMUtilitiesFormatDiskActivityWithAttributes>("KZMUtilitiesFormatDiskActivityWithAttributes",
                                                      "options bytesPerSecond"),
    row<KZMUtilitiesSpaceData>("KZMUtilitiesSpaceData", "options bytes"),
    row<KZMUtilitiesFormatSpace>("KZMUtilitiesFormatSpace", "options bytes"),
    row<KZMUtilitiesFormatSpaceWithAttributes>("KZMUtilitiesFormatSpaceWithAttributes", "options bytes"),
    row<KZMUtilitiesMemoryData>("KZMUtilitiesMemoryData", "options bytes"),
    row<KZMUtilitiesFormatMemory>("KZMUtilitiesFormatMemory", "options bytes"),
    row<KZMUtilitiesFormatMemoryWithAttributes>("KZMUtilitiesFormatMemoryWithAttributes", "options bytes"),
    row<KZMUtilitiesFormatWeatherTemperature>("KZMUtilitiesFormatWeatherTemperature", "options celsius"),
    row<KZMUtilitiesFormatWeatherWindSpeed>("KZMUtilitiesFormatWeatherWindSpeed", "options metersPerSecond"),
    row<KZMUtilitiesFormatWeatherWindDirection>("KZMUtilitiesFormatWeatherWindDirection", "degrees"),
    row<KZMUtilitiesFormatWeatherPressure>("KZMUtilitiesFormatWeatherPressure", "options hectopascals"),
    row<KZMUtilitiesFormatWeatherDistance>("KZMUtilitiesFormatWeatherDistance", "kilometers"),
    row<KZMUtilitiesFormatWeatherVisibility>("KZMUtilitiesFormatWeatherVisibility", "distance"),
    row<KZMUtilitiesFormatWeatherRainAmount>("KZMUtilitiesFormatWeatherRainAmount", "millimeters"),
    row<KZMUtilitiesFormatWeatherSnowAmount>("KZMUtilitiesFormatWeatherSnowAmount", "millimeters"),
    row<KZMUtilitiesFormatWeatherUV>("KZMUtilitiesFormatWeatherUV", "index"),
    row<KZMUtilitiesFormatWeatherHumidity>("KZMUtilitiesFormatWeatherHumidity", "percent"),
    row<KZMUtilitiesFormatWeatherAltitude>("KZMUtilitiesFormatWeatherAltitude", "options degrees"),
    row<KZMUtilitiesFormatWeatherAzimuth>("KZMUtilitiesFormatWeatherAzimuth", "options degrees"),
    row<KZMUtilitiesFormatWeatherDays>("KZMUtilitiesFormatWeatherDays", "days"),
    row<KZMUtilitiesFormatWeatherIllumination>("KZMUtilitiesFormatWeatherIllumination", "percent"),
    row<KZMUtilitiesSensorData>("KZMUtilitiesSensorData", "type options value"),
    row<KZMUtilitiesFormatSensor>("KZMUtilitiesFormatSensor", "type options value"),
    row<KZMUtilitiesTimeItems>("KZMUtilitiesTimeItems", ""),
    row<dayStart>("dayStart", "t"),
    row<dayStartWithTimezone>("dayStartWithTimezone:", "t zone"),
    row<addDaysTimezone>("addDays:timezone:", "t days zone"),
    row<addDays>("addDays:", "t days"),
    row<addHours>("addHours:", "t hours"),
    row<addMonths>("addMonths:", "t months"),
    row<components>("components:", "t units"),
    row<corrected>("corrected", "t"),
    row<utcStart>("utcStart", "t"),
    row<converFromTimezoneToUTC>("converFromTimezoneToUTC:", "t zone"),
    row<converToTimezone>("converToTimezone:", "t zone"),
    row<converFromTimezone>("converFromTimezone:", "t zone"),
    row<ordinalSuffix>("ordinalSuffix", "t"),
    row<dateFromComponents>("dateFromComponents:", "units"),
    row<timeIntervalFromComponents>("timeIntervalFromComponents:", "units"),
    row<utcStartForToday>("utcStartForToday", ""),
    row<ordinalSuffixFromDay>("ordinalSuffixFromDay:", "day"),
    row<replacedByText>("replaceString:withString:attributes:", "receiver target replacement attributes"),
    row<replacedByAttributed>("replaceString:withAttributedString:", "receiver target replacement"),
    row<doesStringMatchExpression>("doesStringMatchExpression:", "text pattern"),
    row<matchForExpression>("matchForExpression:", "text pattern"),
    row<KZMMAXDouble>("KZMMAXDouble", "a b"),
    row<KZMMINDouble>("KZMMINDouble", "a b"),
};

}  // namespace

std::span<const Callable> callables() { return kCallables; }

const Callable& callableNamed(std::string_view name, std::size_t arguments) {
  const auto callable = std::find_if(std::begin(kCallables), std::end(kCallables),
                                     [name](const Callable& candidate) { return candidate.name == name; });
  if (callable == std::end(kCallables)) throw InputError("no function is named \"" + std::string(name) + "\"");
  if (arguments != callable->kinds.size()) {
    throw InputError("wrong number of arguments (" + std::to_string(arguments) + ") for " + described(*callable));
  }
  return *callable;
}

std::string described(const Callable& callable) {
  std::string text(callable.name);
  std::string_view names = callable.parameters;
  for (const std::string_view kind : callable.kinds) {
    const std::string_view name = names.substr(0, names.find(' '));
    names.remove_prefix(std::min(names.size(), name.size() + 1));
    text.append(" ").append(name).append(":").append(kind);
  }
  return text;
}

}  // namespace kzm::catalogue
