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

TEST(Calls, TheVersionIsThatOfTheHeader) { EXPECT_STREQ(kzm_version(), KZM_VERSION); }

TEST(Calls, SettingsAreReadAtOnce) {
  EXPECT_EQ(kzm_use_settings("{\"Weather.Global.Units.WindSpeed\": 4}"), 1);
  EXPECT_EQ(text(kzm_wind_speed_unit()), "knots");
  EXPECT_EQ(kzm_use_settings(nullptr), 1);
  EXPECT_EQ(text(kzm_wind_speed_unit()), "milesPerHour");
}

}  // namespace
}  // namespace kzm::tests
