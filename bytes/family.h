// What a family of byte quantities is made of. Everything in which the families differ is a value of these types.
#ifndef KZM_BYTES_FAMILY_H
#define KZM_BYTES_FAMILY_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/unit_table.h"
#include "core/warm.h"

namespace kzm::bytes {

enum class Level : std::uint8_t { kilo, mega, giga, tera, peta };
inline constexpr std::size_t kLevels = 5;

/// How the unit is written. The rate families use the first three for what the size families use them: bare letter
/// ("%@G"), unit behind a blank ("%@ GB"), unit close by ("%@GB"). Bandwidth has styles of its own beside.
enum class Style : std::uint8_t {
  brief,
  spaced,
  tight,
  briefSpaced,
  bitsSpaced,
  bitsTight,
  bytesSpaced,
  bytesTight,
  bitsPerSecondSpaced,
  bitsPerSecondTight,
};
inline constexpr std::size_t kStyles = 10;

/// One step of arithmetic. Multiplying and dividing stay apart: dividing by ten is not multiplying by a tenth.
struct Scale {
  enum class Step : std::uint8_t { times, over };
  Step step;
  double factor;

  [[nodiscard]] constexpr double operator()(double value) const noexcept {
    return step == Step::times ? value * factor : value / factor;
  }
};
constexpr Scale times(double factor) { return {Scale::Step::times, factor}; }
constexpr Scale over(double divisor) { return {Scale::Step::over, divisor}; }

/// When a rung of the ladder is taken. NaN passes only the last.
enum class Test : std::uint8_t { atLeast, atMost, below, otherwise };

/// One rung: the level that a value in the family's base unit lands on, and what it is shown as there.
struct Rung {
  Level level;
  Test test;
  double threshold;
  Scale shown;
};
using Ladder = std::span<const Rung>;

/// One unit of a family, in the order in which its text is looked up.
struct ByteUnit {
  Level level;
  Style style;
  std::string_view text;
  const char* comment;
};

/// The position of each unit in its table, by style and level; -1 where there is none.
using UnitIndex = std::array<std::array<std::int16_t, kLevels>, kStyles>;

consteval UnitIndex unitIndex(std::span<const ByteUnit> units) {
  UnitIndex index;
  for (auto& levels : index) levels.fill(-1);
  for (std::size_t i = 0; i < units.size(); ++i) {
    auto& position = index[static_cast<std::size_t>(units[i].style)][static_cast<std::size_t>(units[i].level)];
    if (position >= 0) throw "two units for one level and style";
    position = static_cast<std::int16_t>(i);
  }
  for (const auto& levels : index) {
    for (std::size_t level = 0; level < kLevels; ++level) {
      const bool hasStyle = levels[static_cast<std::size_t>(Level::mega)] >= 0;
      const bool hasLevel = index[static_cast<std::size_t>(units.front().style)][level] >= 0;
      if ((levels[level] >= 0) != (hasStyle && hasLevel)) throw "a style lacks a level";
    }
  }
  return index;
}

/// A family of byte quantities.
struct ByteFamily {
  core::UnitTable table;
  UnitIndex index;
  Scale toBase;            // bytes to the unit in which the ladder's thresholds are written
  core::DigitRule digits;  // how the result's decimals are meant
};

/// For the build's own check: a ladder ends in the one rung that takes everything.
consteval bool wellFormed(Ladder ladder) {
  for (std::size_t i = 0; i < ladder.size(); ++i) {
    if ((ladder[i].test == Test::otherwise) != (i + 1 == ladder.size())) return false;
  }
  return !ladder.empty();
}

}  // namespace kzm::bytes

#endif
