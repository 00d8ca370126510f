// A machine that is always the same, with a past.
#ifndef KZM_TESTS_CLI_MONITOR_EXAMPLE_H
#define KZM_TESTS_CLI_MONITOR_EXAMPLE_H

#include <vector>

#include "cli/monitor/tracks.h"
#include "cli/show/sections.h"

namespace kzm::tests {

struct Example {
  std::vector<cli::Group> groups;
  cli::Tracks tracks;
};

/// All topics after some minutes of waves, in the language in force.
[[nodiscard]] Example example();

}  // namespace kzm::tests

#endif
