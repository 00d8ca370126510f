#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>

#include <KZMUtilities/widest_text.h>

#include "tests/support/settings.h"

namespace kzm {
namespace {

Array rules(std::initializer_list<std::pair<double, std::int64_t>> entries) {
  Array all;
  for (const auto& [value, decimals] : entries) all.emplace_back(Dictionary{{"value", value}, {"decimals", decimals}});
  return all;
}

TEST(WidestText, OfEachFamily) {
  tests::useNoSettings();
  struct Case {
    const char* why;
    TextFamily family;
    Dictionary options;
    ValueRange values;
    const char* text;
  };
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const Dictionary steady{{"space", true}, {"decimals-mb", rules({{10.0, 2}, {100.0, 1}})}};
  const Case cases[] = {
      {"nothing to choose from", TextFamily::number, {}, {7.0, 7.0}, "7"},
      {"below zero", TextFamily::number, {}, {-9.0, 9.0}, "-9"},
      {"more digits below zero", TextFamily::number, {{"decimals", 1}}, {-9.0, 99.0}, "88.8"},
      {"a sign of its own for what is nearly nothing", TextFamily::number, {}, {-0.1, 9.0}, "-0"},
      {"rounded up to one more digit", TextFamily::memory, {}, {0.0, 1023.9}, "1KB"},
      {"no grouping, so the rate is narrower", TextFamily::bandwidthWithAttributes, {}, {0.0, 1e6}, "977KB/s"},
      {"hidden", TextFamily::diskActivityWithAttributes, {{"hide-bytes", true}}, {0.0, 1023.0}, "-"},
      {"the longest direction", TextFamily::weatherWindDirection, {}, {0.0, 360.0}, "North East"},
      {"the only one", TextFamily::weatherWindDirection, {}, {100.0, 110.0}, "East"},
      {"all of a half", TextFamily::sensorPercentage, {{"units", true}}, {0.0, 0.5}, "11%"},
      {"capped", TextFamily::sensorPercentage, {{"units", true}}, {0.0, 7.0}, "100%"},
      {"unknown", TextFamily::sensorPercentage, {{"units", true}}, {-1.0, -1.0}, "0%"},
      {"a word", TextFamily::sensorFan, {{"units", true}, {"off", true}}, {0.0, 0.0}, "Off"},
      {"infinity", TextFamily::weatherUV, {}, {kInfinity, kInfinity}, "inf"},
      {"no value", TextFamily::memory, {}, {1.0, 0.0}, ""},
  };
  for (const Case& c : cases) {
    const std::string found = widestText(c.family, c.options, c.values);
    EXPECT_EQ(widthInColumns(found), widthInColumns(c.text)) << c.why << ": " << found;
  }
}

TEST(WidestText, IsOneThatTheFamilyShows) {
  EXPECT_EQ(widestText(TextFamily::memory, {{"space", true}}, {0.0, 1048576.0}), "1,024 KB");
  EXPECT_EQ(widestText(TextFamily::sensorCapacity, {{"units", true}}, {20.0, 20.0}), "20mAh");
  EXPECT_EQ(widestText(TextFamily::bandwidth, {{"space", true}, {"decimals-mb", rules({{100.0, 2}})}},
                       {2097152.0, 1048576000.0}),
            "100.00 MB/s");
}

TEST(WidestText, IsMeasuredAsTheHostDoes) {
  const auto narrowOnes = [](std::string_view text) {
    double width = 0.0;
    for (const char c : text) width += c == '1' ? 2.0 : c == '8' ? 7.0 : 6.0;
    return width;
  };
  EXPECT_EQ(widestText(TextFamily::percentage, {}, {0.0, 99.0}, narrowOnes), "88%");
  EXPECT_EQ(widestText(TextFamily::percentage, {}, {0.0, 111.0}, narrowOnes), "108%");
  EXPECT_EQ(widestText(TextFamily::percentage, {{"decimals", 1}}, {0.0, 99.0}, narrowOnes), "88.8%");
  EXPECT_EQ(widestText(TextFamily::memory, {{"short", true}}, {0.0, 2e6}, [](std::string_view) { return 1.0; }), "0K")
      << "all alike: the first";
}

TEST(WidestText, AMeasureThatGivesNoNumberMakesAnyTextTheWidest) {
  const auto noNumber = [](std::string_view /*text*/) { return std::numeric_limits<double>::quiet_NaN(); };
  const std::string text = widestText(TextFamily::weatherUV, {}, {1.0, 2.0}, noNumber);
  EXPECT_TRUE(text == "1" || text == "2") << text;
}

TEST(WidestText, AnEmptyMeasureThrowsWhenItIsAsked) {
  EXPECT_THROW(static_cast<void>(widestText(TextFamily::weatherUV, {}, {1.0, 2.0}, TextMeasure())),
               std::bad_function_call);
  EXPECT_EQ(widestText(TextFamily::weatherUV, {}, {2.0, 1.0}, TextMeasure()), "");
}

TEST(WidestText, ANumberThatNamesNoFamilyCountsAsTheLastOne) {
  constexpr auto kNone = static_cast<TextFamily>(200);
  EXPECT_EQ(widestText(kNone, {{"units", true}}, {5.0, 5.0}), "5mAh");
  EXPECT_EQ(usualRange(kNone).highest, usualRange(TextFamily::sensorCapacity).highest);
}

// What a desktop may meet, each in the unit of the family's function.
TEST(WidestText, HasAUsualRangeForEachFamily) {
  constexpr struct {
    TextFamily family;
    ValueRange usual;
  } kRanges[] = {
      {TextFamily::number, {0.0, 1e6}},
      {TextFamily::percentage, {0.0, 100.0}},
      {TextFamily::bandwidth, {0.0, 1e12}},
      {TextFamily::bandwidthWithAttributes, {0.0, 1e12}},
      {TextFamily::diskActivity, {0.0, 1e12}},
      {TextFamily::diskActivityWithAttributes, {0.0, 1e12}},
      {TextFamily::space, {0.0, 1e15}},
      {TextFamily::memory, {0.0, 1e13}},
      {TextFamily::weatherTemperature, {-90.0, 60.0}},
      {TextFamily::weatherWindSpeed, {0.0, 120.0}},
      {TextFamily::weatherWindDirection, {0.0, 360.0}},
      {TextFamily::weatherPressure, {850.0, 1100.0}},
      {TextFamily::weatherDistance, {0.0, 20040.0}},
      {TextFamily::weatherVisibility, {0.0, 300.0}},
      {TextFamily::weatherRainAmount, {0.0, 2000.0}},
      {TextFamily::weatherSnowAmount, {0.0, 20000.0}},
      {TextFamily::weatherUV, {0.0, 20.0}},
      {TextFamily::weatherHumidity, {0.0, 100.0}},
      {TextFamily::weatherAltitude, {-90.0, 90.0}},
      {TextFamily::weatherAzimuth, {0.0, 360.0}},
      {TextFamily::weatherDays, {0.0, 366.0}},
      {TextFamily::weatherIllumination, {0.0, 100.0}},
      {TextFamily::sensorTemperature, {-50.0, 150.0}},
      {TextFamily::sensorPercentage, {0.0, 1.0}},
      {TextFamily::sensorFan, {0.0, 20000.0}},
      {TextFamily::sensorCurrent, {-100.0, 100.0}},
      {TextFamily::sensorPower, {-2000.0, 2000.0}},
      {TextFamily::sensorVoltage, {-20.0, 400.0}},
      {TextFamily::sensorLight, {0.0, 200000.0}},
      {TextFamily::sensorFrequency, {0.0, 10000.0}},
      {TextFamily::sensorMultiplier, {0.0, 100.0}},
      {TextFamily::sensorCapacity, {0.0, 100000.0}},
  };
  int number = 0;
  for (const auto& row : kRanges) {
    EXPECT_EQ(static_cast<int>(row.family), number++) << "each family";
    EXPECT_EQ(usualRange(row.family).lowest, row.usual.lowest) << number;
    EXPECT_EQ(usualRange(row.family).highest, row.usual.highest) << number;
    EXPECT_EQ(widestText(row.family, {{"units", true}}), widestText(row.family, {{"units", true}}, row.usual));
    EXPECT_NE(widestText(row.family, {{"units", true}}), "") << number;
  }
  EXPECT_EQ(number, static_cast<int>(TextFamily::sensorCapacity) + 1);
}

}  // namespace
}  // namespace kzm
