// Writes a double as the digits that a person reads.
#ifndef KZM_CORE_NUMBER_TEXT_H
#define KZM_CORE_NUMBER_TEXT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include <KZMUtilities/formatters.h>

#include "port/number_symbols.h"

namespace kzm::core {

/// Counts of fraction digits are clamped to this when a number is written.
inline constexpr int kMostFractionDigits = 340;

/// A number rounded and laid out, whose size is known before it is written: so it goes straight to its last place.
class NumberText {
 public:
  /// Decimal style: at least `least` and at most `most` fraction digits, rounded half to even on the shortest decimal
  /// that reads back to `value`. Both counts are within 0..kMostFractionDigits, `least` not above `most`.
  NumberText(const NumberSymbols& symbols, int least, int most, double value) noexcept;

  /// As the formatter writes it.
  NumberText(const NumberFormatter& formatter, double value) noexcept
      : NumberText(formatter.symbols(), formatter.leastDigits(), formatter.mostDigits(), value) {}

  /// Bytes of the text.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  /// Writes the text, all its bytes, and gives the place behind it.
  char* writeTo(char* to) const noexcept;
  [[nodiscard]] std::string string() const;

 private:
  void layOut(int least, int most, double magnitude) noexcept;
  bool roundQuickly(int most, double magnitude) noexcept;
  void roundExactly(int most, double magnitude) noexcept;
  [[nodiscard]] int countSeparators() const noexcept;
  void writeDigits(char* end) const noexcept;
  template <class PutDigit>
  void writeBackward(char* p, PutDigit putDigit) const noexcept;

  static constexpr int kMostIntegerDigits = 309;

  const NumberSymbols& symbols_;
  bool isNegative_ = false;
  const std::string* word_ = nullptr;  // what stands for the digits of a number that has none
  int integerDigits_ = 0;
  int fractionDigits_ = 0;
  int separators_ = 0;
  std::size_t size_ = 0;

  // The digits, integer part and fraction together: a whole number when they were found quickly, else ASCII digits.
  std::uint64_t whole_ = 0;
  const char* digits_ = nullptr;
  std::array<char, 1 + kMostIntegerDigits + kMostFractionDigits> room_;
};

/// Whole-number style without locale: "1024", "-0", "nan", "inf", "-inf", every digit of the double, halves to even.
[[nodiscard]] std::string plainWhole(double value);

}  // namespace kzm::core

#endif
