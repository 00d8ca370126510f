// Tells whether memory ran out inside ICU.
#ifndef KZM_PORT_ICU_MEMORY_H
#define KZM_PORT_ICU_MEMORY_H

#include <cerrno>
#include <new>
#include <unicode/utypes.h>

namespace kzm::port {

/// Made before calls of ICU and asked after them. ICU reports some failed allocations as it should, takes others for
/// missing data, and does not report the rest at all; but the allocator leaves ENOMEM in errno each time.
class IcuMemory {
 public:
  IcuMemory() noexcept : before_(errno) { errno = 0; }
  IcuMemory(const IcuMemory&) = delete;
  IcuMemory& operator=(const IcuMemory&) = delete;
  ~IcuMemory() { errno = before_; }

  /// Throws std::bad_alloc if memory ran out: the calls' result must not be used then, and never be kept.
  void demand(UErrorCode status = U_ZERO_ERROR) const {
    if (errno == ENOMEM || status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  }

 private:
  int before_;
};

}  // namespace kzm::port

#endif
