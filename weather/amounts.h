// The number that each kind of observation shows, in the user's unit of this moment.
#ifndef KZM_WEATHER_AMOUNTS_H
#define KZM_WEATHER_AMOUNTS_H

#include <KZMUtilities/dictionary.h>

#include "core/rendering.h"

namespace kzm::weather {

[[nodiscard]] core::Amount temperatureAmount(const Dictionary& options, double celsius);
[[nodiscard]] core::Amount windSpeedAmount(double metersPerSecond);
[[nodiscard]] core::Amount pressureAmount(const Dictionary& options, double hectopascals);
[[nodiscard]] core::Amount distanceAmount(double kilometers);
[[nodiscard]] core::Amount rainAmount(double millimeters);
[[nodiscard]] core::Amount snowAmount(double millimeters);
[[nodiscard]] core::Amount angleAmount(const Dictionary& options, double degrees);
/// Of visibility, the ultraviolet index and humidity.
[[nodiscard]] core::Amount plainAmount(double value);
/// Of days and of the illuminated part.
[[nodiscard]] core::Amount finelyDividedAmount(double value);

}  // namespace kzm::weather

#endif
