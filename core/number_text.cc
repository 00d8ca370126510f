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
    separators_ = countSeparators();
    size_ = static_cast<std::size_t>(integerDigits_ + fractionDigits_) * symbols_.digitBytes +
            static_cast<std::size_t>(separators_) * symbols_.groupSeparator.size() +
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

int NumberText::countSeparators() const noexcept {
  const int beyondFirst = integerDigits_ - symbols_.primaryGroup;
  if (symbols_.primaryGroup == 0 || beyondFirst < symbols_.minimumGroupDigits) return 0;
  return (beyondFirst - 1) / symbols_.secondaryGroup + 1;
}

// Writes fraction and integer part in front of `p`, from the last digit to the first; `putDigit` puts the next one.
template <class PutDigit>
void NumberText::writeBackward(char* p, PutDigit putDigit) const noexcept {
  for (int left = fractionDigits_; left > 0; --left) putDigit(p);
  if (fractionDigits_ > 0) {
    p -= symbols_.decimalSeparator.size();
    putText(p, symbols_.decimalSeparator);
  }
  int left = integerDigits_;
  int group = symbols_.primaryGroup;
  for (int separators = separators_; separators > 0; --separators, group = symbols_.secondaryGroup) {
    for (int i = group; i > 0; --i) putDigit(p);
    left -= group;
    p -= symbols_.groupSeparator.size();
    putText(p, symbols_.groupSeparator);
  }
  for (; left > 0; --left) putDigit(p);
}

void NumberText::writeDigits(char* end) const noexcept {
  const auto putSymbol = [this](char*& p, std::size_t digit) {
    p -= symbols_.digitBytes;
    std::memcpy(p, symbols_.digits[digit].data(), symbols_.digitBytes);
  };
  if (digits_ != nullptr) {
    const char* next = digits_ + integerDigits_ + fractionDigits_;
    writeBackward(end, [&](char*& p) { putSymbol(p, static_cast<std::size_t>(*--next - '0')); });
  } else if (symbols_.digitsAreAscii) {
    writeBackward(end, [rest = whole_](char*& p) mutable {
      *--p = static_cast<char>('0' + rest % 10);
      rest /= 10;
    });
  } else {
    writeBackward(end, [&, rest = whole_](char*& p) mutable {
      putSymbol(p, static_cast<std::size_t>(rest % 10));
      rest /= 10;
    });
  }
}

char* NumberText::writeTo(char* to) const noexcept {
  char* const behind = to + size_;
  char* end = behind;
  if (isNegative_) {
    to = putText(to, symbols_.negativePrefix);
    end -= symbols_.negativeSuffix.size();
    putText(end, symbols_.negativeSuffix);
  }
  if (word_ != nullptr) {
    putText(to, *word_);
  } else {
    writeDigits(end);
  }
  return behind;
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
