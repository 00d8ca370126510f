// Writes a double as the digits that a person reads.
#ifndef KZM_CORE_NUMBER_TEXT_H
#define KZM_CORE_NUMBER_TEXT_H

#include <array>
#include <cstddef>
#include <string_view>

#include <KZMUtilities/formatters.h>

#include "port/number_symbols.h"

namespace kzm::core {

/// Counts of fraction digits are clamped to this when a number is written.
inline constexpr int kMostFractionDigits = 340;

/// A number as text, in room enough for the largest double with the most fraction digits in any locale.
class NumberText {
 public:
  /// Decimal style: at least `least` and at most `most` fraction digits, rounded half to even on the shortest decimal
  /// that reads back to `value`. Both counts are within 0..kMostFractionDigits, `least` not above `most`.
  NumberText(const NumberSymbols& symbols, int least, int most, double value) noexcept;

  /// Whole-number style without locale: "1024", "-0", "nan", "inf", "-inf", every digit of the double, halves to even.
  [[nodiscard]] static NumberText plainWhole(double value) noexcept;

  [[nodiscard]] std::string_view view() const noexcept { return {bytes_.data(), size_}; }

 private:
  NumberText() noexcept = default;

  // 309 integer digits in groups of two at the least, and the fraction; symbols of up to 4 bytes; signs and marks.
  static constexpr std::size_t kCapacity = 4 * (309 + 155 + kMostFractionDigits) + 64;

  std::size_t size_ = 0;
  std::array<char, kCapacity> bytes_;
};

/// The number as the formatter writes it.
[[nodiscard]] inline NumberText numberText(const NumberFormatter& formatter, double value) noexcept {
  return {formatter.symbols(), formatter.leastDigits(), formatter.mostDigits(), value};
}

}  // namespace kzm::core

#endif
