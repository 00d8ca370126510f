#include "bytes/scaling.h"

#include "core/options.h"
#include "core/reading.h"

namespace kzm::bytes {
namespace {

// The key of the decimals rules of each level.
constexpr Key kDecimalsKeys[kLevels] = {"decimals-kb", "decimals-mb", "decimals-gb", "decimals-tb", "decimals-pb"};

constexpr bool holds(const Rung& rung, double value) noexcept {
  switch (rung.test) {
    case Test::atLeast:
      return value >= rung.threshold;
    case Test::atMost:
      return value <= rung.threshold;
    case Test::below:
      return value < rung.threshold;
    case Test::otherwise:
      break;
  }
  return true;
}

const Rung& rungFor(Ladder ladder, double value) noexcept {
  const Rung* rung = ladder.data();
  while (!holds(*rung, value)) ++rung;
  return *rung;
}

}  // namespace

Reading scaled(const ByteFamily& family, Ladder ladder, Style style, const Dictionary& options, double quantity) {
  const double base = family.toBase(quantity);
  const Rung& rung = rungFor(ladder, base);
  const double value = rung.shown(base);
  const auto level = static_cast<std::size_t>(rung.level);
  const auto unit = static_cast<std::size_t>(family.index[static_cast<std::size_t>(style)][level]);
  return {&family, unit, core::readDecimals(options.find(kDecimalsKeys[level]), value), value};
}

Style wholeUnitStyle(const Dictionary& options) noexcept {
  if (core::readBoolean(options.find(core::kShort))) return Style::brief;
  return core::readBoolean(options.find(core::kSpace)) ? Style::spaced : Style::tight;
}

}  // namespace kzm::bytes
