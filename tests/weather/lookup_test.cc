// What the weather calls ask the localization library for: this program brings its own, which asks back and locks.
#include "tests/support/lookup.h"

#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/resources.h>
#include <KZMUtilities/weather.h>

#include "tests/support/settings.h"

namespace {

using kzm::tests::Lookup;

std::mutex ownLock;
std::vector<Lookup> lookups;
std::atomic<bool> asksBack{false};

}  // namespace

std::string KZMLocalizedStringFromTableInBundle(std::string_view key, std::string_view table,
                                                const kzm::ResourceBundle* bundle, const char* comment) {
  std::string text(key.substr(key.rfind('.') + 1));
  if (asksBack.exchange(false)) text += " of " + KZMUtilitiesFormatWeatherDays(2.0);
  const std::lock_guard lock(ownLock);
  lookups.emplace_back(key, table, bundle, comment);
  return text;
}

namespace kzm::weather {
namespace {

class WeatherLookups : public testing::Test {
 protected:
  WeatherLookups() {
    tests::useNoSettings();
    lookups.clear();
  }
};

TEST_F(WeatherLookups, EveryCallLooksItsOneTextUp) {
  const Dictionary units{{"units", true}};
  for (int i = 0; i < 3; ++i) EXPECT_EQ(KZMUtilitiesFormatWeatherTemperature(units, 20.0), "68°");
  const Lookup degrees{"Units.Weather.%@°", "KZMUtilities", bundleWithIdentifier(kBundleIdentifier), nullptr};
  EXPECT_EQ(lookups, (std::vector<Lookup>{degrees, degrees, degrees}));
}

TEST_F(WeatherLookups, KelvinAloneHasAHint) {
  tests::useOnlySetting("Weather.Global.Units.Degrees", 3);
  EXPECT_EQ(KZMUtilitiesFormatWeatherTemperature({{"units", true}}, 20.0), "293K");
  ASSERT_EQ(lookups.size(), 1U);
  EXPECT_EQ(lookups[0].comment, "kelvin");
}

TEST_F(WeatherLookups, WhatHasNoUnitLooksNothingUp) {
  EXPECT_EQ(KZMUtilitiesFormatWeatherTemperature({}, 20.0), "68");
  EXPECT_EQ(KZMUtilitiesFormatWeatherWindSpeed({}, 10.0), "22");
  EXPECT_EQ(KZMUtilitiesFormatWeatherUV(5.5), "6");
  EXPECT_EQ(KZMUtilitiesFormatWeatherHumidity(57.0), "57%");
  EXPECT_TRUE(lookups.empty());
}

TEST_F(WeatherLookups, ALibraryMayFormatWeatherWhileItAnswers) {
  asksBack = true;
  EXPECT_EQ(KZMUtilitiesFormatWeatherIllumination(50.0), "50% of 2 Days");
}

// One thread makes the first weather call, the other looks a text up: neither may wait for the other forever.
TEST_F(WeatherLookups, ALibraryMayHoldItsOwnLock) {
  std::atomic<int> done{0};
  const auto work = [&done](const auto& call) {
    return [&done, call] {
      for (int i = 0; i < 1000; ++i) call();
      ++done;
    };
  };
  std::thread weather(work([] { EXPECT_EQ(KZMUtilitiesFormatWeatherDays(1.0), "1 Days"); }));
  std::thread other(work([] {
    EXPECT_EQ(KZMLocalizedStringFromTableInBundle("Units.Weather.East", "KZMUtilities", nullptr, nullptr), "East");
  }));
  weather.join();
  other.join();
  EXPECT_EQ(done, 2);
}

}  // namespace
}  // namespace kzm::weather
