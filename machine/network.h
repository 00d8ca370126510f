// The network interfaces' counters.
#ifndef KZM_MACHINE_NETWORK_H
#define KZM_MACHINE_NETWORK_H

#include "machine/files.h"
#include "machine/rates.h"

namespace kzm::machine {

/// Bytes received (in) and sent (out) by every interface, in the kernel's order.
[[nodiscard]] Sample readNetwork(const Root& root, double seconds);

}  // namespace kzm::machine

#endif
