// The text of any double, against digits that are worked out in another way: the shortest decimal that reads back to
// the same number is found by trying, and rounded on paper.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/number_text.h"
#include "core/template.h"
#include "port/number_symbols.h"
#include "tests/fuzz/input.h"

namespace kzm::fuzz {
namespace {

// A decimal without sign: 0.digits times ten to the power.
struct Decimal {
  std::string digits;
  int power;
};

// Adds one to the last digit.
std::string nextOf(std::string digits) {
  std::size_t i = digits.size();
  while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
  if (i == 0) return "1" + digits;
  ++digits[i - 1];
  return digits;
}

double valueOf(const Decimal& decimal) {
  return std::strtod(("0." + decimal.digits + "e" + std::to_string(decimal.power)).c_str(), nullptr);
}

// Of each number of digits the two decimals around the number are tried, the nearer one first: next to a power of two
// the farther one may be the only one that reads back.
Decimal shortestDecimal(double magnitude) {
  for (int precision = 0;; ++precision) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*e", precision, magnitude);
    const std::string all = text;
    const std::size_t mark = all.find('e');
    Decimal decimal{all.substr(0, 1), std::atoi(text + mark + 1) + 1};
    if (mark > 2) decimal.digits += all.substr(2, mark - 2);
    if (valueOf(decimal) == magnitude) return decimal;
    decimal.digits = nextOf(decimal.digits);
    if (decimal.digits.size() == static_cast<std::size_t>(precision) + 1 && valueOf(decimal) == magnitude)
      return decimal;
  }
}

std::string onPaper(double value, int least, int most) {
  const Decimal decimal = shortestDecimal(std::abs(value));
  // All digits from the tens of the number on, and its fraction.
  std::string whole = "0";
  std::string fraction;
  for (int i = 0; i < decimal.power; ++i) {
    whole += static_cast<std::size_t>(i) < decimal.digits.size() ? decimal.digits[static_cast<std::size_t>(i)] : '0';
  }
  if (decimal.power < 0) fraction.assign(static_cast<std::size_t>(-decimal.power), '0');
  if (std::max(decimal.power, 0) < static_cast<int>(decimal.digits.size())) {
    fraction += decimal.digits.substr(static_cast<std::size_t>(std::max(decimal.power, 0)));
  }
  const auto kept = static_cast<std::size_t>(most);
  std::string cut = fraction.size() > kept ? fraction.substr(kept) : "";
  fraction.resize(kept, '0');
  std::string number = whole + fraction;
  const std::string tie = "5" + std::string(cut.empty() ? 0 : cut.size() - 1, '0');
  const bool isOdd = (number.back() - '0') % 2 != 0;
  if (!cut.empty() && (cut > tie || (cut == tie && isOdd))) number = nextOf(number);
  whole = number.substr(0, number.size() - kept);
  fraction = number.substr(number.size() - kept);
  while (fraction.size() > static_cast<std::size_t>(least) && fraction.back() == '0') fraction.pop_back();
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size() - 1));
  return (std::signbit(value) ? "-" : "") + whole + (fraction.empty() ? "" : "." + fraction);
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kzm::fuzz;
  static const auto& symbols = *new kzm::NumberSymbols(kzm::port::plainSymbols());
  Input input(bytes, size);
  const int least = static_cast<int>(input.below(kzm::core::kMostFractionDigits + 1));
  const int most =
      least + static_cast<int>(input.below(static_cast<std::size_t>(kzm::core::kMostFractionDigits - least) + 1));
  while (!input.empty()) {
    const auto value = input.take<double>();
    const std::string text = kzm::core::numberAlone(kzm::core::decimalStyle(symbols, least, most), value);
    if (std::isfinite(value))
      demand(text == onPaper(value, least, most), text + " is as on paper: " + onPaper(value, least, most));
  }
  return 0;
}
