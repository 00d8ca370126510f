// What a number is to look like, from the locale library's own formatter; ours is faster, and equal.
#ifndef KZM_TESTS_CORE_NUMBER_REFERENCE_H
#define KZM_TESTS_CORE_NUMBER_REFERENCE_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <unicode/numberformatter.h>

namespace kzm::tests {

class NumberReference {
 public:
  NumberReference(const char* locale, int least, int most)
      : formatter_(icu::number::NumberFormatter::withLocale(locale)
                       .precision(icu::number::Precision::minMaxFraction(least, most))
                       .roundingMode(UNUM_ROUND_HALFEVEN)) {}

  [[nodiscard]] std::string text(double value) const {
    UErrorCode status = U_ZERO_ERROR;
    std::string bytes;
    formatter_.formatDouble(value, status).toString(status).toUTF8String(bytes);
    return U_SUCCESS(status) ? bytes : "failed";
  }

 private:
  icu::number::LocalizedNumberFormatter formatter_;
};

inline double anyBits(std::mt19937_64& random) {
  const std::uint64_t bits = random();
  double value = 0.0;
  std::memcpy(&value, &bits, sizeof value);
  return std::isnan(value) ? 0.0 : value;
}

// A number that ends in a five where it is cut: its last digit is a matter of the rule.
inline double tie(std::mt19937_64& random) {
  const double tenths = static_cast<double>(random() % 2'000'000'000U) * 10.0 + 5.0;
  return tenths / std::pow(10.0, static_cast<double>(1 + random() % 9U));
}

inline double powerOfTen(std::mt19937_64& random) { return std::pow(10.0, static_cast<double>(random() % 40U) - 12.0); }

/// The value, or the next double on either side of it, of either sign.
inline double nearby(double value, std::mt19937_64& random) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::uint64_t choice = random() % 6U;
  const double near = choice < 2U ? value : std::nextafter(value, choice < 4U ? kInfinity : -kInfinity);
  return choice % 2U == 0U ? near : -near;
}

/// A double to be doubted: any at all, three decimals, halves, what a monitor reads, ties and powers of ten.
inline double anyDouble(std::mt19937_64& random) {
  switch (random() % 6U) {
    case 0:
      return anyBits(random);
    case 1:
      return static_cast<double>(random() % 20000001U) / 1000.0 - 10000.0;
    case 2:
      return static_cast<double>(random() % 2000001U) / 2.0;
    case 3:
      return nearby(tie(random), random);
    case 4:
      return nearby(powerOfTen(random), random);
    default:
      return std::ldexp(static_cast<double>(random() >> 11U), -40);
  }
}

}  // namespace kzm::tests

#endif
