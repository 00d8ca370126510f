#include "tests/support/allocations.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constinit std::atomic<std::size_t> count{0};

}  // namespace

namespace kzm::tests {

std::size_t allocations() noexcept { return count.load(std::memory_order_relaxed); }

}  // namespace kzm::tests

void* operator new(std::size_t size) {
  count.fetch_add(1, std::memory_order_relaxed);
  if (void* room = std::malloc(size > 0 ? size : 1)) return room;
  throw std::bad_alloc();
}
void operator delete(void* room) noexcept { std::free(room); }
void operator delete(void* room, std::size_t) noexcept { std::free(room); }
