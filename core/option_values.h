// Reads an option as an integer, a boolean or a double. Every value, present or not, has a result.
#ifndef KZM_CORE_OPTION_VALUES_H
#define KZM_CORE_OPTION_VALUES_H

#include <cstdint>
#include <string_view>

#include <KZMUtilities/dictionary.h>

#include "core/options.h"
#include "core/unit_table.h"

namespace kzm::core {

/// The integer a text spells: spaces, a sign, digits; it ends at anything else and saturates ("2.9" is 2, "" is 0).
[[nodiscard]] std::int64_t integerFromText(std::string_view text) noexcept;
/// The double a text spells, with a point whatever the locale: " -2.5e3x" is -2500.0, "nan" is 0.0.
[[nodiscard]] double doubleFromText(std::string_view text) noexcept;
/// Whether a text says yes: it begins, after spaces, with Y, y, T, t or a digit from 1 to 9.
[[nodiscard]] bool booleanFromText(std::string_view text) noexcept;

/// Truncated toward zero, saturated at the 64-bit limits; NaN is 0.
[[nodiscard]] std::int64_t integerFromDouble(double number) noexcept;

/// Each of these takes null (an absent key) and every kind of Value; what has no number reads as zero.
[[nodiscard]] inline std::int64_t readInteger(const Value* value) noexcept {
  if (value == nullptr) return 0;
  if (const std::int64_t* integer = value->integer()) return *integer;
  if (const bool* boolean = value->boolean()) return *boolean ? 1 : 0;
  if (const double* real = value->real()) return integerFromDouble(*real);
  if (const std::string* text = value->string()) return integerFromText(*text);
  return 0;
}

[[nodiscard]] inline double readDouble(const Value* value) noexcept {
  if (value == nullptr) return 0.0;
  if (const double* real = value->real()) return *real;
  if (const std::int64_t* integer = value->integer()) return static_cast<double>(*integer);
  if (const bool* boolean = value->boolean()) return *boolean ? 1.0 : 0.0;
  if (const std::string* text = value->string()) return doubleFromText(*text);
  return 0.0;
}

[[nodiscard]] inline bool readBoolean(const Value* value) noexcept {
  if (value == nullptr) return false;
  if (const bool* boolean = value->boolean()) return *boolean;
  if (const std::int64_t* integer = value->integer()) return *integer != 0;
  if (const double* real = value->real()) return *real != 0.0;  // NaN is not zero
  if (const std::string* text = value->string()) return booleanFromText(*text);
  return false;
}

/// The null Value.
[[nodiscard]] const Value& noValue() noexcept;

/// A set of text attributes as it was given; null when the key is absent.
[[nodiscard, gnu::always_inline]] inline const Value& readAttributes(const Dictionary& options,
                                                                     const Key& key) noexcept {
  const Value* attributes = options.find(key);
  return attributes != nullptr ? *attributes : noValue();
}

/// Whether "space" asks for a space between number and unit.
[[nodiscard]] inline Spacing readSpacing(const Dictionary& options) noexcept {
  return readBoolean(options.find(kSpace)) ? Spacing::spaced : Spacing::tight;
}

/// Walks decimals rules, dictionaries of "value" and "decimals": the first whose "value" is greater than the number
/// gives its "decimals". Without such a rule, or when `rules` is no array, `fallback`. NaN matches none. All rules are
/// read, from the last to the first: half of the time the processor would guess wrong which one matches, and that costs
/// more than reading the few that there are.
[[nodiscard]] inline std::int64_t readDecimals(const Value* rules, double number, std::int64_t fallback = 0) noexcept {
  const Array* entries = rules != nullptr ? rules->array() : nullptr;
  if (entries == nullptr) return fallback;
  std::int64_t decimals = fallback;
  for (auto entry = entries->rbegin(); entry != entries->rend(); ++entry) {
    const Dictionary* rule = entry->dictionary();
    if (rule == nullptr) continue;
    const std::int64_t own = readInteger(rule->find(kDecimals));
    decimals = readDouble(rule->find(kValue)) > number ? own : decimals;
  }
  return decimals;
}

}  // namespace kzm::core

#endif
