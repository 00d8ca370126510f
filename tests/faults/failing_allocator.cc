#include "tests/faults/failing_allocator.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <dlfcn.h>
#include <execinfo.h>
#include <malloc.h>

// The C library's own, by the names that it has for allocators in its place.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace kzm::tests {
namespace {

// How many allocations are left until one fails, that one counted; below 1: none does.
constinit std::atomic<std::ptrdiff_t> left{0};

using Note = void (*)() noexcept;
constinit Note whenOneFails = nullptr;

bool fails() noexcept {
  if (left.load(std::memory_order_relaxed) < 1 || left.fetch_sub(1) != 1) return false;
  whenOneFails();
  errno = ENOMEM;
  return true;
}

std::string_view nameOf(std::string_view path) noexcept { return path.substr(path.rfind('/') + 1); }

bool isBetween(std::string_view file) noexcept {
  constexpr std::string_view kBetween[] = {"libc.",       "libstdc++.", "libgcc_s.",
                                           "libpthread.", "kzm_faults", "linux-vdso"};
  for (const std::string_view name : kBetween) {
    if (file.starts_with(name)) return true;
  }
  return file.empty();
}

}  // namespace

void failAllocation(std::size_t number, void (*then)() noexcept) noexcept {
  whenOneFails = then;
  left = static_cast<std::ptrdiff_t>(number);
}

bool stopFailing() noexcept { return left.exchange(0) < 1; }

void prepareCallers() noexcept {
  std::array<void*, 1> frames{};
  ::backtrace(frames.data(), frames.size());  // loads the unwinder, once
}

std::string_view innermostCaller() noexcept {
  std::array<void*, 64> frames{};
  const int count = ::backtrace(frames.data(), frames.size());
  for (int i = 0; i < count; ++i) {
    Dl_info info{};
    if (::dladdr(frames[static_cast<std::size_t>(i)], &info) == 0 || info.dli_fname == nullptr) continue;
    const std::string_view file = nameOf(info.dli_fname);
    if (!isBetween(file)) return file;
  }
  return {};
}

}  // namespace kzm::tests

// What programs and libraries call.
extern "C" {

void* malloc(std::size_t size) noexcept { return kzm::tests::fails() ? nullptr : __libc_malloc(size); }

void* calloc(std::size_t count, std::size_t size) noexcept {
  return kzm::tests::fails() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) noexcept {
  return kzm::tests::fails() ? nullptr : __libc_realloc(block, size);
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
  return kzm::tests::fails() ? nullptr : __libc_memalign(alignment, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept { return memalign(alignment, size); }

int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
  void* const made = memalign(alignment, size);
  if (made == nullptr) return ENOMEM;
  *block = made;
  return 0;
}
}
