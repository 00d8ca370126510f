#include "core/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "core/small_copy.h"

namespace kzm::core {
namespace {

// Powers of ten up to here are exact doubles, and no number in a monitor needs more digits on the fast way.
constexpr std::array<double, 10> kPowersOfTen{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

int countDigits(std::uint64_t whole) noexcept {
  int count = 1;
  for (std::uint64_t bound = 10; whole >= bound; bound *= 10) ++count;  // the numbers here stay below 10^12
  return count;
}

}  // namespace

NumberText::NumberText(const NumberSymbols& symbols, int least, int most, double value) noexcept : symbols_(symbols) {
  isNegative_ = std::signbit(value);
  if (std::isfinite(value)) [[likely]] {
    layOut(least, most, std::abs(value));
    size_ = static_cast<std::size_t>(integerDigits_ + fractionDigits_) * symbols_.digitBytes +
            static_cast<std::size_t>(separators()) * symbols_.groupSeparator.size() +
            (fractionDigits_ > 0 ? symbols_.decimalSeparator.size() : 0);
  } else {
    word_ = std::isnan(value) ? &symbols_.notANumber : &symbols_.infinity;
    isNegative_ = isNegative_ && !std::isnan(value);
    size_ = word_->size();
  }
  if (isNegative_) size_ += symbols_.negativePrefix.size() + symbols_.negativeSuffix.size();
}

void NumberText::layOut(int least, int most, double magnitude) noexcept {
  fractionDigits_ = most;
  if (roundQuickly(most, magnitude)) {
    for (; fractionDigits_ > least && whole_ % 10 == 0; whole_ /= 10) --fractionDigits_;
    integerDigits_ = std::max(countDigits(whole_) - fractionDigits_, 1);
  } else {
    roundExactly(most, magnitude);
    while (fractionDigits_ > least && digits_[integerDigits_ + fractionDigits_ - 1] == '0') --fractionDigits_;
  }
}

// Scales and rounds in binary. The product and the shortest decimal each differ from the true value by less than 2^-53
// of it, together less than 0.0003 for products below 10^12: so far from a tie the rounding is beyond doubt.
bool NumberText::roundQuickly(int most, double magnitude) noexcept {
  constexpr double kLargest = 1e12;
  constexpr double kDoubt = 0.001;
  if (most >= static_cast<int>(kPowersOfTen.size())) return false;
  const double scaled = magnitude * kPowersOfTen[static_cast<std::size_t>(most)];
  if (!(scaled < kLargest)) return false;
  const auto floor = static_cast<std::int64_t>(scaled);
  const double rest = scaled - static_cast<double>(floor);
  if (std::abs(rest - 0.5) < kDoubt) return false;
  whole_ = static_cast<std::uint64_t>(floor) + (rest > 0.5 ? 1 : 0);
  return true;
}

// Rounds the shortest decimal half to even, digit by digit.
void NumberText::roundExactly(int most, double magnitude) noexcept {
  std::array<char, 32> text;  // d.ddddddddddddddddde-324
  char* end = std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific).ptr;
  const char* mark = std::find<const char*>(text.data(), end, 'e');
  int exponent = 0;
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);

  // The decimal is 0.0…0ddd or ddd0…0 with its point behind the integer digits; room_[0] takes a carry.
  std::fill(room_.begin(), room_.end(), '0');
  integerDigits_ = std::max(exponent, 0) + 1;
  char* digits = room_.data() + 1;
  const int kept = integerDigits_ + most;
  int count = std::max(-exponent, 0);
  int beyond = 0;       // the first digit that is cut off
  bool sticky = false;  // whether anything stands behind it
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

int NumberText::separators() const noexcept {
  const int beyondFirst = integerDigits_ - symbols_.primaryGroup;
  if (symbols_.primaryGroup == 0 || beyondFirst < symbols_.minimumGroupDigits) return 0;
  return (beyondFirst - 1) / symbols_.secondaryGroup + 1;
}

// Writes so many digits, the last ones that are left, in front of `end`.
char* NumberText::writeDigits(char* end, int count, std::uint64_t& rest, const char*& last) const noexcept {
  if (digits_ == nullptr && symbols_.digitsAreAscii) [[likely]] {
    for (; count > 0; --count, rest /= 10) *--end = static_cast<char>('0' + rest % 10);
    return end;
  }
  for (; count > 0; --count) {
    const std::uint64_t digit = digits_ != nullptr ? static_cast<std::uint64_t>(*--last - '0') : rest % 10;
    rest /= 10;
    end -= symbols_.digitBytes;
    std::memcpy(end, symbols_.digits[digit].data(), symbols_.digitBytes);
  }
  return end;
}

char* NumberText::writeInteger(char* end, std::uint64_t rest, const char* last) const noexcept {
  int left = integerDigits_;
  int group = symbols_.primaryGroup;
  for (int separator = separators(); separator > 0; --separator, group = symbols_.secondaryGroup) {
    end = writeDigits(end, group, rest, last);
    left -= group;
    end -= symbols_.groupSeparator.size();
    putText(end, symbols_.groupSeparator);
  }
  return writeDigits(end, left, rest, last);
}

char* NumberText::writeTo(char* to) const noexcept {
  if (isNegative_) to = putText(to, symbols_.negativePrefix);
  if (word_ != nullptr) {
    to = putText(to, *word_);
  } else {
    char* const behind =
        to + size_ - (isNegative_ ? symbols_.negativePrefix.size() + symbols_.negativeSuffix.size() : 0);
    std::uint64_t rest = whole_;
    const char* last = digits_ + integerDigits_ + fractionDigits_;
    char* end = writeDigits(behind, fractionDigits_, rest, last);
    if (fractionDigits_ > 0) {
      end -= symbols_.decimalSeparator.size();
      putText(end, symbols_.decimalSeparator);
    }
    writeInteger(end, rest, last);
    to = behind;
  }
  return isNegative_ ? putText(to, symbols_.negativeSuffix) : to;
}

std::string NumberText::string() const {
  std::string text(size_, '\0');
  writeTo(text.data());
  return text;
}

std::string plainWhole(double value) {
  if (std::isnan(value)) value = std::abs(value);  // A computed NaN often bears a sign, which means nothing.
  std::array<char, 320> room;
  return {room.data(), std::to_chars(room.data(), room.data() + room.size(), value, std::chars_format::fixed, 0).ptr};
}

}  // namespace kzm::core
