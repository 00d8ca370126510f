// The options that a panel has for its readings.
#ifndef KZM_BENCH_OPTIONS_H
#define KZM_BENCH_OPTIONS_H

#include <KZMUtilities/dictionary.h>

namespace kzm::bench {

struct Options {
  Dictionary dictionary;
  const char* json;  // the same for the C library
};

[[nodiscard]] const Options& none();
/// Bits, a space, the longest unit, and two decimals rules for each of two levels.
[[nodiscard]] const Options& typicalRate();
/// A space and a decimals rule.
[[nodiscard]] const Options& typicalSize();
/// The unit, after a space.
[[nodiscard]] const Options& withUnit();
/// At most one fraction digit.
[[nodiscard]] const Options& oneDigit();
/// The same in two text styles.
[[nodiscard]] const Options& styledRate();
[[nodiscard]] const Options& styledSize();
[[nodiscard]] const Options& styledDigit();

}  // namespace kzm::bench

#endif
