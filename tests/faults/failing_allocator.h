// An allocator in the place of the C library's, of whose allocations one fails.
#ifndef KZM_TESTS_FAULTS_FAILING_ALLOCATOR_H
#define KZM_TESTS_FAULTS_FAILING_ALLOCATOR_H

#include <cstddef>
#include <string_view>

namespace kzm::tests {

/// From now on the allocation with that number fails, of all in this process, after a call of `then`; the first has the
/// number 1.
void failAllocation(std::size_t number, void (*then)() noexcept) noexcept;
/// No allocation fails any more. Whether one did.
bool stopFailing() noexcept;

/// The file of the innermost caller that is neither the C library, the C++ library nor this program: whose code it is.
/// Allocates nothing once prepareCallers was called.
[[nodiscard]] std::string_view innermostCaller() noexcept;
void prepareCallers() noexcept;

}  // namespace kzm::tests

#endif
