// The texts of the weather family, looked up on every call, with a number put into one of them.
#ifndef KZM_WEATHER_WEATHER_TEXT_H
#define KZM_WEATHER_WEATHER_TEXT_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include <KZMUtilities/default_units.h>

#include "core/rendering.h"

namespace kzm::weather {

using core::Spacing;

enum class Unit : std::uint8_t {
  degrees,
  kelvin,
  knots,
  milesPerHour,
  kilometersPerHour,
  metersPerSecond,
  north,
  northEast,
  east,
  southEast,
  south,
  southWest,
  west,
  northWest,
  hectopascals,
  millibars,
  inches,
  miles,
  kilometers,
  millimeters,
  centimeters,
  days,
  percent,
};

/// The text in the user's language, as it is at this call. A unit that has one form only has it in both spacings.
[[nodiscard]] std::string localizedText(Unit unit, Spacing spacing = Spacing::tight);

/// The text with the number in its place.
[[nodiscard]] std::string text(Unit unit, Spacing spacing, const core::Amount& amount);
[[nodiscard]] std::string text(Unit unit, const core::Amount& amount);

/// A number with at most that many fraction digits, in the style of the locale in force at this call.
[[nodiscard]] constexpr core::Amount atMost(std::int64_t decimals, double value) noexcept {
  return {core::Digits::atMostNow, decimals, value};
}

/// A conversion of the family's base unit.
using Conversion = double (*)(double) noexcept;

/// The conversion of quantities that are shown as they come.
constexpr double unchanged(double value) noexcept { return value; }

/// A unit that the user may choose, of quantities that differ in nothing else.
struct ChosenUnit {
  MeasurementUnit unit;
  Conversion fromBase;
  Unit shownUnit;
};

/// The row of the unit; the last row serves any other unit, such as one that a host put among the preferred units. Rows
/// have a member `unit`.
template <class Row, std::size_t N>
constexpr const Row& rowFor(const Row (&rows)[N], MeasurementUnit unit) noexcept {
  std::size_t row = 0;
  while (row + 1 < N && rows[row].unit != unit) ++row;
  return rows[row];
}

/// For the build's own check: whether each unit that the setting offers has a row, and each row is of such a unit.
template <class Row, std::size_t N>
consteval bool haveRows(std::span<const MeasurementUnit> offered, const Row (&rows)[N]) {
  for (const MeasurementUnit unit : offered) {
    if (rowFor(rows, unit).unit != unit) return false;
  }
  return offered.size() == N;
}

}  // namespace kzm::weather

#endif
