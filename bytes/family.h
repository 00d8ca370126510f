// What a family of byte quantities is made of: unit texts, the rungs of a ladder, scales. What is left to a family is
// one function that reads its options.
#ifndef KZM_BYTES_FAMILY_H
#define KZM_BYTES_FAMILY_H

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

#include "core/rows.h"
#include "core/unit_table.h"

namespace kzm::bytes {

using core::Spacing;

enum class Level : std::uint8_t { kilo, mega, giga, tera, peta };
inline constexpr std::size_t kLevels = core::countEnumerators<Level>();

/// What is said of the unit. Sizes and disk activity have the bare letter ("%@G") and one full form; bandwidth has all.
enum class Form : std::uint8_t { brief, bytes, bits, bytesPerSecond, bitsPerSecond };
inline constexpr std::size_t kForms = core::countEnumerators<Form>();

/// One unit: a form at a level.
struct Unit {
  Form form;
  Level level;
  constexpr explicit operator std::size_t() const noexcept {
    return static_cast<std::size_t>(form) * kLevels + static_cast<std::size_t>(level);
  }
};

using UnitText = core::UnitText<Unit>;
using UnitIndex = core::UnitIndex<kForms * kLevels>;

/// Where the texts of each unit are. Every form that the family has goes through all of its levels.
template <std::size_t N>
consteval UnitIndex unitIndex(const UnitText (&texts)[N]) {
  const UnitIndex index = core::unitIndex<kForms * kLevels>(texts);
  const auto has = [&index](std::size_t form, std::size_t level) {
    return index.has(static_cast<std::size_t>(Unit{static_cast<Form>(form), static_cast<Level>(level)}));
  };
  for (std::size_t form = 0; form < kForms; ++form) {
    for (std::size_t level = 0; level < kLevels; ++level) {
      const bool isWanted =
          has(form, static_cast<std::size_t>(Level::mega)) && has(static_cast<std::size_t>(texts[0].unit.form), level);
      if (has(form, level) != isWanted) throw "a form lacks a level";
    }
  }
  return index;
}

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

/// When a rung of the ladder is taken. NaN is not at least anything, but neither below nor at most.
enum class Taken : std::uint8_t { atMost, below, notAtLeast, otherwise };

/// One rung: the level that a value in the family's base unit lands on, and what it is shown as there.
struct Rung {
  Level level;
  Taken taken;
  double threshold;
  Scale toShown;
};

/// A walk up the rungs without branches: readings jump between levels, and a wrong guess of the processor costs more
/// than all tests. As the thresholds go up, the rung that is taken is the number of those that are not.
class Ladder {
 public:
  consteval explicit Ladder(std::span<const Rung> rungs) : rungs_(rungs.data()), thresholds_(rungs.size() - 1) {
    if (rungs.back().taken != Taken::otherwise || rungs.size() > kLevels)
      throw "the last rung, and it alone, takes all";
    nanIsLowest_ = rungs.front().taken == Taken::notAtLeast;
    for (std::size_t i = 0; i < thresholds_; ++i) {
      if (rungs[i].taken == Taken::otherwise) throw "only the last rung takes all";
      if ((rungs[i].taken == Taken::notAtLeast) != nanIsLowest_) throw "NaN has two places";
      if (i > 0 && (rungs[i].level <= rungs[i - 1].level || rungs[i].threshold <= rungs[i - 1].threshold)) {
        throw "the rungs do not go up";
      }
      limits_[i] = rungs[i].taken == Taken::atMost ? nextAbove(rungs[i].threshold) : rungs[i].threshold;
    }
  }

  [[nodiscard]] const Rung& rungFor(double value) const noexcept {
    std::size_t rung = 0;
    for (std::size_t i = 0; i < thresholds_; ++i) {
      rung += static_cast<std::size_t>(nanIsLowest_ ? value >= limits_[i] : !(value < limits_[i]));
    }
    return rungs_[rung];
  }

  [[nodiscard]] std::span<const Rung> rungs() const noexcept { return {rungs_, thresholds_ + 1}; }

 private:
  // "At most" a positive number is "below" the next double.
  static consteval double nextAbove(double number) {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(number) + 1);
  }

  const Rung* rungs_;
  std::size_t thresholds_;
  bool nanIsLowest_ = false;
  std::array<double, kLevels - 1> limits_{};
};

}  // namespace kzm::bytes

#endif
