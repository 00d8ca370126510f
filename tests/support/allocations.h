// Counts what a test program allocates: link allocations.cc into it.
#ifndef KZM_TESTS_SUPPORT_ALLOCATIONS_H
#define KZM_TESTS_SUPPORT_ALLOCATIONS_H

#include <cstddef>

namespace kzm::tests {

/// How often any thread has called operator new since the program started.
[[nodiscard]] std::size_t allocations() noexcept;

}  // namespace kzm::tests

#endif
