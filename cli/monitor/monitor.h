// The monitor on a terminal.
#ifndef KZM_CLI_MONITOR_MONITOR_H
#define KZM_CLI_MONITOR_MONITOR_H

#include <cstdint>

#include <KZMUtilities/dictionary.h>

#include "cli/show/watch.h"
#include "cli/terminal/changes.h"

namespace kzm::cli {

struct MonitorOptions {
  Dictionary bandwidth = {};  // options of KZMUtilitiesFormatBandwidth
  double seconds = 1.0;       // between two readings, at first
  std::int64_t count = 0;     // of readings; 0 is no end
  Dress dress = Dress::colors;
};

/// Shows the readings on the terminal at standard output until the user ends it; the exit status of the program.
[[nodiscard]] int monitor(Watch& watch, const MonitorOptions& options);

}  // namespace kzm::cli

#endif
