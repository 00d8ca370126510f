// The mounted volumes and the room on them.
#ifndef KZM_MACHINE_VOLUMES_H
#define KZM_MACHINE_VOLUMES_H

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "machine/files.h"

namespace kzm::machine {

/// Room in bytes. What is free is free for every user; a part beyond that may be kept for root.
struct Space {
  std::uint64_t total = 0;
  std::uint64_t used = 0;
  std::uint64_t free = 0;
};

struct Volume {
  std::string name;  // where it is mounted, as text to show
  std::string type;  // of its file system, such as "ext4"
  Space space;
};

/// Measures the directory; nothing when it cannot be measured or is none.
using SpaceOf = std::function<std::optional<Space>(const std::string& directory)>;

/// The SpaceOf of this machine.
[[nodiscard]] std::optional<Space> measuredSpace(const std::string& directory);

/// The volumes of local file systems, each device once, where its shortest mount point is. File systems on other
/// machines are left out unmeasured: asking one that is gone could wait forever.
[[nodiscard]] std::vector<Volume> readVolumes(const Root& root, const SpaceOf& spaceOf = measuredSpace);

}  // namespace kzm::machine

#endif
