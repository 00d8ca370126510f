// Counts what a test program allocates, and lets one allocation fail: link allocations.cc into it, and icu_heap.cc too
// where those of ICU are meant to fail.
#ifndef KZM_TESTS_SUPPORT_ALLOCATIONS_H
#define KZM_TESTS_SUPPORT_ALLOCATIONS_H

#include <cstddef>
#include <new>

#include "tests/support/processes.h"

namespace kzm::tests {

/// How often any thread has called operator new since the program started.
[[nodiscard]] std::size_t allocations() noexcept;

/// How many blocks ICU has allocated and not released: its caches, and what was lost.
[[nodiscard]] std::ptrdiff_t icuBlocks() noexcept;

/// Whose allocations.
enum class Heap { own, icu };

/// The allocation of that number from now on fails, counted from 1 on the calling thread; no other one does.
void failAllocation(Heap heap, std::size_t number) noexcept;

/// From now on none fails. Says whether one has.
bool stopFailing() noexcept;

/// Whether the allocation that is about to be made is to fail. Each question counts as one allocation.
[[nodiscard]] bool allocationFails(Heap heap) noexcept;

/// Calls with that one allocation failing. Says whether there was one of that number.
template <class Call>
bool callWithFailure(Heap heap, std::size_t number, Call call) {
  failAllocation(heap, number);
  try {
    call();
  } catch (const std::bad_alloc&) {
    return stopFailing();
  }
  return stopFailing();
}

/// How a cold call went, in a process of its own that has never called before. A library that remembers its failure
/// may fail from then on; one that cannot live without memory ends the process, or waits forever.
enum class ColdCall { right = 100, wrong, failingOn, noSuchAllocation, ended };  // no exit codes of a sanitizer

template <class Check>
ColdCall judged(Check isRight) {
  try {
    return isRight() ? ColdCall::right : ColdCall::wrong;
  } catch (const std::bad_alloc&) {
    return ColdCall::failingOn;
  }
}

/// Makes the call in a child process with that one allocation failing, and then asks whether all is right.
template <class Call, class Check>
ColdCall coldCallWithFailure(Heap heap, std::size_t number, Call call, Check isRight) {
  const int end = endOf(
      [&] {
        const bool failed = callWithFailure(heap, number, call);
        return static_cast<int>(failed ? judged(isRight) : ColdCall::noSuchAllocation);
      },
      2);
  const auto went = static_cast<ColdCall>(end);
  return went >= ColdCall::right && went < ColdCall::ended ? went : ColdCall::ended;
}

}  // namespace kzm::tests

#endif
