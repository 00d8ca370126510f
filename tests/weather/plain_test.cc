#include <gtest/gtest.h>
#include <string>

#include <KZMUtilities/weather.h>

#include "tests/weather/weather_case.h"

namespace kzm::weather {
namespace {

TEST(WeatherPlain, WithoutOptions) {
  struct Case {
    const char* why;
    std::string (*format)(double);
    double value;
    const char* text;
  };
  const Case cases[] = {
      {"half to even", KZMUtilitiesFormatWeatherUV, 5.5, "6"},
      {"half to even", KZMUtilitiesFormatWeatherUV, 4.5, "4"},
      {"the minus stays", KZMUtilitiesFormatWeatherUV, -0.2, "-0"},
      {"not grouped", KZMUtilitiesFormatWeatherUV, 12345.0, "12345"},
      {"not a number", KZMUtilitiesFormatWeatherUV, -kNan, "nan"},
      {"infinite", KZMUtilitiesFormatWeatherUV, kInfinity, "inf"},
      {"infinite", KZMUtilitiesFormatWeatherUV, -kInfinity, "-inf"},
      {"all digits of it", KZMUtilitiesFormatWeatherUV, 1e22, "10000000000000000000000"},
      {"whole", KZMUtilitiesFormatWeatherHumidity, 57.0, "57%"},
      {"half to even", KZMUtilitiesFormatWeatherHumidity, 56.5, "56%"},
      {"above", KZMUtilitiesFormatWeatherHumidity, 1000.4, "1000%"},
      {"not a number", KZMUtilitiesFormatWeatherHumidity, kNan, "nan%"},
      {"two digits", KZMUtilitiesFormatWeatherDays, 12.3456, "12.35 Days"},
      {"one digit", KZMUtilitiesFormatWeatherDays, 1.5, "1.5 Days"},
      {"never one day", KZMUtilitiesFormatWeatherDays, 1.0, "1 Days"},
      {"the shortest decimal", KZMUtilitiesFormatWeatherDays, 2.675, "2.68 Days"},
      {"grouped", KZMUtilitiesFormatWeatherDays, 1234.0, "1,234 Days"},
      {"not a number", KZMUtilitiesFormatWeatherDays, kNan, "NaN Days"},
      {"one percent sign", KZMUtilitiesFormatWeatherIllumination, 50.0, "50%"},
      {"half to even", KZMUtilitiesFormatWeatherIllumination, 98.765, "98.76%"},
      {"not a fraction", KZMUtilitiesFormatWeatherIllumination, 0.5, "0.5%"},
      {"negative zero", KZMUtilitiesFormatWeatherIllumination, -0.001, "-0%"},
      {"infinite", KZMUtilitiesFormatWeatherIllumination, -kInfinity, "-∞%"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.format(c.value), c.text) << c.why << " " << c.value;
}

TEST(WeatherPlain, AltitudeAndAzimuthAreTheSame) {
  struct Case {
    const char* why;
    Dictionary options;
    double degrees;
    const char* text;
  };
  const Case cases[] = {
      {"whole", kNone, 41.26, "41°"},
      {"a digit", withDecimals(1), 41.26, "41.3°"},
      {"decimals are an integer", withDecimals(true), 41.26, "41.3°"},
      {"a fraction is cut", withDecimals(1.9), 41.26, "41.3°"},
      {"negative count", withDecimals(-5), 41.26, "41°"},
      {"no unit asked, yet shown", kNone, 0.0, "0°"},
      {"not brought into a turn", kNone, 725.0, "725°"},
      {"below the horizon", kNone, -12.0, "-12°"},
      {"the minus stays", kNone, -0.4, "-0°"},
      {"not a number", kNone, kNan, "NaN°"},
      {"infinite", kNone, kInfinity, "∞°"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(KZMUtilitiesFormatWeatherAltitude(c.options, c.degrees), c.text) << c.why;
    EXPECT_EQ(KZMUtilitiesFormatWeatherAzimuth(c.options, c.degrees), c.text) << c.why;
  }
}

}  // namespace
}  // namespace kzm::weather
