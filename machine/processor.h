// How busy the processor is.
#ifndef KZM_MACHINE_PROCESSOR_H
#define KZM_MACHINE_PROCESSOR_H

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "machine/files.h"

namespace kzm::machine {

/// The time that a processor spent since the machine started, in the kernel's ticks.
struct ProcessorTime {
  std::string name;  // "cpu" for all together, then "cpu0" and so on
  std::uint64_t idle = 0;
  std::uint64_t total = 0;
};

/// The busy part of the time between two readings, 0 to 1; nothing when no time has passed or it is not known.
struct ProcessorLoad {
  std::string name;
  std::optional<double> busy;
};

[[nodiscard]] std::vector<ProcessorTime> readProcessor(const Root& root);

/// A load for each processor of the later reading.
[[nodiscard]] std::vector<ProcessorLoad> loadBetween(const std::vector<ProcessorTime>& earlier,
                                                     const std::vector<ProcessorTime>& later);

/// How many programs wanted to run, on average over 1, 5 and 15 minutes.
[[nodiscard]] std::optional<std::array<double, 3>> readLoadAverages(const Root& root);

}  // namespace kzm::machine

#endif
