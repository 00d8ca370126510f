// Writes a double as the digits that a person reads.
#ifndef KZM_CORE_NUMBER_TEXT_H
#define KZM_CORE_NUMBER_TEXT_H

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include <KZMUtilities/formatters.h>

#include "core/short_text.h"
#include "port/number_symbols.h"

namespace kzm::core {

/// Counts of fraction digits are clamped to this when a number is written.
inline constexpr int kMostFractionDigits = 340;

/// How a number is written. Styles point to symbols that live forever.
struct NumberStyle {
  const NumberSymbols* symbols;
  std::int16_t least;  // fraction digits, within 0..kMostFractionDigits
  std::int16_t most;   // not below `least`
  bool showsEveryDigit = false;
};

/// Decimal style: rounded half to even on the shortest decimal that reads back to the same double. Any counts are
/// taken.
[[nodiscard]] NumberStyle decimalStyle(const NumberSymbols& symbols, std::int64_t least, std::int64_t most) noexcept;

/// Whole numbers without locale: "1024", "-0", "nan", "inf", "-inf", every digit of the double, halves to even.
[[nodiscard]] NumberStyle plainStyle() noexcept;

/// As the formatter writes it.
[[nodiscard]] NumberStyle styleOf(const NumberFormatter& formatter) noexcept;

/// A number of at most nine digits, rounded and laid out. Nearly every number of a monitor is one: it is found by
/// binary arithmetic, and its size is known before it is written.
class ShortNumber {
 public:
  /// Not every number can be laid out so: see isLaidOut.
  [[gnu::always_inline]] ShortNumber(NumberStyle style, double value) noexcept;
  [[nodiscard]] bool isLaidOut() const noexcept { return isLaidOut_; }

  /// Bytes of the text.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  /// Writes the text, all its bytes, and gives the place after it.
  [[gnu::always_inline]] char* writeTo(char* to) const noexcept;

 private:
  static constexpr std::int32_t kDoubtful = -1;
  [[gnu::always_inline]] static std::int32_t rounded(int most, double magnitude) noexcept;
  [[gnu::always_inline]] void putPlainDigits(char* end) const noexcept;
  // Takes no `this`, which would have to be in memory.
  static void putLocalDigits(const NumberSymbols& symbols, std::uint32_t digits, int integerDigits, int fractionDigits,
                             int separators, char* end) noexcept;

  const NumberSymbols& symbols_;
  bool isNegative_;
  bool isLaidOut_ = false;
  std::uint32_t digits_ = 0;  // integer part and fraction together
  int integerDigits_ = 0;
  int fractionDigits_ = 0;
  int separators_ = 0;
  std::size_t size_ = 0;
};

/// Any number, NaN and the infinities among them.
class LongNumber {
 public:
  LongNumber(NumberStyle style, double value) noexcept;
  LongNumber(const LongNumber&) = delete;
  LongNumber& operator=(const LongNumber&) = delete;

  /// Bytes of the text.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  /// Writes the text, all its bytes, and gives the place after it.
  char* writeTo(char* to) const noexcept;

 private:
  void roundExactly(int most, double magnitude) noexcept;
  void takeEveryDigit(double magnitude) noexcept;
  char* putDigits(char* to, const char* digits, int count) const noexcept;
  char* putNumber(char* to) const noexcept;

  static constexpr int kMostIntegerDigits = 309;

  const NumberSymbols& symbols_;
  bool isNegative_;
  const std::string* word_ = nullptr;  // instead of digits, of a number that has none
  const char* digits_ = nullptr;       // ASCII: integer part and fraction, without a point
  int integerDigits_ = 0;
  int fractionDigits_ = 0;
  int separators_ = 0;
  std::size_t size_ = 0;
  std::array<char, 1 + kMostIntegerDigits + kMostFractionDigits> room_;
};

/// "00", "01" and so on to "99".
inline constexpr std::array<char, 200> kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    const std::size_t digit = i % 2 == 0 ? i / 20 : i / 2 % 10;
    pairs[i] = static_cast<char>('0' + digit);
  }
  return pairs;
}();

/// How many separators are in an integer part of the given length.
[[nodiscard]] inline int countSeparators(const NumberSymbols& symbols, int integerDigits) noexcept {
  const int beyondFirst = integerDigits - symbols.primaryGroup;
  if (beyondFirst < symbols.minimumGroupDigits || symbols.primaryGroup == 0) return 0;
  return (beyondFirst - 1) / symbols.secondaryGroup + 1;
}

/// Decimal digits of a number of at most nine.
[[nodiscard]] inline int countDigits(std::uint32_t number) noexcept {
  static constexpr std::uint32_t kPowersOfTen[] = {1,      10,      100,      1000,      10000,
                                                   100000, 1000000, 10000000, 100000000, 1000000000};
  const std::uint32_t counted = number | 1U;                                   // which has as many digits; 0 has one
  const int atLeast = static_cast<int>(std::bit_width(counted)) * 1233 >> 12;  // the logarithm of two: 1233 / 4096
  return atLeast + (counted >= kPowersOfTen[atLeast] ? 1 : 0);
}

inline ShortNumber::ShortNumber(NumberStyle style, double value) noexcept
    : symbols_(*style.symbols), isNegative_(std::signbit(value)) {
  const std::int32_t shifted = rounded(style.most, std::abs(value));
  if (shifted == kDoubtful) return;
  isLaidOut_ = true;
  digits_ = static_cast<std::uint32_t>(shifted);
  fractionDigits_ = style.most;
  for (; fractionDigits_ > style.least && digits_ % 10 == 0; digits_ /= 10) --fractionDigits_;
  integerDigits_ = std::max(countDigits(digits_) - fractionDigits_, 1);
  separators_ = countSeparators(symbols_, integerDigits_);
  size_ = static_cast<std::size_t>(integerDigits_ + fractionDigits_) * symbols_.digitBytes;
  if (separators_ > 0) size_ += static_cast<std::size_t>(separators_) * symbols_.groupSeparator.size();
  if (fractionDigits_ > 0) size_ += symbols_.decimalSeparator.size();
  if (isNegative_) size_ += symbols_.negativePrefix.size() + symbols_.negativeSuffix.size();
}

// Scales and rounds in binary. The product and the shortest decimal each differ from the true value by less than 2^-53
// of it, together far less than kDoubt: so far from a tie the rounding is beyond doubt.
inline std::int32_t ShortNumber::rounded(int most, double magnitude) noexcept {
  static constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
  constexpr double kLimit = 999999999.0;
  constexpr double kDoubt = 0.001;
  if (most >= static_cast<int>(std::size(kPowersOfTen))) return kDoubtful;
  const double scaled = magnitude * kPowersOfTen[most];
  if (!(scaled < kLimit)) return kDoubtful;  // NaN too
  const auto floor = static_cast<std::int32_t>(scaled);
  const double rest = scaled - floor;
  return std::abs(rest - 0.5) < kDoubt ? kDoubtful : floor + (rest > 0.5 ? 1 : 0);
}

// Writes digits in ASCII, without separators, from the last one to the first.
inline void ShortNumber::putPlainDigits(char* end) const noexcept {
  std::uint32_t rest = digits_;
  for (int i = 0; i < fractionDigits_; ++i, rest /= 10) *--end = static_cast<char>('0' + rest % 10);
  if (fractionDigits_ > 0) {
    end -= symbols_.decimalSeparator.size();
    putText(end, symbols_.decimalSeparator);
  }
  for (; rest >= 10; rest /= 100) {
    end -= 2;
    std::memcpy(end, &kDigitPairs[std::size_t{rest % 100} * 2], 2);
  }
  if (integerDigits_ % 2 != 0) *--end = static_cast<char>('0' + rest);
}

inline char* ShortNumber::writeTo(char* to) const noexcept {
  char* const after = to + size_;
  char* end = after;
  if (isNegative_) {
    putText(to, symbols_.negativePrefix);
    end -= symbols_.negativeSuffix.size();
    putText(end, symbols_.negativeSuffix);
  }
  if (symbols_.digitsAreAscii && separators_ == 0) [[likely]] {
    putPlainDigits(end);
  } else {
    putLocalDigits(symbols_, digits_, integerDigits_, fractionDigits_, separators_, end);
  }
  return after;
}

}  // namespace kzm::core

#endif
