#include "widest/digits.h"

#include <cstddef>

namespace kzm::widest {
namespace {

// Numbers of one length.
class Numbers {
 public:
  Numbers(const DigitWidths& digits, std::size_t length, std::vector<std::string>& numbers)
      : digits_(digits), length_(length), numbers_(numbers) {}

  // All that begin so, go on with a digit between the two, and then as they like.
  void add(std::string_view beginning, char least, char most) {
    if (beginning.empty() && least == '0') ++least;
    if (least > most) return;
    std::string number(beginning);
    number += widest(number.size(), least, most);
    while (number.size() < length_) number += widest(number.size(), '0', '9');
    numbers_.push_back(number);
  }

  // All from `least` to `most`: they share digits, part at one, and each follows its own end from there on.
  void addBetween(std::string_view least, std::string_view most) {
    std::size_t at = 0;
    while (at < length_ && least[at] == most[at]) ++at;
    numbers_.emplace_back(least);
    numbers_.emplace_back(most);
    if (at == length_) return;
    add(least.substr(0, at), static_cast<char>(least[at] + 1), static_cast<char>(most[at] - 1));
    while (++at < length_) {
      add(least.substr(0, at), static_cast<char>(least[at] + 1), '9');
      add(most.substr(0, at), '0', static_cast<char>(most[at] - 1));
    }
  }

 private:
  [[nodiscard]] char widest(std::size_t at, char least, char most) const {
    if (at + 1 == length_ && !digits_.showsLastZeros && least == '0' && most > '0') ++least;
    char best = least;
    for (char digit = least; digit <= most; ++digit) {
      if (width(digit) > width(best)) best = digit;
    }
    return best;
  }
  [[nodiscard]] double width(char digit) const { return digits_.widths[static_cast<std::size_t>(digit - '0')]; }

  const DigitWidths& digits_;
  std::size_t length_;
  std::vector<std::string>& numbers_;
};

}  // namespace

std::vector<std::string> wideNumbers(std::string_view least, std::string_view most, const DigitWidths& digits) {
  std::vector<std::string> numbers;
  for (std::size_t length = least.size(); length <= most.size(); ++length) {
    const std::string first = length == 0 ? std::string() : '1' + std::string(length - 1, '0');
    const std::string last(length, '9');
    Numbers(digits, length, numbers)
        .addBetween(length == least.size() ? least : std::string_view(first),
                    length == most.size() ? most : std::string_view(last));
  }
  return numbers;
}

}  // namespace kzm::widest
