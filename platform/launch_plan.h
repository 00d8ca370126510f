// From a child's configuration to what its start needs.
#ifndef KZM_PLATFORM_LAUNCH_PLAN_H
#define KZM_PLATFORM_LAUNCH_PLAN_H

#include <optional>

#include <KZMUtilities/process.h>

#include "port/task.h"

namespace kzm::platform {

/// None if the configuration cannot be started: a closed connection, a text with a zero byte, a variable without a
/// proper name. The files in it are duplicates, so nobody closes them during the start.
[[nodiscard]] std::optional<port::Launch> planLaunch(const ChildConfiguration& configuration);

/// Closes the host's copies of the pipe ends that now belong to the child.
void closeChildsEnds(const ChildConfiguration& configuration);

}  // namespace kzm::platform

#endif
