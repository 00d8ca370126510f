// The texts of the weather family, and a number put into one of them.
//
// The texts of a process never change, so each is looked up once; the number style is that of the locale in force then.
// Both are immutable and live for ever: a call in the steady state takes no lock.
#ifndef KZM_WEATHER_WEATHER_TEXT_H
#define KZM_WEATHER_WEATHER_TEXT_H

#include <cstddef>
#include <cstdint>
#include <string>

#include <KZMUtilities/default_units.h>

#include "core/number_text.h"
#include "core/template.h"

namespace kzm::weather {

/// The texts, in the order in which they are looked up. The first is the number alone and is not looked up.
enum class Text : std::uint8_t {
  number,
  degrees,
  kelvin,
  knotsSpaced,
  knots,
  milesPerHourSpaced,
  milesPerHour,
  kilometersPerHourSpaced,
  kilometersPerHour,
  metersPerSecondSpaced,
  metersPerSecond,
  north,
  northEast,
  east,
  southEast,
  south,
  southWest,
  west,
  northWest,
  hectopascalsSpaced,
  hectopascals,
  millibarsSpaced,
  millibars,
  inches,
  miles,
  kilometers,
  millimeters,
  centimeters,
  days,
  percent,
};

/// The text in the user's language.
[[nodiscard]] const core::Template& textOf(Text text);

/// The number in the locale's decimal style, with at most so many fraction digits, which are clamped to 0..340.
[[nodiscard]] core::NumberText decimalNumber(std::int64_t mostDigits, double value);

/// The text with the number in its place.
[[nodiscard]] std::string filled(Text text, const core::NumberText& number);

/// The row of the unit; the last row serves any other unit. Rows have a member `unit`.
template <class Row, std::size_t N>
constexpr const Row& rowFor(const Row (&rows)[N], MeasurementUnit unit) noexcept {
  std::size_t row = 0;
  while (row + 1 < N && rows[row].unit != unit) ++row;
  return rows[row];
}

/// A conversion of the family's base unit.
using Conversion = double (*)(double) noexcept;

/// The conversion of quantities that are shown as they come.
constexpr double unchanged(double value) noexcept { return value; }

}  // namespace kzm::weather

#endif
