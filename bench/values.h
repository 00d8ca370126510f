// The values that the calls are made with: every level of a family as often as the next.
#ifndef KZM_BENCH_VALUES_H
#define KZM_BENCH_VALUES_H

#include <cstddef>

#include "bench/pass.h"

namespace kzm::bench {

inline constexpr std::size_t kValues = 4096;

/// Bytes per second, from one byte to 16 terabytes.
[[nodiscard]] Span rates();
/// Bytes, from one byte to 4 exabytes.
[[nodiscard]] Span sizes();
/// What a sensor or a weather station reads, from 0.01 to 10,000.
[[nodiscard]] Span readings();
/// The rates as they are shown: from 0 to some thousands.
[[nodiscard]] Span scaledRates();

}  // namespace kzm::bench

#endif
