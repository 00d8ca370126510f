// The system's clocks, as files and the reading of them need them. The time of day that is shown is in now.h.
#ifndef KZM_PORT_CLOCKS_H
#define KZM_PORT_CLOCKS_H

#include <cstdint>
#include <ctime>

namespace kzm::port {

[[nodiscard]] constexpr std::int64_t nanosecondsOf(const timespec& time) noexcept {
  constexpr std::int64_t kPerSecond = 1'000'000'000;
  return time.tv_sec * kPerSecond + time.tv_nsec;
}

/// Nanoseconds since 1970, in the measure of the times that a file has.
[[nodiscard]] inline std::int64_t nanosecondsSince1970() noexcept {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return nanosecondsOf(now);
}

/// Milliseconds of a clock that nobody sets, some milliseconds late: reading it takes no call of the kernel.
[[nodiscard]] inline std::int64_t coarseMilliseconds() noexcept {
  constexpr std::int64_t kNanoseconds = 1'000'000;
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return nanosecondsOf(now) / kNanoseconds;
}

}  // namespace kzm::port

#endif
