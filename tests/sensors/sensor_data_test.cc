#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/default_units.h>
#include <KZMUtilities/sensors.h>
#include <KZMUtilities/shared.h>

#include "sensors/sensor_table.h"
#include "tests/support/settings.h"

namespace kzm {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr auto kDegrees = "Sensors.Global.Degrees.Format";

double below(double value) { return std::nextafter(value, -kInfinity); }
double above(double value) { return std::nextafter(value, kInfinity); }

Value rule(double bound, int decimals) {
  Dictionary entry;
  entry.set("value", bound);
  entry.set("decimals", decimals);
  return entry;
}

// Options with one key.
Dictionary with(std::string_view key, Value value) {
  Dictionary options;
  options.set(key, std::move(value));
  return options;
}

const Dictionary kNone;
const Dictionary kSpace = with("space", true);
const Dictionary kShort = with("short", true);
const Dictionary kOff = with("off", false);
const Dictionary kOffNull = with("off", nullptr);
const Dictionary kReverse = with("reverse-type", false);
const Dictionary kReverseNull = with("reverse-type", nullptr);
const Dictionary kDecimals = with("decimals", 2);

struct Case {
  const char* why;
  std::int64_t type;
  Dictionary options;
  double input;
  double value;
  std::int64_t decimals;
  const char* format;
};

template <std::size_t N>
void check(const Case (&cases)[N]) {
  for (const Case& c : cases) {
    const std::optional<Dictionary> data = KZMUtilitiesSensorData(c.type, c.options, c.input);
    ASSERT_TRUE(data.has_value()) << c.why;
    EXPECT_EQ(*data->find("value")->real(), c.value) << c.why;
    EXPECT_EQ(std::signbit(*data->find("value")->real()), std::signbit(c.value)) << c.why;
    EXPECT_EQ(*data->find("decimals")->integer(), c.decimals) << c.why;
    EXPECT_EQ(*data->find("format")->string(), c.format) << c.why;
  }
}

class SensorData : public testing::Test {
 protected:
  SensorData() { reset(); }
  ~SensorData() override { reset(); }

 private:
  static void reset() {
    KZMUtilities::shared().setCache(nullptr);
    tests::useNoSettings();
  }
};

TEST_F(SensorData, KindsHaveTheirPublishedNumbers) {
  EXPECT_EQ(SensorType::temperature, 1);
  EXPECT_EQ(SensorType::percentage, 2);
  EXPECT_EQ(SensorType::fan, 3);
  EXPECT_EQ(SensorType::current, 4);
  EXPECT_EQ(SensorType::power, 5);
  EXPECT_EQ(SensorType::voltage, 6);
  EXPECT_EQ(SensorType::light, 7);
  EXPECT_EQ(SensorType::frequency, 8);
  EXPECT_EQ(SensorType::multiplier, 9);
  EXPECT_EQ(SensorType::capacity, 100);
}

TEST_F(SensorData, OtherKindsGiveNothing) {
  for (const std::int64_t type : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{10}, std::int64_t{42},
                                  std::int64_t{99}, std::int64_t{101}, std::numeric_limits<std::int64_t>::max(),
                                  std::numeric_limits<std::int64_t>::min(), std::int64_t{0x100000001}}) {
    EXPECT_EQ(KZMUtilitiesSensorData(type, kSpace, 1.0), std::nullopt) << type;
  }
}

TEST_F(SensorData, KeysAreInTheirOrder) {
  const std::optional<Dictionary> data = KZMUtilitiesSensorData(SensorType::fan, kNone, 1200.0);
  ASSERT_TRUE(data.has_value());
  std::string keys;
  for (const Dictionary::Entry& entry : *data) keys += entry.key + " ";
  EXPECT_EQ(keys, "decimals value format ");
}

TEST_F(SensorData, TemperatureInTheUsersUnit) {
  tests::useOnlySetting(kDegrees, 1);
  const Case celsius[] = {
      {"as it comes", SensorType::temperature, kNone, 50.5, 50.5, 0, "%@°"},
      {"no space", SensorType::temperature, kSpace, 50.5, 50.5, 0, "%@°"},
      {"reversed", SensorType::temperature, kReverse, 50.0, 121.99999570846578, 0, "%@°"},
      {"no decimals", SensorType::temperature, kDecimals, 50.5, 50.5, 0, "%@°"},
  };
  check(celsius);
  tests::useOnlySetting(kDegrees, 2);
  const Case fahrenheit[] = {
      {"converted", SensorType::temperature, kNone, 50.0, 121.99999570846578, 0, "%@°"},
      {"zero", SensorType::temperature, kSpace, 0.0, 32.0, 0, "%@°"},
      {"reversed", SensorType::temperature, kReverse, 50.0, 50.0, 0, "%@°"},
      {"reversed by null", SensorType::temperature, kReverseNull, 50.0, 50.0, 0, "%@°"},
      {"infinite", SensorType::temperature, kNone, kInfinity, kInfinity, 0, "%@°"},
  };
  check(fahrenheit);
  tests::useOnlySetting(kDegrees, 3);
  const Case kelvin[] = {
      {"tight", SensorType::temperature, kNone, 50.0, 323.15, 0, "%@K"},
      {"spaced", SensorType::temperature, kSpace, 50.0, 323.15, 0, "%@ K"},
      {"stays", SensorType::temperature, kReverse, 50.0, 323.15, 0, "%@K"},
  };
  check(kelvin);
}

TEST_F(SensorData, ATemperatureUnitOfAnotherKindIsCelsiusAndNotReversed) {
  KZMUtilitiesDefaultUnits& units = KZMUtilitiesDefaultUnits::shared();
  const PreferredUnits before = units.units();
  PreferredUnits odd;
  odd["temperature"] = MeasurementUnit::knots;
  units.setUnits(odd);
  const Case cases[] = {
      {"as it comes", SensorType::temperature, kNone, 50.0, 50.0, 0, "%@°"},
      {"stays", SensorType::temperature, kReverse, 50.0, 50.0, 0, "%@°"},
  };
  check(cases);
  units.setUnits(before);
}

TEST_F(SensorData, PercentageIsCappedAboveOnly) {
  const Case cases[] = {
      {"a fraction", SensorType::percentage, kNone, 0.423, 42.3, 0, "%@%%"},
      {"no space", SensorType::percentage, kSpace, 0.5, 50.0, 0, "%@%%"},
      {"full", SensorType::percentage, kNone, 1.0, 100.0, 0, "%@%%"},
      {"just below full", SensorType::percentage, kNone, below(1.0), 99.99999999999999, 0, "%@%%"},
      {"just above full", SensorType::percentage, kNone, above(1.0), 100.0, 0, "%@%%"},
      {"more than full", SensorType::percentage, kNone, 1.5, 100.0, 0, "%@%%"},
      {"unknown", SensorType::percentage, kNone, -1.0, 0.0, 0, "%@%%"},
      {"beside unknown", SensorType::percentage, kNone, below(-1.0), -100.00000000000003, 0, "%@%%"},
      {"beside unknown", SensorType::percentage, kNone, above(-1.0), -99.99999999999999, 0, "%@%%"},
      {"not capped below", SensorType::percentage, kNone, -0.5, -50.0, 0, "%@%%"},
      {"not a number is full", SensorType::percentage, kNone, kNan, 100.0, 0, "%@%%"},
      {"infinite is full", SensorType::percentage, kNone, kInfinity, 100.0, 0, "%@%%"},
      {"infinitely empty", SensorType::percentage, kNone, -kInfinity, -kInfinity, 0, "%@%%"},
  };
  check(cases);
}

TEST_F(SensorData, FanIsOffAtExactlyZero) {
  const Case cases[] = {
      {"turning", SensorType::fan, kNone, 1200.0, 1200.0, 0, "%@rpm"},
      {"spaced", SensorType::fan, kSpace, 1200.0, 1200.0, 0, "%@ rpm"},
      {"off, though false", SensorType::fan, kOff, 0.0, 0.0, 0, "Off"},
      {"off, though null", SensorType::fan, kOffNull, 0.0, 0.0, 0, "Off"},
      {"off at minus zero", SensorType::fan, kOff, -0.0, -0.0, 0, "Off"},
      {"nobody asked", SensorType::fan, kNone, 0.0, 0.0, 0, "%@rpm"},
      {"nobody asked, spaced", SensorType::fan, kSpace, 0.0, 0.0, 0, "%@ rpm"},
      {"hardly turning", SensorType::fan, kOff, 0.0001, 0.0001, 0, "%@rpm"},
      {"the least above", SensorType::fan, kOff, 5e-324, 5e-324, 0, "%@rpm"},
      {"the least below", SensorType::fan, kOff, -5e-324, -5e-324, 0, "%@rpm"},
  };
  check(cases);
}

struct Family {
  std::int64_t type;
  const char* base;
  const char* baseSpaced;
  const char* milli;
  const char* milliSpaced;
};

void checkThousandths(const Family& f) {
  const Case cases[] = {
      {"half", f.type, kSpace, 0.5, 500.0, 0, f.milliSpaced},
      {"half, tight", f.type, kNone, 0.5, 500.0, 0, f.milli},
      {"one stays", f.type, kSpace, 1.0, 1.0, 1, f.baseSpaced},
      {"minus one stays", f.type, kNone, -1.0, -1.0, 1, f.base},
      {"just below one", f.type, kNone, below(1.0), 999.9999999999999, 0, f.milli},
      {"just above one", f.type, kNone, above(1.0), 1.0000000000000002, 1, f.base},
      {"just inside", f.type, kNone, above(-1.0), -999.9999999999999, 0, f.milli},
      {"just outside", f.type, kNone, below(-1.0), -1.0000000000000002, 1, f.base},
      {"negative", f.type, kNone, -0.25, -250.0, 0, f.milli},
      {"zero", f.type, kSpace, 0.0, 0.0, 0, f.baseSpaced},
      {"minus zero", f.type, kNone, -0.0, -0.0, 0, f.base},
      {"the least", f.type, kNone, 5e-324, 4.94e-321, 0, f.milli},
      {"large", f.type, kNone, 500.0, 500.0, 1, f.base},
      {"infinite", f.type, kNone, -kInfinity, -kInfinity, 1, f.base},
  };
  check(cases);
}

void checkNotANumber(const Family& f) {
  const std::optional<Dictionary> nan = KZMUtilitiesSensorData(f.type, kNone, kNan);
  ASSERT_TRUE(nan.has_value());
  EXPECT_TRUE(std::isnan(*nan->find("value")->real()));
  EXPECT_EQ(*nan->find("decimals")->integer(), 1) << "not a number is not zero";
  EXPECT_EQ(*nan->find("format")->string(), f.base);
}

TEST_F(SensorData, SmallCurrentsPowersAndVoltagesAreInThousandths) {
  const Family families[] = {
      {SensorType::current, "%@A", "%@ A", "%@mA", "%@ mA"},
      {SensorType::power, "%@W", "%@ W", "%@mW", "%@ mW"},
      {SensorType::voltage, "%@V", "%@ V", "%@mV", "%@ mV"},
  };
  for (const Family& f : families) {
    checkThousandths(f);
    checkNotANumber(f);
  }
}

TEST_F(SensorData, EachFamilyReadsItsOwnDecimalsRules) {
  const Value rules = Array{rule(10.0, 2), rule(100.0, 1)};
  const Dictionary voltage = with("decimals-voltage", rules);
  const Dictionary amperage = with("decimals-amperage", rules);
  const Dictionary power = with("decimals-power", rules);
  const Dictionary frequency = with("decimals-frequency", rules);
  const Dictionary noKey = with("decimals-current", rules);
  const Dictionary mistyped = with("decimals-power", 3);
  const Dictionary onItself = with("decimals-voltage", Array{rule(5.0, 4)});
  const Case cases[] = {
      {"below the first", SensorType::voltage, voltage, 5.0, 5.0, 2, "%@V"},
      {"on the first", SensorType::voltage, voltage, 10.0, 10.0, 1, "%@V"},
      {"just below it", SensorType::voltage, voltage, below(10.0), 9.999999999999998, 2, "%@V"},
      {"below the second", SensorType::voltage, voltage, 50.0, 50.0, 1, "%@V"},
      {"above both", SensorType::voltage, voltage, 500.0, 500.0, 1, "%@V"},
      {"the scaled value", SensorType::voltage, voltage, 0.05, 50.0, 1, "%@mV"},
      {"scaled above both", SensorType::voltage, voltage, 0.5, 500.0, 0, "%@mV"},
      {"zero matches", SensorType::voltage, voltage, 0.0, 0.0, 2, "%@V"},
      {"of current", SensorType::current, amperage, 5.0, 5.0, 2, "%@A"},
      {"of power", SensorType::power, power, 5.0, 5.0, 2, "%@W"},
      {"not of another", SensorType::current, voltage, 5.0, 5.0, 1, "%@A"},
      {"not of current", SensorType::current, noKey, 5.0, 5.0, 1, "%@A"},
      {"mistyped", SensorType::power, mistyped, 5.0, 5.0, 1, "%@W"},
      {"of frequency, scaled", SensorType::frequency, frequency, 2400.0, 2.4, 2, "%@GHz"},
      {"frequency above both", SensorType::frequency, frequency, 500000.0, 500.0, 2, "%@GHz"},
      {"frequency between", SensorType::frequency, frequency, 50000.0, 50.0, 1, "%@GHz"},
      {"a bound does not match itself", SensorType::voltage, onItself, 5.0, 5.0, 1, "%@V"},
  };
  check(cases);
}

TEST_F(SensorData, TheOtherKinds) {
  Dictionary shortAndSpaced = kShort;
  shortAndSpaced.set("space", true);
  const Case cases[] = {
      {"light", SensorType::light, kNone, 300.5, 300.5, 0, "%@Lux"},
      {"light, spaced", SensorType::light, kSpace, 300.5, 300.5, 0, "%@ Lux"},
      {"light, short", SensorType::light, kShort, 300.5, 300.5, 0, "%@Lx"},
      {"light, both", SensorType::light, shortAndSpaced, 300.5, 300.5, 0, "%@ Lx"},
      {"frequency", SensorType::frequency, kNone, 2400.0, 2.4, 2, "%@GHz"},
      {"frequency, spaced", SensorType::frequency, kSpace, 2400.0, 2.4, 2, "%@ GHz"},
      {"frequency, short", SensorType::frequency, kShort, 2400.0, 2.4, 2, "%@G"},
      {"frequency, both", SensorType::frequency, shortAndSpaced, 2400.0, 2.4, 2, "%@ G"},
      {"multiplier", SensorType::multiplier, kNone, 24.0, 24.0, 0, "%@x"},
      {"multiplier, spaced", SensorType::multiplier, kSpace, 24.0, 24.0, 0, "%@x"},
      {"capacity", SensorType::capacity, kNone, 5100.0, 5100.0, 0, "%@mAh"},
      {"capacity, spaced", SensorType::capacity, kSpace, 5100.0, 5100.0, 0, "%@ mAh"},
  };
  check(cases);
}

TEST_F(SensorData, TheTableHasItsRowsInOrder) {
  constexpr std::string_view rows[] = {"%@°",    "%@ K",  "%@K",    "Off",   "%@ rpm", "%@rpm", "%@ V",  "%@V",
                                       "%@ mV",  "%@mV",  "%@ A",   "%@A",   "%@ mA",  "%@mA",  "%@ W",  "%@W",
                                       "%@ mW",  "%@mW",  "%@ G",   "%@G",   "%@ GHz", "%@GHz", "%@ Lx", "%@Lx",
                                       "%@ Lux", "%@Lux", "%@ mAh", "%@mAh", "%@x"};
  static_assert(std::size(rows) == 29);
  EXPECT_TRUE(KZMUtilities::shared().cache()->find("Localizations-Units-Sensors").isNull());
  ASSERT_TRUE(KZMUtilitiesSensorData(SensorType::fan, kNone, 1.0).has_value());
  const Value table = KZMUtilities::shared().cache()->find("Localizations-Units-Sensors");
  ASSERT_NE(table.dictionary(), nullptr);
  std::size_t row = 0;
  for (const Dictionary::Entry& entry : *table.dictionary()) {
    ASSERT_LT(row, std::size(rows));
    EXPECT_EQ(entry.key, rows[row]);
    EXPECT_EQ(entry.value, Value(rows[row]));
    ++row;
  }
  EXPECT_EQ(row, std::size(rows));
}

TEST_F(SensorData, AUnitThatTheCachedTableLacksGivesNothing) {
  KZMUtilities::shared().cache()->set("Localizations-Units-Sensors", with("%@ rpm", "%@ turns"));
  EXPECT_EQ(KZMUtilitiesSensorData(SensorType::fan, kNone, 1200.0), std::nullopt);
  const std::optional<Dictionary> spaced = KZMUtilitiesSensorData(SensorType::fan, kSpace, 1200.0);
  ASSERT_TRUE(spaced.has_value());
  EXPECT_EQ(*spaced->find("format"), Value("%@ turns"));
}

TEST_F(SensorData, ThePercentageIsNotLookedUp) {
  KZMUtilities::shared().cache()->set("Localizations-Units-Sensors", with("%@%%", "%@ of hundred"));
  const std::optional<Dictionary> data = KZMUtilitiesSensorData(SensorType::percentage, kNone, 0.5);
  ASSERT_TRUE(data.has_value());
  EXPECT_EQ(*data->find("format"), Value("%@%%"));
}

}  // namespace
}  // namespace kzm
