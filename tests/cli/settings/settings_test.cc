#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/cli/program.h"

namespace kzm::tests {
namespace {

constexpr const char* kDegrees = "Sensors.Global.Degrees.Format";
constexpr const char* kPressure = "Weather.Global.Units.Pressure";

std::string got(const std::string& key) { return run({"settings", "get", key}).output; }

TEST(Settings, AreSetByCodeOrByMeaning) {
  struct Case {
    const char* key;
    const char* code;
    const char* got;
  };
  const Case cases[] = {
      {kDegrees, "1", "1 celsius\n"},
      {kDegrees, "fahrenheit", "2 fahrenheit\n"},
      {kDegrees, "KELVIN", "3 kelvin\n"},
      {"Weather.Global.Units.Degrees", "3", "3 kelvin\n"},
      {"Weather.Global.Units.WindSpeed", "1", "1 metersPerSecond\n"},
      {"Weather.Global.Units.WindSpeed", "kilometersperhour", "2 kilometersPerHour\n"},
      {"Weather.Global.Units.WindSpeed", "3", "3 milesPerHour\n"},
      {"Weather.Global.Units.WindSpeed", "4", "4 knots\n"},
      {kPressure, "1", "1 hectopascals\n"},
      {kPressure, "2", "2 millibars\n"},
      {kPressure, "inchesOfMercury", "3 inchesOfMercury\n"},
      {"Weather.Global.Units.Distance", "1", "1 kilometers\n"},
      {"Weather.Global.Units.Distance", "miles", "2 miles\n"},
      {"Weather.Global.Units.Precipitation", "1", "1 millimeters\n"},
      {"Weather.Global.Units.Precipitation", "2", "2 inches\n"},
      {"Weather.Global.Units.Precipitation", "0", "0 region\n"},
      {"Weather.Global.Units.Precipitation", "region", "0 region\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.key) + " " + c.code);
    EXPECT_EQ(run({"settings", "set", c.key, c.code}), (Outcome{"", "", 0}));
    EXPECT_EQ(got(c.key), c.got);
    EXPECT_EQ(run({"settings", "unset", c.key}).status, 0);
    EXPECT_EQ(got(c.key), "0 region\n");
  }
}

TEST(Settings, DecideHowReadingsAreShown) {
  EXPECT_EQ(run({"settings", "set", kDegrees, "celsius"}).status, 0);
  EXPECT_EQ(run({"format", "sensor", "temperature", "--units", "45"}).output, "45°\n");
  EXPECT_EQ(run({"settings", "unset", kDegrees}).status, 0);
  EXPECT_EQ(run({"format", "sensor", "temperature", "--units", "45"}).output, "113°\n");
}

TEST(Settings, WhatAnotherProgramStoredIsReadAsTheLibraryReadsIt) {
  struct Case {
    const char* stored;
    const char* got;
  };
  const Case cases[] = {
      {"2", "2 millibars\n"},
      {"2.9", "2 millibars\n"},
      {"\"2\"", "2 millibars\n"},
      {"true", "1 hectopascals\n"},
      {"0", "0 region\n"},
      {"4", "0 region\n"},
      {"-1", "0 region\n"},
      {"\"x\"", "0 region\n"},
      {"[1]", "0 region\n"},
      {"1e300", "0 region\n"},
      {"1000000000000", "0 region\n"},
  };
  for (const Case& c : cases) {
    configuration().write("config/KZMUtilities/settings.json",
                          "{\"Weather.Global.Units.Pressure\": " + std::string(c.stored) + "}");
    EXPECT_EQ(got(kPressure), c.got) << c.stored;
  }
  configuration().write("config/KZMUtilities/settings.json", "{}");
}

TEST(Settings, TheListMarksWhatIsInForce) {
  EXPECT_EQ(run({"settings", "set", kDegrees, "3"}).status, 0);
  const std::string list = run({"settings", "list"}).output;
  EXPECT_EQ(run({"settings", "unset", kDegrees}).status, 0);
  EXPECT_EQ(list,
            "Sensors.Global.Degrees.Format  (temperature of sensors)\n"
            "    0  region's choice\n"
            "    1  celsius\n"
            "    2  fahrenheit\n"
            "  * 3  kelvin\n"
            "\n"
            "Weather.Global.Units.Degrees  (temperature of the air)\n"
            "  * 0  region's choice: fahrenheit\n"
            "    1  celsius\n"
            "    2  fahrenheit\n"
            "    3  kelvin\n"
            "\n"
            "Weather.Global.Units.WindSpeed  (speed of the wind)\n"
            "  * 0  region's choice: milesPerHour\n"
            "    1  metersPerSecond\n"
            "    2  kilometersPerHour\n"
            "    3  milesPerHour\n"
            "    4  knots\n"
            "\n"
            "Weather.Global.Units.Pressure  (pressure of the air)\n"
            "  * 0  region's choice: inchesOfMercury\n"
            "    1  hectopascals\n"
            "    2  millibars\n"
            "    3  inchesOfMercury\n"
            "\n"
            "Weather.Global.Units.Distance  (distances)\n"
            "  * 0  region's choice: miles\n"
            "    1  kilometers\n"
            "    2  miles\n"
            "\n"
            "Weather.Global.Units.Precipitation  (rain and snow (snow in centimeters when rain is in millimeters))\n"
            "  * 0  region's choice: inches\n"
            "    1  millimeters\n"
            "    2  inches\n");
}

TEST(Settings, BadInputIsOneLineWithTheRightWords) {
  const std::string keys =
      "Sensors.Global.Degrees.Format, Weather.Global.Units.Degrees, Weather.Global.Units.WindSpeed, "
      "Weather.Global.Units.Pressure, Weather.Global.Units.Distance, Weather.Global.Units.Precipitation";
  const std::string codes = "; there are 0 region, 1 hectopascals, 2 millibars, 3 inchesOfMercury";
  struct Refused {
    std::vector<std::string> words;
    std::string errors;
  };
  // clang-format off
  const Refused cases[] = {
      {{},                            ": list, get, set or unset is missing"},
      {{"show"},                      ": nothing is named \"show\"; there are list, get, set and unset"},
      {{"get", "Pressure"},           ": no setting \"Pressure\"; there are " + keys},
      {{"set", "x", "1"},             ": no setting \"x\"; there are " + keys},
      {{"unset", ""},                 ": no setting \"\"; there are " + keys},
      {{"set", kPressure, "4"},       ": Weather.Global.Units.Pressure has no code \"4\"" + codes},
      {{"set", kPressure, "-1"},      ": Weather.Global.Units.Pressure has no code \"-1\"" + codes},
      {{"set", kPressure, "02"},      ": Weather.Global.Units.Pressure has no code \"02\"" + codes},
      {{"set", kPressure, "celsius"}, ": Weather.Global.Units.Pressure has no code \"celsius\"" + codes},
      {{"set", kPressure},            " set takes KEY and CODE"},
      {{"get"},                       " get takes KEY"},
      {{"list", "x"},                 " list takes no arguments"},
      {{"list", "--all"},             ": no option \"--all\"; `kzmutil settings --help` lists them"},
  };
  // clang-format on
  for (const Refused& c : cases) {
    const std::string errors = "kzmutil: settings" + c.errors + "\n";
    EXPECT_EQ(run(line("settings", c.words)), (Outcome{"", errors, 2})) << testing::PrintToString(c.words);
  }
}

TEST(Settings, AWriteThatFailsNamesTheFileAndTheReason) {
  const std::string path = configuration().path("config/KZMUtilities/settings.json");
  configuration().write("config/KZMUtilities/settings.json", "broken");
  const Outcome outcome = run({"settings", "set", kPressure, "2"});
  configuration().write("config/KZMUtilities/settings.json", "{}");
  EXPECT_EQ(outcome.errors, "KZMSettings: " + path +
                                " is not changed: line 1 is not JSON\n"
                                "kzmutil: settings: the setting could not be stored\n");
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.status, 1);
}

}  // namespace
}  // namespace kzm::tests
