// What the library's calls are measured against: the bare conversion of one number, and the locale library's formatter.
#include <array>
#include <charconv>
#include <string>
#include <system_error>
#include <unicode/numberformatter.h>

#include "bench/allocations.h"

namespace kzm::bench {
namespace {

constexpr double kMegabits = 11.444091796875;

void toCharsShortest(benchmark::State& state) {
  std::array<char, 64> room;
  double value = kMegabits;
  measure(state, [&] {
    benchmark::DoNotOptimize(value);
    return std::to_chars(room.data(), room.data() + room.size(), value).ptr;
  });
}
BENCHMARK(toCharsShortest)->Name("floor/std::to_chars shortest");

void toCharsFixed(benchmark::State& state) {
  std::array<char, 64> room;
  double value = kMegabits;
  measure(state, [&] {
    benchmark::DoNotOptimize(value);
    return std::to_chars(room.data(), room.data() + room.size(), value, std::chars_format::fixed, 1).ptr;
  });
}
BENCHMARK(toCharsFixed)->Name("floor/std::to_chars fixed, 1 digit");

void icu(benchmark::State& state) {
  const auto formatter = icu::number::NumberFormatter::withLocale(icu::Locale::getUS())
                             .precision(icu::number::Precision::fixedFraction(1));
  double value = kMegabits;
  measure(state, [&] {
    benchmark::DoNotOptimize(value);
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    formatter.formatDouble(value, status).toString(status).toUTF8String(text);
    return text;
  });
}
BENCHMARK(icu)->Name("floor/ICU number formatter, 1 digit");

}  // namespace
}  // namespace kzm::bench
