#include <KZMUtilities/conversions.h>
#include <KZMUtilities/default_units.h>
#include <KZMUtilities/weather.h>

#include "core/options.h"
#include "core/reading.h"
#include "weather/weather_text.h"

namespace kzm::weather {
namespace {

struct WindRow {
  MeasurementUnit unit;
  Conversion fromMetersPerSecond;
  Text spaced;
  Text tight;
};

// clang-format off
constexpr WindRow kWinds[] = {
    {MeasurementUnit::knots,             mpsToKnots, Text::knotsSpaced,             Text::knots            },
    {MeasurementUnit::milesPerHour,      mpsToMph,   Text::milesPerHourSpaced,      Text::milesPerHour     },
    {MeasurementUnit::kilometersPerHour, mpsToKph,   Text::kilometersPerHourSpaced, Text::kilometersPerHour},
    {MeasurementUnit::metersPerSecond,   unchanged,  Text::metersPerSecondSpaced,   Text::metersPerSecond  },
};
// clang-format on

// A sector of the compass, 45 degrees wide, and the bearing at which the next one begins.
struct Sector {
  double endDegrees;
  Text name;
};

// Deliberate: bearings are not brought into one turn. All below 22.5, the negative ones too, and all from 337.5 on are
// north, and so is NaN.
// clang-format off
constexpr Sector kSectors[] = {
    {22.5,  Text::north    },
    {67.5,  Text::northEast},
    {112.5, Text::east     },
    {157.5, Text::southEast},
    {202.5, Text::south    },
    {247.5, Text::southWest},
    {292.5, Text::west     },
    {337.5, Text::northWest},
};
// clang-format on

constexpr Text directionOf(double degrees) noexcept {
  for (const Sector& sector : kSectors) {
    if (degrees < sector.endDegrees) return sector.name;
  }
  return Text::north;
}

}  // namespace
}  // namespace kzm::weather

std::string KZMUtilitiesFormatWeatherWindSpeed(const kzm::Dictionary& options, double metersPerSecond) {
  using namespace kzm::weather;
  using namespace kzm::core;
  const WindRow& row = rowFor(kWinds, KZMUtilitiesDefaultUnits::shared().windSpeedUnit());
  const bool showsUnit = readBoolean(options.find(kUnits));
  const Text unitText = readBoolean(options.find(kSpace)) ? row.spaced : row.tight;
  return filled(showsUnit ? unitText : Text::number, decimalNumber(0, row.fromMetersPerSecond(metersPerSecond)));
}

std::string KZMUtilitiesFormatWeatherWindDirection(double degrees) {
  using namespace kzm::weather;
  return textOf(directionOf(degrees)).text();
}
