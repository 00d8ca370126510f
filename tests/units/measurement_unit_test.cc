#include "units/measurement_unit.h"

#include <gtest/gtest.h>
#include <iterator>

namespace kzm::units {
namespace {

using Unit = MeasurementUnit;

TEST(MeasurementUnits, HaveNamesAndSymbols) {
  struct Case {
    Unit unit;
    const char* name;
    const char* symbol;
  };
  const Case cases[] = {
      {Unit::celsius, "celsius", "°C"},
      {Unit::fahrenheit, "fahrenheit", "°F"},
      {Unit::kelvin, "kelvin", "K"},
      {Unit::metersPerSecond, "metersPerSecond", "m/s"},
      {Unit::kilometersPerHour, "kilometersPerHour", "km/h"},
      {Unit::milesPerHour, "milesPerHour", "mph"},
      {Unit::knots, "knots", "kn"},
      {Unit::hectopascals, "hectopascals", "hPa"},
      {Unit::millibars, "millibars", "mbar"},
      {Unit::inchesOfMercury, "inchesOfMercury", "inHg"},
      {Unit::kilometers, "kilometers", "km"},
      {Unit::miles, "miles", "mi"},
      {Unit::millimeters, "millimeters", "mm"},
      {Unit::centimeters, "centimeters", "cm"},
      {Unit::inches, "inches", "in"},
  };
  static_assert(std::size(cases) == 15);
  for (const Case& c : cases) {
    EXPECT_EQ(measurementUnitName(c.unit), c.name);
    EXPECT_EQ(symbolOf(c.unit), c.symbol);
  }
  for (const int number : {15, 16, 200}) {
    EXPECT_EQ(measurementUnitName(static_cast<Unit>(number)), "") << number;
    EXPECT_EQ(symbolOf(static_cast<Unit>(number)), "") << number;
  }
}

}  // namespace
}  // namespace kzm::units
