// The environment of the process, which nothing in the library ever changes.
#ifndef KZM_PORT_ENVIRONMENT_H
#define KZM_PORT_ENVIRONMENT_H

#include <cstdlib>
#include <functional>

namespace kzm::port {

/// Gives the value of an environment variable, or null when it is not set.
using Environment = std::function<const char*(const char* name)>;

/// The environment of this process. As safe as getenv is, that is, as long as no other thread changes the environment.
[[nodiscard]] inline const char* processEnvironment(const char* name) {
  return std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace kzm::port

#endif
