// From a raw quantity to the number, its decimals and its unit.
#ifndef KZM_BYTES_SCALING_H
#define KZM_BYTES_SCALING_H

#include <cstddef>
#include <cstdint>

#include <KZMUtilities/dictionary.h>

#include "bytes/family.h"
#include "core/option_values.h"
#include "core/rendering.h"

namespace kzm::bytes {

/// How a unit is written.
struct UnitStyle {
  Form form;
  Spacing spacing;
};

/// Takes the rung for the value, which is in the ladder's unit, then the decimals rules under the key of the level
/// reached, and the text by level and style.
[[nodiscard, gnu::always_inline]] inline core::Reading scaled(const Ladder& ladder, const UnitIndex& index,
                                                              UnitStyle style, core::Digits digits,
                                                              const Dictionary& options, double value) {
  static constexpr Key kDecimalsKeys[kLevels] = {"decimals-kb", "decimals-mb", "decimals-gb", "decimals-tb",
                                                 "decimals-pb"};
  const Rung& rung = ladder.rungFor(value);
  const double shown = rung.toShown(value);
  const Value* rules = options.find(kDecimalsKeys[static_cast<std::size_t>(rung.level)]);
  const auto unit = static_cast<std::size_t>(Unit{style.form, rung.level});
  return {index.row(unit, style.spacing), {digits, core::readDecimals(rules, shown), shown}};
}

/// The style of the families with a boolean "short", which wins over "space": `full` is what they write else.
[[nodiscard]] UnitStyle wholeUnitStyle(const Dictionary& options, Form full) noexcept;

}  // namespace kzm::bytes

#endif
