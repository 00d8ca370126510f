// The widest of all numbers between two: texts of digits, without a point and without zeros in front.
#ifndef KZM_WIDEST_DIGITS_H
#define KZM_WIDEST_DIGITS_H

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace kzm::widest {

/// The width of each digit, and whether zeros at the end are shown.
struct DigitWidths {
  std::array<double, 10> widths;
  bool showsLastZeros;
};

/// Numbers from `least` to `most`, one of which is the widest: for each length, and each place at which a number may
/// leave the first digits of an end, the widest digits that may follow. The empty text is zero.
[[nodiscard]] std::vector<std::string> wideNumbers(std::string_view least, std::string_view most,
                                                   const DigitWidths& digits);

}  // namespace kzm::widest

#endif
