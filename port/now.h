// The current time, which tests may hold still.
#ifndef KZM_PORT_NOW_H
#define KZM_PORT_NOW_H

namespace kzm::port {

/// Seconds since 1970-01-01 00:00:00 UTC.
using NowFunction = double (*)();

/// What the function in force says; the system's real-time clock unless it was replaced.
[[nodiscard]] double now();

/// Replaces the clock for every thread; null brings the system's back.
void replaceNow(NowFunction function);

}  // namespace kzm::port

#endif
