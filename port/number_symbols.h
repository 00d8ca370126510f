// What a locale knows about writing numbers.
#ifndef KZM_PORT_NUMBER_SYMBOLS_H
#define KZM_PORT_NUMBER_SYMBOLS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace kzm {

/// The parts that a number in decimal style is put together from, all in UTF-8.
struct NumberSymbols {
  std::array<std::string, 10> digits;
  bool digitsAreAscii = true;
  std::size_t digitBytes = 1;  // every digit of a script has the same size
  std::string decimalSeparator;
  bool takeOneByteEach = false;    // the digits, which are ASCII, and the decimal separator
  std::uint64_t twoByteZeros = 0;  // four, the first byte lowest; only when the digits count up in their second byte
  std::string groupSeparator;
  int separatorsInWord = 0;    // that a number written as one word may have: 1 if they take one byte each
  std::string negativePrefix;  // the minus, with whatever invisible marks the locale puts beside it
  std::string negativeSuffix;
  std::string notANumber;
  std::string infinity;
  int primaryGroup = 0;        // digits in the group next to the decimal separator; 0 means no grouping
  int secondaryGroup = 0;      // digits in every further group
  int minimumGroupDigits = 1;  // digits before the first separator without which there is none
};

namespace port {

/// The symbols of the locale; those of world English when its data cannot be had (an unusable numbering system, say).
[[nodiscard]] NumberSymbols numberSymbols(const std::string& localeIdentifier);

/// The symbols of numbers without locale, as printf writes them: no groups, "-", ".", "nan" and "inf".
[[nodiscard]] NumberSymbols plainSymbols();

}  // namespace port
}  // namespace kzm

#endif
