// The disks' counters.
#ifndef KZM_CLI_MACHINE_DISKS_H
#define KZM_CLI_MACHINE_DISKS_H

#include "cli/machine/files.h"
#include "cli/machine/rates.h"

namespace kzm::machine {

/// Bytes read (in) and written (out) by every whole disk that has a medium: no partitions, no disks in memory, and
/// none that are made of other disks, which would count twice.
[[nodiscard]] Sample readDisks(const Root& root, double seconds);

}  // namespace kzm::machine

#endif
