#include "core/rendering.h"

#include "core/option_values.h"
#include "port/current_locale.h"

namespace kzm::core {
namespace {

[[gnu::always_inline]] inline NumberStyle styleOf(const Amount& amount) {
  switch (amount.digits) {
    case Digits::exactly:
      return port::perThread<HeldStyles>().style(DigitRule::exactly, amount.decimals);
    case Digits::atMost:
      return port::perThread<HeldStyles>().style(DigitRule::atMost, amount.decimals);
    case Digits::atMostNow:
      return decimalStyle(port::currentNumberSymbols(), 0, amount.decimals);
    case Digits::wholeByThrees:
      return decimalStyle(port::currentNumberSymbolsByThrees(), 0, 0);
    case Digits::plain:
      break;
  }
  return plainStyle();
}

}  // namespace

std::string text(const Amount& amount) {
  return numberAlone(styleOf(amount), amount.value);
}

std::string text(const Template& unit, const Amount& amount) {
  if (!unit.isThere()) return {};
  return unit.filled(styleOf(amount), amount.value);
}

AttributedString attributedText(const Template& unit, const Amount& amount, const Dictionary& options) {
  if (!unit.isThere()) return {};
  return unit.composed(styleOf(amount), amount.value, readAttributes(options, kAttributesMain),
                       readAttributes(options, kAttributesUnits));
}

Dictionary data(const Template& unit, const Amount& amount, FormatKey format) {
  static constexpr Key kFormat = "format";
  static constexpr Key kValue = "value";
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
