// System calls that a signal handler of the host may interrupt.
#ifndef KZM_PORT_RETRIED_H
#define KZM_PORT_RETRIED_H

#include <cerrno>

namespace kzm::port {

/// Makes the call, which answers below zero on failure, again until no signal interrupts it.
template <typename Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace kzm::port

#endif
