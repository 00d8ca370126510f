// The functions of the catalogue, each one call. Made by tools/bindings of the catalogue of callables and of
// c/calls.cc.in: change these.
#include <KZMUtilities/KZMUtilities.h>

#include "c/call.h"
#include "c/kzm.h"
#include "catalogue/adapted.h"

// clang-format off
namespace kzm::catalogue {  // an adapted function is found before the published one

// Shown by the library, while all else is hidden. The header has nothing that only C++ compilers read.
#pragma GCC visibility push(default)
extern "C" {

char* kzm_decimal_formatter_with_fractions(int64_t minimum, int64_t maximum) {
  return c::call<KZMUtilitiesDecimalFormatterWithFractions>(minimum, maximum);
}

char* kzm_decimal_formatter_with_maximum(int64_t maximum) {
  return c::call<KZMUtilitiesDecimalFormatterWithMaximum>(maximum);
}

char* kzm_posix_locale(const char* locale) {
  return c::call<KZMUtilitiesPosixLocale>(locale);
}

char* kzm_format_number(const char* options, double value) {
  return c::call<KZMUtilitiesFormatNumber>(options, value);
}

char* kzm_localized_string_from_table_in_bundle(const char* key, const char* table, const char* comment) {
  return c::call<KZMLocalizedStringFromTableInBundle>(key, table, comment);
}

char* kzm_format_percentage(const char* options, double percent) {
  return c::call<KZMUtilitiesFormatPercentage>(options, percent);
}

char* kzm_format_percentage_with_attributes(const char* options, double percent) {
  return c::call<KZMUtilitiesFormatPercentageWithAttributes>(options, percent);
}

double kzm_celcius_to_fahrenheit(double celsius) {
  return c::call<celciusToFahrenheit>(celsius);
}

double kzm_fahrenheit_to_celcius(double fahrenheit) {
  return c::call<fahrenheitToCelcius>(fahrenheit);
}

double kzm_celcius_to_kelvin(double celsius) {
  return c::call<celciusToKelvin>(celsius);
}

double kzm_kelvin_to_celcius(double kelvin) {
  return c::call<kelvinToCelcius>(kelvin);
}

double kzm_inch_to_cm(double inches) {
  return c::call<inchToCm>(inches);
}

double kzm_cm_to_inch(double centimeters) {
  return c::call<cmToInch>(centimeters);
}

double kzm_inch_to_mm(double inches) {
  return c::call<inchToMm>(inches);
}

double kzm_mm_to_inch(double millimeters) {
  return c::call<mmToInch>(millimeters);
}

double kzm_mm_to_cm(double millimeters) {
  return c::call<mmToCm>(millimeters);
}

double kzm_cm_to_mm(double centimeters) {
  return c::call<cmToMm>(centimeters);
}

double kzm_miles_to_km(double miles) {
  return c::call<milesToKm>(miles);
}

double kzm_km_to_miles(double kilometers) {
  return c::call<KmToMiles>(kilometers);
}

double kzm_mps_to_kph(double meters_per_second) {
  return c::call<mpsToKph>(meters_per_second);
}

double kzm_kph_to_mps(double kilometers_per_hour) {
  return c::call<kphToMps>(kilometers_per_hour);
}

double kzm_mps_to_mph(double meters_per_second) {
  return c::call<mpsToMph>(meters_per_second);
}

double kzm_mph_to_mps(double miles_per_hour) {
  return c::call<mphToMps>(miles_per_hour);
}

double kzm_mps_to_knots(double meters_per_second) {
  return c::call<mpsToKnots>(meters_per_second);
}

double kzm_inch_to_millibar(double inches_of_mercury) {
  return c::call<inchToMillibar>(inches_of_mercury);
}

char* kzm_wind_speed_unit() {
  return c::call<windSpeedUnit>();
}

char* kzm_sensors_temperature_unit() {
  return c::call<sensorsTemperatureUnit>();
}

char* kzm_weather_temperature_unit() {
  return c::call<weatherTemperatureUnit>();
}

char* kzm_distance_unit() {
  return c::call<distanceUnit>();
}

char* kzm_pressure_unit() {
  return c::call<pressureUnit>();
}

char* kzm_rain_unit() {
  return c::call<rainUnit>();
}

char* kzm_snow_unit() {
  return c::call<snowUnit>();
}

char* kzm_bandwidth_data(const char* options, double bytes_per_second) {
  return c::call<KZMUtilitiesBandwidthData>(options, bytes_per_second);
}

char* kzm_format_bandwidth(const char* options, double bytes_per_second) {
  return c::call<KZMUtilitiesFormatBandwidth>(options, bytes_per_second);
}

char* kzm_format_bandwidth_with_attributes(const char* options, double bytes_per_second) {
  return c::call<KZMUtilitiesFormatBandwidthWithAttributes>(options, bytes_per_second);
}

char* kzm_disk_activity_data(const char* options, double bytes_per_second) {
  return c::call<KZMUtilitiesDiskActivityData>(options, bytes_per_second);
}

char* kzm_format_disk_activity(const char* options, double bytes_per_second) {
  return c::call<KZMUtilitiesFormatDiskActivity>(options, bytes_per_second);
}

char* kzm_format_disk_activity_with_attributes(const char* options, double bytes_per_second) {
  return c::call<KZMUtilitiesFormatDiskActivityWithAttributes>(options, bytes_per_second);
}

char* kzm_space_data(const char* options, double bytes) {
  return c::call<KZMUtilitiesSpaceData>(options, bytes);
}

char* kzm_format_space(const char* options, double bytes) {
  return c::call<KZMUtilitiesFormatSpace>(options, bytes);
}

char* kzm_format_space_with_attributes(const char* options, double bytes) {
  return c::call<KZMUtilitiesFormatSpaceWithAttributes>(options, bytes);
}

char* kzm_memory_data(const char* options, double bytes) {
  return c::call<KZMUtilitiesMemoryData>(options, bytes);
}

char* kzm_format_memory(const char* options, double bytes) {
  return c::call<KZMUtilitiesFormatMemory>(options, bytes);
}

char* kzm_format_memory_with_attributes(const char* options, double bytes) {
  return c::call<KZMUtilitiesFormatMemoryWithAttributes>(options, bytes);
}

char* kzm_format_weather_temperature(const char* options, double celsius) {
  return c::call<KZMUtilitiesFormatWeatherTemperature>(options, celsius);
}

char* kzm_format_weather_wind_speed(const char* options, double meters_per_second) {
  return c::call<KZMUtilitiesFormatWeatherWindSpeed>(options, meters_per_second);
}

char* kzm_format_weather_wind_direction(double degrees) {
  return c::call<KZMUtilitiesFormatWeatherWindDirection>(degrees);
}

char* kzm_format_weather_pressure(const char* options, double hectopascals) {
  return c::call<KZMUtilitiesFormatWeatherPressure>(options, hectopascals);
}

char* kzm_format_weather_distance(double kilometers) {
  return c::call<KZMUtilitiesFormatWeatherDistance>(kilometers);
}

char* kzm_format_weather_visibility(double distance) {
  return c::call<KZMUtilitiesFormatWeatherVisibility>(distance);
}

char* kzm_format_weather_rain_amount(double millimeters) {
  return c::call<KZMUtilitiesFormatWeatherRainAmount>(millimeters);
}

char* kzm_format_weather_snow_amount(double millimeters) {
  return c::call<KZMUtilitiesFormatWeatherSnowAmount>(millimeters);
}

char* kzm_format_weather_uv(double index) {
  return c::call<KZMUtilitiesFormatWeatherUV>(index);
}

char* kzm_format_weather_humidity(double percent) {
  return c::call<KZMUtilitiesFormatWeatherHumidity>(percent);
}

char* kzm_format_weather_altitude(const char* options, double degrees) {
  return c::call<KZMUtilitiesFormatWeatherAltitude>(options, degrees);
}

char* kzm_format_weather_azimuth(const char* options, double degrees) {
  return c::call<KZMUtilitiesFormatWeatherAzimuth>(options, degrees);
}

char* kzm_format_weather_days(double days) {
  return c::call<KZMUtilitiesFormatWeatherDays>(days);
}

char* kzm_format_weather_illumination(double percent) {
  return c::call<KZMUtilitiesFormatWeatherIllumination>(percent);
}

char* kzm_sensor_data(int64_t type, const char* options, double value) {
  return c::call<KZMUtilitiesSensorData>(type, options, value);
}

char* kzm_format_sensor(int64_t type, const char* options, double value) {
  return c::call<KZMUtilitiesFormatSensor>(type, options, value);
}

char* kzm_time_items() {
  return c::call<KZMUtilitiesTimeItems>();
}

double kzm_day_start(double t) {
  return c::call<dayStart>(t);
}

double kzm_day_start_with_timezone(double t, const char* zone) {
  return c::call<dayStartWithTimezone>(t, zone);
}

double kzm_add_days_timezone(double t, int64_t days, const char* zone) {
  return c::call<addDaysTimezone>(t, days, zone);
}

double kzm_add_days(double t, int64_t days) {
  return c::call<addDays>(t, days);
}

double kzm_add_hours(double t, int64_t hours) {
  return c::call<addHours>(t, hours);
}

double kzm_add_months(double t, int64_t months) {
  return c::call<addMonths>(t, months);
}

char* kzm_components(double t, int64_t units) {
  return c::call<components>(t, units);
}

double kzm_corrected(double t) {
  return c::call<corrected>(t);
}

double kzm_utc_start(double t) {
  return c::call<utcStart>(t);
}

double kzm_conver_from_timezone_to_utc(double t, const char* zone) {
  return c::call<converFromTimezoneToUTC>(t, zone);
}

double kzm_conver_to_timezone(double t, const char* zone) {
  return c::call<converToTimezone>(t, zone);
}

double kzm_conver_from_timezone(double t, const char* zone) {
  return c::call<converFromTimezone>(t, zone);
}

char* kzm_ordinal_suffix(double t) {
  return c::call<ordinalSuffix>(t);
}

double kzm_date_from_components(int64_t units) {
  return c::call<dateFromComponents>(units);
}

double kzm_time_interval_from_components(int64_t units) {
  return c::call<timeIntervalFromComponents>(units);
}

double kzm_utc_start_for_today() {
  return c::call<utcStartForToday>();
}

char* kzm_ordinal_suffix_from_day(int64_t day) {
  return c::call<ordinalSuffixFromDay>(day);
}

char* kzm_replace_string_with_string_attributes(const char* receiver,
                                                const char* target,
                                                const char* replacement,
                                                const char* attributes) {
  return c::call<replaceStringWithStringAttributes>(receiver, target, replacement, attributes);
}

char* kzm_replace_string_with_attributed_string(const char* receiver, const char* target, const char* replacement) {
  return c::call<replaceStringWithAttributedString>(receiver, target, replacement);
}

int kzm_does_string_match_expression(const char* text, const char* pattern) {
  return c::call<doesStringMatchExpression>(text, pattern);
}

char* kzm_match_for_expression(const char* text, const char* pattern) {
  return c::call<matchForExpression>(text, pattern);
}

double kzm_max_double(double a, double b) {
  return c::call<KZMMAXDouble>(a, b);
}

double kzm_min_double(double a, double b) {
  return c::call<KZMMINDouble>(a, b);
}
}
#pragma GCC visibility pop

}  // namespace kzm::catalogue
