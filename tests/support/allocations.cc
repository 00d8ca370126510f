#include "tests/support/allocations.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constinit std::atomic<std::size_t> count{0};
constinit thread_local std::size_t untilFailure = 0;  // 0: none fails
constinit thread_local kzm::tests::Heap failingHeap = kzm::tests::Heap::own;
constinit thread_local bool hasFailed = false;

}  // namespace

namespace kzm::tests {

std::size_t allocations() noexcept { return count.load(std::memory_order_relaxed); }

void failAllocation(Heap heap, std::size_t number) noexcept {
  failingHeap = heap;
  untilFailure = number;
  hasFailed = false;
}

bool stopFailing() noexcept {
  untilFailure = 0;
  return hasFailed;
}

bool allocationFails(Heap heap) noexcept {
  if (untilFailure == 0 || heap != failingHeap || --untilFailure > 0) return false;
  hasFailed = true;
  return true;
}

}  // namespace kzm::tests

void* operator new(std::size_t size) {
  count.fetch_add(1, std::memory_order_relaxed);
  if (kzm::tests::allocationFails(kzm::tests::Heap::own)) throw std::bad_alloc();
  if (void* room = std::malloc(size > 0 ? size : 1)) return room;
  throw std::bad_alloc();
}
void operator delete(void* room) noexcept { std::free(room); }
void operator delete(void* room, std::size_t) noexcept { std::free(room); }
