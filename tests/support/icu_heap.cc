// Lets allocations of ICU fail as those of operator new do, and counts its blocks.
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <unicode/uclean.h>

#include "tests/support/allocations.h"

namespace {

constinit std::atomic<std::ptrdiff_t> blocks{0};

// As malloc does.
bool fails() {
  const bool fails = kzm::tests::allocationFails(kzm::tests::Heap::icu);
  if (fails) errno = ENOMEM;
  return fails;
}

void* U_CALLCONV reallocate(const void* /*context*/, void* room, std::size_t size) {
  void* changed = fails() ? nullptr : std::realloc(room, size);
  if (room == nullptr && changed != nullptr) ++blocks;
  return changed;
}

void* U_CALLCONV allocate(const void* context, std::size_t size) { return reallocate(context, nullptr, size); }

void U_CALLCONV release(const void* /*context*/, void* room) {
  if (room != nullptr) --blocks;
  std::free(room);
}

// Before anybody uses ICU: what it has allocated by then would be released by the wrong function.
[[maybe_unused]] const bool installed = [] {
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(nullptr, allocate, reallocate, release, &status);
  if (U_FAILURE(status)) std::abort();
  return true;
}();

}  // namespace

std::ptrdiff_t kzm::tests::icuBlocks() noexcept { return blocks; }
