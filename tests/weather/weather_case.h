// What the tests of the weather family share: options, and the case of one call under one setting.
#ifndef KZM_TESTS_WEATHER_WEATHER_CASE_H
#define KZM_TESTS_WEATHER_WEATHER_CASE_H

#include <cmath>
#include <cstdint>
#include <limits>

#include <KZMUtilities/dictionary.h>

#include "tests/support/settings.h"

namespace kzm::weather {

inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// The next double below and above.
inline double below(double value) { return std::nextafter(value, -kInfinity); }
inline double above(double value) { return std::nextafter(value, kInfinity); }

inline const Dictionary kNone;
inline const Dictionary kUnits{{"units", true}};
inline const Dictionary kSpaced{{"units", true}, {"space", true}};

/// Options with decimals, and the unit shown.
inline Dictionary withDecimals(Value decimals) {
  Dictionary options = kUnits;
  options.set("decimals", std::move(decimals));
  return options;
}

/// One call with the unit that the setting's code means.
struct UnitCase {
  const char* why;
  std::int64_t code;
  Dictionary options;
  double value;
  const char* text;
};

}  // namespace kzm::weather

#endif
