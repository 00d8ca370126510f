// One call at least of each kind of argument and result; the texts themselves are what the C++ tests are about.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/c/text.h"

namespace kzm::tests {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Calls, GiveTexts) {
  struct Case {
    const char* why;
    char* result;
    const char* text;
  };
  const Case cases[] = {
      {"no options", kzm_format_memory(nullptr, 1073741824.0), "1GB"},
      {"JSON null is no options", kzm_format_memory("null", 1073741824.0), "1GB"},
      {"options", kzm_format_memory("{\"space\": true}", 1073741824.0), "1 GB"},
      {"rules", kzm_format_bandwidth("{\"decimals-mb\": [{\"value\": 10, \"decimals\": 2}]}", 1500000.0), "1.43MB/s"},
      {"no parameter for options", kzm_format_weather_uv(5.5), "6"},
      {"a type of sensor", kzm_format_sensor(KZM_SENSOR_FAN, "{\"units\": true}", 1200.0), "1,200rpm"},
      {"an unknown type", kzm_format_sensor(99, nullptr, 1200.0), ""},
      {"a unit", kzm_wind_speed_unit(), "milesPerHour"},
      {"a locale", kzm_posix_locale("de_CH"), "de_CH_POSIX"},
      {"a text or none", kzm_match_for_expression("12 Files", "(\\d+) files"), "12"},
      {"none", kzm_match_for_expression("Files", "(\\d+) files"), "NULL"},
      {"a comment or none", kzm_localized_string_from_table_in_bundle("Units.Memory.%@ GB", "KZMUtilities", nullptr),
       "%@ GB"},
      {"no date, no suffix", kzm_ordinal_suffix(kNaN), "NULL"},
      {"fraction digits", kzm_format_decimal(2, 2, 1234.5), "1,234.50"},
      {"any number", kzm_format_memory(nullptr, kNaN), "NaNPB"},
  };
  for (const Case& c : cases) EXPECT_EQ(text(c.result), c.text) << c.why;
}

TEST(Calls, GiveJson) {
  struct Case {
    const char* why;
    char* result;
    const char* json;
  };
  const Case cases[] = {
      {"data", kzm_memory_data("{\"space\": true}", 1610612736.0),
       R"({"format": "%@ GB", "decimals": 0, "value": 1.5})"},
      {"sensor data", kzm_sensor_data(KZM_SENSOR_MULTIPLIER, nullptr, 2.5),
       R"({"decimals": 0, "value": 2.5, "format": "%@x"})"},
      {"no sensor data", kzm_sensor_data(99, nullptr, 2.5), "NULL"},
      {"not a number", kzm_memory_data(nullptr, kNaN), R"({"format": "%@PB", "decimals": 0, "value": "NaN"})"},
      {"styles", kzm_format_percentage_with_attributes("{\"attributes-main\": {\"a\": 1.0}}", 42.0),
       R"({"text": "42%", "runs": [{"text": "42", "attributes": {"a":1.0}}, {"text": "%", "attributes": null}]})"},
      {"fields", kzm_components(0.0, KZM_CALENDAR_UNIT_YEAR | KZM_CALENDAR_UNIT_TIME_ZONE),
       R"({"year": 1970, "timeZone": "UTC"})"},
      {"no date, no fields", kzm_components(kNaN, KZM_CALENDAR_UNIT_YEAR), "NULL"},
      {"a formatter", kzm_decimal_formatter_with_fractions(1, 3),
       R"({"minimumFractionDigits": 1, "maximumFractionDigits": 3})"},
      {"a text with styles",
       kzm_replace_string_with_attributed_string("{\"runs\": [{\"text\": \"%@ GB\"}]}", "%@",
                                                 "{\"runs\": [{\"text\": \"3\", \"attributes\": 7}]}"),
       R"({"text": "3 GB", "runs": [{"text": "3", "attributes": 7}, {"text": " GB", "attributes": null}]})"},
      {"no attributes", kzm_replace_string_with_string_attributes("{\"runs\": [{\"text\": \"a\"}]}", "a", "b", nullptr),
       R"({"text": "b", "runs": [{"text": "b", "attributes": null}]})"},
  };
  for (const Case& c : cases) EXPECT_EQ(text(c.result), c.json) << c.why;
}

TEST(Calls, GiveNumbersAndTruth) {
  EXPECT_EQ(kzm_mps_to_kph(10.0), 36.0);
  EXPECT_EQ(kzm_max_double(1.0, 2.0), 2.0);
  EXPECT_EQ(kzm_add_days_timezone(0.0, 2, "Europe/Paris"), 172800.0);
  EXPECT_TRUE(std::isnan(kzm_add_days(kNaN, 1)));
  EXPECT_EQ(lastError(), "");
  EXPECT_EQ(kzm_does_string_match_expression("ab", "([A-Z]{2})"), 1);
  EXPECT_EQ(kzm_does_string_match_expression("a1", "([A-Z]{2})"), 0);
}

TEST(Calls, EachTextIsThatOfItsName) {
  struct Case {
    const char* call;
    char* result;
    const char* text;
  };
  const Case cases[] = {
      {"decimal_formatter_with_maximum", kzm_decimal_formatter_with_maximum(2),
       R"({"minimumFractionDigits": 0, "maximumFractionDigits": 2})"},
      {"format_percentage", kzm_format_percentage("{\"space\": true}", 42.4), "42 %"},
      {"sensors_temperature_unit", kzm_sensors_temperature_unit(), "fahrenheit"},
      {"weather_temperature_unit", kzm_weather_temperature_unit(), "fahrenheit"},
      {"distance_unit", kzm_distance_unit(), "miles"},
      {"pressure_unit", kzm_pressure_unit(), "inchesOfMercury"},
      {"rain_unit", kzm_rain_unit(), "inches"},
      {"snow_unit", kzm_snow_unit(), "inches"},
      {"bandwidth_data", kzm_bandwidth_data(nullptr, 1536.0), R"({"format": "%@KB/s", "decimals": 0, "value": 1.5})"},
      {"disk_activity_data", kzm_disk_activity_data(nullptr, 1536.0),
       R"({"format": "%@KB/s", "decimals": 0, "value": 1.5})"},
      {"space_data", kzm_space_data(nullptr, 1536.0), R"({"format": "%@KB", "decimals": 0, "value": 1.536})"},
      {"format_disk_activity", kzm_format_disk_activity(nullptr, 1536.0), "2KB/s"},
      {"format_space", kzm_format_space(nullptr, 1536.0), "2KB"},
      {"format_bandwidth_with_attributes", kzm_format_bandwidth_with_attributes(nullptr, 1536.0),
       R"({"text": "2KB/s", "runs": [{"text": "2KB/s", "attributes": null}]})"},
      {"format_disk_activity_with_attributes", kzm_format_disk_activity_with_attributes(nullptr, 1536.0),
       R"({"text": "2KB/s", "runs": [{"text": "2KB/s", "attributes": null}]})"},
      {"format_space_with_attributes", kzm_format_space_with_attributes(nullptr, 1536.0),
       R"({"text": "2KB", "runs": [{"text": "2KB", "attributes": null}]})"},
      {"format_memory_with_attributes", kzm_format_memory_with_attributes(nullptr, 1536.0),
       R"({"text": "2KB", "runs": [{"text": "2KB", "attributes": null}]})"},
      {"format_weather_temperature", kzm_format_weather_temperature(nullptr, 20.0), "68"},
      {"format_weather_wind_speed", kzm_format_weather_wind_speed(nullptr, 10.0), "22"},
      {"format_weather_wind_direction", kzm_format_weather_wind_direction(90.0), "East"},
      {"format_weather_pressure", kzm_format_weather_pressure(nullptr, 1013.25), "29.92\""},
      {"format_weather_distance", kzm_format_weather_distance(10.0), "6 miles"},
      {"format_weather_visibility", kzm_format_weather_visibility(10.0), "10 miles"},
      {"format_weather_rain_amount", kzm_format_weather_rain_amount(25.4), "1\""},
      {"format_weather_snow_amount", kzm_format_weather_snow_amount(50.8), "2\""},
      {"format_weather_humidity", kzm_format_weather_humidity(42.4), "42%"},
      {"format_weather_altitude", kzm_format_weather_altitude(nullptr, 12.0), "12°"},
      {"format_weather_azimuth", kzm_format_weather_azimuth(nullptr, 120.0), "120°"},
      {"format_weather_days", kzm_format_weather_days(3.0), "3 Days"},
      {"format_weather_illumination", kzm_format_weather_illumination(42.4), "42.4%"},
      {"ordinal_suffix_from_day", kzm_ordinal_suffix_from_day(22), "nd"},
  };
  for (const Case& c : cases) EXPECT_EQ(text(c.result), c.text) << c.call;
  EXPECT_EQ(text(kzm_time_items()).find(R"([{"type": "hour", "items": [)"), 0U);
}

TEST(Calls, EachNumberIsThatOfItsName) {
  struct Case {
    const char* call;
    double result;
    double number;
  };
  constexpr double kSunday = 1609675200.5;       // 2021-01-03 12:00:00.5
  constexpr double kItsMidnight = 1609632000.0;  // 2021-01-03 00:00:00
  constexpr double kFirstDay = -62135769600.0;   // the first day of the year 1, by the Julian calendar
  const Case cases[] = {
      {"celcius_to_fahrenheit", kzm_celcius_to_fahrenheit(100.0), 211.99999141693155},
      {"fahrenheit_to_celcius", kzm_fahrenheit_to_celcius(212.0), 100.0},
      {"celcius_to_kelvin", kzm_celcius_to_kelvin(0.0), 273.15},
      {"kelvin_to_celcius", kzm_kelvin_to_celcius(0.0), -273.15},
      {"inch_to_cm", kzm_inch_to_cm(1.0), 2.54},
      {"cm_to_inch", kzm_cm_to_inch(1.0), 0.3937},
      {"inch_to_mm", kzm_inch_to_mm(1.0), 25.4},
      {"mm_to_inch", kzm_mm_to_inch(1.0), 0.03937},
      {"mm_to_cm", kzm_mm_to_cm(25.0), 2.5},
      {"cm_to_mm", kzm_cm_to_mm(2.5), 25.0},
      {"miles_to_km", kzm_miles_to_km(1.0), 1.609344},
      {"km_to_miles", kzm_km_to_miles(1.0), 0.621371192237},
      {"kph_to_mps", kzm_kph_to_mps(1.0), 0.27777777777778},
      {"mps_to_mph", kzm_mps_to_mph(1.0), 2.2369362920544},
      {"mph_to_mps", kzm_mph_to_mps(1.0), 0.44704},
      {"mps_to_knots", kzm_mps_to_knots(1.0), 1.94384},
      {"inch_to_millibar", kzm_inch_to_millibar(1.0), 33.863886666666708},
      {"min_double", kzm_min_double(1.0, 2.0), 1.0},
      {"day_start", kzm_day_start(kSunday), kItsMidnight},
      {"utc_start", kzm_utc_start(kSunday), kItsMidnight},
      {"add_hours", kzm_add_hours(0.0, 2), 7200.0},
      {"add_months", kzm_add_months(0.0, 1), 2678400.0},
      {"conver_to_timezone", kzm_conver_to_timezone(0.0, "Europe/Paris"), 3600.0},
      {"conver_from_timezone", kzm_conver_from_timezone(0.0, "Europe/Paris"), -3600.0},
      {"conver_from_timezone_to_utc", kzm_conver_from_timezone_to_utc(0.0, "Europe/Paris"), -3600.0},
      {"date_from_components", kzm_date_from_components(0), kFirstDay},
      {"time_interval_from_components", kzm_time_interval_from_components(0), kFirstDay},
      {"utc_start_for_today", std::fmod(kzm_utc_start_for_today(), 86400.0), 0.0},
  };
  for (const Case& c : cases) EXPECT_EQ(c.result, c.number) << c.call;
}

TEST(Calls, TheVersionIsThatOfTheHeader) { EXPECT_STREQ(kzm_version(), KZM_VERSION); }

TEST(Calls, SettingsAreReadAtOnce) {
  EXPECT_EQ(kzm_use_settings("{\"Weather.Global.Units.WindSpeed\": 4}"), 1);
  EXPECT_EQ(text(kzm_wind_speed_unit()), "knots");
  EXPECT_EQ(kzm_use_settings(nullptr), 1);
  EXPECT_EQ(text(kzm_wind_speed_unit()), "milesPerHour");
}

}  // namespace
}  // namespace kzm::tests
