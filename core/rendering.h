// The one way from a reading to its result: a unit text and a number become a string, text in two styles, or a
// result dictionary.
#ifndef KZM_CORE_RENDERING_H
#define KZM_CORE_RENDERING_H

#include <cstddef>
#include <cstdint>
#include <string>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/dictionary.h>

#include "core/held.h"
#include "core/template.h"
#include "core/unit_table.h"
#include "port/current_locale.h"

namespace kzm::core {

/// How a number is written.
enum class Digits : std::uint8_t {
  exactly,        // the given number of fraction digits, by the shared formatter
  atMost,         // at most that many, by the shared formatter
  atMostNow,      // at most that many, in the style of the locale in force at this call
  wholeByThrees,  // none; groups of three digits, with the signs of the locale in force at this call
  plain,          // none; every digit of the double, without locale
};

/// A number to be shown.
struct Amount {
  Digits digits;
  std::int64_t decimals;
  double value;
};

/// The style in which the number is written at this call.
[[nodiscard, gnu::always_inline]] inline NumberStyle styleOf(const Amount& amount) {
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

/// The number alone.
[[nodiscard]] inline std::string text(const Amount& amount) { return numberAlone(styleOf(amount), amount.value); }

/// The unit text with the number in its place. No text for a template that is not there.
[[nodiscard]] inline std::string text(const Template& unit, const Amount& amount) {
  if (!unit.isThere()) return {};
  return unit.filled(styleOf(amount), amount.value);
}

/// The same in two styles: the number in "attributes-main", all else in "attributes-units".
[[nodiscard]] AttributedString attributedText(const Template& unit, const Amount& amount, const Dictionary& options);

/// Where "format" is among the keys of a result dictionary.
enum class FormatKey : std::uint8_t { first, last };

/// {"decimals", "value"} and "format", which is null for a template that is not there.
[[nodiscard]] Dictionary data(const Template& unit, const Amount& amount, FormatKey format = FormatKey::first);

/// A number with its unit: a row of the family's table.
struct Reading {
  std::size_t row;
  Amount amount;
};

// The same for a table in the shared cache. The table comes first: the first call looks all its texts up.

template <const UnitTable& table>
[[nodiscard]] std::string text(const Reading& reading) {
  return text(heldText<table>(reading.row), reading.amount);
}

template <const UnitTable& table>
[[nodiscard]] AttributedString attributedText(const Reading& reading, const Dictionary& options) {
  return attributedText(heldText<table>(reading.row), reading.amount, options);
}

template <const UnitTable& table>
[[nodiscard]] Dictionary data(const Reading& reading, FormatKey format = FormatKey::first) {
  return data(heldText<table>(reading.row), reading.amount, format);
}

/// Looks all texts of the table up, if nobody did.
template <const UnitTable& table>
void prepare() {
  static_cast<void>(heldText<table>(0));
}

/// Whether the table in the shared cache has the row: a host's own may lack it.
template <const UnitTable& table>
[[nodiscard]] bool hasText(std::size_t row) {
  return heldText<table>(row).isThere();
}

}  // namespace kzm::core

#endif
