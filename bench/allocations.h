// Counts what a call allocates, beside the time that it takes.
#ifndef KZM_BENCH_ALLOCATIONS_H
#define KZM_BENCH_ALLOCATIONS_H

#include <benchmark/benchmark.h>
#include <cstdint>

namespace kzm::bench {

/// Allocations of this process so far, the libraries' own with them.
[[nodiscard]] std::int64_t allocations() noexcept;

/// Runs the call over and over; the result is kept alive, and allocations per call have a column of their own.
template <class Call>
void measure(benchmark::State& state, const Call& call) {
  benchmark::DoNotOptimize(call());  // what only the first call does is not the steady state
  const std::int64_t before = allocations();
  std::int64_t calls = 0;
  for (auto _ : state) {
    auto result = call();
    benchmark::DoNotOptimize(result);
    ++calls;
  }
  state.counters["allocs"] = static_cast<double>(allocations() - before) / static_cast<double>(calls);
}

}  // namespace kzm::bench

#endif
