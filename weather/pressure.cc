#include <cstdint>

#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "core/options.h"
#include "core/reading.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

using Unit = MeasurementUnit;

// What the published conversions lack; inchToMillibar divides by the same factor.
constexpr double hectopascalsToInches(double hectopascals) noexcept { return hectopascals * 0.029529983071445; }

enum class Style : std::uint8_t {
  chosen,    // the options say whether the unit is shown, with or without a blank, and one fraction digit or none
  complete,  // always with its unit and up to two fraction digits
};

struct PressureRow {
  MeasurementUnit unit;
  Conversion fromHectopascals;
  Style style;
  Text spaced;
  Text tight;
};

// Deliberate: only inches of mercury take no heed of the options.
// clang-format off
constexpr PressureRow kPressures[] = {
    {Unit::millibars,       unchanged,            Style::chosen,   Text::millibarsSpaced,    Text::millibars   },
    {Unit::inchesOfMercury, hectopascalsToInches, Style::complete, Text::inches,             Text::inches      },
    {Unit::hectopascals,    unchanged,            Style::chosen,   Text::hectopascalsSpaced, Text::hectopascals},
};
// clang-format on

constexpr std::int64_t kInchDigits = 2;

// Deliberate: "decimals" is read as a boolean here: 5 means one digit.
std::int64_t digitsOf(const PressureRow& row, const Dictionary& options) noexcept {
  if (row.style == Style::complete) return kInchDigits;
  return core::readBoolean(options.find(core::kDecimals)) ? 1 : 0;
}

Text textOf(const PressureRow& row, const Dictionary& options) noexcept {
  if (row.style == Style::chosen && !core::readBoolean(options.find(core::kUnits))) return Text::number;
  return core::readBoolean(options.find(core::kSpace)) ? row.spaced : row.tight;
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherPressure(const kzm::Dictionary& options, double hectopascals) {
  using namespace kzm::weather;
  const PressureRow& row = rowFor(kPressures, KZMUtilitiesDefaultUnits::shared().pressureUnit());
  return filled(textOf(row, options), decimalNumber(digitsOf(row, options), row.fromHectopascals(hectopascals)));
}
