// Main memory and swap space.
#ifndef KZM_MACHINE_MEMORY_H
#define KZM_MACHINE_MEMORY_H

#include <cstdint>
#include <optional>

#include "machine/files.h"

namespace kzm::machine {

/// Sizes in bytes; nothing for what the kernel does not report. What is there to take is never more than the total.
struct Memory {
  std::optional<std::uint64_t> total;
  std::optional<std::uint64_t> available;  // for programs, without swapping
  std::optional<std::uint64_t> swapTotal;
  std::optional<std::uint64_t> swapFree;
};

[[nodiscard]] Memory readMemory(const Root& root);

}  // namespace kzm::machine

#endif
