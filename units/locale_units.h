// Which units a locale prefers.
//
// The decision is made on texts: a sample of each kind of quantity, shown in the unit that the region prefers, is
// searched for the symbols of units. The texts come from a table of regions; the rules would do as well on others.
#ifndef KZM_UNITS_LOCALE_UNITS_H
#define KZM_UNITS_LOCALE_UNITS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <KZMUtilities/default_units.h>

#include "core/rows.h"
#include "port/measurement_habits.h"

namespace kzm::units {

/// The kinds of quantity that have a preferred unit.
enum class Quantity : std::uint8_t { windSpeed, pressure, temperature, distance, rain, snow };
inline constexpr std::size_t kQuantities = core::countEnumerators<Quantity>();

/// A text for each quantity.
using Samples = std::array<std::string, kQuantities>;
/// A unit for each quantity.
using Preferences = std::array<MeasurementUnit, kQuantities>;

/// A kind of quantity: the key of its preferred unit, and what is preferred where nothing else is known.
struct QuantityRow {
  Quantity quantity;
  std::string_view key;
  MeasurementUnit metric;
};

// clang-format off
//   quantity               key            metric unit
inline constexpr QuantityRow kQuantityRows[] = {
    {Quantity::windSpeed,   "windspeed",   MeasurementUnit::kilometersPerHour},
    {Quantity::pressure,    "pressure",    MeasurementUnit::hectopascals},
    {Quantity::temperature, "temperature", MeasurementUnit::celsius},
    {Quantity::distance,    "distance",    MeasurementUnit::kilometers},
    {Quantity::rain,        "rain",        MeasurementUnit::millimeters},
    {Quantity::snow,        "snow",        MeasurementUnit::centimeters},
};
// clang-format on
static_assert(core::areInOrder(kQuantityRows, &QuantityRow::quantity), "a quantity has no row, or not its place");

/// The metric unit of each quantity.
inline constexpr Preferences kMetric = [] {
  Preferences units{};
  for (std::size_t i = 0; i < kQuantities; ++i) units[i] = kQuantityRows[i].metric;
  return units;
}();

/// The six samples as they read in the locale's units.
[[nodiscard]] Samples samplesIn(const port::MeasurementHabits& habits);

/// The units whose symbols six texts contain, whatever the texts are.
[[nodiscard]] Preferences preferencesFrom(const Samples& samples);

}  // namespace kzm::units

#endif
