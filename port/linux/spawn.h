// The start of a program with a clean slate: own process group, default signals, no descriptor but the standard three.
#ifndef KZM_PORT_LINUX_SPAWN_H
#define KZM_PORT_LINUX_SPAWN_H

#include <optional>
#include <sys/types.h>

#include "port/task.h"

namespace kzm::port {

/// The new program's process identifier, or none if it could not be started, for whatever reason.
[[nodiscard]] std::optional<pid_t> spawn(const Launch& launch);

}  // namespace kzm::port

#endif
