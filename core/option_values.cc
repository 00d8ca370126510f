#include "core/option_values.h"

#include <charconv>
#include <limits>
#include <system_error>

#include "port/ascii.h"
#include "port/never_destroyed.h"

namespace kzm::core {
namespace {

std::string_view withoutLeadingSpaces(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
  return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

// Takes a sign off the front; true for a minus.
bool takeSign(std::string_view& text) {
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);
  return isNegative;
}

std::size_t countDigits(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && port::isDigit(text[count])) ++count;
  return count;
}

// What std::from_chars does not say of a number out of range: whether it is too large, not too small. A number is
// larger than one when the place of its first digit that counts, moved by the exponent, is before the point.
bool isLarge(std::string_view digits, std::size_t integerDigits, std::int64_t exponent) {
  const std::size_t first = digits.find_first_of("123456789");
  const std::int64_t place = first < integerDigits
                                 ? static_cast<std::int64_t>(integerDigits - first)
                                 : static_cast<std::int64_t>(integerDigits) + 1 - static_cast<std::int64_t>(first);
  return exponent > 0 ? place > -exponent : place + exponent > 0;
}

}  // namespace

std::int64_t integerFromDouble(double number) noexcept {
  using Limits = std::numeric_limits<std::int64_t>;
  if (number >= 0x1p63) return Limits::max();
  if (number < -0x1p63) return Limits::min();
  return number == number ? static_cast<std::int64_t>(number) : 0;
}

std::int64_t integerFromText(std::string_view text) noexcept {
  using Limits = std::numeric_limits<std::int64_t>;
  text = withoutLeadingSpaces(text);
  const bool isNegative = takeSign(text);
  std::uint64_t magnitude = 0;
  const auto limit = static_cast<std::uint64_t>(Limits::max()) + (isNegative ? 1 : 0);
  const std::string_view digits = text.substr(0, countDigits(text));
  const std::errc error = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude).ec;
  if (error == std::errc::result_out_of_range || magnitude > limit) return isNegative ? Limits::min() : Limits::max();
  return static_cast<std::int64_t>(isNegative ? 0 - magnitude : magnitude);
}

double doubleFromText(std::string_view text) noexcept {
  text = withoutLeadingSpaces(text);
  const bool isNegative = takeSign(text);
  const std::size_t integerDigits = countDigits(text);
  std::size_t length = integerDigits;
  if (length < text.size() && text[length] == '.') length += 1 + countDigits(text.substr(length + 1));
  if (countDigits(text) == 0 && length < 2) return 0.0;  // no digit at all

  const std::string_view mantissa = text.substr(0, length);
  std::int64_t exponent = 0;
  if (length < text.size() && (text[length] == 'e' || text[length] == 'E')) {
    const std::string_view power = text.substr(length + 1);
    std::string_view digits = power;
    takeSign(digits);
    if (const std::size_t count = countDigits(digits); count > 0) {
      exponent = integerFromText(power);
      length += 1 + (power.size() - digits.size()) + count;
    }
  }
  double number = 0.0;
  if (std::from_chars(text.data(), text.data() + length, number).ec == std::errc::result_out_of_range) {
    number = isLarge(mantissa, integerDigits, exponent) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return isNegative ? -number : number;
}

bool booleanFromText(std::string_view text) noexcept {
  text = withoutLeadingSpaces(text);
  return !text.empty() && std::string_view("YyTt123456789").find(text.front()) != std::string_view::npos;
}

const Value& noValue() noexcept {
  static const port::NeverDestroyed<Value> null;
  return *null;
}

}  // namespace kzm::core
