// One call, made with many values, and what that takes.
#ifndef KZM_BENCH_PASS_H
#define KZM_BENCH_PASS_H

#include <cstdint>
#include <span>

namespace kzm::bench {

using Span = std::span<const double>;

/// Makes a call once with each value.
using Pass = void (*)(Span values);

/// Keeps the compiler from leaving out what nobody looks at.
template <class T>
inline void keep(const T& result) {
  asm volatile("" : : "g"(&result) : "memory");
}

/// Processor time of the calling thread, in nanoseconds: other programs on the machine do not count.
[[nodiscard]] double threadTime();

/// What one call costs in one pass, in nanoseconds.
[[nodiscard]] double timeOfOne(Pass pass, Span values);

/// The most allocations that one of the calls makes.
[[nodiscard]] std::int64_t mostAllocations(Pass pass, Span values);

}  // namespace kzm::bench

#endif
