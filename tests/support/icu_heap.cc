// Lets allocations of ICU fail as those of operator new do.
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <unicode/uclean.h>

#include "tests/support/allocations.h"

namespace {

// As malloc does.
bool fails() {
  const bool fails = kzm::tests::allocationFails(kzm::tests::Heap::icu);
  if (fails) errno = ENOMEM;
  return fails;
}

void* U_CALLCONV allocate(const void* /*context*/, std::size_t size) { return fails() ? nullptr : std::malloc(size); }

void* U_CALLCONV reallocate(const void* /*context*/, void* room, std::size_t size) {
  return fails() ? nullptr : std::realloc(room, size);
}

void U_CALLCONV release(const void* /*context*/, void* room) { std::free(room); }

// Before anybody uses ICU: what it has allocated by then would be released by the wrong function.
[[maybe_unused]] const bool installed = [] {
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(nullptr, allocate, reallocate, release, &status);
  if (U_FAILURE(status)) std::abort();
  return true;
}();

}  // namespace
