#include "core/rendering.h"

#include "core/option_values.h"

namespace kzm::core {

AttributedString attributedText(const Template& unit, const Amount& amount, const Dictionary& options) {
  if (!unit.isThere()) return {};
  return unit.composed(styleOf(amount), amount.value, readAttributes(options, kAttributesMain),
                       readAttributes(options, kAttributesUnits));
}

[[gnu::flatten]] Dictionary data(const Template& unit, const Amount& amount, FormatKey format) {
  static constexpr Key kFormat = "format";
  Dictionary result;
  result.reserve(3);
  const auto setFormat = [&] { result.set(kFormat, unit.isThere() ? Value(unit.text()) : Value()); };
  if (format == FormatKey::first) setFormat();
  result.set(kDecimals, amount.decimals);
  result.set(kValue, amount.value);
  if (format == FormatKey::last) setFormat();
  return result;
}

}  // namespace kzm::core
