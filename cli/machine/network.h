// The network interfaces' counters.
#ifndef KZM_CLI_MACHINE_NETWORK_H
#define KZM_CLI_MACHINE_NETWORK_H

#include "cli/machine/files.h"
#include "cli/machine/rates.h"

namespace kzm::machine {

/// Bytes received (in) and sent (out) by every interface, in the kernel's order.
[[nodiscard]] Sample readNetwork(const Root& root, double seconds);

}  // namespace kzm::machine

#endif
