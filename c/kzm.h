/* Raw measurements as short localized text, for every language that can call C.
 *
 * Made by tools/bindings of the catalogue of callables and of c/kzm.h.in: change these.
 *
 * Texts        are UTF-8 and end at the first zero byte. Arguments are only read.
 * Options      are JSON objects, {"space": true}; NULL means none. Each thread remembers the last texts, so one that
 *              comes again costs a comparison.
 * Results      that are texts belong to the caller, who gives them back with kzm_free (or free). Data is JSON:
 *              {"format": "%@ MB", "decimals": 1, "value": 1.5}. Text in styles is JSON too:
 *              {"text": "1.5 MB", "runs": [{"text": "1.5", "attributes": ...}, ...]}. No JSON depends on the locale.
 * Time points  are seconds since 1970-01-01 00:00:00 UTC. NaN is none, as argument and as result.
 * Truth        is an int: 1 or 0.
 * Errors       Nothing throws, and no code of this library ends the process. An argument that cannot be read gives
 *              NULL, NaN or 0, and kzm_last_error says why. NULL and NaN are also what a call gives that has nothing to
 *              say; then kzm_last_error gives NULL.
 * Threads      Every function may be called from any thread at any time.
 * Languages    Numbers, units and texts follow the environment (LC_ALL, LC_NUMERIC, LC_MEASUREMENT, LC_MESSAGES,
 *              LANGUAGE, LANG), or what a host chooses with kzm_set_locale before the first text.
 */
/* clang-format off */
#ifndef KZM_H
#define KZM_H

#include <stdint.h>

#define KZM_VERSION "1.0.0"

/* The kinds of sensor, with what a reading is measured in, and the units of a calendar. */
#define KZM_SENSOR_TEMPERATURE                  1        /* degrees Celsius */
#define KZM_SENSOR_PERCENTAGE                   2        /* a fraction: 1.0 is 100 % */
#define KZM_SENSOR_FAN                          3        /* revolutions per minute */
#define KZM_SENSOR_CURRENT                      4        /* amperes */
#define KZM_SENSOR_POWER                        5        /* watts */
#define KZM_SENSOR_VOLTAGE                      6        /* volts */
#define KZM_SENSOR_LIGHT                        7        /* lux */
#define KZM_SENSOR_FREQUENCY                    8        /* megahertz */
#define KZM_SENSOR_MULTIPLIER                   9        /* a plain factor */
#define KZM_SENSOR_CAPACITY                     100      /* milliampere-hours */
#define KZM_CALENDAR_UNIT_ERA                   2        /* 0 before Christ, 1 after */
#define KZM_CALENDAR_UNIT_YEAR                  4        /* 1 and above, in its era */
#define KZM_CALENDAR_UNIT_MONTH                 8        /* 1 to 12 */
#define KZM_CALENDAR_UNIT_DAY                   16       /* 1 to 31 */
#define KZM_CALENDAR_UNIT_HOUR                  32       /* 0 to 23 */
#define KZM_CALENDAR_UNIT_MINUTE                64       /* 0 to 59 */
#define KZM_CALENDAR_UNIT_SECOND                128      /* 0 to 59 */
#define KZM_CALENDAR_UNIT_WEEK                  256      /* the former name of the week of the year */
#define KZM_CALENDAR_UNIT_WEEKDAY               512      /* 1 is Sunday, 7 Saturday */
#define KZM_CALENDAR_UNIT_WEEKDAY_ORDINAL       1024     /* 2 for a second Monday */
#define KZM_CALENDAR_UNIT_QUARTER               2048     /* 1 to 4 */
#define KZM_CALENDAR_UNIT_WEEK_OF_MONTH         4096     /* 0 to 6 */
#define KZM_CALENDAR_UNIT_WEEK_OF_YEAR          8192     /* 1 to 53 */
#define KZM_CALENDAR_UNIT_YEAR_FOR_WEEK_OF_YEAR 16384    /* may be 0 or negative */
#define KZM_CALENDAR_UNIT_NANOSECOND            32768    /* 0 to 999999999, truncated */
#define KZM_CALENDAR_UNIT_CALENDAR              1048576  /* the text "gregorian" */
#define KZM_CALENDAR_UNIT_TIME_ZONE             2097152  /* the zone's identifier, a text */

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Housekeeping ------------------------------------------------------------------------------------------------ */

/**
 * kzm_free: (skip)
 * @result: (nullable): a text that one of these functions gave
 *
 * Gives back the memory of a result. It is the C library's free.
 */
void kzm_free(void* result);

/**
 * kzm_last_error:
 *
 * Why the calling thread's last call failed.
 *
 * Returns: (transfer none) (nullable): one line, good until the thread's next call; NULL when that call did not fail
 */
const char* kzm_last_error(void);

/**
 * kzm_version:
 *
 * The version of the library in use; KZM_VERSION is the one that the program was compiled with.
 *
 * Returns: (transfer none): such as "1.0.0"
 */
const char* kzm_version(void);

/**
 * kzm_set_locale: (skip)
 * @identifier: such as "de_CH" or "hi_IN@numbers=deva"
 *
 * Chooses the locale of numbers, units and texts for the whole process.
 *
 * Returns: (type gboolean): 0 after the first text: what was made before would stay in the former locale
 */
int kzm_set_locale(const char* identifier);

/**
 * kzm_set_time_zone: (skip)
 * @zone: such as "Europe/Paris"
 *
 * Chooses the default time zone for the whole process.
 *
 * Returns: (type gboolean): 0 for an unknown name
 */
int kzm_set_time_zone(const char* zone);

/**
 * kzm_use_settings: (skip)
 * @settings: (nullable): a JSON object, such as {"Weather.Global.Units.Pressure": 2}
 *
 * From now on these are the process's settings. The user's own are neither read nor written any more.
 *
 * Returns: (type gboolean): 0 when the settings library in use cannot be given settings
 */
int kzm_use_settings(const char* settings);

/**
 * kzm_current_locale:
 *
 * The identifier of the locale of numbers.
 *
 * Returns: (transfer full) (nullable): such as "de_CH"
 */
char* kzm_current_locale(void);

/**
 * kzm_format_decimal:
 * @minimum: at least this many fraction digits
 * @maximum: at most this many fraction digits
 * @value: any number
 *
 * A number with the given numbers of fraction digits, as text.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_decimal(int64_t minimum, int64_t maximum, double value);

/* ---- The catalogue ----------------------------------------------------------------------------------------------- */

/**
 * kzm_decimal_formatter_with_fractions:
 * @minimum: an integer
 * @maximum: an integer
 *
 * The shared number formatter with at least and at most the given numbers of fraction digits.
 * In C++: KZMUtilitiesDecimalFormatterWithFractions.
 *
 * Returns: (transfer full) (nullable): a JSON object with the two numbers
 */
char* kzm_decimal_formatter_with_fractions(int64_t minimum, int64_t maximum);

/**
 * kzm_decimal_formatter_with_maximum:
 * @maximum: an integer
 *
 * The shared number formatter with at most the given number of fraction digits.
 * In C++: KZMUtilitiesDecimalFormatterWithMaximum.
 *
 * Returns: (transfer full) (nullable): a JSON object with the two numbers
 */
char* kzm_decimal_formatter_with_maximum(int64_t maximum);

/**
 * kzm_posix_locale:
 * @locale: an identifier such as "de_CH"
 *
 * The identifier of the locale's POSIX variant; its own where there is none.
 * In C++: KZMUtilitiesPosixLocale.
 *
 * Returns: (transfer full) (nullable): an identifier such as "de_CH_POSIX"
 */
char* kzm_posix_locale(const char* locale);

/**
 * kzm_format_number:
 * @options: (nullable): a JSON object, or NULL for none
 * @value: any number
 *
 * The number alone, as text.
 * In C++: KZMUtilitiesFormatNumber.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_number(const char* options, double value);

/**
 * kzm_localized_string_from_table_in_bundle:
 * @key: a text
 * @table: a text
 * @comment: (nullable): a text, or NULL
 *
 * The text for the key in the user's language; the key's template where there is none.
 * In C++: KZMLocalizedStringFromTableInBundle.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_localized_string_from_table_in_bundle(const char* key, const char* table, const char* comment);

/**
 * kzm_format_percentage:
 * @options: (nullable): a JSON object, or NULL for none
 * @percent: any number
 *
 * A percentage as text; 0.5 is half a percent.
 * In C++: KZMUtilitiesFormatPercentage.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_percentage(const char* options, double percent);

/**
 * kzm_format_percentage_with_attributes:
 * @options: (nullable): a JSON object, or NULL for none
 * @percent: any number
 *
 * The text of a percentage in two styles.
 * In C++: KZMUtilitiesFormatPercentageWithAttributes.
 *
 * Returns: (transfer full) (nullable): a JSON object with "text" and "runs"
 */
char* kzm_format_percentage_with_attributes(const char* options, double percent);

/**
 * kzm_celcius_to_fahrenheit:
 * @celsius: any number
 *
 * Degrees Celsius in degrees Fahrenheit.
 * In C++: celciusToFahrenheit.
 *
 * Returns: the number
 */
double kzm_celcius_to_fahrenheit(double celsius);

/**
 * kzm_fahrenheit_to_celcius:
 * @fahrenheit: any number
 *
 * Degrees Fahrenheit in degrees Celsius.
 * In C++: fahrenheitToCelcius.
 *
 * Returns: the number
 */
double kzm_fahrenheit_to_celcius(double fahrenheit);

/**
 * kzm_celcius_to_kelvin:
 * @celsius: any number
 *
 * Degrees Celsius in kelvins.
 * In C++: celciusToKelvin.
 *
 * Returns: the number
 */
double kzm_celcius_to_kelvin(double celsius);

/**
 * kzm_kelvin_to_celcius:
 * @kelvin: any number
 *
 * Kelvins in degrees Celsius.
 * In C++: kelvinToCelcius.
 *
 * Returns: the number
 */
double kzm_kelvin_to_celcius(double kelvin);

/**
 * kzm_inch_to_cm:
 * @inches: any number
 *
 * Inches in centimeters.
 * In C++: inchToCm.
 *
 * Returns: the number
 */
double kzm_inch_to_cm(double inches);

/**
 * kzm_cm_to_inch:
 * @centimeters: any number
 *
 * Centimeters in inches.
 * In C++: cmToInch.
 *
 * Returns: the number
 */
double kzm_cm_to_inch(double centimeters);

/**
 * kzm_inch_to_mm:
 * @inches: any number
 *
 * Inches in millimeters.
 * In C++: inchToMm.
 *
 * Returns: the number
 */
double kzm_inch_to_mm(double inches);

/**
 * kzm_mm_to_inch:
 * @millimeters: any number
 *
 * Millimeters in inches.
 * In C++: mmToInch.
 *
 * Returns: the number
 */
double kzm_mm_to_inch(double millimeters);

/**
 * kzm_mm_to_cm:
 * @millimeters: any number
 *
 * Millimeters in centimeters.
 * In C++: mmToCm.
 *
 * Returns: the number
 */
double kzm_mm_to_cm(double millimeters);

/**
 * kzm_cm_to_mm:
 * @centimeters: any number
 *
 * Centimeters in millimeters.
 * In C++: cmToMm.
 *
 * Returns: the number
 */
double kzm_cm_to_mm(double centimeters);

/**
 * kzm_miles_to_km:
 * @miles: any number
 *
 * Miles in kilometers.
 * In C++: milesToKm.
 *
 * Returns: the number
 */
double kzm_miles_to_km(double miles);

/**
 * kzm_km_to_miles:
 * @kilometers: any number
 *
 * Kilometers in miles.
 * In C++: KmToMiles.
 *
 * Returns: the number
 */
double kzm_km_to_miles(double kilometers);

/**
 * kzm_mps_to_kph:
 * @meters_per_second: any number
 *
 * Meters per second in kilometers per hour.
 * In C++: mpsToKph.
 *
 * Returns: the number
 */
double kzm_mps_to_kph(double meters_per_second);

/**
 * kzm_kph_to_mps:
 * @kilometers_per_hour: any number
 *
 * Kilometers per hour in meters per second.
 * In C++: kphToMps.
 *
 * Returns: the number
 */
double kzm_kph_to_mps(double kilometers_per_hour);

/**
 * kzm_mps_to_mph:
 * @meters_per_second: any number
 *
 * Meters per second in miles per hour.
 * In C++: mpsToMph.
 *
 * Returns: the number
 */
double kzm_mps_to_mph(double meters_per_second);

/**
 * kzm_mph_to_mps:
 * @miles_per_hour: any number
 *
 * Miles per hour in meters per second.
 * In C++: mphToMps.
 *
 * Returns: the number
 */
double kzm_mph_to_mps(double miles_per_hour);

/**
 * kzm_mps_to_knots:
 * @meters_per_second: any number
 *
 * Meters per second in knots.
 * In C++: mpsToKnots.
 *
 * Returns: the number
 */
double kzm_mps_to_knots(double meters_per_second);

/**
 * kzm_inch_to_millibar:
 * @inches_of_mercury: any number
 *
 * Inches of mercury in millibars.
 * In C++: inchToMillibar.
 *
 * Returns: the number
 */
double kzm_inch_to_millibar(double inches_of_mercury);

/**
 * kzm_wind_speed_unit:
 *
 * The user's unit of wind speed.
 * In C++: windSpeedUnit.
 *
 * Returns: (transfer full) (nullable): its name, such as "kilometersPerHour"
 */
char* kzm_wind_speed_unit(void);

/**
 * kzm_sensors_temperature_unit:
 *
 * The user's unit of sensor temperatures.
 * In C++: sensorsTemperatureUnit.
 *
 * Returns: (transfer full) (nullable): its name, such as "kilometersPerHour"
 */
char* kzm_sensors_temperature_unit(void);

/**
 * kzm_weather_temperature_unit:
 *
 * The user's unit of air temperatures.
 * In C++: weatherTemperatureUnit.
 *
 * Returns: (transfer full) (nullable): its name, such as "kilometersPerHour"
 */
char* kzm_weather_temperature_unit(void);

/**
 * kzm_distance_unit:
 *
 * The user's unit of distance.
 * In C++: distanceUnit.
 *
 * Returns: (transfer full) (nullable): its name, such as "kilometersPerHour"
 */
char* kzm_distance_unit(void);

/**
 * kzm_pressure_unit:
 *
 * The user's unit of air pressure.
 * In C++: pressureUnit.
 *
 * Returns: (transfer full) (nullable): its name, such as "kilometersPerHour"
 */
char* kzm_pressure_unit(void);

/**
 * kzm_rain_unit:
 *
 * The user's unit of rain.
 * In C++: rainUnit.
 *
 * Returns: (transfer full) (nullable): its name, such as "kilometersPerHour"
 */
char* kzm_rain_unit(void);

/**
 * kzm_snow_unit:
 *
 * The user's unit of snow.
 * In C++: snowUnit.
 *
 * Returns: (transfer full) (nullable): its name, such as "kilometersPerHour"
 */
char* kzm_snow_unit(void);

/**
 * kzm_bandwidth_data:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes_per_second: any number
 *
 * A throughput scaled into kilo, mega or giga units: its unit text, fraction digits and number.
 * In C++: KZMUtilitiesBandwidthData.
 *
 * Returns: (transfer full) (nullable): a JSON object
 */
char* kzm_bandwidth_data(const char* options, double bytes_per_second);

/**
 * kzm_format_bandwidth:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes_per_second: any number
 *
 * A throughput as text.
 * In C++: KZMUtilitiesFormatBandwidth.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_bandwidth(const char* options, double bytes_per_second);

/**
 * kzm_format_bandwidth_with_attributes:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes_per_second: any number
 *
 * The text of a throughput in two styles.
 * In C++: KZMUtilitiesFormatBandwidthWithAttributes.
 *
 * Returns: (transfer full) (nullable): a JSON object with "text" and "runs"
 */
char* kzm_format_bandwidth_with_attributes(const char* options, double bytes_per_second);

/**
 * kzm_disk_activity_data:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes_per_second: any number
 *
 * A disk's rate scaled into kilo, mega or giga units: its unit text, fraction digits and number.
 * In C++: KZMUtilitiesDiskActivityData.
 *
 * Returns: (transfer full) (nullable): a JSON object
 */
char* kzm_disk_activity_data(const char* options, double bytes_per_second);

/**
 * kzm_format_disk_activity:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes_per_second: any number
 *
 * A disk's rate as text.
 * In C++: KZMUtilitiesFormatDiskActivity.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_disk_activity(const char* options, double bytes_per_second);

/**
 * kzm_format_disk_activity_with_attributes:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes_per_second: any number
 *
 * The text of a disk's rate in two styles.
 * In C++: KZMUtilitiesFormatDiskActivityWithAttributes.
 *
 * Returns: (transfer full) (nullable): a JSON object with "text" and "runs"
 */
char* kzm_format_disk_activity_with_attributes(const char* options, double bytes_per_second);

/**
 * kzm_space_data:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes: any number
 *
 * A disk size scaled into kilo to peta units, 1000-based: its unit text, fraction digits and number.
 * In C++: KZMUtilitiesSpaceData.
 *
 * Returns: (transfer full) (nullable): a JSON object
 */
char* kzm_space_data(const char* options, double bytes);

/**
 * kzm_format_space:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes: any number
 *
 * A disk size as text, 1000-based.
 * In C++: KZMUtilitiesFormatSpace.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_space(const char* options, double bytes);

/**
 * kzm_format_space_with_attributes:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes: any number
 *
 * The text of a disk size in two styles.
 * In C++: KZMUtilitiesFormatSpaceWithAttributes.
 *
 * Returns: (transfer full) (nullable): a JSON object with "text" and "runs"
 */
char* kzm_format_space_with_attributes(const char* options, double bytes);

/**
 * kzm_memory_data:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes: any number
 *
 * A memory size scaled into kilo to peta units, 1024-based: its unit text, fraction digits and number.
 * In C++: KZMUtilitiesMemoryData.
 *
 * Returns: (transfer full) (nullable): a JSON object
 */
char* kzm_memory_data(const char* options, double bytes);

/**
 * kzm_format_memory:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes: any number
 *
 * A memory size as text, 1024-based.
 * In C++: KZMUtilitiesFormatMemory.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_memory(const char* options, double bytes);

/**
 * kzm_format_memory_with_attributes:
 * @options: (nullable): a JSON object, or NULL for none
 * @bytes: any number
 *
 * The text of a memory size in two styles.
 * In C++: KZMUtilitiesFormatMemoryWithAttributes.
 *
 * Returns: (transfer full) (nullable): a JSON object with "text" and "runs"
 */
char* kzm_format_memory_with_attributes(const char* options, double bytes);

/**
 * kzm_format_weather_temperature:
 * @options: (nullable): a JSON object, or NULL for none
 * @celsius: any number
 *
 * An air temperature as text, in the user's unit.
 * In C++: KZMUtilitiesFormatWeatherTemperature.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_temperature(const char* options, double celsius);

/**
 * kzm_format_weather_wind_speed:
 * @options: (nullable): a JSON object, or NULL for none
 * @meters_per_second: any number
 *
 * A wind speed as text, in the user's unit.
 * In C++: KZMUtilitiesFormatWeatherWindSpeed.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_wind_speed(const char* options, double meters_per_second);

/**
 * kzm_format_weather_wind_direction:
 * @degrees: any number
 *
 * The name of the compass direction; 0 is north, 90 east.
 * In C++: KZMUtilitiesFormatWeatherWindDirection.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_wind_direction(double degrees);

/**
 * kzm_format_weather_pressure:
 * @options: (nullable): a JSON object, or NULL for none
 * @hectopascals: any number
 *
 * An air pressure as text, in the user's unit.
 * In C++: KZMUtilitiesFormatWeatherPressure.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_pressure(const char* options, double hectopascals);

/**
 * kzm_format_weather_distance:
 * @kilometers: any number
 *
 * A distance as text, in the user's unit.
 * In C++: KZMUtilitiesFormatWeatherDistance.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_distance(double kilometers);

/**
 * kzm_format_weather_visibility:
 * @distance: any number
 *
 * A visibility as text: the number as it comes, with the name of the user's unit.
 * In C++: KZMUtilitiesFormatWeatherVisibility.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_visibility(double distance);

/**
 * kzm_format_weather_rain_amount:
 * @millimeters: any number
 *
 * An amount of rain as text, in the user's unit.
 * In C++: KZMUtilitiesFormatWeatherRainAmount.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_rain_amount(double millimeters);

/**
 * kzm_format_weather_snow_amount:
 * @millimeters: any number
 *
 * An amount of snow as text, in the user's unit of rain.
 * In C++: KZMUtilitiesFormatWeatherSnowAmount.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_snow_amount(double millimeters);

/**
 * kzm_format_weather_uv:
 * @index: any number
 *
 * An ultraviolet index as text.
 * In C++: KZMUtilitiesFormatWeatherUV.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_uv(double index);

/**
 * kzm_format_weather_humidity:
 * @percent: any number
 *
 * A relative humidity as text.
 * In C++: KZMUtilitiesFormatWeatherHumidity.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_humidity(double percent);

/**
 * kzm_format_weather_altitude:
 * @options: (nullable): a JSON object, or NULL for none
 * @degrees: any number
 *
 * An angle above the horizon as text.
 * In C++: KZMUtilitiesFormatWeatherAltitude.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_altitude(const char* options, double degrees);

/**
 * kzm_format_weather_azimuth:
 * @options: (nullable): a JSON object, or NULL for none
 * @degrees: any number
 *
 * An angle along the horizon as text.
 * In C++: KZMUtilitiesFormatWeatherAzimuth.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_azimuth(const char* options, double degrees);

/**
 * kzm_format_weather_days:
 * @days: any number
 *
 * A number of days as text.
 * In C++: KZMUtilitiesFormatWeatherDays.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_days(double days);

/**
 * kzm_format_weather_illumination:
 * @percent: any number
 *
 * The illuminated part of a disc as text.
 * In C++: KZMUtilitiesFormatWeatherIllumination.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_weather_illumination(double percent);

/**
 * kzm_sensor_data:
 * @type: an integer
 * @options: (nullable): a JSON object, or NULL for none
 * @value: any number
 *
 * A sensor's reading, converted and scaled: its fraction digits, number and unit text; null for an unknown type.
 * In C++: KZMUtilitiesSensorData.
 *
 * Returns: (transfer full) (nullable): a JSON object, or NULL
 */
char* kzm_sensor_data(int64_t type, const char* options, double value);

/**
 * kzm_format_sensor:
 * @type: an integer
 * @options: (nullable): a JSON object, or NULL for none
 * @value: any number
 *
 * A sensor's reading as text; empty for an unknown type.
 * In C++: KZMUtilitiesFormatSensor.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_format_sensor(int64_t type, const char* options, double value);

/**
 * kzm_time_items:
 *
 * The groups of items from which a user composes a clock or date display.
 * In C++: KZMUtilitiesTimeItems.
 *
 * Returns: (transfer full) (nullable): a JSON array
 */
char* kzm_time_items(void);

/**
 * kzm_day_start:
 * @t: a time point, or NaN
 *
 * The start of the time point's day in the default zone.
 * In C++: dayStart.
 *
 * Returns: the time point, or NaN
 */
double kzm_day_start(double t);

/**
 * kzm_day_start_with_timezone:
 * @t: a time point, or NaN
 * @zone: a name such as "Europe/Paris"
 *
 * The start of the time point's day in the given zone.
 * In C++: dayStartWithTimezone.
 *
 * Returns: the time point, or NaN
 */
double kzm_day_start_with_timezone(double t, const char* zone);

/**
 * kzm_add_days_timezone:
 * @t: a time point, or NaN
 * @days: an integer
 * @zone: a name such as "Europe/Paris"
 *
 * The same wall time of the given zone, the given number of days later.
 * In C++: addDaysTimezone.
 *
 * Returns: the time point, or NaN
 */
double kzm_add_days_timezone(double t, int64_t days, const char* zone);

/**
 * kzm_add_days:
 * @t: a time point, or NaN
 * @days: an integer
 *
 * The same wall time of the default zone, the given number of days later.
 * In C++: addDays.
 *
 * Returns: the time point, or NaN
 */
double kzm_add_days(double t, int64_t days);

/**
 * kzm_add_hours:
 * @t: a time point, or NaN
 * @hours: an integer
 *
 * The given number of elapsed hours later.
 * In C++: addHours.
 *
 * Returns: the time point, or NaN
 */
double kzm_add_hours(double t, int64_t hours);

/**
 * kzm_add_months:
 * @t: a time point, or NaN
 * @months: an integer
 *
 * The same day and wall time of the default zone, the given number of months later; cut to the month's last day.
 * In C++: addMonths.
 *
 * Returns: the time point, or NaN
 */
double kzm_add_months(double t, int64_t months);

/**
 * kzm_components:
 * @t: a time point, or NaN
 * @units: units, added: KZM_CALENDAR_UNIT_YEAR and so on
 *
 * The asked calendar fields of the time point in the default zone.
 * In C++: components.
 *
 * Returns: (transfer full) (nullable): a JSON object, or NULL
 */
char* kzm_components(double t, int64_t units);

/**
 * kzm_corrected:
 * @t: a time point, or NaN
 *
 * The time point plus the default zone's offset then.
 * In C++: corrected.
 *
 * Returns: the time point, or NaN
 */
double kzm_corrected(double t);

/**
 * kzm_utc_start:
 * @t: a time point, or NaN
 *
 * The UTC midnight of the day that the time point has in the default zone.
 * In C++: utcStart.
 *
 * Returns: the time point, or NaN
 */
double kzm_utc_start(double t);

/**
 * kzm_conver_from_timezone_to_utc:
 * @t: a time point, or NaN
 * @zone: a name such as "Europe/Paris"
 *
 * The time point minus the given zone's offset then.
 * In C++: converFromTimezoneToUTC.
 *
 * Returns: the time point, or NaN
 */
double kzm_conver_from_timezone_to_utc(double t, const char* zone);

/**
 * kzm_conver_to_timezone:
 * @t: a time point, or NaN
 * @zone: a name such as "Europe/Paris"
 *
 * The time point minus the system zone's offset then, plus the given zone's.
 * In C++: converToTimezone.
 *
 * Returns: the time point, or NaN
 */
double kzm_conver_to_timezone(double t, const char* zone);

/**
 * kzm_conver_from_timezone:
 * @t: a time point, or NaN
 * @zone: a name such as "Europe/Paris"
 *
 * The time point minus the given zone's offset then, plus the system zone's.
 * In C++: converFromTimezone.
 *
 * Returns: the time point, or NaN
 */
double kzm_conver_from_timezone(double t, const char* zone);

/**
 * kzm_ordinal_suffix:
 * @t: a time point, or NaN
 *
 * The English ordinal suffix of the time point's day of the month in the default zone.
 * In C++: ordinalSuffix.
 *
 * Returns: (transfer full) (nullable): the text, or NULL
 */
char* kzm_ordinal_suffix(double t);

/**
 * kzm_date_from_components:
 * @units: units, added: KZM_CALENDAR_UNIT_YEAR and so on
 *
 * The time point with the asked calendar fields of now, in the default zone.
 * In C++: dateFromComponents.
 *
 * Returns: the time point, or NaN
 */
double kzm_date_from_components(int64_t units);

/**
 * kzm_time_interval_from_components:
 * @units: units, added: KZM_CALENDAR_UNIT_YEAR and so on
 *
 * The same in seconds since 1970; 0 when there is no such date.
 * In C++: timeIntervalFromComponents.
 *
 * Returns: the number
 */
double kzm_time_interval_from_components(int64_t units);

/**
 * kzm_utc_start_for_today:
 *
 * The UTC midnight of today's date in the default zone.
 * In C++: utcStartForToday.
 *
 * Returns: the time point, or NaN
 */
double kzm_utc_start_for_today(void);

/**
 * kzm_ordinal_suffix_from_day:
 * @day: an integer
 *
 * The English ordinal suffix of a day of the month.
 * In C++: ordinalSuffixFromDay.
 *
 * Returns: (transfer full) (nullable): the text
 */
char* kzm_ordinal_suffix_from_day(int64_t day);

/**
 * kzm_replace_string_with_string_attributes:
 * @receiver: a JSON object with "runs"
 * @target: a text
 * @replacement: a text
 * @attributes: (nullable): any JSON, or NULL for none
 *
 * The receiver with the target's first occurrence replaced by a text in one style.
 * In C++: replaceStringWithStringAttributes.
 *
 * Returns: (transfer full) (nullable): a JSON object with "text" and "runs"
 */
char* kzm_replace_string_with_string_attributes(const char* receiver,
                                                const char* target,
                                                const char* replacement,
                                                const char* attributes);

/**
 * kzm_replace_string_with_attributed_string:
 * @receiver: a JSON object with "runs"
 * @target: a text
 * @replacement: a JSON object with "runs"
 *
 * The receiver with the target's first occurrence replaced by a text with its own styles.
 * In C++: replaceStringWithAttributedString.
 *
 * Returns: (transfer full) (nullable): a JSON object with "text" and "runs"
 */
char* kzm_replace_string_with_attributed_string(const char* receiver, const char* target, const char* replacement);

/**
 * kzm_does_string_match_expression:
 * @text: a text
 * @pattern: a text
 *
 * Whether the pattern is found in the text and its capture group 1 took part.
 * In C++: doesStringMatchExpression.
 *
 * Returns: (type gboolean): 1 if so, else 0
 */
int kzm_does_string_match_expression(const char* text, const char* pattern);

/**
 * kzm_match_for_expression:
 * @text: a text
 * @pattern: a text
 *
 * The text of capture group 1 in the pattern's first match; null where there is none.
 * In C++: matchForExpression.
 *
 * Returns: (transfer full) (nullable): the text, or NULL
 */
char* kzm_match_for_expression(const char* text, const char* pattern);

/**
 * kzm_max_double:
 * @a: any number
 * @b: any number
 *
 * The greater of the finite arguments; 0 when neither is finite.
 * In C++: KZMMAXDouble.
 *
 * Returns: the number
 */
double kzm_max_double(double a, double b);

/**
 * kzm_min_double:
 * @a: any number
 * @b: any number
 *
 * The lesser of the finite arguments; 0 when neither is finite.
 * In C++: KZMMINDouble.
 *
 * Returns: the number
 */
double kzm_min_double(double a, double b);
#ifdef __cplusplus
}
#endif

#endif
