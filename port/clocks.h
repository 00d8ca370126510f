// The system's clocks, as files and the reading of them need them. The time of day that is shown is in now.h.
#ifndef KZM_PORT_CLOCKS_H
#define KZM_PORT_CLOCKS_H

#include <cstdint>
#include <ctime>

namespace kzm::port {

[[nodiscard]] constexpr std::int64_t nanosecondsOf(const timespec& time) noexcept {
  constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
  return time.tv_sec * kNanosecondsPerSecond + time.tv_nsec;
}

/// Nanoseconds since 1970, in the measure of the times that a file has.
[[nodiscard]] inline std::int64_t nanosecondsSince1970() noexcept {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return nanosecondsOf(now);
}

/// Seconds of a clock that nobody sets, to measure how long something took.
[[nodiscard]] inline double steadySeconds() noexcept {
  constexpr double kSecondsPerNanosecond = 1e-9;
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(nanosecondsOf(now)) * kSecondsPerNanosecond;
}

/// Nanoseconds of a clock that nobody sets, some milliseconds late: it costs a few nanoseconds, so it may be read in an
/// inner loop.
[[nodiscard]] inline std::int64_t coarseNanoseconds() noexcept {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return nanosecondsOf(now);
}

/// The same in milliseconds.
[[nodiscard]] inline std::int64_t coarseMilliseconds() noexcept {
  constexpr std::int64_t kNanosecondsPerMillisecond = 1'000'000;
  return coarseNanoseconds() / kNanosecondsPerMillisecond;
}

/// Lets a millisecond pass, or less when a signal comes.
inline void sleepAMillisecond() noexcept {
  constexpr timespec kMillisecond{0, 1'000'000};
  nanosleep(&kMillisecond, nullptr);
}

}  // namespace kzm::port

#endif
