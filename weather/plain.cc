// Weather quantities that are shown in no unit of the user's choice.
#include <cstdint>

#include <KZMUtilities/weather.h>

#include "core/option_values.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

constexpr std::int64_t kMostDigits = 2;  // of days and of the illuminated part

// Deliberate: the sign of humidity is the same in every language (WeatherLookups.WhatHasNoUnitLooksNothingUp).
constexpr core::Template kPercent("%@%%");

constexpr core::Amount plain(double value) noexcept { return {core::Digits::plain, 0, value}; }

std::string angle(const Dictionary& options, double degrees) {
  return text(Unit::degrees, atMost(core::readInteger(options.find(core::kDecimals)), degrees));
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherUV(double index) { return kzm::core::text(kzm::weather::plain(index)); }

std::string KZMUtilitiesFormatWeatherHumidity(double percent) {
  return kzm::core::text(kzm::weather::kPercent, kzm::weather::plain(percent));
}

std::string KZMUtilitiesFormatWeatherAltitude(const kzm::Dictionary& options, double degrees) {
  return kzm::weather::angle(options, degrees);
}

std::string KZMUtilitiesFormatWeatherAzimuth(const kzm::Dictionary& options, double degrees) {
  return kzm::weather::angle(options, degrees);
}

std::string KZMUtilitiesFormatWeatherDays(double days) {
  using namespace kzm::weather;
  return text(Unit::days, atMost(kMostDigits, days));
}

std::string KZMUtilitiesFormatWeatherIllumination(double percent) {
  using namespace kzm::weather;
  return text(Unit::percent, atMost(kMostDigits, percent));
}
