// The program over a product's own settings and localization libraries, which have the promised function alone.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/cli/program.h"

namespace kzm::tests {
namespace {

constexpr const char* kForeignSettings = "LD_LIBRARY_PATH=" KZM_FOREIGN_SETTINGS;
constexpr const char* kForeignTexts = "LD_LIBRARY_PATH=" KZM_FOREIGN_LOCALIZATION;

struct Case {
  const char* library;
  std::vector<std::string> words;
  const char* output;
  const char* errors;
  int status;
};

TEST(Companions, WhatNeedsMoreThanThePromisedFunctionSaysSoInOneLine) {
  const std::string pressure = "KZMUtilitiesFormatWeatherPressure";
  const Case cases[] = {
      {kForeignSettings, {"call", pressure, R"({"units": true})", "1000"}, "1,000mb\n", "", 0},
      {kForeignSettings, {"call", "KZMUtilitiesFormatMemory", "{}", "5e6"}, "5MB\n", "", 0},
      {kForeignSettings, {"settings", "get", "Weather.Global.Units.Pressure"}, "2 millibars\n", "", 0},
      {kForeignSettings,
       {"settings", "set", "Weather.Global.Units.Pressure", "1"},
       "",
       "kzmutil: the settings library in use cannot store settings\n",
       1},
      {kForeignSettings,
       {"call", "--set", "a=1", "mpsToKph", "1"},
       "",
       "kzmutil: the settings library in use cannot be given settings\n",
       1},
      {kForeignTexts, {"call", "KZMUtilitiesFormatMemory", "{}", "5e6"}, "5MB!\n", "", 0},
      {kForeignTexts,
       {"--locale", "fr_FR", "call", "KZMUtilitiesFormatMemory", R"({"decimals-mb": [{"value": 9, "decimals": 1}]})",
        "5e6"},
       "4,8MB!\n",
       "kzmutil: the localization library in use cannot choose a language; texts stay in its own\n",
       0},
  };
  for (const Case& c : cases) {
    const Outcome outcome = run(c.words, {}, {c.library});
    EXPECT_EQ(outcome.output, c.output) << testing::PrintToString(c.words);
    EXPECT_EQ(outcome.errors, c.errors) << testing::PrintToString(c.words);
    EXPECT_EQ(outcome.status, c.status) << testing::PrintToString(c.words);
  }
}

TEST(Companions, ABatchGoesOnAfterSettingsThatCannotBeGiven) {
  const Outcome outcome = run({"call", "--batch"},
                              "{\"call\": \"mpsToKph\", \"args\": [1], \"settings\": {\"a\": 1}}\n"
                              "{\"call\": \"mpsToKph\", \"args\": [1]}\n",
                              {kForeignSettings});
  EXPECT_EQ(outcome.output,
            "{\"id\": null, \"error\": \"the settings library in use cannot be given settings\"}\n"
            "{\"id\": null, \"result\": 3.6}\n");
  EXPECT_EQ(outcome.status, 0);
}

}  // namespace
}  // namespace kzm::tests
