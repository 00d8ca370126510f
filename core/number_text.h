// Writes a double as the digits that a person reads.
#ifndef KZM_CORE_NUMBER_TEXT_H
#define KZM_CORE_NUMBER_TEXT_H

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
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

/// Digits of two bytes are written by words where this much room is left after the number.
inline constexpr std::size_t kSpareRoom = 2 * kWordBytes;

/// A number of at most nine digits, rounded and laid out. Nearly every number of a monitor is one: it is found by
/// binary arithmetic, and its size is known before it is written.
class ShortNumber {
 public:
  /// Not every number can be laid out so: see isLaidOut.
  [[gnu::always_inline]] ShortNumber(NumberStyle style, double value) noexcept;
  [[nodiscard]] bool isLaidOut() const noexcept { return isLaidOut_; }

  /// Bytes of the text.
  [[nodiscard, gnu::always_inline]] std::size_t size() const noexcept;
  /// Writes the text and gives the place after it. Up to the end of the room, anything may be written too.
  [[gnu::always_inline]] char* writeTo(char* to, const char* roomEnd) const noexcept;

  /// Whether the text is one word: bytes without a sign.
  [[nodiscard]] bool isOneWord() const noexcept { return fitsWord_ && !isNegative_; }
  /// That word, the first byte in the lowest one, and how many bytes of it are the text.
  [[nodiscard, gnu::always_inline]] std::uint64_t word() const noexcept;
  [[nodiscard]] std::size_t wordSize() const noexcept {
    return static_cast<std::size_t>(digitCount() + separators_) + (fractionDigits_ > 0 ? 1U : 0U);
  }

 private:
  static constexpr std::int32_t kDoubtful = -1;
  [[nodiscard]] int digitCount() const noexcept { return integerDigits_ + fractionDigits_; }
  [[gnu::always_inline]] static std::int32_t rounded(int most, double magnitude) noexcept;
  // These take no `this`, which would have to be in memory.
  static void putLocalDigits(const NumberSymbols& symbols, std::uint32_t digits, int integerDigits, int fractionDigits,
                             int separators, char* end) noexcept;
  static void putTwoByteDigits(const NumberSymbols& symbols, std::uint32_t digits, int integerDigits,
                               int fractionDigits, int separators, char* to) noexcept;

  const NumberSymbols& symbols_;
  bool isNegative_;
  bool isLaidOut_ = false;
  bool fitsWord_ = false;
  std::uint32_t digits_ = 0;  // integer part and fraction together
  int integerDigits_ = 0;
  int fractionDigits_ = 0;
  int separators_ = 0;
};

/// Any number, NaN and the infinities among them.
class LongNumber {
 public:
  LongNumber(NumberStyle style, double value) noexcept;
  LongNumber(const LongNumber&) = delete;
  LongNumber& operator=(const LongNumber&) = delete;

  /// Bytes of the text.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  /// Writes the text and gives the place after it.
  char* writeTo(char* to) const noexcept;

 private:
  void roundExactly(int most, double magnitude) noexcept;
  void takeEveryDigit(double magnitude) noexcept;
  char* putDigits(char* to, const char* digits, int count) const noexcept;
  char* putNumber(char* to) const noexcept;

  static constexpr int kMostIntegerDigits = 309;

  const NumberSymbols& symbols_;
  bool isNegative_;
  const std::string* namedText_ = nullptr;  // instead of digits, of a number that has none
  const char* digits_ = nullptr;            // ASCII: integer part and fraction, without a point
  int integerDigits_ = 0;
  int fractionDigits_ = 0;
  int separators_ = 0;
  std::size_t size_ = 0;
  std::array<char, 1 + kMostIntegerDigits + kMostFractionDigits> room_;
};

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
  fitsWord_ = symbols_.takeOneByteEach && separators_ <= symbols_.separatorsInWord &&
              digitCount() + separators_ < static_cast<int>(kWordBytes);
}

inline std::size_t ShortNumber::size() const noexcept {
  std::size_t size = static_cast<std::size_t>(digitCount()) * symbols_.digitBytes;
  if (separators_ > 0) size += static_cast<std::size_t>(separators_) * symbols_.groupSeparator.size();
  if (fractionDigits_ > 0) size += symbols_.decimalSeparator.size();
  if (isNegative_) size += symbols_.negativePrefix.size() + symbols_.negativeSuffix.size();
  return size;
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
  const double raised = scaled + 0.5;
  const auto nearest = static_cast<std::int32_t>(raised);
  return std::abs(scaled - nearest) > 0.5 - kDoubt ? kDoubtful : nearest;
}

/// "00", "01" and so on to "99", the first digit in the lower byte.
inline constexpr std::array<std::uint16_t, 100> kDigitPairs = [] {
  std::array<std::uint16_t, 100> pairs{};
  for (std::uint16_t i = 0; i < 100; ++i) pairs[i] = static_cast<std::uint16_t>('0' + i / 10 + (('0' + i % 10) << 8U));
  return pairs;
}();

/// The last digits of a number of at most eight, the first one in the lowest byte.
[[nodiscard, gnu::always_inline]] inline std::uint64_t lastDigits(std::uint32_t number, int count) noexcept {
  const auto pair = [](std::uint32_t below100) { return std::uint64_t{kDigitPairs[below100]}; };
  const std::uint32_t high = number / 10000;
  const std::uint32_t low = number % 10000;
  const std::uint64_t eight =
      pair(high / 100) | pair(high % 100) << 16U | pair(low / 100) << 32U | pair(low % 100) << 48U;
  return eight >> 8 * (8 - count);
}

/// The word with one more byte, after the given number of its bytes.
[[nodiscard, gnu::always_inline]] inline std::uint64_t withByteAt(int place, char byte, std::uint64_t word) noexcept {
  const std::uint64_t before = (std::uint64_t{1} << 8 * place) - 1;
  return (word & before) | std::uint64_t{static_cast<unsigned char>(byte)} << 8 * place | (word & ~before) << 8;
}

// No branch depends on how many digits there are: a wrong guess of the processor costs more than all of this.
inline std::uint64_t ShortNumber::word() const noexcept {
  const std::uint64_t plain =
      withByteAt(integerDigits_, symbols_.decimalSeparator.front(), lastDigits(digits_, digitCount()));
  if (separators_ == 0) [[likely]]
    return plain;
  return withByteAt(integerDigits_ - symbols_.primaryGroup, symbols_.groupSeparator.front(), plain);
}

inline char* ShortNumber::writeTo(char* to, const char* roomEnd) const noexcept {
  const std::size_t size = this->size();
  char* const after = to + size;
  char* end = after;
  if (isNegative_) {
    to = putText(to, symbols_.negativePrefix);
    end -= symbols_.negativeSuffix.size();
  }
  const auto room = static_cast<std::size_t>(roomEnd - to);
  if (fitsWord_ && room >= kWordBytes) {
    putWord(to, word());
  } else if (symbols_.twoByteZeros != 0 && digitCount() <= 8 && room >= size + kSpareRoom) {
    putTwoByteDigits(symbols_, digits_, integerDigits_, fractionDigits_, separators_, to);
  } else {
    putLocalDigits(symbols_, digits_, integerDigits_, fractionDigits_, separators_, end);
  }
  if (isNegative_) putText(end, symbols_.negativeSuffix);
  return after;
}

}  // namespace kzm::core

#endif
