// The disks' counters.
#ifndef KZM_MACHINE_DISKS_H
#define KZM_MACHINE_DISKS_H

#include "machine/files.h"
#include "machine/rates.h"

namespace kzm::machine {

/// Bytes read (in) and written (out) by every whole disk that has a medium: no partitions, no disks in memory, and
/// none that are made of other disks, which would count twice.
[[nodiscard]] Sample readDisks(const Root& root, double seconds);

}  // namespace kzm::machine

#endif
