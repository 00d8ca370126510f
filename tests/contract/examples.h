// What the examples of headers and documents need to run: each is a test that tools/examples makes.
#ifndef KZM_TESTS_CONTRACT_EXAMPLES_H
#define KZM_TESTS_CONTRACT_EXAMPLES_H

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/KZMUtilities.h>

#include "tests/support/settings.h"

namespace kzm {

/// The circumstances that an example names. English texts and the zone UTC are those of every test program; a unit is
/// what the user chose in the settings.
class Context {
 public:
  explicit Context(std::string_view words) {
    struct Choice {
      std::string_view word;
      std::string_view keyPath;
      std::int64_t code;
    };
    static constexpr Choice kChoices[] = {
        {"Celsius", "Weather.Global.Units.Degrees", 1},           {"km/h", "Weather.Global.Units.WindSpeed", 2},
        {"knots", "Weather.Global.Units.WindSpeed", 4},           {"hPa", "Weather.Global.Units.Pressure", 1},
        {"millimeters", "Weather.Global.Units.Precipitation", 1}, {"miles", "Weather.Global.Units.Distance", 2},
    };
    tests::useNoSettings();
    setCurrentLocale("en_US");
    KZMLocalizationSetLanguages(std::array<std::string, 1>{"en_US"});
    KZMUtilities::shared().setCache(nullptr);
    while (!words.empty()) {
      const std::string_view word = words.substr(0, words.find(", "));
      words.remove_prefix(std::min(words.size(), word.size() + 2));
      bool isKnown = word == "English" || word == "UTC";
      for (const Choice& choice : kChoices) {
        if (choice.word != word) continue;
        tests::useOnlySetting(choice.keyPath, choice.code);
        isKnown = true;
      }
      EXPECT_TRUE(isKnown) << "no test knows what \"" << word << "\" means";
    }
  }
};

template <class Actual, class Expected>
void expectEqual(const Actual& actual, const Expected& expected) {
  EXPECT_EQ(actual, expected);
}
template <class Expected>
void expectEqual(const Value& actual, const Expected& expected) {
  EXPECT_EQ(actual, Value(expected));
}

}  // namespace kzm

#endif
