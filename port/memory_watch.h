// Whether memory ran out inside a library that is called.
#ifndef KZM_PORT_MEMORY_WATCH_H
#define KZM_PORT_MEMORY_WATCH_H

#include <cerrno>
#include <new>
#include <unicode/utypes.h>

namespace kzm::port {

/// Throws std::bad_alloc if ICU reports that memory ran out, now or in an earlier call that it remembers.
inline void demandMemory(UErrorCode status) {
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
}

/// Made before the calls and asked after them. ICU reports some failed allocations as it should, takes others for
/// missing data, and does not report the rest at all; a zone file that cannot be opened for want of memory looks like
/// one that is not there. But the allocator leaves ENOMEM in errno each time.
class MemoryWatch {
 public:
  MemoryWatch() noexcept : before_(errno) { errno = 0; }
  MemoryWatch(const MemoryWatch&) = delete;
  MemoryWatch& operator=(const MemoryWatch&) = delete;
  ~MemoryWatch() { errno = before_; }

  /// Throws std::bad_alloc if memory ran out: the calls' result must not be used then, and never be kept.
  void demand(UErrorCode status = U_ZERO_ERROR) const {
    if (errno == ENOMEM) throw std::bad_alloc();
    demandMemory(status);
  }

 private:
  int before_;
};

}  // namespace kzm::port

#endif
