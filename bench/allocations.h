// How often this process has asked for memory.
#ifndef KZM_BENCH_ALLOCATIONS_H
#define KZM_BENCH_ALLOCATIONS_H

#include <cstdint>

namespace kzm::bench {

/// Allocations with operator new so far, the libraries' own with them.
[[nodiscard]] std::int64_t allocations() noexcept;

}  // namespace kzm::bench

#endif
