// Times of many calls side by side.
#ifndef KZM_BENCH_SWEEP_H
#define KZM_BENCH_SWEEP_H

#include <vector>

#include "bench/pass.h"

namespace kzm::bench {

struct Timed {
  Span values;
  Pass pass;
};

/// Nanoseconds of one call of each. All of them take turns, again and again, and the least counts: what disturbs the
/// machine for a while disturbs none of them alone.
[[nodiscard]] std::vector<double> leastTimes(const std::vector<Timed>& calls, int rounds = 60);

}  // namespace kzm::bench

#endif
