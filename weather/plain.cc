// Weather quantities that are shown in no unit of the user's choice.
#include <cstdint>

#include <KZMUtilities/weather.h>

#include "core/option_values.h"
#include "weather/amounts.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

constexpr std::int64_t kMostDecimals = 2;  // of days and of the illuminated part

std::string angle(const Dictionary& options, double degrees) {
  return text(Unit::degrees, angleAmount(options, degrees));
}

}  // namespace

core::Amount plainAmount(double value) { return {core::Digits::plain, 0, value}; }

core::Amount finelyDividedAmount(double value) { return atMost(kMostDecimals, value); }

core::Amount angleAmount(const Dictionary& options, double degrees) {
  return atMost(core::readInteger(options.find(core::kDecimals)), degrees);
}

}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherUV(double index) { return kzm::core::text(kzm::weather::plainAmount(index)); }

// Deliberate: the sign of humidity is the same in every language (WeatherLookups.WhatHasNoUnitLooksNothingUp).
std::string KZMUtilitiesFormatWeatherHumidity(double percent) {
  return kzm::core::text(kzm::core::kPercent, kzm::weather::plainAmount(percent));
}

std::string KZMUtilitiesFormatWeatherAltitude(const kzm::Dictionary& options, double degrees) {
  return kzm::weather::angle(options, degrees);
}

std::string KZMUtilitiesFormatWeatherAzimuth(const kzm::Dictionary& options, double degrees) {
  return kzm::weather::angle(options, degrees);
}

std::string KZMUtilitiesFormatWeatherDays(double days) {
  using namespace kzm::weather;
  return text(Unit::days, finelyDividedAmount(days));
}

std::string KZMUtilitiesFormatWeatherIllumination(double percent) {
  using namespace kzm::weather;
  return text(Unit::percent, finelyDividedAmount(percent));
}
