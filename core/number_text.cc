#include "core/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace kzm::core {
namespace {

constexpr int kMostIntegerDigits = 309;

// Powers of ten up to here are exact doubles, and no number in a monitor needs more digits on the fast way.
constexpr std::array<double, 10> kPowersOfTen{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

// ASCII digits of a number that is not negative: the integer part, then exactly the fraction digits asked for.
class Digits {
 public:
  Digits(double magnitude, int fraction) noexcept : fraction_(fraction) {
    if (!roundedQuickly(magnitude)) roundExactly(magnitude);
  }

  [[nodiscard]] std::string_view integer() const noexcept { return {first_, static_cast<std::size_t>(integer_)}; }
  [[nodiscard]] std::string_view fraction(int least) const noexcept {
    int count = fraction_;
    while (count > least && first_[integer_ + count - 1] == '0') --count;
    return {first_ + integer_, static_cast<std::size_t>(count)};
  }

 private:
  // Scales and rounds in binary. The product and the shortest decimal each differ from the true value by less than
  // 2^-53 of it, together less than 0.0003 for products below 10^12: so far from a tie the rounding is beyond doubt.
  bool roundedQuickly(double magnitude) noexcept {
    constexpr double kLargest = 1e12;
    constexpr double kDoubt = 0.001;
    if (fraction_ >= static_cast<int>(kPowersOfTen.size())) return false;
    const double scaled = magnitude * kPowersOfTen[static_cast<std::size_t>(fraction_)];
    if (!(scaled < kLargest)) return false;
    auto whole = static_cast<std::int64_t>(scaled);
    const double rest = scaled - static_cast<double>(whole);
    if (std::abs(rest - 0.5) < kDoubt) return false;
    if (rest > 0.5) ++whole;
    writeScaled(static_cast<std::uint64_t>(whole));
    return true;
  }

  void writeScaled(std::uint64_t whole) noexcept {
    char* end = room_.data() + room_.size();
    char* p = end;
    for (; whole >= 10; whole /= 10) *--p = static_cast<char>('0' + whole % 10);
    *--p = static_cast<char>('0' + whole);
    while (end - p <= fraction_) *--p = '0';
    first_ = p;
    integer_ = static_cast<int>(end - p) - fraction_;
  }

  // Rounds the shortest decimal half to even, digit by digit.
  void roundExactly(double magnitude) noexcept {
    std::array<char, 32> text;  // d.ddddddddddddddddde-324
    char* end = std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific).ptr;
    const char* mark = std::find<const char*>(text.data(), end, 'e');
    int exponent = 0;
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);

    // The decimal is 0.0…0ddd or ddd0…0 with its point behind the first `integer_` digits; room_[0] takes a carry.
    std::fill(room_.begin(), room_.end(), '0');
    integer_ = std::max(exponent, 0) + 1;
    char* digits = room_.data() + 1;
    int count = std::max(-exponent, 0);
    const int kept = integer_ + fraction_;
    int beyond = 0;  // first digit cut off, then whether anything stands behind it
    bool sticky = false;
    for (const char* p = text.data(); p != mark; ++p) {
      if (*p == '.') continue;
      if (count < kept) {
        digits[count] = *p;
      } else if (count == kept) {
        beyond = *p - '0';
      } else {
        sticky = true;
      }
      ++count;
    }
    first_ = digits;
    const bool odd = (digits[kept - 1] - '0') % 2 != 0;
    if (beyond > 5 || (beyond == 5 && (sticky || odd))) addOne(digits + kept - 1);
  }

  void addOne(char* last) noexcept {
    while (*last == '9') *last-- = '0';
    ++*last;
    if (room_[0] != '0') {
      first_ = room_.data();
      ++integer_;
    }
  }

  int integer_ = 0;
  int fraction_;
  char* first_ = nullptr;
  std::array<char, 1 + kMostIntegerDigits + kMostFractionDigits + 24> room_;
};

char* put(char* p, std::string_view text) noexcept {
  std::memcpy(p, text.data(), text.size());
  return p + text.size();
}

char* putDigits(char* p, const NumberSymbols& symbols, std::string_view digits) noexcept {
  if (symbols.digitsAreAscii) return put(p, digits);
  for (const char digit : digits) p = put(p, symbols.digits[static_cast<std::size_t>(digit - '0')]);
  return p;
}

char* putGrouped(char* p, const NumberSymbols& symbols, std::string_view digits) noexcept {
  const auto primary = static_cast<std::size_t>(symbols.primaryGroup);
  const auto secondary = static_cast<std::size_t>(symbols.secondaryGroup);
  if (primary == 0 || digits.size() < primary + static_cast<std::size_t>(symbols.minimumGroupDigits)) {
    return putDigits(p, symbols, digits);
  }
  std::size_t before = digits.size() - primary;
  std::size_t length = (before - 1) % secondary + 1;
  std::size_t start = 0;
  for (; start < before; start += length, length = secondary) {
    if (start > 0) p = put(p, symbols.groupSeparator);
    p = putDigits(p, symbols, digits.substr(start, length));
  }
  p = put(p, symbols.groupSeparator);
  return putDigits(p, symbols, digits.substr(before));
}

}  // namespace

NumberText::NumberText(const NumberSymbols& symbols, int least, int most, double value) noexcept {
  char* p = bytes_.data();
  if (std::isnan(value)) {
    size_ = static_cast<std::size_t>(put(p, symbols.notANumber) - bytes_.data());
    return;
  }
  const bool negative = std::signbit(value);
  if (negative) p = put(p, symbols.negativePrefix);
  if (std::isinf(value)) {
    p = put(p, symbols.infinity);
  } else {
    const Digits digits(std::abs(value), most);
    p = putGrouped(p, symbols, digits.integer());
    if (const std::string_view fraction = digits.fraction(least); !fraction.empty()) {
      p = put(p, symbols.decimalSeparator);
      p = putDigits(p, symbols, fraction);
    }
  }
  if (negative) p = put(p, symbols.negativeSuffix);
  size_ = static_cast<std::size_t>(p - bytes_.data());
}

NumberText NumberText::plainWhole(double value) noexcept {
  NumberText text;
  if (std::isnan(value)) value = std::abs(value);  // A computed NaN often bears a sign, which means nothing.
  char* first = text.bytes_.data();
  const auto result = std::to_chars(first, first + text.bytes_.size(), value, std::chars_format::fixed, 0);
  text.size_ = static_cast<std::size_t>(result.ptr - first);
  return text;
}

}  // namespace kzm::core
