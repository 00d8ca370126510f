// What long runs watch and how long they are.
#ifndef KZM_TESTS_SUPPORT_LONG_RUNS_H
#define KZM_TESTS_SUPPORT_LONG_RUNS_H

#include <cstdlib>
#include <malloc.h>

namespace kzm::tests {

/// The count in this variable of the environment, where `./dev soak` puts it; without it the other one.
inline std::size_t inSoak(const char* variable, std::size_t otherwise) {
  const char* const count = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): tests begin with one thread
  return count == nullptr ? otherwise : static_cast<std::size_t>(std::strtoull(count, nullptr, 10));
}

/// Bytes of all heaps that somebody holds. Sanitizers bring a heap of their own, for which this is 0.
inline std::size_t heldMemory() {
  const auto heaps = ::mallinfo2();
  return heaps.uordblks + heaps.hblkhd;
}

/// What a thread's own cache of freed memory may hold more or less of.
constexpr std::size_t kCachedMemory = 65536;

}  // namespace kzm::tests

#endif
