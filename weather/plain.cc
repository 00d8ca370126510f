// Weather quantities that are shown in no unit of the user's choice.
#include <cstdint>

#include <KZMUtilities/weather.h>

#include "core/number_text.h"
#include "core/options.h"
#include "core/reading.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

constexpr std::int64_t kMostDigits = 2;  // of days and of the illuminated part

std::string angle(const Dictionary& options, double degrees) {
  return filled(Text::degrees, decimalNumber(core::readInteger(options.find(core::kDecimals)), degrees));
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherUV(double index) { return kzm::core::plainWhole(index); }

std::string KZMUtilitiesFormatWeatherHumidity(double percent) { return kzm::core::plainWhole(percent) + '%'; }

std::string KZMUtilitiesFormatWeatherAltitude(const kzm::Dictionary& options, double degrees) {
  return kzm::weather::angle(options, degrees);
}

std::string KZMUtilitiesFormatWeatherAzimuth(const kzm::Dictionary& options, double degrees) {
  return kzm::weather::angle(options, degrees);
}

std::string KZMUtilitiesFormatWeatherDays(double days) {
  using namespace kzm::weather;
  return filled(Text::days, decimalNumber(kMostDigits, days));
}

std::string KZMUtilitiesFormatWeatherIllumination(double percent) {
  using namespace kzm::weather;
  return filled(Text::percent, decimalNumber(kMostDigits, percent));
}
