#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <KZMUtilities/formatters.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/shared.h>

#include "tests/support/allocations.h"
#include "tests/support/settings.h"

namespace kzm {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Options whose keys are all true.
template <class... Keys>
Dictionary with(Keys... keys) {
  Dictionary options;
  (options.set(keys, true), ...);
  return options;
}

const Dictionary kNone;
const Dictionary kUnits = with("units");
const Dictionary kSpaced = with("units", "space");
const Dictionary kStripped = with("units", "space", "strip");
const Dictionary kOff = with("off");
const Dictionary kUnitsOff = with("units", "off");
const Dictionary kUnitsShort = with("units", "short");

class SensorFormat : public testing::Test {
 protected:
  SensorFormat() { useLocale("en_US"); }
  ~SensorFormat() override { useLocale("en_US"); }

  // Formatters and texts are made anew in the locale.
  static void useLocale(const char* identifier) {
    setCurrentLocale(identifier);
    KZMUtilities::shared().setCache(nullptr);
    tests::useOnlySetting("Sensors.Global.Degrees.Format", 1);
  }
};

TEST_F(SensorFormat, NumberAndUnit) {
  struct Case {
    const char* why;
    std::int64_t type;
    Dictionary options;
    double value;
    const char* text;
  };
  const Case cases[] = {
      {"no such kind", 42, kSpaced, 1.0, ""},
      {"no such kind, alone", 0, kNone, 1.0, ""},
      {"a temperature", SensorType::temperature, kUnits, 50.5, "50°"},
      {"a temperature, alone", SensorType::temperature, kNone, 51.5, "52"},
      {"the minus stays", SensorType::temperature, kUnits, -0.3, "-0°"},
      {"a percentage", SensorType::percentage, kUnits, 0.5, "50%"},
      {"a percentage, alone", SensorType::percentage, kNone, 0.5, "50"},
      {"no space in it", SensorType::percentage, kSpaced, 0.423, "42%"},
      {"a fan", SensorType::fan, kSpaced, 1200.0, "1,200 rpm"},
      {"a fan, tight", SensorType::fan, kUnits, 1200.0, "1,200rpm"},
      {"a fan, stripped", SensorType::fan, kStripped, 1200.0, "1200rpm"},
      {"a fan at rest", SensorType::fan, kUnitsOff, 0.0, "Off"},
      {"a fan at rest, alone", SensorType::fan, kOff, 0.0, "0"},
      {"milliamperes", SensorType::current, kSpaced, 0.5, "500 mA"},
      {"amperes", SensorType::current, kSpaced, 1.25, "1.2 A"},
      {"zeros are dropped", SensorType::power, kUnits, 5.0, "5W"},
      {"volts", SensorType::voltage, kSpaced, 12.345, "12.3 V"},
      {"the point stays", SensorType::voltage, kStripped, 12.345, "12.3V"},
      {"the comma stays, too", SensorType::voltage, kStripped, 1234.56, "1,234.6V"},
      {"light", SensorType::light, kUnitsShort, 300.0, "300Lx"},
      {"a frequency", SensorType::frequency, kSpaced, 2400.0, "2.4 GHz"},
      {"a frequency, rounded", SensorType::frequency, kUnits, 3456.0, "3.46GHz"},
      {"a multiplier", SensorType::multiplier, kUnits, 24.0, "24x"},
      {"a capacity", SensorType::capacity, kSpaced, 5100.0, "5,100 mAh"},
      {"not a number", SensorType::voltage, kUnits, kNan, "NaNV"},
      {"infinite", SensorType::fan, kSpaced, kInfinity, "∞ rpm"},
      {"minus infinite", SensorType::power, kUnits, -kInfinity, "-∞W"},
  };
  for (const Case& c : cases) EXPECT_EQ(KZMUtilitiesFormatSensor(c.type, c.options, c.value), c.text) << c.why;
}

TEST_F(SensorFormat, StripIsReadByPresence) {
  for (const Value& value : {Value(false), Value(nullptr), Value(0), Value("no")}) {
    Dictionary options = kSpaced;
    options.set("strip", value);
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, options, 1200.0), "1200rpm");
  }
}

TEST_F(SensorFormat, StripTakesSeparatorsOnlyWithoutDecimals) {
  Dictionary rule;
  rule.set("value", 10000);
  rule.set("decimals", 0);
  Dictionary options = kStripped;
  options.set("decimals-voltage", Array(1, rule));
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::voltage, options, 1234.56), "1235V");
  rule.set("decimals", -1);
  options.set("decimals-voltage", Array(1, rule));
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::voltage, options, 1234.56), "1,235V") << "-1 is not 0";
  rule.set("decimals", 2);
  options.set("decimals-voltage", Array(1, rule));
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::voltage, options, 1234.5), "1,234.5V");
}

TEST_F(SensorFormat, StripRunsOnTheFinishedText) {
  Dictionary table;
  table.set("%@ rpm", "a. b, %@ turns per minute");
  KZMUtilities::shared().cache()->set("Localizations-Units-Sensors", table);
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kStripped, 1200.0), "ab1200turnsperminute");
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kSpaced, 1200.0), "a. b, 1,200 turns per minute");
}

TEST_F(SensorFormat, AUnitThatTheCachedTableLacksGivesAnEmptyText) {
  KZMUtilities::shared().cache()->set("Localizations-Units-Sensors", Dictionary());
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kUnits, 1200.0), "");
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kNone, 1200.0), "") << "though the number alone was asked for";
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::percentage, kUnits, 0.5), "50%");
}

TEST_F(SensorFormat, TranslatedTextIsData) {
  Dictionary table;
  table.set("%@rpm", "%n%s %@ %@ %d");
  KZMUtilities::shared().cache()->set("Localizations-Units-Sensors", table);
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kUnits, 5.0), "%n%s 5 %@ %d");
}

TEST_F(SensorFormat, TheNumberIsInTheLocalesStyle) {
  struct Case {
    const char* locale;
    const char* spaced;
    const char* stripped;
    const char* volts;
  };
  const Case cases[] = {
      {"en_US", "1,234,567 rpm", "1234567rpm", "12.3V"},
      {"en_GB", "1,234,567 rpm", "1234567rpm", "12.3V"},
      {"de_DE", "1.234.567 rpm", "1234567rpm", "12,3V"},
      {"de_CH", "1’234’567 rpm", "1’234’567rpm", "12.3V"},
      {"sv_SE", "1\u00A0234\u00A0567 rpm", "1\u00A0234\u00A0567rpm", "12,3V"},
      {"fr_FR", "1\u202F234\u202F567 rpm", "1\u202F234\u202F567rpm", "12,3V"},
      {"ru_RU", "1\u00A0234\u00A0567 rpm", "1\u00A0234\u00A0567rpm", "12,3V"},
      {"es_ES", "1.234.567 rpm", "1234567rpm", "12,3V"},
      {"hi_IN", "12,34,567 rpm", "1234567rpm", "12.3V"},
      {"ar_EG", "١٬٢٣٤٬٥٦٧ rpm", "١٬٢٣٤٬٥٦٧rpm", "١٢٫٣V"},
  };
  for (const Case& c : cases) {
    useLocale(c.locale);
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kSpaced, 1234567.0), c.spaced) << c.locale;
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kStripped, 1234567.0), c.stripped) << c.locale;
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::voltage, kStripped, 12.345), c.volts) << c.locale;
  }
}

TEST_F(SensorFormat, AFormatterOfTheHostIsUsed) {
  KZMUtilities::shared().cache()->set("NumberFormatter-Decimal--.0", std::make_shared<const NumberFormatter>(2, 2));
  EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kUnits, 5.0), "5.00rpm");
}

TEST_F(SensorFormat, ManyThreadsFormatWhileAHostChangesTheCache) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([i] {
      for (int round = 0; round < 300; ++round) {
        if (i == 0) KZMUtilities::shared().setCache(nullptr);
        EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kSpaced, 1200.0), "1,200 rpm");
        EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::percentage, kUnits, 0.5), "50%");
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST_F(SensorFormat, ShortTextsTakeNoAllocation) {
  const auto shortTexts = [] {
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::temperature, kUnits, 50.0), "50°");
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::fan, kSpaced, 1200.0), "1,200 rpm");
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::voltage, kStripped, 12.345), "12.3V");
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::frequency, kNone, 2400.0), "2.4");
    EXPECT_EQ(KZMUtilitiesFormatSensor(SensorType::percentage, kUnits, 0.5), "50%");
  };
  shortTexts();
  const std::size_t before = tests::allocations();
  shortTexts();
  EXPECT_EQ(tests::allocations() - before, 0U);
}

}  // namespace
}  // namespace kzm
