#include "bench/pass.h"

#include <algorithm>
#include <ctime>

#include "bench/allocations.h"

namespace kzm::bench {

double threadTime() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

double timeOfOne(Pass pass, Span values) {
  const double start = threadTime();
  pass(values);
  return (threadTime() - start) / static_cast<double>(values.size());
}

std::int64_t mostAllocations(Pass pass, Span values) {
  pass(values);  // what only the first call does is not the steady state
  std::int64_t most = 0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::int64_t before = allocations();
    pass(values.subspan(i, 1));
    most = std::max(most, allocations() - before);
  }
  return most;
}

}  // namespace kzm::bench
