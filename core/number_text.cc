#include "core/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "port/never_destroyed.h"

namespace kzm::core {

NumberStyle decimalStyle(const NumberSymbols& symbols, std::int64_t least, std::int64_t most) noexcept {
  const auto applied = [](std::int64_t digits) {
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(digits, 0, kMostFractionDigits));
  };
  return {&symbols, applied(least), std::max(applied(least), applied(most))};
}

NumberStyle plainStyle() noexcept {
  static const port::NeverDestroyed<NumberSymbols> symbols(port::plainSymbols());
  return {&*symbols, 0, 0, true};
}

// Writes digits of any script, with separators, from the last one to the first.
void ShortNumber::putLocalDigits(const NumberSymbols& symbols, std::uint32_t digits, int integerDigits,
                                 int fractionDigits, int separators, char* end) noexcept {
  const auto putBefore = [&](const std::string& text) {
    end -= text.size();
    putText(end, text);
  };
  const auto putDigit = [&] {
    putBefore(symbols.digits[digits % 10]);
    digits /= 10;
  };
  for (int i = 0; i < fractionDigits; ++i) putDigit();
  if (fractionDigits > 0) putBefore(symbols.decimalSeparator);
  int left = integerDigits;
  int group = symbols.primaryGroup;
  for (; separators > 0; --separators, group = symbols.secondaryGroup) {
    for (int i = 0; i < group; ++i) putDigit();
    left -= group;
    putBefore(symbols.groupSeparator);
  }
  for (; left > 0; --left) putDigit();
}

// As ShortNumber::word, with digits of two bytes. A separator is written over the digits that follow it, and these are
// written once more after it.
void ShortNumber::putTwoByteDigits(const NumberSymbols& symbols, std::uint32_t digits, int integerDigits,
                                   int fractionDigits, int separators, char* to) noexcept {
  // An ASCII digit's low half is its value, which is added to the second byte of a zero.
  const auto putEight = [&](char* place, std::uint64_t eight) {
    for (const std::uint64_t half : {eight & 0xffffffff, eight >> 32U}) {
      const std::uint64_t apart = (half | half << 16U) & 0x0000ffff0000ffff;
      putWord(place, symbols.twoByteZeros + (((apart | apart << 8U) & 0x000f000f000f000f) << 8U));
      place += kWordBytes;
    }
  };
  std::uint64_t left = lastDigits(digits, integerDigits + fractionDigits);
  putEight(to, left);
  const auto separate = [&](int before, const std::string& separator) {
    left >>= 8 * before;
    to = putText(to + std::ptrdiff_t{before} * 2, separator);
    putEight(to, left);
  };
  for (; separators > 0; --separators) {
    const int after = symbols.primaryGroup + (separators - 1) * symbols.secondaryGroup;
    separate(integerDigits - after, symbols.groupSeparator);
    integerDigits = after;
  }
  if (fractionDigits > 0) separate(integerDigits, symbols.decimalSeparator);
}

// A computed NaN often has a sign, which means nothing.
LongNumber::LongNumber(NumberStyle style, double value) noexcept
    : symbols_(*style.symbols), isNegative_(std::signbit(value) && !std::isnan(value)) {
  if (std::isfinite(value)) {
    fractionDigits_ = style.most;
    if (style.showsEveryDigit) {
      takeEveryDigit(std::abs(value));
    } else {
      roundExactly(style.most, std::abs(value));
    }
    while (fractionDigits_ > style.least && digits_[integerDigits_ + fractionDigits_ - 1] == '0') --fractionDigits_;
    separators_ = countSeparators(symbols_, integerDigits_);
    size_ = static_cast<std::size_t>(integerDigits_ + fractionDigits_) * symbols_.digitBytes +
            static_cast<std::size_t>(separators_) * symbols_.groupSeparator.size() +
            (fractionDigits_ > 0 ? symbols_.decimalSeparator.size() : 0);
  } else {
    namedText_ = std::isnan(value) ? &symbols_.notANumber : &symbols_.infinity;
    size_ = namedText_->size();
  }
  if (isNegative_) size_ += symbols_.negativePrefix.size() + symbols_.negativeSuffix.size();
}

void LongNumber::takeEveryDigit(double magnitude) noexcept {
  const char* end =
      std::to_chars(room_.data(), room_.data() + room_.size(), magnitude, std::chars_format::fixed, 0).ptr;
  digits_ = room_.data();
  integerDigits_ = static_cast<int>(end - digits_);
}

// Rounds the shortest decimal half to even, digit by digit.
void LongNumber::roundExactly(int most, double magnitude) noexcept {
  std::array<char, 32> text;  // d.ddddddddddddddddde-324
  char* end = std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific).ptr;
  const char* mark = std::find<const char*>(text.data(), end, 'e');
  int exponent = 0;
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);

  // The decimal is 0.0…0ddd or ddd0…0 with its point after the integer digits; room_[0] takes a carry.
  std::fill(room_.begin(), room_.end(), '0');
  integerDigits_ = std::max(exponent, 0) + 1;
  char* digits = room_.data() + 1;
  const int kept = integerDigits_ + most;
  int count = std::max(-exponent, 0);
  int beyond = 0;       // the first digit that is cut off
  bool sticky = false;  // whether anything but zero follows it
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
  digits_ = digits;
  char* last = digits + kept - 1;
  const bool isOdd = (*last - '0') % 2 != 0;
  if (beyond < 5 || (beyond == 5 && !sticky && !isOdd)) return;
  while (*last == '9') *last-- = '0';
  ++*last;
  if (last == room_.data()) {
    digits_ = last;
    ++integerDigits_;
  }
}

char* LongNumber::putDigits(char* to, const char* digits, int count) const noexcept {
  if (symbols_.digitsAreAscii) return std::copy_n(digits, count, to);
  for (int i = 0; i < count; ++i) to = putText(to, symbols_.digits[static_cast<std::size_t>(digits[i] - '0')]);
  return to;
}

char* LongNumber::putNumber(char* to) const noexcept {
  const char* digits = digits_;
  int left = integerDigits_;
  for (int separators = separators_; separators > 0; --separators) {
    const int after = symbols_.primaryGroup + (separators - 1) * symbols_.secondaryGroup;
    to = putText(putDigits(to, digits, left - after), symbols_.groupSeparator);
    digits += left - after;
    left = after;
  }
  to = putDigits(to, digits, left);
  return fractionDigits_ > 0 ? putDigits(putText(to, symbols_.decimalSeparator), digits + left, fractionDigits_) : to;
}

char* LongNumber::writeTo(char* to) const noexcept {
  if (isNegative_) to = putText(to, symbols_.negativePrefix);
  to = namedText_ != nullptr ? putText(to, *namedText_) : putNumber(to);
  return isNegative_ ? putText(to, symbols_.negativeSuffix) : to;
}

}  // namespace kzm::core
